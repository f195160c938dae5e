#!/usr/bin/env bash
# Tries libraries as a user does and compares all that is told of it, and what is left of it. Usage: try.sh 32|64 BIN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../support/windows.sh" "$1"

regsvr() { wine "$system\\regsvr32.exe" /s "$@"; }

prefix=${QVR_WINEPREFIX:-$here/../../../build/wine}
work=$(mktemp -d)
mkdir "$work/bin"
folder=$(windows_path "$work")
library="$folder\\bin\\QVRlib21.dll"
ado="$(windows_path "$2")\\testado.dll"
tidy_up() {
  local outcome=$?
  regsvr /u "$(windows_path "$2")\\QVRlib21.dll" || outcome=1
  regsvr /u "$ado" || outcome=1
  rm -rf "$work"
  exit "$outcome"
}
trap 'tidy_up "$@"' EXIT
cp "$2"/{QVRlib21.dll,qvrscript.exe} "$work/bin"

# What a trial could leave: files, classes, settings.
left() {
  find "$prefix/drive_c" -name 'qvrscript-try-*'
  for key in 'HKLM\Software\Classes' 'HKCU\Software'; do
    wine reg export "$key" "$folder\\registry" /y >/dev/null
    sha256sum <"$work/registry"
  done
}

# try_out NAME ARGUMENTS: the lines of the trial, the exit code, whether the report is the output with times.
try_out() {
  local name=$1 outcome=0
  shift
  left >"$work/before"
  wine "$folder\\bin\\qvrscript.exe" doctor --try --report "$folder\\report" "$@" >"$work/output" || outcome=$?
  echo "== $name"
  tr -d '\r' <"$work/output" >"$work/told"
  awk '/^[a-z0-9]/ { ours = $2 == "try" } ours' "$work/told" |
    sed -e 's/qvrscript_try_[0-9A-F]\{8\}/qvrscript_try_XXXX/' |
    python3 -c 'import sys; sys.stdout.write(sys.stdin.read().replace(sys.argv[1], "FOLDER"))' "$folder"
  local errors=0
  ! grep -q '^error' "$work/told" || errors=1
  [ "$outcome" = "$errors" ] || echo "errors: $errors, exit code: $outcome"
  tr -d '\r' <"$work/report" >"$work/report.txt"
  grep -Eq '^qvrscript doctor, [0-9]{4}(-[0-9]{2}){2} [0-9]{2}(:[0-9]{2}){2}$' "$work/report.txt" || echo "no date"
  [ "$(grep -Ec '^(ok|note|error) +try .* \([0-9]+ ms\)$' "$work/report.txt")" = 9 ] || echo "not every step has its time"
  sed -e 1d -e 's/ ([0-9]* ms)$//' "$work/report.txt" | diff - "$work/told" || echo "the report differs from the output"
  left | diff "$work/before" - || echo "something is left"
}

{
  regsvr "$ado"
  try_out "the library beside the program"
  regsvr "$library"
  try_out "the registered library"
  export QVR_TEST_CONNECTION="Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=$work/given.db;\""
  try_out "a database that is given" --connection-env QVR_TEST_CONNECTION
  python3 -c 'import sqlite3, sys; print(sqlite3.connect(sys.argv[1]).execute("SELECT name FROM sqlite_master").fetchall())' \
    "$work/given.db"
  rm "$work/bin/QVRlib21.dll"
  try_out "the registered library is gone"
  cp "$2/QVRlib21.dll" "$work/bin"
  regsvr /u "$library"
  rm "$work/bin/QVRlib21.dll"
  try_out "no library"
  cp "$2/testado.dll" "$work/bin/QVRlib21.dll"
  try_out "another library under its name"
  cp "$2/QVRlib21.dll" "$work/bin"
  regsvr /u "$ado"
  try_out "no ADO that runs commands"
} >"$work/all"
diff "$work/all" "$here/try.approved.txt"
# What the manual shows is the registered library's trial.
python3 - "$here/../../../docs/manual/en/qvrscript.md" "$work/all" <<'PY'
import re
import sys

page, told = (open(name, encoding="utf-8").read() for name in sys.argv[1:])
shown = re.search(r"```\n(ok     try .*?)```", page, re.DOTALL).group(1)
tried = re.search(r"== the registered library\n(.*?)== ", told, re.DOTALL).group(1)
assert shown == tried.replace("FOLDER\\bin", "C:\\qvr\\win32"), "the manual shows another trial:\n" + tried
PY
