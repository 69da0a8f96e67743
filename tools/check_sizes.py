#!/usr/bin/python3
"""Checks the limits that keep sources readable.

usage: check_sizes.py

A file has at most 400 lines, a function at most 60, from the line where its declaration begins to
its closing brace. A folder has at most 45 modules, each a header, a source or both of one name. The
product has no function-like macros and leaves out the stream library, whose locale code would be
most of the program file. At most a third of all code is tests: what stands in tests/ and fuzz/, with
what carries it out, of all lines in C++, resource scripts, Python, shell and CMake. Measurements and
tools count as code, but as no tests.
"""

import re
import sys
from collections import Counter
from typing import NamedTuple

from sources import (
    AID_ROOMS,
    CODE_SUFFIXES,
    ROOT,
    TEST_ROOMS,
    find_sources,
    product_sources,
    read_source,
    report,
    without_comments_and_literals,
)

MAX_FILE_LINES = 400
MAX_FUNCTION_LINES = 60
MAX_MODULES = 45

FUNCTION_LIKE_MACRO = re.compile(r"^[ \t]*#[ \t]*define[ \t]+(\w+)\(", re.MULTILINE)
STREAM_INCLUDE = re.compile(r"^[ \t]*#[ \t]*include[ \t]*<(\w*stream|iomanip|locale)>", re.MULTILINE)
PREPROCESSOR_LINE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)

SCOPE = re.compile(r"\b(namespace|class|struct|union|enum|extern)\b[^()]*$")
INITIALISERS = re.compile(r"\)\s*(?:noexcept\s*)?:(?!:)")
AFTER_PARAMETERS = re.compile(
    r"\)(?:\s*(?:const|noexcept|override|final|mutable|&&?))*\s*(?:->[^;{}]*)?$"
)
NAME = re.compile(r"([\w~:]+|operator\s*\S+)\s*\(")


class Function(NamedTuple):
    """A function with a body: its name, its first line and how many lines it has."""

    name: str
    line: int
    length: int


def is_function(header):
    """Tells whether a block after `header`, the text since the last statement, is a body."""
    if AFTER_PARAMETERS.search(header):
        return True
    # After member initialisers with braces of their own: A() : b_{1}, c_{2} {
    return bool(INITIALISERS.search(header)) and header.rstrip().endswith("}")


def is_within_header(header):
    """Tells whether a brace after `header` is part of it: a default argument, a lambda that is an
    argument, or a value among a constructor's initialisers."""
    if header.count("(") > header.count(")"):
        return True
    return bool(INITIALISERS.search(header)) and bool(re.search(r"[\w>]\s*$", header))


def closing_brace(text, start):
    """Returns where the block that opens at `start` closes; the end of a text that is cut off."""
    depth = 0
    for brace in re.compile(r"[{}]").finditer(text, start):
        depth += 1 if brace.group() == "{" else -1
        if depth == 0:
            return brace.start()
    return len(text) - 1


def functions_of(source):
    """Returns the functions that a source defines in namespaces and classes, in order."""
    text = PREPROCESSOR_LINE.sub(
        lambda match: re.sub(r"[^\n]", " ", match.group()), without_comments_and_literals(source)
    )
    functions = []
    statement = 0  # where the text since the last statement, label or block begins
    position = 0
    while match := re.compile(r"[{};]|\b(?:public|protected|private):").search(text, position):
        position = match.end()
        header = text[statement : match.start()]
        if match.group() == "{":
            if SCOPE.search(header):
                statement = position
                continue
            end = closing_brace(text, match.start())
            position = end + 1
            if is_within_header(header):
                continue
            if is_function(header):
                functions.append(described(text, statement, header, end))
        statement = position
    return functions


def described(text, statement, header, end):
    """Names and measures the function whose header begins at `statement`."""
    begin = statement + len(header) - len(header.lstrip())
    first = text.count("\n", 0, begin) + 1
    last = text.count("\n", 0, end) + 1
    name = NAME.search(header)
    return Function(name[1] if name else "lambda", first, last - first + 1)


def size_breaches(path, source):
    """Returns one line for each limit that a source exceeds."""
    lines = source.count("\n")
    breaches = []
    if lines > MAX_FILE_LINES:
        breaches.append(f"{path}: {lines} lines, more than {MAX_FILE_LINES}")
    breaches += [
        f"{path}:{function.line}: {function.name} has {function.length} lines, "
        f"more than {MAX_FUNCTION_LINES}"
        for function in functions_of(source)
        if function.length > MAX_FUNCTION_LINES
    ]
    return breaches


def product_breaches(path, source):
    """Returns one line for each thing that only tests may use."""
    text = without_comments_and_literals(source)
    macros = (f"function-like macro {found[1]}" for found in FUNCTION_LIKE_MACRO.finditer(text))
    streams = (f"includes <{found[1]}>" for found in STREAM_INCLUDE.finditer(text))
    return [f"{path}: {breach}" for breach in (*macros, *streams)]


def folder_breaches(paths):
    """Returns one line for each folder that has more modules than one sees at a glance."""
    modules = Counter(path.parent for path in {path.with_suffix("") for path in paths})
    return [
        f"{folder}: {count} modules, more than {MAX_MODULES}"
        for folder, count in sorted(modules.items())
        if count > MAX_MODULES
    ]


def check(root):
    """Returns every breach of a folder, file or function in the tree below `root`."""
    breaches = folder_breaches(product_sources(root) + find_sources(root, TEST_ROOMS + AID_ROOMS))
    for path in product_sources(root):
        source = read_source(root / path)
        breaches += size_breaches(path, source) + product_breaches(path, source)
    for path in find_sources(root, TEST_ROOMS + AID_ROOMS):
        breaches += size_breaches(path, read_source(root / path))
    return breaches


def line_counts(root):
    """Returns how many lines of tests there are, and how many of all code."""

    def lines(paths):
        return sum(read_source(root / path).count("\n") for path in paths)

    tests = lines(find_sources(root, TEST_ROOMS, CODE_SUFFIXES))
    product = lines(product_sources(root, CODE_SUFFIXES))
    return tests, tests + product + lines(find_sources(root, AID_ROOMS, CODE_SUFFIXES))


def share_breaches(tests, code):
    """Returns one line when too much of the code is tests."""
    return [f"{tests} of {code} lines are tests, more than a third"] if 3 * tests > code else []


def main():
    """Checks the project."""
    tests, code = line_counts(ROOT)
    print(f"{tests} of {code} lines of code are tests: {100 * tests / code:.1f} %")
    breaches = check(ROOT) + share_breaches(tests, code)
    return report(breaches, "Every file and function keeps its limit")


if __name__ == "__main__":
    sys.exit(main())
