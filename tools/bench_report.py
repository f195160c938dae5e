#!/usr/bin/env python3
"""Turns the benchmarks' results into the figures of docs/performance.md.

Usage: bench_report.py RESULTS DOCUMENT

RESULTS is a folder of Google Benchmark's JSON, a file each question; the times of its first benchmark are the measure of
the others with the same argument. In the document all between the two marks is replaced.
"""
import datetime
import json
import pathlib
import platform
import re
import statistics
import subprocess
import sys

BEGIN, END = "<!-- figures -->", "<!-- end of figures -->"
SCALE = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# In place of what a time stands beside: the benchmark's own count, which is a multiple already.
PEAK = "peak"

# What has an aim: question, file, measured, argument, beside what, aim ("<" at most, ">" at least this many times as
# fast).
AIMS = [
    ("`Crear` and `SQL`, 10 columns and 4 tables: times faster than the faster peer", "query", "CrearAndSQL", "10", "Knex", ">10"),
    ("The same beside copying the statement", "query", "CrearAndSQL", "10", "Copy", "<3"),
    ("`SQL` alone beside copying the statement", "query", "SQL", "10", "Copy", "<3"),
    ("An added condition and its removal beside copying", "query", "AddedCondition", "10", "Copy", "<3"),
    ("A click on a column beside copying", "query", "ClickOnColumn", "10", "Copy", "<3"),
    ("Walking over the commands of 1 MB beside a bare search", "splitting", "Walk", "1", "BareSearch", "<3"),
    ("... of 10 MB", "splitting", "Walk", "10", "BareSearch", "<3"),
    ("... of 100 MB", "splitting", "Walk", "100", "BareSearch", "<3"),
    ("... of 1 GB", "splitting", "Walk", "1000", "BareSearch", "<3"),
    ("100,000 INSERTs into SQLite beside a bare ODBC loop", "inserts", "EjecutarComandos", "100000", "OdbcLoop", "<1.2"),
    ("The sqlite3 shell beside that loop", "inserts", "Shell", "100000", "OdbcLoop", ""),
    ("Preparing scripts of 100 MB beside one copy a pass", "loading", "Prepare", "50", "CopyForEachPass", "<2"),
    ("Peak memory of loading and preparing scripts of 100 MB beside their text", "loading", "CargarDefinicion", "50", PEAK, "<3"),
    ("Opening a connection file the first time beside its key derivation", "connection", "FirstCrear", "", "KeyDerivation", ""),
    ("... and again", "connection", "SecondCrear", "", "KeyDerivation", ""),
]
for kind in ("no arguments", "a property", "a text", "a number", "a truth value", "any value", "a text and two arrays",
             "ten arguments", "the count of a list"):
    AIMS.append((f"Late call, {kind}, beside the system's dispatch", "dispatch", "Invoke", kind, "ITypeInfo::Invoke", "<0.7"))
    AIMS.append(("... both less the member itself", "dispatch", "Invoke less Early", kind, "ITypeInfo::Invoke less Early", "<0.7"))
for name in ("Ov", "QVRcfp", "cSQL20", "uSQL20", "QVRScr", "QVRprp"):
    AIMS.append((f"Creating `{name}` beside a class that does nothing", "creation", "Create", name, "Nothing", "<1.2"))
AIMS.append(("The first object of a thread beside one that does nothing", "creation", "Create", "first on a thread", "Nothing", ""))


def measured_runs(path):
    """Name, argument and result of each benchmark, in the order of the file."""
    for run in json.loads(path.read_text(encoding="utf-8"))["benchmarks"]:
        name, _, argument = run["name"].partition("/")
        yield name, re.sub("/iterations:.*|/real_time", "", argument), run


def times(path):
    """Nanoseconds by name and argument."""
    found = {}
    for name, argument, run in measured_runs(path):
        measured = run["real_time"] if "real_time" in run["name"] else run["cpu_time"]
        found.setdefault(name, {})[argument] = measured * SCALE[run["time_unit"]]
    return found


def peaks(path):
    """What counts its memory, by name and argument."""
    found = {}
    for name, argument, run in measured_runs(path):
        if PEAK in run:
            found.setdefault(name, {})[argument] = run[PEAK]
    return found


