#!/usr/bin/env python3
"""Runs a checked script on H2 and tells whether every check passed.

Usage: run_engine.py GENERATOR sqlserver|oracle [--break NUMBER]

With --break the script holds one check that must fail, and it is an error when it does not.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

JAR = pathlib.Path("/usr/share/java/h2.jar")
MODES = {"sqlserver": "MSSQLServer", "oracle": "Oracle"}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("generator")
    parser.add_argument("engine", choices=MODES)
    parser.add_argument("--break", dest="broken", type=int, default=0)
    options = parser.parse_args()
    if not JAR.exists():
        sys.exit(f"{JAR} is missing: install the packages of tools/packages.txt")

    script = subprocess.run([options.generator, options.engine, str(options.broken)], check=True, capture_output=True).stdout
    announced = int(re.search(rb"-- ANNOUNCED (\d+)", script)[1])
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "script.sql")
        path.write_bytes(script)
        # The name is that of the database whose system table the query of the clock reads. No escape character where
        # a pattern names none, as on the engines that this one stands in for.
        url = f"jdbc:h2:mem:master;MODE={MODES[options.engine]};DEFAULT_ESCAPE="
        run = subprocess.run(
            ["java", "-Dfile.encoding=UTF-8", "-cp", str(JAR), "org.h2.tools.RunScript", "-url", url, "-user", "sa",
             "-script", str(path), "-showResults"],
            capture_output=True, text=True, encoding="utf-8")
    output = run.stdout + run.stderr
    if run.returncode != 0:
        sys.exit("the engine refused the script:\n" + run.stderr[:3000])
    failed = re.findall(r"^--> FAILED (.*)$", output, re.MULTILINE)
    counted = re.search(r"^--> COUNTED (\d+)$", output, re.MULTILINE)
    if counted is None or int(counted[1]) != announced:
        sys.exit(f"{announced} checks were announced, the engine counted {counted and counted[1]}")
    print(f"{announced} checks on H2 in mode {MODES[options.engine]}, failed: {len(failed)}")
    for name in failed:
        print("  failed:", name)
    expected = 1 if options.broken else 0
    sys.exit(0 if len(failed) == expected else 1)


if __name__ == "__main__":
    main()
