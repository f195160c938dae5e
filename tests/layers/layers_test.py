#!/usr/bin/env python3
"""No include of src/ or programs/ points up or sideways: layers_test.py ROOT"""
import pathlib
import sys
import tempfile
import unittest

from layers import problems

# What a file includes, and what is told of it. Each is tried in a small tree of its own.
WRONG = {
    "up": ("src/base/text.h", '#include "session/state.h"', "src/base may see base"),
    "two floors up": ("src/platform/files.cpp", '#include "com/module.h"', "src/platform may see base, platform"),
    "sideways": ("src/query/search.cpp", '#include "connection/file.h"',
                 "src/query may see base, dialect, platform, query, services, session"),
    "script to dialect": ("src/script/run.cpp", '#include "dialect/literals.h"',
                          "src/script may see base, platform, script, services, session"),
    "core to programs": ("src/services/ado.h", '#include "odbc/ado.h"', "src/services may see base, platform, services"),
    "up by a relative path": ("src/base/text.h", '#include "../session/state.h"', "src/base may see base"),
    "odbc to session": ("programs/odbc/ado.h", '#include "session/state.h"',
                        "programs/odbc may see base, odbc, platform, services"),
    "a system header": ("src/base/text.h", "#  include <Windows.h>",
                        "the core sees no header of one system outside of its platform folder"),
    "a system header in quotes": ("src/query/search.cpp", '#include "oleauto.h"',
                                  "the core sees no header of one system outside of its platform folder"),
    "automation's header": ("src/session/state.h", '#include "QVRlib21.h"', "only automation sees this"),
    "no file": ("src/com/module.h", '#include "com/gone.h"', "there is no such file"),
}
RIGHT = {
    "down": ("src/com/module.h", '#include "base/text.h"'),
    "the same folder": ("src/query/search.cpp", '#include "query/words.h"'),
    "the standard library": ("src/base/text.h", "#include <string>"),
    "the platform's system": ("src/platform/windows/files.cpp", "#include <windows.h>"),
    "a comment": ("src/base/text.h", '// #include "session/state.h"'),
}
FILES = ("src/base/text.h", "src/session/state.h", "src/com/module.h", "src/connection/file.h", "src/dialect/literals.h",
         "src/query/words.h", "programs/odbc/ado.h")


class Layers(unittest.TestCase):
    def told_of(self, name, line):
        with tempfile.TemporaryDirectory() as folder:
            for each in (*FILES, name):
                path = pathlib.Path(folder, each)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(f"\n{line}\n" if each == name else "")
            return problems(folder)

    def test_a_wrong_include_is_told(self):
        for title, (name, line, why) in WRONG.items():
            with self.subTest(title):
                told, read = self.told_of(name, line)
                included = line.split(None, 1 if line.startswith("#i") else 2)[-1].strip('"<>')
                self.assertEqual((told, read), ([f"{name}:2: includes {included}; {why}"], 1))

    def test_a_right_include_is_not_told(self):
        for title, (name, line) in RIGHT.items():
            with self.subTest(title):
                self.assertEqual(self.told_of(name, line)[0], [])

    def test_a_folder_without_a_place_is_told(self):
        told, _ = self.told_of("src/attic/old.cpp", "")
        self.assertEqual(told, ["src/attic/old.cpp: src/attic has no place in the order of folders"])

    def test_nothing_points_up(self):
        told, read = problems(root)
        self.assertEqual(told, [])
        self.assertGreater(read, 1000)


if __name__ == "__main__":
    root = sys.argv.pop(1)
    unittest.main()
