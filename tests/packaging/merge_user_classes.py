#!/usr/bin/env python3
"""Makes the user's classes of a Wine prefix a link to the machine's; its server must not be running.
Usage: merge_user_classes.py USER_REG"""
import re
import sys

TARGET = "\\Registry\\Machine\\Software\\Classes"
OLD = re.compile(r"^\[Software\\\\Classes(?:\\\\[^\]]*)?\][^\n]*\n(?:[^\[\n][^\n]*\n)*\n?", re.M)


def main():
    with open(sys.argv[1], encoding="latin-1") as file:
        text = OLD.sub("", file.read())
    value = ",".join(f"{byte:02x}" for byte in TARGET.encode("utf-16-le"))
    text += f'\n[Software\\\\Classes] 1700000000\n#link\n"SymbolicLinkValue"=hex(6):{value}\n'
    with open(sys.argv[1], "w", encoding="latin-1") as file:
        file.write(text)


if __name__ == "__main__":
    main()
