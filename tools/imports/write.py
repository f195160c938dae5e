#!/usr/bin/env python3
"""Writes the typed imports of every language from the IDL: write.py [--check].

Each of these files below imports/ has a writer of its own beside this one: a function that takes the library and gives
the file's text. With --check nothing is written; files that differ from what would be written are named.
"""
import functools
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/contract"))

import cpp  # noqa: E402
import csharp  # noqa: E402
import pascal  # noqa: E402
import pywin32  # noqa: E402
from idl import read_library  # noqa: E402

# The files by their path below imports/.
WRITERS = {"cpp/QVRlib21.hpp": cpp.source, "csharp/QVRlib21.cs": csharp.source,
           "csharp/build/program32.manifest": functools.partial(csharp.manifest, architecture="x86"),
           "csharp/build/program64.manifest": functools.partial(csharp.manifest, architecture="amd64"),
           "pascal/QVRlib21_TLB.pas": pascal.source,
           "python/QVRlib21.py": pywin32.module, "python/QVRlib21.pyi": pywin32.stub}


def differing(library, check):
    """The files that are not as they should be; unless checking, they are then."""
    for name, write in WRITERS.items():
        path, text = ROOT / "imports" / name, write(library)
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            if not check:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            yield name


def main():
    check = "--check" in sys.argv[1:]
    library = read_library((ROOT / "src/com/QVRlib21.idl").read_text(encoding="utf-8"))
    names = list(differing(library, check))
    for name in names:
        print(f"imports/{name}: {'differs from the IDL; tools/imports/write.py renews it' if check else 'written'}")
    return 1 if check and names else 0


if __name__ == "__main__":
    sys.exit(main())
