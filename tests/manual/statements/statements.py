#!/usr/bin/env python3
"""The manual's statements and what checks each: statements.py [--uncovered PAGE]

A page says one thing a sentence, a row of a table, or a block of code. Each has an entry in the file PAGE.toml here.
With --uncovered the statements of a page are listed that have none.
"""
import pathlib
import re
import sys
import tomllib

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[2]
MANUAL = ROOT / "docs/manual/en"
sys.path.insert(0, str(ROOT / "tools/manual"))

from markdown import HEADING, prose  # noqa: E402

COMMENT = re.compile(r"<!--.*?-->", re.S)
ITEM = re.compile(r"^ *(?:[-*]|\d+\.) +")
RULE = re.compile(r"^\|[\s|:-]+\|$")
# A sentence ends behind a point with a blank and something that begins another one.
END = re.compile(r"(?<=[.?!:])(?<!e\.g\.)(?<!i\.e\.)[)\"*]*\s+(?=[\"(\[`*]*[A-Z`\[])")


def pages():
    return sorted(path.stem for path in MANUAL.glob("*.md"))


def blocks(text):
    """What the page consists of, as pairs of a kind (code, row, text) and the lines of it."""
    kind, lines = None, []
    for line, outside in prose(COMMENT.sub("", text)):
        begins = not outside and line.lstrip().startswith(("```", "~~~")) and kind != "code"
        if kind == "code" and not begins and not outside:
            lines.append(line)
            continue
        if begins or line.startswith("|") or ITEM.match(line) or not line.strip() or HEADING.match(line):
            if kind:
                yield kind, lines
            kind, lines = None, []
        if begins:
            kind, lines = "code", [line]
        elif line.startswith("|"):
            yield "row", [line]
        elif line.strip() and not HEADING.match(line):
            kind = "text"
            lines.append(line)
    if kind:
        yield kind, lines


def said(kind, lines):
    if kind == "code":
        yield "\n".join(line.rstrip() for line in lines if not re.fullmatch(r"\s*(```+|~~~+)", line))
    elif kind == "row":
        yield lines[0].strip()
    else:
        yield from END.split(" ".join(ITEM.sub("", line).strip() for line in lines))


def statements(page):
    """The page's statements in order; a table's head says nothing, nor does the line below it."""
    found = list(blocks((MANUAL / f"{page}.md").read_text(encoding="utf-8")))
    for at, (kind, lines) in enumerate(found):
        below = found[at + 1] if at + 1 < len(found) else (None, [""])
        if kind == "row" and (RULE.match(lines[0]) or below[0] == "row" and RULE.match(below[1][0])):
            continue
        yield from said(kind, lines)


def entries(page):
    path = HERE / f"{page}.toml"
    return tomllib.loads(path.read_text(encoding="utf-8")).get("statement", []) if path.exists() else []


def uncovered(page):
    known = {entry["says"] for entry in entries(page)}
    return [each for each in statements(page) if each not in known]


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] != "--uncovered":
        sys.exit(__doc__)
    for each in uncovered(sys.argv[2]):
        print(each)
