#!/usr/bin/env python3
"""One section of the demo's output as a page that looks like a terminal: terminal_page.py OUTPUT NUMBER."""
import html
import pathlib
import re
import sys

WIDEST = 116  # columns; what is longer ends in dots
PAGE = """<!doctype html>
<html lang="en"><meta charset="utf-8"><title>demo</title>
<style>
body {{ margin: 0; overflow: hidden; background: #16191d; color: #d8dee4; }}
pre {{ margin: 0; padding: 18px 22px; font: 13.5px/1.38 "DejaVu Sans Mono", monospace; }}
b {{ color: #7cc4ff; font-weight: normal; }}
</style>
<pre>{}</pre></html>
"""


def shown(line):
    text = html.escape(line if len(line) <= WIDEST else line[: WIDEST - 1] + "\u2026")
    heading = re.match(r"\d+\. |   \S.*: |   (SELECT|Sorted|Restored)", line)
    return f"<b>{text}</b>" if heading else text


def main(output, number):
    lines = pathlib.Path(output).read_text(encoding="utf-8").splitlines()
    begin = next(i for i, line in enumerate(lines) if line.startswith(f"{number}. "))
    end = next((i for i in range(begin + 1, len(lines)) if re.match(r"\d+\. ", lines[i])), len(lines))
    print(PAGE.format("\n".join(["<b>$ tools/demo.sh</b>", *map(shown, lines[begin:end])])))


if __name__ == "__main__":
    main(*sys.argv[1:])
