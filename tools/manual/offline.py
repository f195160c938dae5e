#!/usr/bin/env python3
"""Makes a built site whole in itself: offline.py FOLDER.

Debian's packages of the theme refer to a style sheet under a web server's /javascript/ and to a script module; browsers
take neither from files. Both are written into the files that refer to them.
"""
import pathlib
import re
import sys

SHARED = pathlib.Path("/usr/share")  # /javascript/ on Debian's web servers is /usr/share/javascript/
STYLE_IMPORT = re.compile(r"@import url\((/javascript/[^)]+)\);")
SCRIPT_IMPORT = re.compile(r"^import \w+ from \"\./([\w.-]+)\";$", re.MULTILINE)
FOREIGN = re.compile(r"@import|^import |url\([\"']?(?:https?:)?/|<(?:script|img|iframe)[^>]+src=\"(?:https?:)?/|"
                     r"<link rel=\"stylesheet\"[^>]+href=\"(?:https?:)?/", re.MULTILINE)


def with_style(match):
    return (SHARED / match[1].lstrip("/")).read_text(encoding="utf-8")


def whole_script(path, text):
    """The imported script before the one that imports it, whose names stay its own."""
    imported = SCRIPT_IMPORT.findall(text)
    if not imported:
        return text
    before = "\n".join((path.parent / name).read_text(encoding="utf-8") for name in imported)
    return f"{before}\n(() => {{\n{SCRIPT_IMPORT.sub('', text)}\n}})();\n"


def main(folder):
    for path in sorted(pathlib.Path(folder).rglob("*")):
        if path.suffix not in (".css", ".js", ".html"):
            continue
        text = path.read_text(encoding="utf-8")
        whole = whole_script(path, STYLE_IMPORT.sub(with_style, text)) if path.suffix != ".html" else text
        if path.name != "searchindex.js" and FOREIGN.search(whole):
            print(f"manual: {path} refers to something outside: {FOREIGN.search(whole)[0]}", file=sys.stderr)
            return 1
        if whole != text:
            path.write_text(whole, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
