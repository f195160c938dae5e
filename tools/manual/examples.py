"""The manual's tables of texts by engine, which tests compare with the library's own answers."""
import pathlib
import re

HEADING = "| call | Jet | SQL Server | Oracle |"
CALL = re.compile(r"\| `(?:Consulta\.)?(\w+)")


def rows_of(page):
    inside = False
    for line in page.splitlines():
        if line == HEADING:
            inside = True
        elif not line.startswith("|"):
            inside = False
        elif inside and not line.startswith("|---"):
            yield line


def by_member(folder):
    """The rows whose call begins with a member's name, by that name."""
    found = {}
    for path in sorted(pathlib.Path(folder).glob("*.md")):
        for row in rows_of(path.read_text(encoding="utf-8")):
            match = CALL.match(row)
            if match:
                found.setdefault(match[1], []).append(row)
    return found
