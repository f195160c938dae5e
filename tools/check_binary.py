#!/usr/bin/env python3
"""Checks a built library file: what it imports and exports, how it may be loaded, and that it tells nothing of
the machine that built it. Usage: check_binary.py OBJDUMP DLL SOURCE_FOLDER"""
import re
import subprocess
import sys

SYSTEM_LIBRARIES = {"advapi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll", "oleaut32.dll", "user32.dll"}
EXPORTS = {"DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer", "DllUnregisterServer"}
HIGH_ENTROPY, DYNAMIC_BASE, NO_EXECUTE = 0x20, 0x40, 0x100


def characteristics(headers):
    return int(re.search(r"^DllCharacteristics\s+([0-9a-f]+)", headers, re.M).group(1), 16)


def writable_code(sections):
    """Names of sections that can be both written and executed."""
    found = []
    for name, flags in re.findall(r"^\s*\d+ (\S+)\s+(?:[0-9a-f]+\s+){4}\S+\s*\n\s*(.*)$", sections, re.M):
        if "CODE" in flags and "READONLY" not in flags:
            found.append(name)
    return found


def exported_names(headers):
    table = headers.split("[Ordinal/Name Pointer] Table", 1)[1].split("\n\n", 1)[0]
    return set(re.findall(r"^\s*\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+)?(?:[0-9a-f]+\s+)?(\S+)$", table, re.M))


def main():
    objdump, dll, source = sys.argv[1:]
    headers = subprocess.run([objdump, "-p", dll], capture_output=True, text=True, check=True).stdout
    sections = subprocess.run([objdump, "-h", dll], capture_output=True, text=True, check=True).stdout
    content = open(dll, "rb").read()
    problems = []

    imports = {name.lower() for name in re.findall(r"DLL Name: (\S+)", headers)}
    if not imports or not imports <= SYSTEM_LIBRARIES:
        problems.append(f"imports {sorted(imports - SYSTEM_LIBRARIES) or 'nothing at all'}")
    exports = exported_names(headers)
    if exports != EXPORTS:
        problems.append(f"exports {sorted(exports)}")
    wanted = DYNAMIC_BASE | NO_EXECUTE | (HIGH_ENTROPY if "pei-x86-64" in headers else 0)
    if characteristics(headers) & wanted != wanted:
        problems.append(f"characteristics {characteristics(headers):#x} lack some of {wanted:#x}")
    if not re.search(r"^\s*\d+ \.reloc\s", sections, re.M):
        problems.append("has no relocations, so its address cannot vary")
    if not re.search(r"^\s*\d+ \.text\s", sections, re.M) or writable_code(sections):
        problems.append(f"sections that can be written and executed: {writable_code(sections)}")
    for encoding in ("utf-8", "utf-16-le"):
        if source.encode(encoding) in content:
            problems.append(f"names the folder it was built in ({encoding})")

    for problem in problems:
        print(f"{dll}: {problem}")
    if not problems:
        print(f"{dll}: {len(content)} bytes, imports {', '.join(sorted(imports))}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
