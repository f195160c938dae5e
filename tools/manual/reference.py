#!/usr/bin/env python3
"""Writes the reference of every member from the IDL and the entries: reference.py [--check] [FOLDER].

Without a folder, or with --check, it only looks for what is missing or out of date, in the pages' diagrams and excerpts
of examples too. The pages of a language go to FOLDER/<language>/.
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "contract"))

import diagrams
import excerpts
from check import problems
from entries import LANGUAGES, Entries, documented
from examples import by_member
from guides import Guides
from idl import read_library
from index import index_page
from render import ClassPage

ROOT = pathlib.Path(__file__).resolve().parents[2]
IDL = ROOT / "src/com/QVRlib21.idl"
MANUAL = ROOT / "docs/manual"


def guide_problems(library, entries, guides):
    for name, _, members in documented(library):
        targets = {name: entries.of_class(name).get("guide", "")}
        targets |= {f"{name}.{member}": entries.member(name, member).get("guide", "") for member in members}
        for where, target in targets.items():
            problem = guides.problem(target) if target else "guide is missing"
            if problem:
                yield f"{where}: {problem}"


def write(folder, library, entries, language):
    pages = ClassPage(library, entries, by_member(MANUAL / "en"), Guides(MANUAL, language), language)
    written = {"README.md": index_page(library, entries, language)}
    for name, coclass, members in documented(library):
        written[f"{name}.md"] = pages.page(name, coclass, members)
    for name, (enum, values) in library.enums.items():
        written[f"{name}.md"] = pages.enum_page(name, enum, values)
    target = folder / language
    target.mkdir(parents=True, exist_ok=True)
    for name, text in written.items():
        (target / name).write_text(text, encoding="utf-8")


def main(arguments):
    library = read_library(IDL.read_text(encoding="utf-8"))
    entries = Entries(MANUAL / "reference")
    found = list(problems(library, entries)) + list(guide_problems(library, entries, Guides(MANUAL, "en")))
    found = [f"reference: {each}" for each in found]
    found += [f"manual: {each}" for each in (*diagrams.problems(MANUAL / "diagrams"), *excerpts.problems(ROOT))]
    for problem in found:
        print(problem, file=sys.stderr)
    if found:
        return 1
    folders = [each for each in arguments if each != "--check"]
    if folders and "--check" not in arguments:
        for language in LANGUAGES:
            write(pathlib.Path(folders[0]), library, entries, language)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
