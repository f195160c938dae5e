#!/usr/bin/env python3
"""The manual's examples in C++ that call late-bound, with the helpers as the first page has them: one program of them all
(cpp_examples.cpp) is compiled and run, and what it prints compared. Usage: cpp_test.py WIDTH BIN COMPILER"""
import pathlib
import re
import subprocess
import sys
import tempfile

from windows import ROOT, Windows, told

WIDTH, BIN, COMPILER = sys.argv[1:]
HERE = pathlib.Path(__file__).resolve().parent
STRICT = ["-std=c++20", "-Wall", "-Wextra", "-Werror"]
BLOCK = re.compile(r"^```cpp\n(.*?)^```$", re.M | re.S)

# By page; each example prints one line.
EXPECTED = {
    "clauses": "[ And RowNum<=10 ]",
    "connection-files": 'Provider=Motor;Data Source="datos";Persist Security Info=False;',
    "literals": "'O''Neil'",
    "properties": "12.5",
    "queries": "SELECT Nombre  FROM Clientes     ",
    "scripts": "hecho",
}


def examples():
    """The helpers, and the blocks that call through them by their pages."""
    helpers, found = None, {}
    for path in sorted((ROOT / "docs/manual/en").glob("*.md")):
        for block in BLOCK.findall(path.read_text(encoding="utf-8")):
            if block.startswith("IDispatch* create("):
                helpers = block
            elif re.search(r"\bcall\(", block):
                found[path.stem] = block
    return helpers, found


def compiled(folder, helpers, found):
    blocks = [f'{{\nstd::printf("%s\\n", "== {page}");\n{block}}}\n' for page, block in found.items()]
    (folder / "helpers.h").write_text(helpers, encoding="utf-8")
    (folder / "examples.h").write_text("".join(blocks), encoding="utf-8")
    program = folder / "examples.exe"
    subprocess.run([COMPILER, *STRICT, f"-I{folder}", "-municode", "-static", "-o", program, HERE / "cpp_examples.cpp",
                    "-lole32", "-loleaut32", "-luuid"], check=True, timeout=300)
    return program


def main():
    helpers, found = examples()
    windows = Windows(WIDTH, BIN)
    with tempfile.TemporaryDirectory() as folder:
        program = compiled(pathlib.Path(folder), helpers, found)
        windows.register()
        try:
            ended = windows.run(program, "Provider=MSDASQL;"
                                f'Extended Properties="DRIVER={{SQLite3}};Database={folder}/manual.db;"')
        finally:
            windows.register("/u")
    expected = "".join(f"== {page}\n{line}\n" for page, line in EXPECTED.items())
    if ended.returncode or told(ended) != expected:
        sys.exit(f"exit code {ended.returncode}, or other lines than expected:\n{told(ended)}")


if __name__ == "__main__":
    main()
