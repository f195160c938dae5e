#!/usr/bin/python3
"""A picture of one page: screenshot.py SITE PAGE FILE.png WIDTH HEIGHT."""
import pathlib
import sys

from browser import Browser


def main(site, page, file, width, height):
    browser = Browser(pathlib.Path(site).resolve())
    try:
        browser.resize(int(width), int(height))
        browser.open(page)
        if "?q=" in page:
            browser.search_summary()
        pathlib.Path(file).write_bytes(browser.picture())
    finally:
        browser.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
