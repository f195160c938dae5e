#!/usr/bin/env bash
# Makes this machine ready and builds: packages, a Wine prefix in the build folder, the presets given as arguments.
# Sourced by demo.sh and test.sh; quick when everything is there already.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
log=$build/setup.log
mkdir -p "$build"

say() { printf '%s\n' "$*" >&2; }

fail() {
  say "setup: $*"
  say "setup: the last lines of $log:"
  tail -n 15 "$log" >&2 || true
  exit 1
}

packages() { sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$root/tools/packages.txt"; }

# The packages of the list that are not installed.
missing_packages() {
  local package
  for package in $(packages); do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
  done
}

install_packages() {
  local missing
  missing=$(missing_packages)
  [ -z "$missing" ] && return 0
  say "setup: installing" $missing
  [ "$(id -u)" = 0 ] || fail "packages are missing and only root can install them"
  export DEBIAN_FRONTEND=noninteractive
  dpkg --add-architecture i386
  # The 32-bit security index is out of step with its release file at times; the others still serve then.
  apt-get update >>"$log" 2>&1 || say "setup: apt-get update reported errors; going on with what it has"
  local install="apt-get install -y --no-install-recommends"
  # A pinned release resolves version mismatches between the two architectures.
  # shellcheck disable=SC2086
  $install $missing >>"$log" 2>&1 || $install -t bookworm $missing >>"$log" 2>&1 ||
    fail "the packages could not be installed, neither plainly nor from the release itself"
  missing=$(missing_packages)
  [ -z "$missing" ] || fail "still missing after installing:" $missing
}

make_wine_prefix() {
  [ -e "$build/wine/ready" ] && return 0
  say "setup: making the Wine prefix"
  rm -rf "$build/wine"
  "$root/tools/wine_prefix.sh" "$build/wine" >>"$log" 2>&1 || fail "the Wine prefix could not be made"
  touch "$build/wine/ready"
}

build_preset() {
  local preset=$1
  rm -f "$build/$preset-build.log"
  (cd "$root" && { [ -e "$build/$preset/build.ninja" ] || cmake --preset "$preset" >>"$log" 2>&1; } &&
    cmake --build --preset "$preset" >"$build/$preset-build.log" 2>&1) || {
    tail -n 40 "$build/$preset-build.log" >&2 || true
    fail "building preset $preset failed"
  }
}

install_packages
make_wine_prefix
for preset in "$@"; do
  say "setup: building $preset"
  build_preset "$preset"
done
