#!/usr/bin/env python3
"""Looks over the example hosts that cannot run here: what they call is in the contract, what they print is expected, and
Python can read those that are its own. Usage: check_sources.py IDL HOSTS"""
import pathlib
import re
import sys

# Each source with the labels that it does not print, and the names behind a dot that are not the library's.
SOURCES = {
    "vba/Hosts.bas": ({"Progress", "Finished"}, {"Print", "Raise", "Script"}),
    "vba/ScriptProgress.cls": (None, {"Print"}),
    "powershell/hosts.ps1": ({"Progress", "Finished"}, set()),
    "python/hosts_pywin32.py": (set(), {"datetime", "argv", "exit", "on_progreso", "on_terminado"}),
    "python/hosts_comtypes.py": (set(), {"datetime", "argv", "exit", "client"}),
    "csharp/Dynamic.cs": (set(), {"CreateInstance", "GetTypeFromProgID", "Error", "Length", "WriteLine"}),
    "csharp/Early.cs": (set(), {"Error", "Length", "WriteLine"}),
}


def contract_names(idl):
    members = set(re.findall(r"(?:HRESULT|void) (\w+)\(", idl))
    classes = set(re.findall(r"(?:coclass|interface) (\w+)", idl))
    constants = set(re.findall(r"(MotorBD\w+) = ", idl)) | {"MotoresBD"}
    return members | classes | constants


def without_texts(path, source):
    """The source without comments and without the literals, in which a dot means nothing; PowerShell has code there."""
    source = re.sub(r'"""[^"]*"""', "", source)
    source = re.sub(r"'[^'\n]*'" if path.endswith(".ps1") else r'"(?:[^"\\\n]|\\.)*"|"[^"\n]*"', "", source)
    return re.sub(r"^\s*(?:'|#|//).*$", "", source, flags=re.M)


def strangers(path, source, names, known):
    called = re.findall(r"\.\s*([A-Za-z_]\w*)", without_texts(path, source))
    accessors = {name[4:] if name.startswith(("get_", "set_")) else name for name in called}
    return sorted(accessors - names - known), len(accessors & names)


def labels_of(expected):
    return {re.sub(r" \d+$", "", line.split(":")[0]) for line in expected.splitlines()}


def findings(path, source, names, labels):
    left_out, known = SOURCES[path]
    unknown, used = strangers(path, source, names, known)
    yield from (f"{name} is no member of the library" for name in unknown)
    if path != "vba/ScriptProgress.cls" and used < 6:
        yield f"only {used} members are called"
    if left_out is not None:
        yield from (f"{label} is not printed" for label in sorted(labels - left_out) if label not in source)
        yield from (f"{label} is printed" for label in sorted(left_out) if label + ":" in source)
    if path.endswith(".py"):
        try:
            compile(source, path, "exec")
        except SyntaxError as error:
            yield str(error)


def main(idl, hosts):
    names = contract_names(pathlib.Path(idl).read_text(encoding="utf-8"))
    labels = labels_of(pathlib.Path(hosts, "expected.txt").read_text(encoding="utf-8"))
    found = [f"{path}: {finding}" for path in SOURCES
             for finding in findings(path, pathlib.Path(hosts, path).read_text(encoding="utf-8"), names, labels)]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
