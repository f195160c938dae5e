#!/usr/bin/env bash
# Builds release files again, later, from a copy of the sources elsewhere and in another time zone, and compares their
# bytes. Usage: reproducible.sh SOURCES BUILD_FOLDER TARGETS FILES [CMAKE_ARGUMENT...]; targets and files are each one
# word, separated by blanks.
set -euo pipefail
export TZ=Asia/Tokyo
unset CMAKE_C_COMPILER_LAUNCHER CMAKE_CXX_COMPILER_LAUNCHER
sources=$1 build=$2
read -ra targets <<<"$3"
read -ra files <<<"$4"
shift 4

copy=$build/built-again
rm -rf "$copy"
mkdir -p "$copy/sources of a longer name"
cd "$copy/sources of a longer name"
tar -C "$sources" --exclude=./build --exclude=./.git -cf - . | tar -xf -
cmake -S . -B ../elsewhere -G Ninja -DQVR_TESTS=OFF "$@" >../log
cmake --build ../elsewhere --target "${targets[@]}" >>../log || { tail -n 40 ../log; exit 1; }

differing=0
for file in "${files[@]}"; do
  cmp "$build/$file" "../elsewhere/$file" || differing=1
done
exit "$differing"
