#!/usr/bin/python3
"""Puts the licences of what the program contains into one text that it can show.

usage: build_notices.py THIRD-PARTY.md WORD-LISTS JSON-READER COMPILER RUNTIME OUT.txt

Before each notice stand a form feed and a line with its title. The first ones are the sections of
THIRD-PARTY.md without its marks; the others are the packages' own notices, whole.
"""

import re
import sys

TITLES = ("Word lists, whole", "JSON reader, whole", "Compiler's library", "Windows headers")


def without_marks(text):
    """Returns Markdown as it is read: paragraphs in one line each, links by their addresses."""
    text = re.sub(r"^> ?", "", text, flags=re.MULTILINE)
    text = re.sub(r"\[([^]]*)\]\(([^)]*)\)", r"\1 (\2)", text)
    text = re.sub(r"<(https?://[^>]*)>", r"\1", text).replace("`", "")
    text = re.sub(r"\n(?=- )", "\n\n", text.strip())  # each item of a list is a paragraph
    paragraphs = re.split(r"\n\s*\n", text)
    return "\n\n".join(" ".join(paragraph.split()) for paragraph in paragraphs)


def sections(page):
    """Yields title and text of each section; what stands before the first is the overview."""
    parts = re.split(r"^#+ (.*)\n", page, flags=re.MULTILINE)[1:]
    for title, text in zip(parts[::2], parts[1::2]):
        yield title, without_marks(text)


def main(page_path, *paths):
    """Writes the notices."""
    *notice_paths, out_path = paths
    with open(page_path, encoding="utf-8") as page:
        notices = list(sections(page.read()))
    notices[0] = ("Overview", notices[0][1])
    for title, path in zip(TITLES, notice_paths, strict=True):
        with open(path, encoding="utf-8") as notice:
            notices.append((title, notice.read().strip()))
    with open(out_path, "w", encoding="utf-8", newline="\n") as out:
        for title, text in notices:
            out.write(f"\f{title}\n{text}\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
