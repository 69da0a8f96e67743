"""What our writer makes of the corpus, as programs read it that know nothing of it."""

import html
import re
import tempfile
from dataclasses import dataclass
from html.parser import HTMLParser
from pathlib import Path

import expected
from programs import office, run

FORMATS = {"b": "b", "strong": "b", "i": "i", "em": "i", "u": "u", "s": "s", "strike": "s", "sup": "^", "sub": "_"}
ALIGNMENTS = {"center", "right", "justify"}
BLACK = "#000000"
# AbiWord writes the items of lists where LibreOffice looks for their numbers only.
LOST_BY_LIBREOFFICE = {"bullets.abiword.rtf", "numbers.abiword.rtf", "mixed.abiword.rtf"}
HEADINGS = {"h1", "h2", "h3"}


@dataclass
class Letter:
    letter: str
    formats: set
    size: str  # points; in a heading empty, because it may come from the heading's style


class Letters(HTMLParser):
    """The letters of a page, each with the formats that it stands in."""

    def __init__(self):
        super().__init__()
        self.open = []
        self.letters = []

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if tag == "img":
            self.letters.append(Letter("picture", set(), ""))
        if tag in ("img", "br", "meta", "hr", "col"):
            return
        formats = [FORMATS[tag]] if tag in FORMATS else []
        if tag in HEADINGS:
            formats.append("b")
        if given.get("color", BLACK) != BLACK:
            formats.append(given["color"])
        if given.get("align") in ALIGNMENTS:
            formats.append(given["align"])
        size = re.findall(r"font-size: *([0-9.]+)pt", given.get("style") or "")
        self.open.append((tag, formats, size))

    def handle_endtag(self, tag):
        while self.open and self.open.pop()[0] != tag:
            pass

    def handle_data(self, data):
        tags = {tag for tag, _, _ in self.open}
        if {"head", "style"} & tags:
            return
        formats = {name for _, names, _ in self.open for name in names}
        sizes = ["12"] + [size for _, _, given in self.open for size in given]
        size = "" if HEADINGS & tags else sizes[-1]
        self.letters += (Letter(unit, formats, size) for word in words(data) for unit in word)


def words(text):
    return text.replace("\ufffc", " ").replace("\u00a0", " ").split()


def letters(page):
    reader = Letters()
    reader.feed(page)
    return reader.letters


def same(before, after):
    # LibreOffice takes another size for letters of the east where a file names none.
    sized = before.size and before.letter < "\u2e80"
    return before.letter == after.letter and before.formats == after.formats and (not sized or before.size == after.size)


def in_order(wanted, got):
    rest = iter(got)
    return all(word in rest for word in wanted)


def differences(name, work, wanted):
    """What is wrong with the file of that name in work/out."""
    out = work / "out"
    stem = Path(name).stem
    read = words((out / f"{stem}.txt").read_text("utf-8-sig"))
    if not in_order(wanted, read):
        yield "LibreOffice reads other words"
    page = run("unrtf", "--html", "--quiet", "--nopict", work / name).decode("utf-8", "replace")
    plain = html.unescape(re.sub(r"<[^>]*>", "", re.sub(r"<br>|</p>|</td>", " ", page)))
    # It knows nothing of surrogates.
    if not in_order((unit for unit in "".join(wanted) if unit < "\U00010000"), plain):
        yield "unrtf reads other letters"
    before = letters((out / f"{stem}.before.html").read_text("utf-8"))
    after = letters((out / f"{stem}.html").read_text("utf-8"))
    if name in LOST_BY_LIBREOFFICE:
        return
    for old, new in zip(before, after):
        if not same(old, new):
            yield f"LibreOffice reads {old} as {new}"
            break
    if len(before) != len(after):
        yield f"LibreOffice reads {len(before)} letters as {len(after)}"


def check(corpus, rewriter):
    lines = expected.read(corpus)
    wrong = 0
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        files = sorted(corpus.glob("*.rtf"))
        for file in files:
            (work / file.name).write_bytes(run(rewriter, file))
        office("html", work, files)
        for page in list((work / "out").glob("*.html")):
            page.rename(page.with_suffix(".before.html"))
        written = [work / file.name for file in files]
        office("html", work, written)
        office("txt:Text (encoded):UTF8", work, written)
        for file in files:
            for difference in differences(file.name, work, words(" ".join(lines[file.name]))):
                wrong += 1
                print(f"{file.name}: {difference}")
    print(f"{len(files)} files, {wrong} differences")
    return wrong
