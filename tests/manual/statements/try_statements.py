#!/usr/bin/env python3
"""Tries the statements that a few lines of VBScript show: try_statements.py WIDTH BIN [PAGE]

Each is run in the script host of Windows with the library registered; what it prints is compared whole.
"""
import pathlib
import re
import sys
import tempfile
import unittest

from statements import HERE, entries, pages

sys.path.insert(0, str(HERE.parent))

import windows  # noqa: E402

WIDTH, BIN, *PAGES = sys.argv[1:]
WINDOWS = windows.Windows(WIDTH, BIN)
CODE_OF_PAGE = "..."  # a line of a try that stands for the page's own code
DECLARES = re.compile(r"^\s*(?:Public |Private )?(?:Sub|Function|Class)\b", re.M | re.I)
MARK = "== try "


def body(entry):
    code = "\n".join(line for line in entry["says"].split("\n") if not line.startswith("```"))
    return "\n".join(code if line == CODE_OF_PAGE else line for line in entry["try"].splitlines()) + "\n"


def run(code):
    """What a script prints that has the prelude before it, in a folder of its own."""
    with tempfile.TemporaryDirectory() as folder:
        database = f"Extended Properties=\"\"DRIVER={{SQLite3}};Database={folder}/tried.db;\"\""
        prelude = (HERE / "prelude.vbs").read_text(encoding="utf-8")
        path = pathlib.Path(folder) / "tried.vbs"
        path.write_text(prelude.replace("@FOLDER@", windows.path(folder)).replace("@DATABASE@", database) + code,
                        encoding="utf-8", newline="\r\n")
        return windows.told(WINDOWS.run(WINDOWS.system + r"\cscript.exe", "//nologo", windows.path(path)))


def outputs(tries):
    """What each of a page's tries prints, by its number. A process is slow to start: those that declare nothing, which
    is not allowed inside, are subroutines of one script."""
    alone = {number for number, entry in tries.items() if DECLARES.search(body(entry))}
    together = "On Error Resume Next\n"
    for number in sorted(set(tries) - alone):
        together += (f"Sub Try{number}\n{body(tries[number])}End Sub\nPrint \"{MARK}{number}\"\nErr.Clear\n"
                     f"Try{number}\nIf Err.Number <> 0 Then Print \"error \" & Err.Number\n")
    found = {number: run(body(tries[number])) for number in alone}
    for part in run(together).split(MARK)[1:]:
        number, _, printed = part.partition("\n")
        found[int(number)] = printed
    return found


class Tries(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        WINDOWS.register()

    @classmethod
    def tearDownClass(cls):
        WINDOWS.register("/u")


def add(page, tries):
    def test(self):
        found = outputs(tries)
        for number, entry in tries.items():
            with self.subTest(entry["says"]):
                self.assertEqual(found.get(number, "").rstrip("\n"), entry["prints"].rstrip("\n"))
    setattr(Tries, f"test_{page.replace('-', '_')}", test)


for each in PAGES or pages():
    tried = {number: entry for number, entry in enumerate(entries(each), 1) if "try" in entry}
    if tried:
        add(each, tried)

if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
