#!/usr/bin/env python3
"""Prints the benchmarks' results as one table, and the sizes of files: bench_report.py RESULTS [FILE...]

RESULTS is a folder of Google Benchmark's JSON, a file each subject.
"""
import json
import pathlib
import platform
import re
import subprocess
import sys

SCALE = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# What people wait for: in words, file, benchmark, argument, and what is measured beside it: another benchmark, or under
# Wine the same one done by hand.
ROWS = [
    ("First list of a program", "host", "FirstList", "library", "by_hand"),
    ("20,000 INSERTs through ADO", "host", "Inserts", "library", "by_hand"),
    ("100,000 INSERTs through ODBC, beside a bare loop", "inserts", "EjecutarComandos", "100000", "OdbcLoop"),
    ("Opening a connection file the first time, beside its key derivation", "connection", "FirstCrear", "",
     "KeyDerivation"),
    ("... and again on the same thread", "connection", "SecondCrear", "", "KeyDerivation"),
]
for count, columns in (("1", "1 column"), ("10", "10 columns"), ("100", "100 columns")):
    ROWS += [
        (f"First list of {columns}, beside copying its statement", "query", "FirstList", count, "Copy"),
        ("... a typed search in it", "query", "SearchText", count, "Copy"),
        ("... its definition saved and read", "query", "DefinitionRoundTrip", count, "Copy"),
    ]
ROWS += [(f"Loading scripts of {size} million characters, beside a copy for each pass", "loading", "CargarDefinicion",
          size, "CopyForEachPass") for size in ("1", "10", "100")]
ROWS += [(f"Walking over the commands of {size} MB, beside a bare search", "splitting", "Walk", size, "BareSearch")
         for size in ("1", "10", "100")]


def measured(path):
    """Nanoseconds by name and argument, and peak memory where it is counted, as a multiple of the text's."""
    times, peaks = {}, {}
    for run in json.loads(path.read_text(encoding="utf-8"))["benchmarks"]:
        name, _, argument = run["name"].partition("/")
        argument = re.sub("/?iterations:.*|/?real_time", "", argument)
        kind = "real_time" if "real_time" in run["name"] else "cpu_time"
        times[name, argument] = run[kind] * SCALE[run["time_unit"]]
        if "peak" in run:
            peaks[name, argument] = run["peak"]
    return times, peaks


def time_text(nanoseconds):
    unit = next(unit for unit in ("s", "ms", "us", "ns") if nanoseconds >= SCALE[unit] or unit == "ns")
    return f"{nanoseconds / SCALE[unit]:.3g} {unit}"


def row(words, results, name, argument, beside):
    times, peaks = results
    time = times[name, argument]
    base = times[name, beside] if beside == "by_hand" else times[beside, argument]
    cells = [words, time_text(time), time_text(base), f"{time / base:.3g}",
             f"{peaks[name, argument]:.3g}" if (name, argument) in peaks else ""]
    return f"| {' | '.join(cells)} |"


def machine():
    cpu = next((line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                if line.startswith("model name")), platform.machine())
    cores = subprocess.run(["nproc"], capture_output=True, text=True).stdout.strip()
    wine = subprocess.run(["wine", "--version"], capture_output=True, text=True).stdout.strip()
    return f"{cores} cores of {cpu}, {platform.freedesktop_os_release()['PRETTY_NAME']}, {wine}"


def main(folder, *files):
    results = {path.stem: measured(path) for path in pathlib.Path(folder).glob("*.json")}
    print(machine(), end="\n\n")
    print("| what | time | beside | ratio | peak memory |\n|---|---:|---:|---:|---:|")
    for words, subject, name, argument, beside in ROWS:
        print(row(words, results[subject], name, argument, beside))
    for path in map(pathlib.Path, files):
        print(f"| {path.parts[-3]}/{path.name} | {path.stat().st_size:,} bytes | | | |")


if __name__ == "__main__":
    main(*sys.argv[1:])
