#!/usr/bin/env python3
"""Prints the benchmarks' results as one table, and the sizes of files: bench_report.py RESULTS [FILE...]

RESULTS is a folder of Google Benchmark's JSON. The quickest repetition of each benchmark counts.
"""
import json
import pathlib
import platform
import subprocess
import sys

SCALE = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# What people wait for: in words, the benchmark, and the most that the library should take, as a multiple of what it is
# beside: the same done by hand, or what the words say. None where there is no aim.
ROWS = [
    ("first list of a process, beside creating an empty class", "FirstList", 2),
    ("the next lists", "FirstListAgain", 2),
    ("search for a text, beside adding its condition", "SearchText", 10),
    ("search for a number", "SearchNumber", 10),
    ("search for a date in figures", "SearchDateInFigures", 20),
    ("search for a date in words", "SearchDateInWords", 20),
    ("opening a connection file the first time, beside its key derivation", "ConnectionFileFirst", 1.05),
    ("opening it again, beside reading the file", "ConnectionFileAgain", 1.2),
    ("20,000 INSERTs, nobody listens", "Inserts0", 1.2),
    ("20,000 INSERTs, one sink", "Inserts1", 1.2),
    ("20,000 INSERTs, five sinks", "Inserts5", 1.2),
    ("20,000 looks for messages, part of both", "LooksForMessages", None),
    ("procedure call, eight parameters", "ProcedureCall", 1.3),
    ("installing the example's database", "Installation", 1.2),
    ("native: 100,000 INSERTs of qvrscript into SQLite", "OdbcInserts", None),
    ("native: 100,000 INSERTs of qvrscript into MariaDB", "MariaDbInserts", 1.2),
    ("native: 100,000 INSERTs of qvrscript into PostgreSQL", "PostgreSqlInserts", 1.2),
    ("native: loading 10 million characters, beside a copy for each pass", "Loading", None),
]


def measured(folder):
    """Nanoseconds by "benchmark/whose"."""
    times = {}
    for path in sorted(pathlib.Path(folder).glob("*.json")):
        for run in json.loads(path.read_text(encoding="utf-8"))["benchmarks"]:
            if run.get("run_type") == "aggregate":
                continue
            name = "/".join(run["name"].split("/")[:2])
            times[name] = min(times.get(name, float("inf")), run["real_time"] * SCALE[run["time_unit"]])
    return times


def time_text(nanoseconds):
    unit = next(unit for unit in ("s", "ms", "us", "ns") if nanoseconds >= SCALE[unit] or unit == "ns")
    return f"{nanoseconds / SCALE[unit]:.3g} {unit}"


def row(words, name, aim, times):
    if f"{name}/both" in times:
        time = time_text(times[f"{name}/both"])
        return [words, time, time, "", ""]
    if f"{name}/library" not in times:
        return [words, "not measured", "", "", ""]
    time, by_hand = times[f"{name}/library"], times[f"{name}/by_hand"]
    ratio = f"{time / by_hand:.2f}"
    if aim is not None and time / by_hand > aim:
        ratio = f"**{ratio} above**"
    return [words, time_text(time), time_text(by_hand), ratio, "" if aim is None else f"{aim}"]


def machine():
    cpu = next((line.split(":")[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                if line.startswith("model name")), platform.machine())
    cores = subprocess.run(["nproc"], capture_output=True, text=True).stdout.strip()
    wine = subprocess.run(["wine", "--version"], capture_output=True, text=True).stdout.strip()
    return f"{cores} cores of {cpu}, {platform.freedesktop_os_release()['PRETTY_NAME']}, {wine}"


def main(folder, *files):
    times = measured(folder)
    rows = [row(words, name, aim, times) for words, name, aim in ROWS]
    for path in map(pathlib.Path, files):
        rows.append([f"size of {path.parts[-3]}/{path.name}", f"{path.stat().st_size:,} bytes", "", "", ""])
    print(machine(), end="\n\n")
    print("| what | library | by hand, or beside | ratio | aim |\n|---|---:|---:|---:|---:|")
    for cells in rows:
        print(f"| {' | '.join(cells)} |")


if __name__ == "__main__":
    main(*sys.argv[1:])
