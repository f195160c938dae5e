#!/usr/bin/env python3
"""The manual page as a terminal shows it: formatted without a warning, with every option of every help and the examples
as they stand there. Usage: manual_page.py PROGRAM"""
import re
import subprocess
import sys

SECTIONS = ["NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "EXIT STATUS", "ENVIRONMENT"]


def output(*command, text=None):
    ran = subprocess.run(command, input=text, capture_output=True, text=True, check=True)
    assert not ran.stderr, ran.stderr
    return ran.stdout


def help_of(program, words):
    return output(program, *words, "--help")


def commands(program, words=()):
    """The words of each command that a help shows, those of a group of commands before its own."""
    listed = re.search(r"^Subcommands:\n((?:  .*\n)+)", help_of(program, words), re.M)
    for name in re.findall(r"^  (\S+)", listed.group(1), re.M) if listed else []:
        yield (*words, name)
        yield from commands(program, (*words, name))


def sections(page):
    """The page's text by section."""
    parts = re.split(r"^(\S.*)\n", page, flags=re.M)
    return dict(zip(parts[1::2], parts[2::2]))


def problems(program):
    page = output("groff", "-man", "-Tutf8", "-ww", "-P-cbou", "-rLL=110n", text=output(program, "manual-page"))
    found = sections(page)
    yield from (f"there is no section {name}" for name in SECTIONS if name not in found)
    seen = list(commands(program))
    if len(seen) < 5:
        yield f"the help shows {len(seen)} commands"
    for words in seen:
        text = found.get(" ".join(words).upper())
        if text is None:
            yield f"there is no section for {words}"
            continue
        shown = help_of(program, words)
        options = set(re.findall(r"^  (?:-\w,)?(--[\w-]+)", shown, re.M)) - {"--help"}
        options |= set(re.findall(r"^  ([A-Z]+) ", shown, re.M))
        yield from (f"{words}: {each} is missing" for each in sorted(options)
                    if not re.search(rf"^ +{each}(?![\w-])", text, re.M))
        for line in re.findall(r"^  (?:qvrscript|  ).*", shown.partition("\nExamples\n")[2], re.M):
            if line.strip() not in text:
                yield f"{words}: the example is not as it stands: {line}"


def main():
    found = list(problems(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
