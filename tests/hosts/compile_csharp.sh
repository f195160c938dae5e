#!/usr/bin/env bash
# Compiles the C# hosts, the early-bound one against declarations made from the IDL.
# Usage: compile_csharp.sh COMPILER IDL SOURCES
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$here/interop_source.py" "$2" >"$work/Interop.cs"
"$1" -warnaserror -target:library -out:"$work/QVRlib21.Interop.dll" "$work/Interop.cs"
"$1" -warnaserror -r:"$work/QVRlib21.Interop.dll" -out:"$work/Early.exe" "$3/Early.cs"
"$1" -warnaserror -r:Microsoft.CSharp.dll -out:"$work/Dynamic.exe" "$3/Dynamic.cs"
