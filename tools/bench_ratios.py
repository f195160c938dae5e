#!/usr/bin/env python3
"""Reads Google Benchmark's JSON and prints each time as a multiple of the first benchmark with the same argument."""
import json
import sys

runs = {}
for run in json.load(sys.stdin)["benchmarks"]:
    name, _, argument = run["name"].partition("/")
    scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
    runs.setdefault(name, {})[argument] = run["cpu_time"] * scale

names = list(runs)
arguments = list(runs[names[0]])
print(f"{'':24}" + "".join(f"{argument:>12}" for argument in arguments))
base = runs[names[0]]
for name in names:
    run = runs[name]
    cells = "".join(f"{run[a] / base[a]:12.1f}" if a in run else f"{'-':>12}" for a in arguments)
    times = ", ".join(f"{base[a]:.0f} ns" for a in arguments)
    print(f"{name:24}{cells}" + (f"   (1.0 is {times})" if name == names[0] else ""))
