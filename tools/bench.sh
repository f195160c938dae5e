#!/usr/bin/env bash
# Runs every benchmark, each beside what it is measured against in the same run, and prints the figures as one table.
# The machine should be idle meanwhile.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need windows win64 native bench
need_wine
need_built native $(printf '%s_bench ' connection inserts loading query splitting)
need_built win32 QVRlib21 testado host_bench
need_built win64 QVRlib21

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
