#!/usr/bin/env bash
# Runs the recipes of the cookbook that are for Windows and compares all that they print, and all that they register.
# Usage: recipes.sh 32|64 BIN RECIPES
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../support/windows.sh" "$1"

bin=$(windows_path "$2")
recipes=$3
# The library's texts are those of the user's language.
export LC_ALL=C.UTF-8
work=$(mktemp -d)
report='HKLM\Software\Classes\QVRServicios.InformeErrores'
outcome=0

# What the recipe of the service leaves in the prefix, as far as it has come. In a trap bash's plain return would give the
# status from before the trap.
quietly() { wine "$@" >"$work/log" 2>&1; }
take_away_service() {
  if quietly sc query Cuentas; then quietly sc delete Cuentas || return 1; fi
  if quietly reg query "$report"; then quietly reg delete "$report" /f || return 1; fi
}

# Tidying up goes on to its end; what cannot be taken back fails the test too.
tidy_up() {
  outcome=$(($? | outcome))
  take_away_service || outcome=1
  for each in QVRlib21.dll testado.dll; do wine "$system\\regsvr32.exe" /u /s "$bin\\$each" || outcome=1; done
  wine "$system\\regsvr32.exe" /s /u /n /i:user "$bin\\QVRlib21.dll" || outcome=1
  rm -rf "$work"
  exit "$outcome"
}
trap tidy_up EXIT

# expect NAME: compares what was printed with the approved text.
expect() {
  tr -d '\r' | diff "$here/approved/$1.txt" - || { echo "$1, $width bits: other lines than expected"; return 1; }
}

# The database driver is the host system's and wants its kind of path.
database() { printf 'Provider=MSDASQL;Extended Properties="DRIVER={SQLite3};Database=%s/%s.db;"' "$work" "$1"; }
script() {
  local source=$1
  shift
  wine "$system\\cscript.exe" //nologo "$(windows_path "$recipes/$source")" "$@"
}

# The installation: no box, an exit code, and what is found afterwards.
mkdir -p "$work/files/win$width"
cp "$2/QVRlib21.dll" "$work/files/win$width"
files=$(windows_path "$work/files")
code() { local ended=0; "$@" >"$work/log" 2>&1 || ended=$?; echo "$ended"; }
batch() { code wine cmd /c "$(windows_path "$recipes/install")\\$1.cmd" "$2" "$files"; }
# The key of the class that only this width writes; 0: it is there.
class='{B4E0A2A0-2C51-419F-BD8F-57DEC6DFF1E4}'
registered() { code wine reg query "$1\\Software\\Classes\\CLSID\\$class" "/reg:$width"; }
installed() { echo "$1: exit code $2, machine $(registered HKLM), user $(registered HKCU)"; }
printf 'Set Version = CreateObject("QVRlib21.Ov")\r\nWScript.Echo Version.CadenaVersion\r\n' >"$work/version.vbs"
version() { wine "$system\\cscript.exe" //nologo "$(windows_path "$work/version.vbs")"; }
# Whatever an earlier test that was ended left.
batch remove machine >"$work/log"
batch remove user >"$work/log"
take_away_service
{
  installed 'before' 0
  installed 'for the machine' "$(batch install machine)"
  echo "a script creates $(version | sed 's/^2\.10\..*/the class/')"
  installed 'taken away' "$(batch remove machine)"
  installed 'for the user' "$(batch install user)"
  installed 'taken away' "$(batch remove user)"
  installed 'another word than machine and user' "$(batch install mahcine)"
  installed 'no library in the folder' "$(code wine cmd /c "$(windows_path "$recipes/install")\\install.cmd" machine "$files\\none")"
  echo "no file: $(code wine "$system\\regsvr32.exe" /s)"
  echo "a file that is not there: $(code wine "$system\\regsvr32.exe" /s "$files\\none.dll")"
  echo "a library without classes: $(code wine "$system\\regsvr32.exe" /s "$system\\version.dll")"
  echo "another word than user: $(code wine "$system\\regsvr32.exe" /s /n /i:usr "$bin\\QVRlib21.dll")"
} | expect install || outcome=1

for each in QVRlib21.dll testado.dll; do wine "$system\\regsvr32.exe" /s "$bin\\$each"; done

script version/update.vbs 1 "$(database version)" "$(windows_path "$recipes/version")" | expect update || outcome=1
script indexes/begins_with.vbs "o'n" | expect begins_with || outcome=1
script list_form.vbs "$(database list)" | expect list_form || outcome=1
script saved_filter.vbs "$(database filter)" | expect saved_filter || outcome=1
script oracle_long_text.vbs "$(database long)" | expect oracle_long_text || outcome=1
script cancel.vbs "$(database all)" -1 | expect cancel_never || outcome=1
script cancel.vbs "$(database some)" 3 | expect cancel_after_3 || outcome=1

# A service: started and at once asked to stop, which it does behind its run.
cat >"$work/file.vbs" <<'END'
Set Parametros = CreateObject("QVRlib21.QVRcfp")
Parametros.Asignar "cuentas", 1, "MSDASQL", "", "", "", "", "", "", _
  "Extended Properties=""DRIVER={SQLite3};Database=" & WScript.Arguments(1) & ";"""
WScript.Echo Parametros.Guardar("cuentas", WScript.Arguments(0), "cuentas")
END
mkdir "$work/service"
cp "$2/night_service.exe" "$work/service"
wine "$system\\cscript.exe" //nologo "$(windows_path "$work/file.vbs")" "$(windows_path "$work/service")" "$work/night.db" \
  >"$work/log"
printf 'CREATE TABLE Notas (N INTEGER)\r\nGO\r\nnonsense\r\nGO\r\n' >"$work/night.cfc"
# In one process: services end with the last program of a prefix.
cat >"$work/service.cmd" <<END
@echo off
call $(windows_path "$recipes/service")\\setup.cmd $(windows_path "$work/service") $(windows_path "$work/night.cfc") $(windows_path "$work/night.log")
if errorlevel 1 exit /b 1
sc start Cuentas
sc stop Cuentas
:again
sc query Cuentas | find "STOPPED" >nul
if errorlevel 1 goto again
END
sed -i 's/$/\r/' "$work/service.cmd"
wine cmd /c "$(windows_path "$work/service.cmd")" >"$work/log" 2>&1 || { cat "$work/log"; outcome=1; }
expect night_service <"$work/night.log" || outcome=1
