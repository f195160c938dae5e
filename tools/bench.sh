#!/usr/bin/env bash
# Runs every benchmark, each beside what it is measured against in the same run, and writes the figures into
# docs/performance.md. Leave the machine alone meanwhile.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need windows native bench
need_wine
need_built native $(printf '%s_bench ' connection inserts loading query splitting)
need_built win32 QVRlib21 testado $(printf '%s_bench ' creation dispatch members)

results=$build/bench peers=$build/peers
mkdir -p "$results" "$peers"
rm -f "$results"/*.json

[ -e "$peers/node_modules" ] || {
  say "bench: installing the peers"
  cp "$root/bench/peers/package.json" "$peers"
  (cd "$peers" && npm install --no-package-lock --no-audit --no-fund >>"$log" 2>&1) || fail "npm could not install the peers"
}

for subject in connection inserts loading query splitting; do
  say "bench: $subject"
  "$build/native/bin/${subject}_bench" --benchmark_format=json --benchmark_min_time="${QVR_BENCH_SECONDS:-0.2}" \
    2>"$results/$subject.log" >"$results/$subject.json"
done

say "bench: peers"
node "$root/bench/peers/knex_statement.mjs" "$peers" >"$peers/knex.out"
# Debian's own interpreter, which sees Debian's packages.
/usr/bin/python3 "$root/bench/peers/sqlalchemy_statement.py" >"$peers/sqlalchemy.out"
python3 - "$results/query.json" "$peers"/*.out <<'PY'
import json
import sys

ours, *peers = sys.argv[1:]
with open(ours, encoding="utf-8") as file:
    result = json.load(file)
for path in peers:
    with open(path, encoding="utf-8") as file:
        result["benchmarks"] += json.load(file)["benchmarks"]
with open(ours, "w", encoding="utf-8") as file:
    json.dump(result, file, indent=1)
PY

for subject in creation dispatch members; do
  say "bench: $subject"
  timeout 1500 "$root/tools/wine.sh" "$build/win32/bin/${subject}_bench.exe" >"$results/$subject.json"
done
"$root/tools/wine.sh" --stop

"$root/tools/bench_report.py" "$results" "$root/docs/performance.md"
sed -n '/^<!-- figures -->/,/^<!-- end of figures -->/p' "$root/docs/performance.md"
