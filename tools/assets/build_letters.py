#!/usr/bin/python3
"""Writes the tables behind base/letters.h as C++: what is a letter, and which letters differ in case.

usage: build_letters.py OUT.cpp

The source is the Unicode character database that Python carries. A range of case covers letters that
fold alike: every one, or every second one, by the same distance. Letters beyond ASCII are not folded
into ASCII (the signs for kelvin and the long s), and only to a form of one character that takes as
many units of UTF-16.
"""

import sys
import unicodedata

POINTS = 0x110000
SURROGATES = range(0xD800, 0xE000)
KINDS = {"L": "kLetter", "N": "kDigit", "M": "kMark"}

HEAD = """// Made by build_letters.py from version {version} of the Unicode character database.
#include "base/letters.h"

namespace varnel::letters_detail {{
"""


def kind_of(point):
    """Returns the name of the kind of word character, or None."""
    if point in SURROGATES:
        return None
    return KINDS.get(unicodedata.category(chr(point))[0])


def folded(point):
    """Returns the code that stands for every case of a letter."""
    letter = chr(point)
    for form in (letter.casefold(), letter.lower()):
        if len(form) == 1:
            target = ord(form)
            same_width = (target < 0x10000) == (point < 0x10000)
            return target if same_width and (target < 0x80) == (point < 0x80) else point
    return point


def kind_ranges():
    """Returns (first, last, kind) for each stretch of one kind of word character."""
    ranges = []
    for point in range(POINTS):
        kind = kind_of(point)
        if kind is None:
            continue
        if ranges and ranges[-1][1] == point - 1 and ranges[-1][2] == kind:
            ranges[-1][1] = point
        else:
            ranges.append([point, point, kind])
    return ranges


def case_ranges():
    """Returns (first, last, step, distance) for each stretch of letters that fold alike."""
    ranges = []
    for point in range(POINTS):
        if point in SURROGATES or folded(point) == point:
            continue
        distance = folded(point) - point
        if ranges and ranges[-1][3] == distance:
            first, last, step, _ = ranges[-1]
            if point - last in (1, 2) and (first == last or point - last == step):
                ranges[-1][1:3] = [point, point - last]
                continue
        ranges.append([point, point, 1, distance])
    return ranges


def main(path):
    """Writes the source file."""
    lines = [HEAD.format(version=unicodedata.unidata_version), "const KindRange kKindRanges[] = {"]
    kinds = kind_ranges()
    lines += [f"    {{{first:#x}, {last:#x}, Kind::{kind}}}," for first, last, kind in kinds]
    lines += ["};", f"const std::size_t kKindRangeCount = {len(kinds)};", ""]
    lines.append("const CaseRange kCaseRanges[] = {")
    cases = case_ranges()
    lines += [f"    {{{first:#x}, {last:#x}, {step}, {way}}}," for first, last, step, way in cases]
    lines += ["};", f"const std::size_t kCaseRangeCount = {len(cases)};", ""]
    lines += ["}  // namespace varnel::letters_detail", ""]
    with open(path, "w", encoding="ascii", newline="\n") as out:
        out.write("\n".join(lines))


if __name__ == "__main__":
    main(*sys.argv[1:])
