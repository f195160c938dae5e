#!/usr/bin/env bash
# Unpacks the package where nothing else is and uses the Linux program as the README says: its commands, a script into a
# database, the manual page and the completion. Usage: linux.sh ZIP
set -euo pipefail
archive=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Not Python's own way of unpacking, which forgets what may be executed.
cmake -E chdir "$work" cmake -E tar xf "$archive"
cd "$work"/*

# With nothing of the environment.
clean() { env -i PATH=/usr/bin:/bin HOME="$work" LC_ALL=C.UTF-8 "$@"; }

commands=$(awk '/^ *```sh/ { inside = 1; next } /^ *```/ { inside = 0 } inside' README.md)
[ -n "$commands" ] || { echo "the README has no command for Linux"; exit 1; }
clean bash -euc "$commands"

version=$(sed -n 's/^# QVRlib21 \([0-9.]*\):.*/\1/p' README.md)
diff <(echo "qvrscript $version") <(clean linux/qvrscript --version)
diff linux/qvrscript.1 <(clean linux/qvrscript manual-page)
clean groff -man -Tutf8 -ww linux/qvrscript.1 2>&1 >"$work/page" | diff /dev/null -
grep -q "qvrscript $version" "$work/page"
clean bash -euc '. linux/completions/qvrscript; complete -p qvrscript' >/dev/null

printf 'create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\n' >"$work/x.cfc"
connection="Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=$work/x.db;\""
clean linux/qvrscript run --engine sqlserver --connection "$connection" "$work/x.cfc" >/dev/null
# The table is there now.
code=0
clean linux/qvrscript run --engine sqlserver --connection "$connection" "$work/x.cfc" >/dev/null 2>"$work/err" || code=$?
[ "$code" = 1 ] && grep -q 'table T already exists' "$work/err" || { cat "$work/err"; echo "code $code"; exit 1; }
