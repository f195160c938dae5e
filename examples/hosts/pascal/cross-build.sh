#!/usr/bin/env bash
# Builds a Pascal program for 64-bit Windows on Debian, with the library's unit and those in the program's folder. The
# compiler's packages have no units of that system, so they are compiled from its sources, into a folder that serves the
# next time too. Usage: cross-build.sh UNITS SOURCE PROGRAM
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
units=$1
source=$2
program=$3
free_pascal=$(find /usr/share/fpcsrc -mindepth 1 -maxdepth 1 -type d | sort -V | tail -n 1)
[ -n "$free_pascal" ] || { echo "no sources of Free Pascal: install fpc-source" >&2; exit 1; }
rtl=$free_pascal/rtl
packages=$free_pascal/packages
mkdir -p "$units"

# "-n" keeps the configuration of this machine's own system out.
compile() { ppcx64 -Twin64 -Px86_64 -n -O2 -v0e -FU"$units" -Fu"$units" "$@"; }

# The compiler's own sources are full of what it warns of: that goes to a file.
compile_units() {
  local folders=() each
  for each in inc x86_64 win win/wininc objpas objpas/sysutils objpas/classes objpas/types win64 charmaps; do
    folders+=("-Fi$rtl/$each")
  done
  compile "${folders[@]}" -Us -Sg "$rtl/win64/system.pp" || return
  for each in inc x86_64 win objpas win64 charmaps; do folders+=("-Fu$rtl/$each"); done
  for each in inc/uuchar objpas/objpas win64/buildrtl; do compile "${folders[@]}" "$rtl/$each.pp" || return; done
  touch "$units/ready"
}
[ -e "$units/ready" ] || compile_units >"$units/log" 2>&1 || {
  tail -n 20 "$units/log" >&2
  exit 1
}

folders=()
for each in winunits-base rtl-objpas/src/inc rtl-objpas/src/win fcl-registry fcl-base fcl-xml; do
  [[ $each == */* ]] || each=$each/src
  folders+=("-Fu$packages/$each" "-Fi$packages/$each")
done
compile "${folders[@]}" -Fu"$(dirname "$source")" -Fu"$here/../../../imports/pascal" -o"$program" "$source"
