#!/usr/bin/env bash
# Makes this machine ready; sourced by the other scripts, which call what they need of it. Quick when all is there.
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

# timed WORDS COMMAND...: says what is being done, and how long it took.
timed() {
  local words=$1 began=$SECONDS
  shift
  say "$words ..."
  "$@"
  say "$words: $((SECONDS - began)) s"
}

# The packages of these purposes that are not installed.
missing_packages() {
  local package
  for package in $(awk -v wanted=" $* " '/^#|^$/ { next } /^\[/ { gsub(/[][]/, ""); inside = index(wanted, " " $0 " ")
                   next } inside' "$root/tools/packages.txt"); do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
  done
}

# need PURPOSE...: installs the packages of these purposes.
need() {
  local missing
  missing=$(missing_packages always "$@")
  [ -z "$missing" ] || timed "setup: installing $(echo $missing)" install_packages always "$@"
}

install_packages() {
  local missing
  missing=$(missing_packages "$@")
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
  missing=$(missing_packages "$@")
  [ -z "$missing" ] || fail "still missing after installing:" $missing
}

# A prefix for people and programs, and with names of folders in build/ copies of it for tests that run side by side.
need_wine() {
  [ -e "$build/wine/ready" ] || timed "setup: making the Wine prefix" make_wine_prefix
  local name
  for name in "$@"; do
    [ -e "$build/$name/ready" ] || timed "setup: copying the Wine prefix to $name" copy_wine_prefix "$name"
  done
}

make_wine_prefix() {
  rm -rf "$build/wine"
  "$root/tools/wine_prefix.sh" "$build/wine" >>"$log" 2>&1 || fail "the Wine prefix could not be made"
  touch "$build/wine/ready"
}

copy_wine_prefix() {
  WINEPREFIX=$build/wine wineserver -w  # what it has written is whole then
  rm -rf "${build:?}/$1"
  cp -a --reflink=auto "$build/wine" "$build/$1" || fail "the Wine prefix could not be copied"
}

# The servers' ODBC drivers for 32-bit programs, in build/drivers32 with what they need beyond Wine's packages.
need_drivers32() { [ -e "$build/drivers32/ready" ] || timed "setup: 32-bit drivers of the servers" make_drivers32; }

make_drivers32() {
  local folder=$build/drivers32 unpacked=$build/drivers32/packages from=/usr/lib/i386-linux-gnu
  local packages="odbc-mariadb:i386 libmariadb3:i386 odbc-postgresql:i386 libpq5:i386"
  local also="libssl3:i386 libldap-2.5-0:i386 libsasl2-2:i386"  # of what they need, what Wine does not bring along
  rm -rf "$folder"
  mkdir -p "$unpacked"
  # Where a library or a driver of the other width is in their way, they are unpacked and not installed.
  # shellcheck disable=SC2086
  apt-get install -y --no-install-recommends --no-remove $packages >>"$log" 2>&1 ||
    apt-get install -y --no-install-recommends --no-remove -t bookworm $packages >>"$log" 2>&1 ||
    { unpack_packages "$unpacked" $packages $also && from=$unpacked/usr/lib/i386-linux-gnu; } ||
    fail "the 32-bit drivers can be neither installed nor downloaded"
  cp -L "$from"/odbc/{libmaodbc,psqlodbcw}.so "$from"/{libmariadb.so.3,libpq.so.5,libssl.so.3,libcrypto.so.3} \
    "$from"/{libldap-2.5.so.0,liblber-2.5.so.0,libsasl2.so.2} "$folder"
  rm -rf "$unpacked"
  LD_LIBRARY_PATH=$folder ldd "$folder"/*.so* >>"$log" 2>&1 || fail "ldd does not read the 32-bit drivers"
  if LD_LIBRARY_PATH=$folder ldd "$folder"/*.so* | grep 'not found' >>"$log"; then
    fail "the 32-bit drivers lack libraries"
  fi
  touch "$folder/ready"
}

# Free Pascal's compiler for 32-bit processors, which cannot be installed beside the other one. It makes 32-bit Windows
# programs from the same sources.
need_pascal32() { [ -e "$build/pascal32/ready" ] || timed "setup: 32-bit Free Pascal" make_pascal32; }

make_pascal32() {
  local folder=$build/pascal32 version
  rm -rf "$folder"
  mkdir -p "$folder/packages"
  version=$(find /usr/share/fpcsrc -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort -V | tail -n 1)
  unpack_packages "$folder/packages" "fp-compiler-$version:i386" || fail "32-bit Free Pascal cannot be downloaded"
  find "$folder/packages" -name ppc386 -type f -exec cp {} "$folder" \;
  rm -rf "$folder/packages"
  "$folder/ppc386" -iV >>"$log" 2>&1 || fail "32-bit Free Pascal does not run"
  touch "$folder/ready"
}

# unpack_packages FOLDER PACKAGE...
unpack_packages() {
  local folder=$1 each
  shift
  # Lists may be missing or old.
  apt-get update >>"$log" 2>&1 || true
  (cd "$folder" && apt-get download "$@" >>"$log" 2>&1) || return
  for each in "$folder"/*.deb; do dpkg -x "$each" "$folder" || return; done
}

# need_built PRESET [TARGET...]: builds these targets, or all.
need_built() { timed "setup: building $*" build_preset "$@"; }

build_preset() {
  local preset=$1
  shift
  rm -f "$build/$preset-build.log"
  (cd "$root" && { [ -e "$build/$preset/build.ninja" ] || cmake --preset "$preset" >>"$log" 2>&1; } &&
    cmake --build --preset "$preset" ${1:+--target "$@"} >"$build/$preset-build.log" 2>&1) || {
    tail -n 40 "$build/$preset-build.log" >&2 || true
    fail "building preset $preset failed"
  }
}
