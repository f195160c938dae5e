#!/usr/bin/python3
"""The pages of the cookbook: their code is that of the sources, which are all run, checked or called documented, and the
expressions that search old sources find what they are for."""
import pathlib
import re
import subprocess
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[2]
RECIPES = ROOT / "examples/cookbook"
sys.path[:0] = [str(ROOT / "tools/manual"), str(ROOT / "tests/hosts")]

import check_sources  # noqa: E402
import excerpts  # noqa: E402

LANGUAGES = ("en", "es")
DOCUMENTED = {"indexes/jet.sql", "indexes/oracle.sql", "indexes/sqlserver.sql"}  # what the page says was not tried
LOOKED_OVER = {"ado_references.bas", "service/error_report.h"}  # below, and compiled with what includes it


def page(language, name):
    return (ROOT / "docs/manual" / language / name).read_text(encoding="utf-8")


def pages():
    return sorted(path.name for path in (ROOT / "docs/manual/en").glob("cookbook*.md"))


def sources():
    return {path.relative_to(RECIPES).as_posix(): path for path in RECIPES.rglob("*")
            if path.is_file() and path.name != "CMakeLists.txt"}


class Code(unittest.TestCase):
    def test_is_that_of_the_sources(self):
        self.assertEqual([each for each in excerpts.problems(ROOT) if "cookbook" in each], [])
        for language in LANGUAGES:
            for name in pages():
                text = page(language, name)
                self.assertEqual(len(list(excerpts.excerpts(text))), len(re.findall(r"^```\w", text, re.M)), name)

    def test_is_the_same_in_both_languages(self):
        for name in pages():
            self.assertEqual(*(list(excerpts.excerpts(page(language, name))) for language in LANGUAGES), name)

    def test_is_run_or_called_documented(self):
        tests = "".join((HERE / name).read_text() for name in ("recipes.sh", "indexes_test.cpp", "versions_test.py"))
        tests += (RECIPES / "CMakeLists.txt").read_text()
        for name, path in sources().items():
            if path.suffix == ".cfc":  # a folder of them is run
                continue
            called = f"batch {path.stem} " if name.startswith("install/") else path.name
            self.assertEqual(called in tests, name not in DOCUMENTED | LOOKED_OVER, name)


class References(unittest.TestCase):
    def test_name_members_of_the_library(self):
        names = check_sources.contract_names((ROOT / "src/com/QVRlib21.idl").read_text(encoding="utf-8"))
        source = (RECIPES / "ado_references.bas").read_text(encoding="utf-8")
        unknown, used = check_sources.strangers("ado_references.bas", source, names, {"Open", "Close", "Connection"})
        self.assertEqual((unknown, used), ([], 2))


def expressions(language):
    """The rows of the table: what is searched for, and its expression."""
    rows = re.findall(r"^\| `([^`]+)` \| `([^`]+)` \| ", page(language, "cookbook-programs.md"), re.M)
    return [(title, expression.replace(r"\|", "|")) for title, expression in rows]


def samples():
    found, title = {}, None
    for line in (HERE / "old_sql_samples.txt").read_text(encoding="utf-8").splitlines()[1:]:
        if line[:2] in ("+\t", "-\t"):
            found[title].append((line[0] == "+", line[2:]))
        else:
            title = line
            found[title] = []
    return found


def grep(expression, line):
    return subprocess.run(["grep", "-qPi", "--", expression], input=line, text=True).returncode == 0


class Expressions(unittest.TestCase):
    def test_find_their_lines_and_no_others(self):
        known = samples()
        self.assertEqual([title for title, _ in expressions("en")], list(known))
        for title, expression in expressions("en"):
            self.assertEqual({wanted for wanted, _ in known[title]}, {True, False}, title)
            for wanted, line in known[title]:
                with self.subTest(title, line=line):
                    self.assertEqual(bool(re.search(expression, line, re.I)), wanted)
                    self.assertEqual(grep(expression, line), wanted)

    def test_are_the_same_in_both_languages(self):
        self.assertEqual(expressions("es"), expressions("en"))


if __name__ == "__main__":
    unittest.main()
