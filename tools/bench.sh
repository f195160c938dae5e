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

# native NAME REPETITIONS COMMAND...
native() {
  local name=$1 repetitions=$2
  shift 2
  "$@" --benchmark_format=json --benchmark_repetitions="$repetitions" \
    --benchmark_enable_random_interleaving=true 2>"$results/$name.log" >"$results/$name.json" || {
    cat "$results/$name.log" >&2
    exit 1
  }
}

# On one core, a program and its server, Wine's or a database's, hand each other their turn at once. On two, each call of
# the server waits until a core that sleeps is awake, which takes several times as long as the call.
core=$(taskset -cp $$ | grep -o '[0-9]*$')
under_wine() {
  taskset -c "$core" "$root/tests/servers/with_server.py" --drivers "$build/drivers32" mariadb \
    "$root/tools/wine.sh" "$build/win32/bin/host_bench.exe" >"$results/host.$1.json"
}

measure_all() {
  native "inserts.$1" 5 "$build/native/bin/inserts_bench"
  native "loading.$1" 5 "$build/native/bin/loading_bench"
  local server
  for server in mariadb postgresql; do
    native "$server.$1" 2 taskset -c "$core" "$root/tests/servers/with_server.py" "$server" \
      "$build/native/bin/inserts_bench"
  done
  under_wine "$1"
}

"$root/tools/wine.sh" --stop  # a server that runs is not on this core
# Three times over: a busy minute then meets no row in all of its rounds.
for pass in 1 2 3; do timed "bench: $pass of 3" measure_all "$pass"; done
"$root/tools/wine.sh" --stop

"$root/tools/bench_report.py" "$results" "$build/win32/bin/QVRlib21.dll" "$build/win64/bin/QVRlib21.dll"
