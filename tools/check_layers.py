#!/usr/bin/python3
"""Checks that includes go only in the allowed directions.

usage: check_layers.py

A source is known by its room (its folder) and its kind: a file whose name ends in _form, _dialog or
_win, and everything in win/ and main.cpp, knows the platform; every other file is an engine. Engines
include engines and the standard library; the rooms build on each other in one direction.
"""

import re
import sys
from pathlib import PurePosixPath

from sources import AID_ROOMS, ROOT, TEST_ROOMS, find_sources, product_sources, read_source, report

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
PLATFORM_NAME = re.compile(r"_(form|dialog|win)$")

# Which rooms a room may include besides itself; "widgets" and "dialogs" stand for every folder in
# them.
MAY_INCLUDE = {
    "base": (),
    "resources": (),
    "win": ("base",),
    "theme": ("win", "base", "resources"),
    "frame": ("theme", "win", "base", "resources"),
    "core": ("frame", "theme", "win", "base", "resources"),
    "dialogs": ("frame", "theme", "win", "base", "resources"),
    "widgets": ("frame", "theme", "win", "base", "resources"),
    "catalogue": ("widgets", "dialogs", "core", "frame", "theme", "win", "base"),
    "main": ("catalogue", "core", "win", "base"),
}
ENGINES_STAY_OUT_OF = ("win", "resources")

# Headers of the standard library through which an engine would reach what it is to be given.
NOT_FOR_ENGINES = ("ctime", "filesystem", "fstream", "future", "mutex", "thread")

# What engines may use beside the standard library: headers alone, the same on every platform.
# The instructions of the last are in every processor that the program runs on.
PORTABLE_LIBRARIES = ("nlohmann/json.hpp", "emmintrin.h")

# Tests that run natively too; the others may include anything.
PURE_TESTS = ("tests/engine", "tests/support", "fuzz")


def room_of(path):
    """Returns the room: the first folder, "widgets/NAME", "dialogs/NAME", or "main" and "catalogue" at the top."""
    if len(path.parts) == 1:
        return path.stem.removesuffix("_win")
    depth = 2 if path.parts[0] in ("widgets", "dialogs", "tests") else 1
    return "/".join(path.parts[:depth])


def is_engine(path):
    """Tells whether a source of the product has to do without the platform."""
    return room_of(path) not in ("win", "main") and not PLATFORM_NAME.search(path.stem)


def is_standard(header):
    """Tells whether a header in angle brackets is one of the C++ standard library."""
    return "." not in header and "/" not in header


def system_breach(path, header):
    """Says what is wrong with including the system's `header` from `path`; None when nothing is."""
    if not is_engine(path) or header in PORTABLE_LIBRARIES:
        return None
    if not is_standard(header):
        return f"an engine knows no platform, but includes <{header}>"
    if header in NOT_FOR_ENGINES:
        return f"an engine is given files, clock and threads, but includes <{header}>"
    return None


def own_breach(path, included):
    """Says what is wrong with including our own `included` from `path`; None when nothing is."""
    room, target = room_of(path), room_of(included)
    if room != target and target.split("/")[0] not in MAY_INCLUDE.get(room.split("/")[0], ()):
        return f"{room} may not include {included}"
    if is_engine(path) and (target in ENGINES_STAY_OUT_OF or not is_engine(included)):
        return f"an engine may not include {included}"
    return None


def test_breach(path, included):
    """The same for a test that has to run natively."""
    if room_of(path) not in PURE_TESTS or room_of(included) in PURE_TESTS or is_engine(included):
        return None
    return f"an engine's test may not include {included}"


def breaches_of(root, paths, own_rule, system_rule):
    """Returns one line for each include of the sources that breaks a rule."""
    breaches = []
    for path in paths:
        text = read_source(root / path)
        for match in INCLUDE.finditer(text):
            if match[1] == "<":
                breach = system_rule(path, match[2])
            else:
                breach = own_rule(path, PurePosixPath(match[2]))
            if breach:
                line = text.count("\n", 0, match.start()) + 1
                breaches.append(f"{path}:{line}: {breach}")
    return breaches


def check(root):
    """Returns every breach in the tree below `root`."""
    return breaches_of(root, product_sources(root), own_breach, system_breach) + breaches_of(
        root, find_sources(root, TEST_ROOMS + AID_ROOMS), test_breach, lambda path, header: None
    )


if __name__ == "__main__":
    sys.exit(report(check(ROOT), "Every include goes in an allowed direction"))
