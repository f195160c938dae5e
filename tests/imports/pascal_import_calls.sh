#!/usr/bin/env bash
# Registers the library of one width in a folder of programs, has the Pascal unit call it both ways, and takes the
# registration away. Usage: pascal_import_calls.sh 32|64 BIN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/windows.sh" "$1"
bin=$(windows_path "$2")
server="$system\\regsvr32.exe"

wine "$server" /s "$bin\\QVRlib21.dll"
trap 'wine "$server" /u /s "$bin\\QVRlib21.dll"' EXIT
told=$(wine "$2/pascal_import_calls.exe" | tr -d '\r') || { echo "$told"; exit 1; }
[ "$told" = "46 calls, 0 different" ] || { echo "$told"; exit 1; }
