#!/usr/bin/python3
"""Packs the American and the British word list into one file of the program.

usage: build_words.py AMERICAN BRITISH OUT

The lists are UTF-8, a word a line. Beside a word with accents stands the same without them (café and
cafe); of single letters only a, A and I are words. The order is that of a printed dictionary. Each
word of the packed file is one byte (how many bytes it has in common with the word before, at most
63; plus 64 when it is in the American list and 128 when it is in the British one), the rest of the
word in Windows-1252, and a line feed.
"""

import sys
import unicodedata

SINGLE_LETTERS = ("a", "A", "I")
MOST_SHARED = 63
AMERICAN, BRITISH = 64, 128


def plain(word):
    """Returns the word without its accents."""
    parts = unicodedata.normalize("NFD", word)
    return "".join(part for part in parts if not unicodedata.combining(part))


def read_list(path):
    """Returns the set of words of a packaged list, completed."""
    with open(path, encoding="utf-8") as lines:
        words = {line.strip() for line in lines}
    words |= {plain(word) for word in words if plain(word).isascii()}
    return {word for word in words if len(word) > 1 or word in SINGLE_LETTERS}


def shared_length(left, right):
    """Returns how many bytes two words have in common at their beginning."""
    length = 0
    for one, other in zip(left, right):
        if one != other:
            break
        length += 1
    return min(length, MOST_SHARED)


def packed(american, british):
    """Returns the packed form of both lists."""
    out = bytearray()
    before = b""
    for word in sorted(american | british, key=lambda word: (plain(word).lower(), word)):
        encoded = word.encode("cp1252")
        shared = shared_length(before, encoded)
        lists = AMERICAN * (word in american) + BRITISH * (word in british)
        out.append(lists + shared)
        out += encoded[shared:] + b"\n"
        before = encoded
    return bytes(out)


def main(american, british, path):
    """Writes the packed file."""
    with open(path, "wb") as out:
        out.write(packed(read_list(american), read_list(british)))


if __name__ == "__main__":
    main(*sys.argv[1:])
