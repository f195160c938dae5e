#!/usr/bin/env bash
# Measures what users wait for, each beside the same done by hand in the same run, and prints the figures as one table.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need windows win64 native bench
need_wine
need_built native inserts_bench loading_bench
need_built win32 QVRlib21 testado host_bench
need_built win64 QVRlib21

results=$build/bench
rm -rf "$results"
mkdir -p "$results"

native() {
  "$build/native/bin/$1_bench" --benchmark_format=json --benchmark_repetitions=20 \
    --benchmark_enable_random_interleaving=true 2>"$results/$1.log" >"$results/$1.json"
}

# On one core, Wine and its server hand each other their turn at once. On two, each call of the server waits until a core
# that sleeps is awake, which takes ten times as long as the call.
core=$(taskset -cp $$ | grep -o '[0-9]*$')
under_wine() { taskset -c "$core" "$root/tools/wine.sh" "$build/win32/bin/host_bench.exe" >"$results/host.json"; }

timed "bench: INSERTs, native" native inserts
timed "bench: loading, native" native loading
"$root/tools/wine.sh" --stop  # a server that runs is not on this core
timed "bench: through automation" under_wine
"$root/tools/wine.sh" --stop

"$root/tools/bench_report.py" "$results" "$build/win32/bin/QVRlib21.dll" "$build/win64/bin/QVRlib21.dll"
