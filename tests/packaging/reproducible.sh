#!/usr/bin/env bash
# Packs once more, with the staged files and their times made anew, and compares the bytes. Usage: reproducible.sh ZIP
set -euo pipefail
build=$(dirname "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/log" || { cat "$work/log"; exit 1; }
cmp "$1" "$work/$(basename "$1")"
