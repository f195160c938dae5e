#!/usr/bin/env python3
"""Tries the statements that a few lines of VBScript show: try_statements.py WIDTH BIN [PAGE]

Each is run in the script host of Windows with the library registered; what it prints is compared whole.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from statements import HERE, ROOT, entries, pages

WIDTH, BIN, *PAGES = sys.argv[1:]
SYSTEM = r"C:\windows\system32" if WIDTH == "64" else r"C:\windows\syswow64"
CODE_OF_PAGE = "..."  # a line of a try that stands for the page's own code
DECLARES = re.compile(r"^\s*(?:Public |Private )?(?:Sub|Function|Class)\b", re.M | re.I)
MARK = "== try "


def wine(*command):
    environment = dict(os.environ, LC_ALL="C.UTF-8")
    if WIDTH == "64":  # the loader of the other width would see its programs
        environment["QVR_WINE"] = "/usr/lib/wine/wine64"
    return subprocess.run([ROOT / "tools/wine.sh", *command], env=environment, stdin=subprocess.DEVNULL, timeout=120,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def register(*switches):
    for name in ("QVRlib21.dll", "testado.dll"):
        wine(SYSTEM + r"\regsvr32.exe", *switches, "/s", windows_path(pathlib.Path(BIN) / name)).check_returncode()


def body(entry):
    code = "\n".join(line for line in entry["says"].split("\n") if not line.startswith("```"))
    return "\n".join(code if line == CODE_OF_PAGE else line for line in entry["try"].splitlines()) + "\n"


def run(code):
    """What a script prints that has the prelude before it, in a folder of its own."""
    with tempfile.TemporaryDirectory() as folder:
        database = f"Extended Properties=\"\"DRIVER={{SQLite3}};Database={folder}/tried.db;\"\""
        prelude = (HERE / "prelude.vbs").read_text(encoding="utf-8")
        path = pathlib.Path(folder) / "tried.vbs"
        path.write_text(prelude.replace("@FOLDER@", windows_path(folder)).replace("@DATABASE@", database) + code,
                        encoding="utf-8", newline="\r\n")
        ended = wine(SYSTEM + r"\cscript.exe", "//nologo", windows_path(path))
        return ended.stdout.decode("utf-8", "replace").replace("\r\n", "\n")


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
        register()

    @classmethod
    def tearDownClass(cls):
        register("/u")


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
