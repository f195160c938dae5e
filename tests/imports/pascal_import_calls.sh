#!/usr/bin/env bash
# Registers the library of one width in a folder of programs, has the Pascal unit call it both ways, and takes the
# registration away. Usage: pascal_import_calls.sh 32|64 BIN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
wine() { timeout 300 "$here/../../tools/wine.sh" "$@" </dev/null; }
# The 32-bit loader, which "wine" starts first, would see the 32-bit programs in the folder of the 64-bit ones.
[ "$1" = 32 ] || export QVR_WINE=/usr/lib/wine/wine64
system=system32
[ "$1" = 64 ] || system=syswow64
bin=Z:${2//\//\\}
server="C:\windows\\$system\regsvr32.exe"

wine "$server" /s "$bin\\QVRlib21.dll"
trap 'wine "$server" /u /s "$bin\\QVRlib21.dll"' EXIT
told=$(wine "$2/pascal_import_calls.exe" | tr -d '\r') || { echo "$told"; exit 1; }
[ "$told" = "46 calls, 0 different" ] || { echo "$told"; exit 1; }
