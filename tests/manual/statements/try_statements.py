#!/usr/bin/env python3
"""Tries the statements that a few lines of VBScript show: try_statements.py WIDTH BIN [PAGE]

Each is run in the script host of Windows with the library registered; what it prints is compared whole.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from statements import HERE, ROOT, entries, pages

WIDTH, BIN, *PAGES = sys.argv[1:]
SYSTEM = r"C:\windows\system32" if WIDTH == "64" else r"C:\windows\syswow64"
CODE_OF_PAGE = "..."  # a line of a try that stands for the page's own code


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


def script(entry, folder):
    code = "\n".join(line for line in entry["says"].split("\n") if not line.startswith("```"))
    body = "\n".join(code if line == CODE_OF_PAGE else line for line in entry["try"].splitlines())
    database = f"Extended Properties=\"\"DRIVER={{SQLite3}};Database={folder}/tried.db;\"\""
    prelude = (HERE / "prelude.vbs").read_text(encoding="utf-8")
    return (prelude.replace("@FOLDER@", windows_path(folder)).replace("@DATABASE@", database) + body + "\n")


def printed(entry):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "tried.vbs"
        path.write_text(script(entry, folder), encoding="utf-8", newline="\r\n")
        ended = wine(SYSTEM + r"\cscript.exe", "//nologo", windows_path(path))
        return ended.stdout.decode("utf-8", "replace").replace("\r\n", "\n")


class Tries(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        register()

    @classmethod
    def tearDownClass(cls):
        register("/u")


def add(page, number, entry):
    def test(self):
        self.assertEqual(printed(entry).rstrip("\n"), entry["prints"].rstrip("\n"), entry["says"])
    setattr(Tries, f"test_{page.replace('-', '_')}_{number:03}", test)


for each in PAGES or pages():
    for place, tried in enumerate(entries(each), 1):
        if "try" in tried:
            add(each, place, tried)

if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
