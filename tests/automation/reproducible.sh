#!/usr/bin/env bash
# Builds the release files again, later, from a copy of the sources elsewhere and in another time zone, and compares
# their bytes. Usage: reproducible.sh SOURCES BUILD_FOLDER TOOLCHAIN_FILE SOURCE_DATE
set -euo pipefail
export TZ=Asia/Tokyo SOURCE_DATE_EPOCH=$4
unset CMAKE_C_COMPILER_LAUNCHER CMAKE_CXX_COMPILER_LAUNCHER

copy=$2/built-again
rm -rf "$copy"
mkdir -p "$copy/sources of a longer name"
cd "$copy/sources of a longer name"
tar -C "$1" --exclude=./build --exclude=./.git -cf - . | tar -xf -
cmake -S . -B ../elsewhere -G Ninja -DCMAKE_TOOLCHAIN_FILE="cmake/$(basename "$3")" -DCMAKE_BUILD_TYPE=Release \
  -DQVR_TESTS=OFF >../log
cmake --build ../elsewhere --target QVRlib21 qvrscript >>../log || { tail -n 40 ../log; exit 1; }

differing=0
for file in generated/QVRlib21.tlb bin/QVRlib21.dll bin/qvrscript.exe; do
  cmp "$2/$file" "../elsewhere/$file" || differing=1
done
exit "$differing"
