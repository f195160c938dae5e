#!/usr/bin/env bash
# Runs every benchmark, each beside what it is measured against in the same run, and prints the figures as one table.
# Leave the machine alone meanwhile.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/setup.sh" native win32
say "setup: building the 64-bit library"
(cd "$root" && cmake --preset win64 && cmake --build --preset win64 --target QVRlib21) >"$build/win64-build.log" 2>&1 ||
  fail "building the 64-bit library failed, see $build/win64-build.log"

results=$build/bench
mkdir -p "$results"
rm -f "$results"/*.json

for subject in connection inserts loading query splitting; do
  say "bench: $subject"
  "$build/native/bin/${subject}_bench" --benchmark_format=json --benchmark_min_time="${QVR_BENCH_SECONDS:-0.2}" \
    2>"$results/$subject.log" >"$results/$subject.json"
done

say "bench: host"
timeout 1500 "$root/tools/wine.sh" "$build/win32/bin/host_bench.exe" >"$results/host.json"
"$root/tools/wine.sh" --stop

"$root/tools/bench_report.py" "$results" "$build/win32/bin/QVRlib21.dll" "$build/win64/bin/QVRlib21.dll"