def less_the_member(runs):
    """Adds what dispatching alone costs, which a member's own work would hide."""
    for name in ("ITypeInfo::Invoke", "Invoke"):
        runs[f"{name} less Early"] = {each: time - runs["Early"][each] for each, time in runs[name].items()}


def number(value):
    return f"{value:.3g}" if value < 1000 else f"{value:,.0f}"


def aim_rows(results, memory):
    yield "| what | ratio | aim | |"
    yield "|---|---|---|---|"
    for question, file, name, argument, base, aim in AIMS:
        if base == PEAK:
            measured, beside = memory[file][name][argument], 1
        else:
            measured, beside = results[file][name][argument], results[file][base][argument]
        ratio = beside / measured if aim.startswith(">") else measured / beside
        met = "" if not aim else "met" if (ratio >= float(aim[1:]) if aim[0] == ">" else ratio <= float(aim[1:])) else "missed"
        words = "" if not aim else f"{'at least' if aim[0] == '>' else 'at most'} {aim[1:]}"
        yield f"| {question} | {number(ratio)} | {words} | {met} |"


def table(title, runs, memory):
    arguments = list(next(iter(runs.values())))
    base = next(iter(runs.values()))
    yield f"### {title}"
    yield ""
    yield "| | " + " | ".join(argument or "time" for argument in arguments) + " |"
    yield "|---|" + "---|" * len(arguments)
    for name, by_argument in runs.items():
        first = by_argument is base
        cells = ["-" if a not in by_argument else f"{number(by_argument[a])} ns" if first else number(by_argument[a] / base[a])
                 for a in arguments]
        yield f"| {name} | " + " | ".join(cells) + " |"
    for name, by_argument in memory.items():
        cells = ["-" if a not in by_argument else number(by_argument[a]) for a in arguments]
        yield f"| {name}, peak memory | " + " | ".join(cells) + " |"
    yield ""


def members_table(runs):
    """A line for each interface: its members are too many for one each."""
    whole, alone = {}, {}
    for member, system in runs["ITypeInfo::Invoke"].items():
        late, early = runs["Invoke"][member], runs["Early"][member]
        interface, _, name = member.partition(".")
        whole.setdefault(interface, []).append((late / system, name))
        # The difference of two long times tells nothing.
        if early < 0.8 * system:
            alone.setdefault(interface, []).append(((late - early) / (system - early), name))
    yield "### members"
    yield ""
    yield ("Late calls of each member beside the system's dispatch: the middle one, the worst, and how many take at most 0.7; "
           "then the same less the member itself, where that is less than four fifths of the system's whole call.")
    yield ""
    yield "| | whole call | worst | at most 0.7 | less the member | worst | at most 0.7 |"
    yield "|---|---|---|---|---|---|---|"
    for interface in whole:
        cells = [f"`{interface}`"]
        for ratios in (whole[interface], alone[interface]):
            worst, name = max(ratios)
            cells += [number(statistics.median(ratio for ratio, _ in ratios)), f"{number(worst)} `{name}`",
                      f"{sum(ratio <= 0.7 for ratio, _ in ratios)} of {len(ratios)}"]
        yield "| " + " | ".join(cells) + " |"
    yield ""


def machine():
    cpu = next((line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                if line.startswith("model name")), platform.machine())
    cores = subprocess.run(["nproc"], capture_output=True, text=True).stdout.strip()
    wine = subprocess.run(["wine", "--version"], capture_output=True, text=True).stdout.strip()
    return f"Measured {datetime.date.today()} on {cores} cores of {cpu}, {platform.freedesktop_os_release()['PRETTY_NAME']}, {wine}."


def main():
    folder, document = map(pathlib.Path, sys.argv[1:])
    paths = sorted(folder.glob("*.json"))
    results = {path.stem: times(path) for path in paths}
    memory = {path.stem: peaks(path) for path in paths}
    less_the_member(results["dispatch"])
    lines = [machine(), "", *aim_rows(results, memory), ""]
    lines += ["The first row of each table below is in nanoseconds, the others are multiples of it. Peak memory is a",
              "multiple of the text's: two bytes for each unit of UTF-16.", ""]
    for title, runs in results.items():
        lines += members_table(runs) if title == "members" else table(title, runs, memory[title])
    text = document.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    document.write_text(before + BEGIN + "\n" + "\n".join(lines).rstrip() + "\n" + END + after, encoding="utf-8")


if __name__ == "__main__":
    main()
