#!/usr/bin/env bash
# Sets the machine up, builds the library and shows its main job: examples/gestion as a C++ host, as VBScript and by the
# console program.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
need windows
need_wine
need_built win32 QVRlib21 testado gestion answer_boxes qvrscript

# Wine's programs get their arguments in the character set of the locale, and some of the example's have accents.
[ "$(locale charmap)" = UTF-8 ] || export LC_ALL=C.UTF-8

work=$build/demo
rm -rf "$work"
mkdir -p "$work"
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
bin=$(windows_path "$build/win32/bin")
example=$(windows_path "$root/examples/gestion")
folder=$(windows_path "$work")
wine() { timeout 300 "$root/tools/wine.sh" "$@"; }
regsvr() { wine 'C:\windows\syswow64\regsvr32.exe' /s "$@"; }

# cscript exits with 0 also after an error in the script: check its last line.
script() {
  wine 'C:\windows\syswow64\cscript.exe' //nologo "$example\\$1" "${@:2}" |
    iconv -f CP437 -t UTF-8 | tr -d '\r' | tee "$work/$1.txt"
  [ "$(tail -n 1 "$work/$1.txt")" = "Everything was as expected." ] || fail "$1 did not end well"
}

# Wine has no ADO that runs commands; the test one stands in for it. On Windows the system's own is used.
regsvr "$bin\\testado.dll"
trap 'regsvr /u "$bin\\QVRlib21.dll" || true; regsvr /u "$bin\\testado.dll" || true; "$root/tools/wine.sh" --stop' EXIT

echo "=== A host in C++, late-bound ==="
wine "$bin\\gestion.exe" --answer --unregister "$bin\\QVRlib21.dll" "$folder" "$example\\scripts\\sqlite" |
  tr -d '\r' | tee "$work/gestion.txt"
echo
echo "=== The same in VBScript ==="
regsvr "$bin\\QVRlib21.dll"
script parameters.vbs "$folder" "$work/gestion.db"
script commands.vbs "$folder" "$example\\scripts\\sqlite" "$bin\\answer_boxes.exe"
echo
echo "=== The same database by the console program ==="
"$root/examples/gestion/console_program.sh" "$work/consola.db" "$folder" "$example\\scripts\\sqlite" \
  timeout 300 "$root/tools/wine.sh" "$bin\\qvrscript.exe"
