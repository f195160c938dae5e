#!/usr/bin/env python3
"""What becomes of cases that fail, are left out or never end, from the program to the count: run_cases_test.py"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
RUN = '<testcase name="A" classname="T" status="run" result="completed"/>'
FAILED = '<testcase name="B" classname="T" status="run" result="completed"><failure message="m"/></testcase>'
DISABLED = '<testcase name="C" classname="T" status="notrun" result="suppressed"/>'
SKIPPED = '<testcase name="D" classname="T" status="run" result="skipped"/>'

# What the program lists, its exit code, whether that is well, and what is counted.
PROGRAMS = {
    "all passed": (RUN + RUN, 0, True, "2 passed, 0 failed"),
    "one failed": (RUN + FAILED, 1, False, "1 passed, 1 failed"),
    "one is disabled": (RUN + DISABLED, 0, False, "1 passed, 1 failed"),
    "one is skipped": (RUN + SKIPPED, 0, False, "1 passed, 1 failed"),
    "no cases": ("", 0, False, "0 passed, 1 failed"),
    "it crashes": (None, 139, False, "0 passed, 1 failed"),
    "it fails after its cases": (RUN, 1, False, "1 passed, 1 failed"),
}


class RunCases(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = pathlib.Path(folder.name)
        (self.build / "test-results").mkdir()

    def run_program(self, listed, code):
        """Whether a program that lists this and ends so has passed; its list stands where the count looks for it."""
        program = self.build / "program"
        writing = "" if listed is None else f"""echo '<testsuites>{listed}</testsuites>' >"${{1#--gtest_output=xml:}}"\n"""
        program.write_text(f"#!/bin/sh\n{writing}exit {code}\n")
        program.chmod(0o755)
        cases = self.build / "suite/cases/program.xml"
        cases.parent.mkdir(parents=True)
        cases.write_text(f"<testsuites>{RUN}</testsuites>")  # of a former run
        command = [ROOT / "tests/support/run_cases.py", str(cases), str(program)]
        return subprocess.run(command, capture_output=True).returncode == 0

    def count(self, tests, failed_suites=""):
        if tests is not None:
            (self.build / "test-results/suite.xml").write_text(f"<testsuite>{tests}</testsuite>")
        (self.build / "failed").write_text(failed_suites)
        ended = subprocess.run([ROOT / "tools/count_cases.py", self.build, self.build / "failed", "suite"],
                               capture_output=True, text=True)
        last = ended.stdout.splitlines()[-1]
        self.assertEqual(ended.returncode == 0, last.endswith(" 0 failed"))
        return last

    def test_programs(self):
        for title, (listed, code, well, counted) in PROGRAMS.items():
            with self.subTest(title):
                self.setUp()
                self.assertEqual(self.run_program(listed, code), well)
                status = "run" if well else "fail"
                self.assertEqual(self.count(f'<testcase name="program" status="{status}"/>'), counted)

    def test_a_test_without_a_list_is_one_case(self):
        self.assertEqual(self.count('<testcase name="a" status="run"/><testcase name="b" status="fail"/>'),
                         "1 passed, 1 failed")

    def test_a_test_that_was_not_run_is_a_failure(self):
        self.assertEqual(self.count('<testcase name="a" status="notrun"/>'), "0 passed, 1 failed")

    def test_a_suite_without_results_is_a_failure(self):
        self.assertEqual(self.count(None), "0 passed, 1 failed")
        self.assertEqual(self.count(""), "0 passed, 1 failed")

    def test_a_suite_that_failed_without_a_failed_case_is_a_failure(self):
        self.assertEqual(self.count('<testcase name="a" status="run"/>', "suite\n"), "1 passed, 1 failed")


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
