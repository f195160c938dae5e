#!/usr/bin/env bash
# Builds and runs the benchmarks and shows each as a multiple of what it is measured against in the same run.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/setup.sh" native

for program in "$build"/native/bin/*_bench; do
  echo "=== $(basename "$program")"
  "$program" --benchmark_format=json --benchmark_min_time="${QVR_BENCH_SECONDS:-0.2}" 2>/dev/null |
    "$root/tools/bench_ratios.py"
done
