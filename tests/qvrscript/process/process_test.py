#!/usr/bin/env python3
"""Runs the console program as users do: process_test.py [--wine BIN --width 32|64 | --driver FILE] PROGRAM
--gtest_output=xml:FILE

Under Wine the library and the test ADO of the folder BIN are registered meanwhile."""
import argparse
import subprocess
import sys

import load_process_test
import posix_process_test
import program
import run_process_test
import secrets_process_test
import snippets_test

COMMON = (run_process_test.Run, secrets_process_test.Connection, secrets_process_test.ConnectionFile,
          load_process_test.Load, load_process_test.Example)
POSIX = (posix_process_test.Interrupted, posix_process_test.Played, posix_process_test.Outputs,
         snippets_test.Silencing, snippets_test.Hook, snippets_test.Job, snippets_test.Documents)


def regsvr(width, *words):
    system = "C:\\windows\\syswow64" if width == "32" else "C:\\windows\\system32"
    subprocess.run([program.ROOT / "tools/wine.sh", f"{system}\\regsvr32.exe", "/s", *words], check=True, timeout=300)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--wine")
    parser.add_argument("--width")
    parser.add_argument("--driver")
    parser.add_argument("--gtest_output", required=True)
    parser.add_argument("--gtest_brief", help="taken, as run_cases.py gives it")
    parser.add_argument("--only", help="the name of one class")
    options = parser.parse_args()
    tested = program.Program(options.program, options.wine is not None)
    tested.driver = options.driver
    program.ProgramTest.program = tested
    cases = COMMON if options.wine else COMMON + POSIX
    if options.only:
        cases = [case for case in cases if case.__name__ == options.only]
    path = options.gtest_output.removeprefix("xml:").removeprefix("Z:").replace("\\", "/")
    if not options.wine:
        return program.run_tests(cases, path)
    ado = tested.path_of(f"{options.wine}/testado.dll")
    regsvr(options.width, ado)
    try:
        return program.run_tests(cases, path)
    finally:
        regsvr(options.width, "/u", ado)


if __name__ == "__main__":
    sys.exit(main())
