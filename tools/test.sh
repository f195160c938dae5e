#!/usr/bin/env bash
# Sets the machine up, builds everything and passes every test. The last line is "N passed, N failed".
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/tools/setup.sh" native asan fuzz win32 win64 package

results=$build/test-results
mkdir -p "$results"
rm -f "$results"/*.xml
failed_suites=0

# run NAME PRESET [VARIABLE=VALUE...]: one suite, its outcome kept for the count at the end.
run() {
  local name=$1 preset=$2
  shift 2
  say "test: $name"
  (cd "$root" && env "$@" ctest --preset "$preset" -j2 --output-junit "$results/$name.xml" \
    >"$results/$name.log" 2>&1) || {
    failed_suites=$((failed_suites + 1))
    sed -n '/The following tests FAILED/,$p' "$results/$name.log"
    grep -v -E '^ *[0-9]+/[0-9]+ Test .*Passed|^ *Start ' "$results/$name.log" | tail -n 150
  }
}

run native native
run asan asan
run fuzz fuzz
run win32 win32
run win64 win64
run package package
"$root/tools/wine.sh" --stop

# The manual's site as a browser shows it; building it fails when the reference is not complete.
say "test: site"
{ "$root/tools/manual.sh" && "$root/tests/site/site_test.py" "$build/manual/site" "$results/site.xml"; } \
  >"$results/site.log" 2>&1 || {
  failed_suites=$((failed_suites + 1))
  tail -n 150 "$results/site.log"
}

# Adds up the suites; one that left no result file counts as a failure.
python3 - "$results" "$failed_suites" native asan fuzz win32 win64 package site <<'PY'
import pathlib
import sys
import xml.etree.ElementTree as xml

folder, failed_suites, *names = sys.argv[1:]
passed = failed = 0
for name in names:
    path = pathlib.Path(folder, name + ".xml")
    suite = xml.parse(path).getroot() if path.exists() else None
    cases = list(suite.iter("testcase")) if suite is not None else []
    bad = sum(case.get("status") != "run" for case in cases) if cases else 1
    print(f"{name}: {len(cases) - bad if cases else 0} passed, {bad} failed")
    passed += len(cases) - bad if cases else 0
    failed += bad
if failed_suites != "0" and failed == 0:
    failed = int(failed_suites)
print(f"{passed} passed, {failed} failed")
sys.exit(1 if failed else 0)
PY
