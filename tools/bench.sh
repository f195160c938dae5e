#!/usr/bin/env bash
# Measures what users wait for, each beside the same done by hand in the same run, and prints the figures as one table.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need windows win64 native bench servers
need_wine
need_drivers32
need_built native inserts_bench loading_bench
need_built win32 QVRlib21 testado host_bench
need_built win64 QVRlib21

results=$build/bench
rm -rf "$results"
mkdir -p "$results"

native() {
  "$build/native/bin/$1_bench" --benchmark_format=json --benchmark_repetitions=5 \
    --benchmark_enable_random_interleaving=true 2>"$results/$1.log" >"$results/$1.$2.json" || {
    cat "$results/$1.log" >&2
    exit 1
  }
}

# On one core, Wine and its server hand each other their turn at once. On two, each call of the server waits until a core
# that sleeps is awake, which takes ten times as long as the call.
core=$(taskset -cp $$ | grep -o '[0-9]*$')
under_wine() {
  taskset -c "$core" "$root/tests/servers/with_server.py" --drivers "$build/drivers32" mariadb \
    "$root/tools/wine.sh" "$build/win32/bin/host_bench.exe" >"$results/host.$1.json"
}

measure_all() {
  native inserts "$1"
  native loading "$1"
  under_wine "$1"
}

"$root/tools/wine.sh" --stop  # a server that runs is not on this core
# Three times over: a busy minute then meets no row in all of its rounds.
for pass in 1 2 3; do timed "bench: $pass of 3" measure_all "$pass"; done
"$root/tools/wine.sh" --stop

"$root/tools/bench_report.py" "$results" "$build/win32/bin/QVRlib21.dll" "$build/win64/bin/QVRlib21.dll"
