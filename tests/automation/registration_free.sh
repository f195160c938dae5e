#!/usr/bin/env bash
# Runs the example that needs no registration with its manifests and without them, and compares all that it prints.
# Usage: registration_free.sh 32|64 BIN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/windows.sh" "$1"

# Wine registers a type library that it finds by a manifest: not in the prefix of the other tests.
. "$here/../support/own_prefix.sh"
mkdir "$work/with" "$work/without"
cp "$2"/{QVRlib21.dll,QVRlib21.SxS.manifest,registration_free.exe,registration_free.exe.manifest} "$work/with"
cp "$2"/{QVRlib21.dll,registration_free.exe} "$work/without"

# told FOLDER [PART]: what it prints, and how it ends.
told() {
  local outcome=0
  wine "$(windows_path "$work/$1")\\registration_free.exe" "${@:2}" | tr -d '\r' || outcome=$?
  echo "exit code $outcome"
}
{
  told with
  # Nothing is registered: the same program finds the classes neither by name nor by identifier.
  told without
  told without early
} | sed "s/^$1-bit host/host/" | diff - "$here/registration_free.approved.txt"
