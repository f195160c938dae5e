#!/usr/bin/env python3
"""What bash completes of command lines in a folder with two scripts and a folder. Usage: completion.py PROGRAM"""
import pathlib
import subprocess
import sys
import tempfile

COMMANDS = "check install update run cfp doctor"
OUTPUT = "--format --json --quiet --verbose"
CONNECTION = "--connection --connection-env --cfp --id-env --client --connect-timeout"
EVERYTHING = ["a b.cfc", "b.cfc", "scripts"]

# The words after the program's name, the last one being completed, and all that is offered.
CASES = [
    ([""], COMMANDS.split()),
    (["c"], ["check", "cfp"]),
    (["x"], []),
    (["--"], ["--help", "--version"]),
    (["help", "d"], ["doctor"]),
    (["cfp", ""], "new show check rekey test".split()),
    (["cfp", "check", "--"], f"--help --id-env {OUTPUT}".split()),
    (["cfp", "new", ""], EVERYTHING),
    (["doctor", "-"], f"--help -h --try {CONNECTION} --engine --report {OUTPUT}".split()),
    (["doctor", "--q"], ["--quiet"]),
    (["check", ""], EVERYTHING),
    (["check", "a"], ["a b.cfc"]),
    (["check", "run", "--fail-on", ""], ["error", "warning", "note"]),
    (["check", "--engine", ""], ["jet", "sqlserver", "oracle"]),
    (["check", "--engine", "=", "s"], ["sqlserver"]),
    (["check", "--engine", "="], ["jet", "sqlserver", "oracle"]),
    (["check", "--format", ""], "text json github sarif".split()),
    (["run", "--format", ""], "text json junit".split()),
    (["doctor", "--format", ""], "text json".split()),
    (["run", "--log", "b"], ["b.cfc"]),
    (["run", "--cfp", ""], ["scripts"]),
    (["run", "--id-env", "GESTION_"], ["GESTION_ID"]),
    (["run", "--connect-timeout", ""], []),
    (["run", "--connection", "", "s"], ["scripts"]),
]

SCRIPT = """source "$1"
shift
COMP_WORDS=(qvrscript "$@")
COMP_CWORD=$#
_qvrscript
printf '%s\\n' "${COMPREPLY[@]}"
complete -p qvrscript
"""


def completed(script, folder, words):
    ran = subprocess.run(["bash", "--noprofile", "--norc", "-uc", SCRIPT, "bash", script, *words], cwd=folder, text=True,
                         capture_output=True, check=False,
                         env={"PATH": "/usr/bin:/bin", "GESTION_ID": "x", "LC_ALL": "C"})
    *offered, registered = ran.stdout.splitlines() or [""]
    assert ran.returncode == 0 and not ran.stderr, ran.stderr
    assert registered == "complete -F _qvrscript qvrscript", registered
    return sorted(each for each in offered if each)


def main():
    failures = 0
    with tempfile.TemporaryDirectory() as work:
        script = pathlib.Path(work, "completion")
        script.write_bytes(subprocess.run([sys.argv[1], "completion", "bash"], capture_output=True, check=True).stdout)
        folder = pathlib.Path(work, "folder")
        (folder / "scripts").mkdir(parents=True)
        for name in ("a b.cfc", "b.cfc"):
            (folder / name).touch()
        for words, expected in CASES:
            offered = completed(script, folder, words)
            if offered != sorted(expected):
                print(f"{words}: {offered} and not {sorted(expected)}")
                failures += 1
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
