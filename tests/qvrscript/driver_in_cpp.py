#!/usr/bin/env python3
"""Runs the program, which has its own C++ library, into a driver that loads the system's and throws its exceptions.
Usage: driver_in_cpp.py PROGRAM DRIVER"""
import pathlib
import subprocess
import sys
import tempfile

from linked import needed

SCRIPT = "fail 42S02 208 thrown by the driver\r\nGO\r\nupdate T set N = 1\r\nGO\r\n"
STEPS = ["connect", "begin", "execute fail 42S02 208 thrown by the driver", "execute update T set N = 1", "commit",
         "disconnect",
         # A command was left out: the database is asked whether it may have forgotten what ran before.
         "connect", "rollback", "disconnect"]


def main():
    program, driver = sys.argv[1:]
    assert "libstdc++.so.6" in needed(driver), f"{driver} does not load a C++ library of its own"
    with tempfile.TemporaryDirectory() as folder:
        script, log = pathlib.Path(folder, "x.cfc"), pathlib.Path(folder, "log")
        script.write_bytes(SCRIPT.encode())
        connection = f'Provider=MSDASQL;Extended Properties="DRIVER={driver};log={log};"'
        ran = subprocess.run([program, "run", "--engine", "sqlserver", "--connection", connection, "--continue", script],
                             capture_output=True, text=True, timeout=120, check=False)
        told = f"code {ran.returncode}\n{ran.stdout}{ran.stderr}"
        assert "thrown by the driver" in ran.stderr, told
        steps = [line.rstrip() for line in log.read_text().splitlines()]
        assert steps == STEPS, f"{steps}\n{told}"


if __name__ == "__main__":
    main()
