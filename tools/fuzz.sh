#!/usr/bin/env bash
# Runs the fuzz targets: tools/fuzz.sh MINUTES [TARGET...]. The minutes are divided equally among the targets named, or
# all. New inputs are kept in build/asan/corpus for the next run; crash files are named at the end, with exit code 1.
set -euo pipefail

if [[ $# -eq 0 || ! $1 =~ ^[0-9]+$ || $1 -eq 0 ]]; then
  echo "usage: tools/fuzz.sh MINUTES [TARGET...]" >&2
  exit 2
fi
minutes=$1
shift
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
fuzz=$build/asan
sources=$root/tests/fuzz

targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  for source in "$sources"/*_fuzz.cpp; do targets+=("$(basename "$source" _fuzz.cpp)"); done
fi
for target in "${targets[@]}"; do
  [[ -e $sources/${target}_fuzz.cpp ]] || { echo "fuzz.sh: there is no target $target" >&2; exit 2; }
done

need native clang
need_built asan "${targets[@]/%/_fuzz}"

seconds=$((minutes * 60 / ${#targets[@]}))
[[ $seconds -gt 0 ]] || seconds=1
mkdir -p "$fuzz/crashes"
started=$(mktemp)
trap 'rm -f "$started"' EXIT
failed=()

# The first folder takes new inputs; the corpus of the sources is only read.
for target in "${targets[@]}"; do
  mkdir -p "$fuzz/corpus/$target"
  log=$fuzz/$target.log
  "$fuzz/bin/${target}_fuzz" -max_total_time="$seconds" -max_len=4000 -timeout=300 -print_final_stats=1 \
    -dict="$sources/dictionaries/$target.dict" -artifact_prefix="$fuzz/crashes/$target-" \
    "$fuzz/corpus/$target" "$sources/corpus/$target" >"$log" 2>&1 || failed+=("$target")
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  echo "$target: ${executions:-0} executions in $seconds seconds"
  grep -a -A 6 '^not so: ' "$log" | grep -a -v '^ *#' || true
done

[[ ${#failed[@]} -eq 0 ]] && exit 0
echo "failed: ${failed[*]}; the logs are $fuzz/TARGET.log"
find "$fuzz/crashes" -type f -newer "$started"
exit 1
