#!/usr/bin/env bash
# Runs the doctor on real registrations and compares what it says of them. Usage: doctor.sh 32|64 BIN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../support/windows.sh" "$1"

regsvr() { wine "$system\\regsvr32.exe" /s "$@"; }

work=$(mktemp -d)
folder=$(windows_path "$work")
library="$folder\\QVRlib21.dll"
# The library undoes every registration, wherever its file is.
tidy_up() {
  local outcome=$?
  regsvr /u "$(windows_path "$2")\\QVRlib21.dll" || outcome=1
  regsvr /u /n /i:user "$(windows_path "$2")\\QVRlib21.dll" || outcome=1
  rm -rf "$work"
  exit "$outcome"
}
trap 'tidy_up "$@"' EXIT
cp "$2"/{QVRlib21.dll,qvrscript.exe} "$work"

# doctor: the lines about the library itself, with the folder's name for the folder, and whether errors were found.
doctor() {
  local outcome=0
  wine "$folder\\qvrscript.exe" doctor >"$work/told" || outcome=$?
  echo "== $1"
  tr -d '\r' <"$work/told" |
    awk '/^[a-z]/ { ours = $0 ~ /^[a-z]+ +(library|registration|type library) / } ours' |
    python3 -c 'import sys; sys.stdout.write(sys.stdin.read().replace(sys.argv[1], "FOLDER"))' "$folder"
  # The test's own ADO takes Wine's away with it, so that errors elsewhere may be told of as well.
  local errors=0
  ! grep -q '^error' "$work/told" || errors=1
  [ "$outcome" = "$errors" ] || echo "errors: $errors, exit code: $outcome"
}

# other_width FILE: turns the machine in a library's header into that of the other width.
other_width() {
  python3 - "$1" <<'PY'
import struct
import sys

with open(sys.argv[1], "r+b") as file:
    file.seek(0x3C)
    (header,) = struct.unpack("<I", file.read(4))
    file.seek(header + 4)
    (machine,) = struct.unpack("<H", file.read(2))
    file.seek(header + 4)
    file.write(struct.pack("<H", {0x14C: 0x8664, 0x8664: 0x14C}[machine]))
PY
}

{
  doctor "nothing registered"
  cp "$2/QVRlib21.SxS.manifest" "$work"
  doctor "a manifest"
  regsvr "$library"
  doctor "registered for the machine"
  regsvr /u "$library"
  regsvr /n /i:user "$library"
  doctor "registered for the user"
  regsvr /u /n /i:user "$library"
  regsvr "$library"
  rm "$work/QVRlib21.dll"
  doctor "the file is gone"
  cp "$2/QVRlib21.dll" "$work"
  other_width "$work/QVRlib21.dll"
  doctor "a library of the other width"
} | sed -e 's/ win32 and win64 / both widths /' -e "s/$width-bit/OWN-bit/g" -e "s/$((96 - width))-bit/OTHER-bit/g" \
    -e "s/win$width/winOWN/g" -e "s/win$((96 - width))/winOTHER/g" -e 's/SysWOW64\|System32/SYSTEM/g' >"$work/all"
diff "$work/all" "$here/doctor.approved.txt"
