#!/usr/bin/env python3
"""Looks at what a Linux program needs of the system: libc and its parts only, and that it exports nothing, so that no
driver's call ends in it. Usage: linked.py PROGRAM"""
import re
import subprocess
import sys

LIBC = re.compile(r"lib(c|m)\.so\.6|ld-linux.*\.so\.\d+")


def read_elf(program, *what):
    return subprocess.run(["readelf", "--wide", *what, program], check=True, capture_output=True, text=True,
                          env={"LC_ALL": "C"}).stdout


def needed(program):
    return re.findall(r"\(NEEDED\).*\[(.*)\]", read_elf(program, "--dynamic"))


def exported(program):
    """The names of defined dynamic symbols; those with a version of glibc are its own, placed in the program."""
    for line in read_elf(program, "--dyn-syms").splitlines():
        parts = line.split()
        if len(parts) >= 8 and parts[0].rstrip(":").isdigit() and parts[6] != "UND" and "@GLIBC_" not in parts[7]:
            yield parts[7]


def problems(program):
    libraries = needed(program)
    if "libc.so.6" not in libraries:
        yield f"{program} is no program that libc runs"
    yield from (f"{program} needs {name}" for name in libraries if not LIBC.fullmatch(name))
    yield from (f"{program} exports {name}" for name in exported(program))


def main():
    found = list(problems(sys.argv[1]))
    print("\n".join(found) or f"{sys.argv[1]} needs {', '.join(needed(sys.argv[1]))} and exports nothing")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
