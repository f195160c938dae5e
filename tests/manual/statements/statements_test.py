#!/usr/bin/env python3
"""Every statement of the manual's English pages is known here, with what checks it or why nothing does."""
import re
import unittest

from statements import HERE, ROOT, entries, pages, statements

TESTS = ROOT / "tests"
WAYS = ("test", "try", "unchecked")
CASE = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")


def cases():
    return {f"{suite}.{case}" for path in TESTS.rglob("*.cpp")
            for suite, case in CASE.findall(path.read_text(encoding="utf-8"))}


def names_a_test(name, known):
    """A case by its name, or a file of the tests and a text of it: Suite.Case, or path/below/tests: text."""
    path, colon, text = name.partition(": ")
    if not colon:
        return name in known
    return (TESTS / path).is_file() and text in (TESTS / path).read_text(encoding="utf-8")


class Pages(unittest.TestCase):
    def test_have_an_entry_for_each_statement_and_no_other(self):
        for page in pages():
            with self.subTest(page):
                said = list(statements(page))
                self.assertGreater(len(said), 0)
                listed = [entry["says"] for entry in entries(page)]
                self.assertEqual(sorted(set(listed)), sorted(listed), "twice")
                self.assertEqual([each for each in said if each not in listed], [], "no entry")
                self.assertEqual([each for each in listed if each not in said], [], "not on the page")

    def test_are_those_of_the_manual(self):
        self.assertEqual(sorted(path.stem for path in HERE.glob("*.toml")), pages())


class Entries(unittest.TestCase):
    def setUp(self):
        self.entries = [(page, entry) for page in pages() for entry in entries(page)]

    def test_say_one_way_each(self):
        for page, entry in self.entries:
            with self.subTest(page, says=entry["says"]):
                self.assertEqual(len([way for way in WAYS if way in entry]), 1)
                self.assertEqual("try" in entry, "prints" in entry)
                self.assertEqual(set(entry) - {"says", "prints", *WAYS}, set())
                self.assertTrue(all(entry[way] for way in WAYS if way in entry))

    def test_name_tests_that_there_are(self):
        known = cases()
        for page, entry in self.entries:
            for name in entry.get("test", []):
                with self.subTest(page, says=entry["says"], test=name):
                    self.assertTrue(names_a_test(name, known))


class Splitting(unittest.TestCase):
    def test_finds_sentences_rows_and_code(self):
        found = list(statements("statements"))
        self.assertTrue(found[0].startswith("`QVRcfp` writes INSERT and UPDATE statements"))
        self.assertIn("Names and the condition are inserted as they are.", found)
        self.assertEqual(len([each for each in found if each.startswith("```vb\nCampos = Array")]), 1)
        self.assertEqual([each for each in found if each.startswith(("#", "| member |", "|---"))], [])


if __name__ == "__main__":
    unittest.main()
