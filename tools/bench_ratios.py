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
for name in names:
    base = runs[names[0]]
    cells = "".join(f"{runs[name][a] / base[a]:12.1f}" for a in arguments)
    print(f"{name:24}{cells}" + ("   (1.0 is " + ", ".join(f"{base[a]:.0f} ns" for a in arguments) + ")" if name == names[0] else ""))
