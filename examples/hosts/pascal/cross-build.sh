#!/usr/bin/env bash
# Builds a Pascal program for Windows on Debian, with the library's unit and those in the program's folder: ppcx64 makes
# 64-bit programs, ppc386 32-bit ones. The compiler's packages have no units of Windows, so they are compiled from its
# sources, into a folder that serves the next time too. Usage: cross-build.sh COMPILER UNITS SOURCE PROGRAM
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
compiler=$1
units=$2
source=$3
program=$4
case $compiler in
  *ppcx64) processor=x86_64 width=64 ;;
  *ppc386) processor=i386 width=32 ;;
  *) echo "the compiler is ppcx64 or ppc386" >&2; exit 1 ;;
esac
[ -n "$(type -P "$compiler")" ] || { echo "there is no compiler $compiler; tools/test.sh gets it" >&2; exit 1; }
free_pascal=$(find /usr/share/fpcsrc -mindepth 1 -maxdepth 1 -type d | sort -V | tail -n 1)
[ -n "$free_pascal" ] || { echo "no sources of Free Pascal: install fpc-source" >&2; exit 1; }
rtl=$free_pascal/rtl
packages=$free_pascal/packages
mkdir -p "$units"

# "-n" keeps the configuration of this machine's own system out.
compile() { "$compiler" "-Twin$width" "-P$processor" -n -O2 -v0e -FU"$units" -Fu"$units" "$@"; }

# The compiler's own sources are full of what it warns of: that goes to a file.
compile_units() {
  local folders=() each
  for each in inc $processor win win/wininc objpas objpas/sysutils objpas/classes objpas/types win$width charmaps; do
    folders+=("-Fi$rtl/$each")
  done
  compile "${folders[@]}" -Us -Sg "$rtl/win$width/system.pp" || return
  for each in inc $processor win objpas win$width charmaps; do folders+=("-Fu$rtl/$each"); done
  for each in inc/uuchar objpas/objpas win$width/buildrtl; do compile "${folders[@]}" "$rtl/$each.pp" || return; done
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
