#!/usr/bin/env python3
"""Runs a program of GoogleTest cases, which are listed in an XML file for tools/test.sh to count, and fails when a case
fails or was left out, when there is none, and when the program did not come to its end.
Usage: run_cases.py CASES.xml [EMULATOR] PROGRAM [ARGUMENTS...]"""
import pathlib
import subprocess
import sys
import xml.etree.ElementTree as xml


def left_out(case):
    return case.get("status") != "run" or case.get("result") == "skipped"


def main():
    path, *command = sys.argv[1:]
    cases = pathlib.Path(path)
    cases.unlink(missing_ok=True)
    cases.parent.mkdir(parents=True, exist_ok=True)
    windows = any(word.endswith(".exe") for word in command)
    output = "Z:" + path.replace("/", "\\") if windows else path
    ended = subprocess.run([*command, f"--gtest_output=xml:{output}", "--gtest_brief=1"]).returncode
    if not cases.exists():
        sys.exit(f"{command}: ended with {ended} before its end")
    found = list(xml.parse(cases).getroot().iter("testcase"))
    idle = [f"{case.get('classname')}.{case.get('name')}" for case in found if left_out(case)]
    if not found or idle:
        sys.exit(f"{command}: left out {idle or 'everything, there are no cases'}")
    print(f"{len(found)} cases")
    sys.exit(1 if ended else 0)


if __name__ == "__main__":
    main()
