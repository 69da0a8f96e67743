#!/usr/bin/python3
"""Compares the spelling check with aspell on one megabyte of running English with planted errors.

usage: spelling.py SPELLING PACKED

SPELLING is the built program bench_spelling, PACKED the packed word lists. The text is made of the
manuals on this machine, always in the same way; every hundredth longer word is damaged by one change.
Printed for both: which share of the planted errors was found, and which of the right words was taken
for wrong. A damaged word that is right by chance (a word of either list) does not count.
"""

import glob
import gzip
import random
import re
import subprocess
import sys

SIZE = 1 << 20
SOURCES = ("/usr/share/doc/**/README*", "/usr/share/doc/**/NEWS*", "/usr/share/common-licenses/*")


def paragraphs():
    """Yields paragraphs of running text, each once."""
    seen = set()
    for pattern in SOURCES:
        for path in sorted(glob.glob(pattern, recursive=True)):
            try:
                with (gzip.open if path.endswith(".gz") else open)(path, "rb") as file:
                    text = file.read().decode("ascii")
            except (OSError, UnicodeDecodeError):
                continue
            for part in re.split(r"\n\s*\n", text):
                part = " ".join(part.split())
                letters = sum(one.isalpha() or one == " " for one in part)
                if 60 < len(part) < 1500 and letters > 0.92 * len(part) and part not in seen:
                    seen.add(part)
                    yield part


def damaged(word, chance):
    """Returns the word after one change: a letter left out, doubled, swapped or another one."""
    at = chance.randrange(1, len(word) - 1)
    return chance.choice((
        word[:at] + word[at + 1 :],
        word[:at] + word[at] + word[at:],
        word[:at] + word[at + 1] + word[at] + word[at + 2 :],
        word[:at] + chance.choice("etaoinshrdlu") + word[at + 1 :],
    ))


def make_text():
    """Returns the text and the list of planted errors."""
    chance = random.Random(12345)
    parts, errors, size = [], [], 0
    for part in paragraphs():
        words = part.split(" ")
        for index, word in enumerate(words):
            if len(word) > 4 and word.isalpha() and word.islower() and chance.random() < 0.01:
                words[index] = damaged(word, chance)
                if words[index] != word:
                    errors.append(words[index])
        parts.append(" ".join(words))
        size += len(parts[-1]) + 1
        if size > SIZE:
            break
    return "\n".join(parts) + "\n", errors


def flagged(command, text):
    """Returns the words that a checker stops at, with how often it does."""
    result = subprocess.run(command, input=text, capture_output=True, text=True, check=True)
    counts = {}
    for word in result.stdout.split("\n"):
        counts[word] = counts.get(word, 0) + 1
    return counts


def main(program, packed):
    """Prints the comparison."""
    text, errors = make_text()
    with open("/usr/share/dict/american-english-large", encoding="utf-8") as words:
        right = {line.strip() for line in words}
    errors = [word for word in errors if word not in right]
    total = len(text.split())
    print(f"{len(text)} bytes, {total} words, {len(errors)} planted errors")
    for name, command in (
        ("own", [program, packed, "us"]),
        ("aspell", ["aspell", "--lang=en_US", "--encoding=utf-8", "list"]),
    ):
        counts = flagged(command, text)
        found = sum(word in counts for word in errors)
        alarms = sum(counts.values()) - sum(counts.get(word, 0) for word in set(errors))
        print(f"{name}: {100 * found / len(errors):.1f} % of the errors found, "
              f"{alarms} other alarms = {100 * alarms / total:.2f} % of the words")


if __name__ == "__main__":
    main(*sys.argv[1:])
