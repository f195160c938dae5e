#!/usr/bin/env bash
# Runs the example host against the libraries in a folder of programs. Usage: example.sh 32|64 BIN SCRIPTS
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
wine() { timeout 600 "$here/../../tools/wine.sh" "$@"; }
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

system='C:\windows\system32'
[ "$1" = 64 ] || system='C:\windows\syswow64'
bin=$(windows_path "$2")
work=$(mktemp -d "$2/example.XXXXXX")
# Tidying up goes on to its end; what cannot be taken back fails the test too.
tidy_up() {
  local outcome=$?
  wine "$system\\regsvr32.exe" /u /s "$bin\\testado.dll" || outcome=1
  rm -rf "$work"
  exit "$outcome"
}
trap tidy_up EXIT
wine "$system\\regsvr32.exe" /s "$bin\\testado.dll"
# Somebody types a column that the list has not, then a name that nobody has.
printf '%s\r\n' Ciudad=x Nombre=nadie '' |
  wine "$bin\\gestion.exe" --answer --ask --unregister "$bin\\QVRlib21.dll" "$(windows_path "$work")" \
    "$(windows_path "$3")" |
  tr -d '\r' | tee "$work/told"
for text in 'The list has no such column.' "and Nombre is like '*nadie*'" '     0 rows'; do
  grep -qF -- "$text" "$work/told" || { echo "not told: $text"; exit 1; }
done
