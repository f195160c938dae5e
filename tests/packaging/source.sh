#!/usr/bin/env bash
# Packs the sources, unpacks them in a folder that has nothing else and configures the native build there.
# Usage: source.sh CPACK_SOURCE_CONFIG
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() { "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }; }
quietly cpack --config "$1" -B "$work"
# Not Python's own way of unpacking, which forgets what may be executed.
quietly cmake -E chdir "$work" cmake -E tar xf "$(basename "$work"/*-source.zip)"
cd "$work"/*-source
sha256sum --check --quiet --strict SHA256SUMS
[ -x tools/test.sh ] || { echo "tools/test.sh cannot be executed"; exit 1; }
quietly cmake --preset native
