#!/usr/bin/env bash
# Compiles the C# hosts, the early-bound one together with the library's import.
# Usage: compile_csharp.sh COMPILER IMPORT SOURCES
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
strict=(-warnaserror+ -warn:4)
"$1" "${strict[@]}" -out:"$work/Early.exe" "$3/Early.cs" "$2"
"$1" "${strict[@]}" -r:Microsoft.CSharp.dll -out:"$work/Dynamic.exe" "$3/Dynamic.cs"
