#!/usr/bin/env python3
"""Adds up what the suites of tools/test.sh left: count_cases.py BUILD FAILED_SUITES SUITE...

A suite's file is BUILD/test-results/SUITE.xml; a test of it that ran a program of cases counts as these, listed in
BUILD/SUITE/cases/TEST.xml. A suite that left no file is a failure, and so is one that failed without a failed case."""
import pathlib
import sys
import xml.etree.ElementTree as xml


def outcomes(path, bad):
    """How many of the file's cases passed and failed; nothing where there is no such file."""
    cases = list(xml.parse(path).getroot().iter("testcase")) if path.exists() else []
    failed = sum(map(bad, cases))
    return len(cases) - failed, failed


def case_failed(case):
    return case.get("status") != "run" or case.get("result") == "skipped" or case.find("failure") is not None


def suite_outcomes(build, name):
    path = build / "test-results" / f"{name}.xml"
    passed = failed = 0
    for test in xml.parse(path).getroot().iter("testcase") if path.exists() else []:
        passed_here, failed_here = outcomes(build / name / "cases" / f"{test.get('name')}.xml", case_failed)
        test_failed = test.get("status") != "run"
        if passed_here + failed_here == 0 or test_failed and failed_here == 0:
            # The test is a case itself, or its program did not come to its end.
            passed_here, failed_here = passed_here + (not test_failed), failed_here + test_failed
        passed, failed = passed + passed_here, failed + failed_here
    return passed, failed


def main():
    build, failed_suites, names = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]).read_text().split(), sys.argv[3:]
    all_passed = all_failed = 0
    for name in names:
        passed, failed = suite_outcomes(build, name)
        if failed == 0 and (passed == 0 or name in failed_suites):
            failed = 1
        print(f"{name}: {passed} passed, {failed} failed")
        all_passed, all_failed = all_passed + passed, all_failed + failed
    print(f"{all_passed} passed, {all_failed} failed")
    sys.exit(1 if all_failed else 0)


if __name__ == "__main__":
    main()
