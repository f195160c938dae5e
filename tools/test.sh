#!/usr/bin/env bash
# Sets the machine up, builds everything and passes every test. Says what each part took; the last line is
# "N passed, N failed".
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
began=$SECONDS
need windows win64 native bench clang tests manual browser screen servers
need_wine wine-core wine64
need_drivers32
need_pascal32

results=$build/test-results
mkdir -p "$results"
rm -rf "$results"/*.xml "$build"/*/cases
failed_suites=$results/failed
: >"$failed_suites"

# suite NAME COMMAND...: one suite, its log shown when it fails.
suite() {
  local name=$1
  shift
  "$@" >"$results/$name.log" 2>&1 && return
  echo "$name" >>"$failed_suites"
  sed -n '/The following tests FAILED/,$p' "$results/$name.log"
  grep -v -E '^ *[0-9]+/[0-9]+ Test .*Passed|^ *Start ' "$results/$name.log" | tail -n 150 || true
}

# tests PRESET CORES: a preset's tests.
tests() { timed "test: $1" suite "$1" preset_tests "$1" "$2"; }
preset_tests() { (cd "$root" && ctest --preset "$1" -j"$2" --output-junit "$results/$1.xml"); }

format() {
  local outcome=run
  find "$root"/{bench,examples,programs,src,tests} \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -n 40 -P 2 clang-format --dry-run --Werror || outcome=fail
  echo "<testsuite><testcase name=\"sources_are_formatted\" status=\"$outcome\"/></testsuite>" >"$results/format.xml"
  [ "$outcome" = run ]
}

# The manual's site, which is packed too, as a browser shows it.
site() { "$root/tests/site/site_test.py" "$build/manual/site" "$results/site.xml"; }

timed "test: format" suite format format
need_built native
tests native 2
need_built win32
need_built win64
# Each in Wine prefixes of its own. They mostly wait for Wine's server, and leave the cores to the sanitizers meanwhile.
tests win32 2 &
tests win64 1 &
need_built asan
tests asan 2
wait
need_built package
tests package 1
for prefix in wine wine-core wine64; do QVR_WINEPREFIX=$build/$prefix "$root/tools/wine.sh" --stop; done
timed "test: site" suite site site

say "test: everything: $((SECONDS - began)) s"
"$root/tools/count_cases.py" "$build" "$failed_suites" format native asan win32 win64 package site
