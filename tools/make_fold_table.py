#!/usr/bin/env python3
"""Writes src/base/fold_table.h from the Unicode data of this Python.

Only needed to move to a newer Unicode version; the table is kept in the tree so that a build needs no Python.
"""
import pathlib
import unicodedata


def simple_upper(unit):
    char = chr(unit)
    upper = char.upper()
    if len(upper) > 1:  # the full mapping has several characters; the simple one, where it exists, is the title case
        upper = char.title() if len(char.title()) == 1 else char
    return ord(upper)


def mappings():
    for unit in range(0x10000):
        if not 0xD800 <= unit < 0xE000:
            upper = simple_upper(unit)
            if upper != unit and upper < 0x10000:
                yield unit, upper - unit


def runs(pairs):
    start = 0
    while start < len(pairs):
        best_end, best_stride = start, 1
        for stride in (1, 2):
            end = start
            while end + 1 < len(pairs) and pairs[end + 1] == (pairs[end][0] + stride, pairs[start][1]):
                end += 1
            if end > best_end:
                best_end, best_stride = end, stride
        yield pairs[start][0], pairs[best_end][0], best_stride, pairs[start][1]
        start = best_end + 1


def main():
    lines = [
        f"// Simple upper-case mappings of the Basic Multilingual Plane (Unicode {unicodedata.unidata_version}) as runs: every",
        "// `stride`-th unit from `first` to `last` moves by `shift`. Sorted. Written by tools/make_fold_table.py.",
        "#pragma once", "", "#include <cstdint>", "", "namespace qvr {", "",
        "struct FoldRun {", "  char16_t first, last;", "  std::uint16_t stride;", "  std::int32_t shift;", "};", "",
        "// clang-format off", "inline constexpr FoldRun kFoldRuns[] = {"]
    line = " "
    for first, last, stride, shift in runs(list(mappings())):
        entry = f" {{0x{first:04X}, 0x{last:04X}, {stride}, {shift}}},"
        if len(line) + len(entry) > 118:
            lines.append(line)
            line = " "
        line += entry
    lines += [line, "};", "// clang-format on", "", "}  // namespace qvr"]
    path = pathlib.Path(__file__).parent.parent / "src/base/fold_table.h"
    path.write_text("\n".join(lines) + "\n", encoding="ascii")


if __name__ == "__main__":
    main()
