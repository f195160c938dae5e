#!/usr/bin/env bash
# Registers the library and the test ADO beside it for the script host of its width, runs the script and compares all
# that it prints.
# Usage: script_host.sh 32|64 LIBRARY SCRIPT
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/windows.sh" "$1"

library=$(windows_path "$2")
ado=$(windows_path "$(dirname "$2")/testado.dll")
# Tidying up goes on to its end; what cannot be taken back fails the test too.
tidy_up() {
  local outcome=$?
  for each in "$library" "$ado"; do wine "$system\\regsvr32.exe" /u /s "$each" || outcome=1; done
  exit "$outcome"
}
trap tidy_up EXIT
for each in "$library" "$ado"; do wine "$system\\regsvr32.exe" /s "$each"; done
wine "$system\\cscript.exe" //nologo "$(windows_path "$3")" | tr -d '\r' |
  diff - "${3%.vbs}.approved.txt"
