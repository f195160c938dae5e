#!/usr/bin/python3
"""A picture of one page: screenshot.py SITE PAGE FILE.png WIDTH HEIGHT."""
import base64
import pathlib
import sys
import time

from browser import Browser

SETTLED = 0.7  # seconds; the search adds its hits one by one, the theme scrolls to the anchor


def main(site, page, file, width, height):
    browser = Browser(pathlib.Path(site).resolve())
    try:
        browser.resize(int(width), int(height))
        browser.open(page)
        time.sleep(SETTLED)
        picture = browser.driver.execute_cdp_cmd("Page.captureScreenshot", {"format": "png"})
        pathlib.Path(file).write_bytes(base64.b64decode(picture["data"]))
    finally:
        browser.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
