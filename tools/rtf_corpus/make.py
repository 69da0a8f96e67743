#!/usr/bin/python3
"""Makes tests/corpus/rtf: the documents of sources.py as other makers' programs write them.

usage: make.py [MAKER...]        makes the files of these makers, or of all
       make.py --check REWRITER  what our writer makes of each file, as other programs read it

It needs Debian's packages libreoffice-writer, abiword, pandoc, python3-pygments, unrtf and
python3-pil, and for the maker "wordpad" a session (tools/with_session.sh). What a file must be
read as stands in expected.txt beside the files; it comes from the sources, never from a reader of
RTF. REWRITER is the program rtf_rewrite of a native build.
"""

import shutil
import sys
import tempfile
from pathlib import Path

import check
import expected
import writers
from programs import office, run
from sources import CODE, SOURCES

ROOT = Path(__file__).resolve().parents[2]
CORPUS = ROOT / "tests" / "corpus" / "rtf"
PICTURES = ("dot.png", "view.jpg")


def draw_pictures(folder):
    from PIL import Image

    dot = Image.new("RGB", (12, 12))
    for x in range(12):
        for y in range(12):
            inside = (x - 6) ** 2 + (y - 6) ** 2 < 25
            dot.putpixel((x, y), (x * 20, y * 20, 200 if inside else 30))
    dot.save(folder / "dot.png", optimize=True)
    view = Image.new("RGB", (16, 10))
    for x in range(16):
        for y in range(10):
            view.putpixel((x, y), (x * 15, 120, y * 25))
    view.save(folder / "view.jpg", quality=80)


def make_libreoffice(work):
    files = []
    for name, blocks in SOURCES.items():
        files.append(work / f"{name}.fodt")
        files[-1].write_text(writers.Odf(CORPUS).write(blocks))
    office("rtf", work, files)
    return {name: (work / "out" / f"{name}.rtf").read_bytes() for name in SOURCES}


def make_abiword(work):
    made = {}
    for name, blocks in SOURCES.items():
        if name == "emoji":
            continue  # it writes them, but in other places
        source = work / f"{name}.abw"
        source.write_text(writers.Abi(CORPUS).write(blocks))
        run("abiword", "--to=rtf", "-o", work / f"{name}.rtf", source)
        made[name] = (work / f"{name}.rtf").read_bytes()
    return made


def make_pandoc(work):
    for name in PICTURES:
        shutil.copy(CORPUS / name, work)
    page = {name: writers.html(blocks).encode() for name, blocks in SOURCES.items()}
    return {name: run("pandoc", "-s", "-f", "html", "-t", "rtf", input=text, cwd=work) for name, text in page.items()}


def make_pygments(work):
    return {"code": run("pygmentize", "-l", "python", "-f", "rtf", input=CODE.encode())}


def make_wordpad(work):
    import wordpad

    return wordpad.make(work, CORPUS)


MAKERS = {
    "libreoffice": make_libreoffice,
    "abiword": make_abiword,
    "pandoc": make_pandoc,
    "pygments": make_pygments,
    "wordpad": make_wordpad,
}


def make(makers):
    CORPUS.mkdir(parents=True, exist_ok=True)
    if not all((CORPUS / name).exists() for name in PICTURES):
        draw_pictures(CORPUS)
    for maker in makers:
        with tempfile.TemporaryDirectory() as work:
            made = MAKERS[maker](Path(work))
        for old in CORPUS.glob(f"*.{maker}.rtf"):
            old.unlink()
        for name, rtf in made.items():
            (CORPUS / f"{name}.{maker}.rtf").write_bytes(rtf)
        print(f"{maker}: {len(made)} files")
    expected.write(CORPUS)


if __name__ == "__main__":
    if sys.argv[1:2] == ["--check"]:
        sys.exit(1 if check.check(CORPUS, sys.argv[2]) else 0)
    make(sys.argv[1:] or MAKERS)
