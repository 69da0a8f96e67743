"""What the checks of the sources share: finding the sources, and reading past comments and texts."""

import re
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PRODUCT_ROOMS = ("base", "win", "theme", "frame", "core", "dialogs", "widgets", "resources")
TEST_ROOMS = ("tests", "fuzz")
AID_ROOMS = ("bench", "tools", "cmake")
SUFFIXES = (".cpp", ".h")
# Whatever somebody has to read and keep right; not data, pictures and prose.
CODE_SUFFIXES = (*SUFFIXES, ".rc", ".py", ".sh", ".cmake", "CMakeLists.txt")

# Comments, raw strings, strings and characters, whichever begins first. A quote after a digit is a
# separator of digits, not the start of a character.
COMMENT_OR_LITERAL = re.compile(
    r"""
    //[^\n]*
    | /\*.*?\*/
    | R"(?P<tag>[^()\s\\]*)\(.*?\)(?P=tag)"
    | "(?:\\.|[^"\\\n])*"
    | (?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'
    """,
    re.DOTALL | re.VERBOSE,
)


def find_sources(root, rooms, suffixes=SUFFIXES):
    """Returns the C++ sources of `rooms`, or other files, as sorted paths relative to `root`."""
    return sorted(
        path.relative_to(root)
        for room in rooms
        for path in (root / room).rglob("*")
        if path.name.endswith(suffixes)
    )


def product_sources(root, suffixes=SUFFIXES):
    """Returns the sources of the program, with those that stand outside every room."""
    top = (path.relative_to(root) for path in root.glob("*") if path.name.endswith(suffixes))
    return sorted(top) + find_sources(root, PRODUCT_ROOMS, suffixes)


def read_source(path):
    """Returns the text of a source."""
    return path.read_text(encoding="utf-8")


def without_comments_and_literals(text):
    """Blanks comments and literals out; every character that stays keeps its place."""
    return COMMENT_OR_LITERAL.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


def report(breaches, praise):
    """Prints the breaches found, or that there are none, and returns the exit code."""
    for breach in breaches:
        print(breach)
    print(f"{len(breaches)} breaches" if breaches else praise)
    return 1 if breaches else 0
