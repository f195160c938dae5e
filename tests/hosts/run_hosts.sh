#!/usr/bin/env bash
# Runs the example hosts of one width against the library in a folder of programs and compares all that each prints.
# Usage: run_hosts.sh 32|64 BIN SOURCES
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/windows.sh" "$1"

bin=$(windows_path "$2")
sources=$(windows_path "$3")
expected=$3/expected.txt
work=$(mktemp -d)
# The library's texts are those of the user's language.
export LC_ALL=C.UTF-8
outcome=0

# Tidying up goes on to its end; what cannot be taken back fails the test too.
tidy_up() {
  outcome=$(($? | outcome))
  for each in QVRlib21.dll testado.dll; do wine "$system\\regsvr32.exe" /u /s "$bin\\$each" || outcome=1; done
  rm -rf "$work"
  exit "$outcome"
}
trap tidy_up EXIT
for each in QVRlib21.dll testado.dll; do wine "$system\\regsvr32.exe" /s "$bin\\$each"; done

# host NAME LACKS PROGRAM [ARGUMENTS]: what the program prints, twice: the first time it makes the connection file, the
# second it finds it. LACKS matches the lines that this host cannot print here.
host() {
  local name=$1 lacks=$2 run
  shift 2
  mkdir "$work/$name"
  # The database driver is the host system's and wants its kind of path.
  local options="DRIVER={SQLite3};Database=$work/$name/hosts.db;"
  for run in created 'there already'; do
    sed -E -e "s/^(Connection file: ).*/\1$run/" -e "/$lacks/d" "$expected" >"$work/expected"
    wine "$@" "$(windows_path "$work/$name")" MSDASQL "$options" | tr -d '\r' >"$work/told" || outcome=1
    if ! diff "$work/expected" "$work/told"; then
      echo "$name, $width bits, connection file $run: other lines than expected, or a failure"
      outcome=1
    fi
  done
}

# Wine's script host has no events; JScript has no arguments by reference either.
events='^(Progress|Finished):'
host vbscript "$events" "$system\\cscript.exe" //nologo "$sources\\vbscript\\hosts.vbs"
host jscript "$events|^By reference:" "$system\\cscript.exe" //nologo "$sources\\jscript\\hosts.js"
host cpp-early '^$' "$bin\\hosts_early.exe"
host cpp-late '^$' "$bin\\hosts_late.exe"
host pascal-late '^$' "$bin\\hosts_pascal_late.exe"
host pascal-early '^$' "$bin\\hosts_pascal_early.exe"
