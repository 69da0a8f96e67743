#!/usr/bin/python3
"""Builds the symbol font "Icon-works" from packaged icons.

usage: build_iconfont.py ICONS.json TABLE.tsv OUT.ttf

ICONS.json is an icon collection (each icon the inside of an SVG drawing), TABLE.tsv names the icons
to take, one glyph a line: name, code (hexadecimal), ASCII alias (may be empty), icon, use. The same
input gives the same bytes.
"""

import json
import re
import sys
from typing import NamedTuple
from xml.etree import ElementTree

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.areaPen import AreaPen
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.recordingPen import RecordingPen
from fontTools.pens.reverseContourPen import ReverseContourPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib.path import parse_path
from fontTools.ttLib import newTable

FAMILY = "Icon-works"
UNITS_PER_EM = 1920  # icon grids of 20, 24 and 48 units scale by whole numbers
DESCENT = 384  # a fifth of the em, so that a glyph stands beside text without sinking
ASCENT = UNITS_PER_EM - DESCENT
MAX_CURVE_ERROR = 1.0  # font units, from cubic to quadratic curves
FIXED_TIME = 3786912000  # 1 January 2024 in seconds since 1904; a clock would change the bytes
GREYSCALE_WITHOUT_GRID_FITTING = 0x000A
USE_REGULAR_STYLE = 0x40
PRIVATE_USE_AREA = 1 << 28  # bit 60 of the Unicode ranges


class GlyphRow(NamedTuple):
    """One line of the table."""

    name: str
    codes: list
    icon: str


class Drawing(NamedTuple):
    """An icon: path elements on a grid whose y axis runs down."""

    body: str
    width: float
    height: float


def read_table(path):
    """Returns the table's rows; a code that occurs twice is an error."""
    rows, seen = [], set()
    with open(path, encoding="utf-8") as table:
        for line in table:
            if line.startswith("#") or not line.strip():
                continue
            name, code, alias, icon = line.rstrip("\n").split("\t")[:4]
            codes = [int(code, 16)] + ([ord(alias)] if alias else [])
            if seen.intersection(codes):
                raise ValueError(f"{name}: its code is taken")
            seen.update(codes)
            rows.append(GlyphRow(name, codes, icon))
    return rows


def find_icon(collection, name):
    """Returns the drawing called `name`, following aliases."""
    icon = collection["icons"].get(name)
    if icon is None:
        alias = collection["aliases"][name]
        if set(alias) - {"parent", "hidden"}:
            raise ValueError(f"{name}: turned or mirrored aliases are not supported")
        return find_icon(collection, alias["parent"])
    default = collection.get("width", 16), collection.get("height", 16)
    return Drawing(icon["body"], icon.get("width", default[0]), icon.get("height", default[1]))


def drawn_outline(drawing):
    """Returns the drawing's contours, all closed, as a recording.

    Only filled paths are understood; a stroke, a transform or an even-odd fill would be drawn wrong
    and is an error.
    """
    outline = RecordingPen()
    for element in ElementTree.fromstring(f"<g>{drawing.body}</g>").iter():
        unsupported = {"stroke", "transform", "fill-rule"} & set(element.attrib)
        if element.tag not in ("g", "path") or unsupported or element.get("fill") == "none":
            raise ValueError(f"<{element.tag} {element.attrib}> is not supported")
        if element.tag == "path":
            parse_path(with_explicit_moves(element.get("d")), outline)
    # A filled contour closes by itself.
    outline.value = [
        ("closePath", ()) if operation == "endPath" else (operation, points)
        for operation, points in outline.value
    ]
    return outline


def with_explicit_moves(path):
    """Puts a move after each closing "z" that a drawing command follows.

    In SVG such a command starts a new contour where the last one began; the path reader has to be
    told.
    """
    single_closes = re.sub(r"([zZ])(\s*[zZ])+", r"\1", path)
    return re.sub(r"[zZ]\s*(?=[^mMzZ\s])", "zm0 0", single_closes)


def true_type_glyph(drawing):
    """Converts a drawing into a glyph one em high, centred in its advance of one em."""
    outline = drawn_outline(drawing)
    scale = UNITS_PER_EM / drawing.height
    left = (UNITS_PER_EM - drawing.width * scale) / 2
    to_font = (scale, 0, 0, -scale, left, ASCENT)
    area = AreaPen()
    outline.replay(TransformPen(area, to_font))
    glyph_pen = TTGlyphPen(None)
    pen = Cu2QuPen(glyph_pen, max_err=MAX_CURVE_ERROR)
    if area.value > 0:  # outer contours have to run clockwise, which has a negative area
        pen = ReverseContourPen(pen)
    outline.replay(TransformPen(pen, to_font))
    return glyph_pen.glyph()


def build_font(glyphs, code_names):
    """Returns the font of `glyphs` (name -> glyph, in order) with `code_names` (code -> name)."""
    empty = TTGlyphPen(None).glyph()
    glyphs = {".notdef": empty, "space": empty, **glyphs}
    builder = FontBuilder(UNITS_PER_EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap({ord(" "): "space", **code_names})
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics(
        {name: (UNITS_PER_EM, getattr(glyph, "xMin", 0)) for name, glyph in glyphs.items()}
    )
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT)
    builder.setupNameTable(
        {
            "familyName": FAMILY,
            "styleName": "Regular",
            "uniqueFontIdentifier": f"{FAMILY} Regular 1.0",
            "fullName": FAMILY,
            "psName": f"{FAMILY}-Regular",
            "version": "Version 1.000",
            "copyright": "Glyphs from Fluent UI System Icons. "
            "Copyright (c) Microsoft Corporation. MIT licence.",
            "licenseDescription": "MIT",
        }
    )
    builder.setupOS2(
        sTypoAscender=ASCENT,
        sTypoDescender=-DESCENT,
        sTypoLineGap=0,
        usWinAscent=ASCENT,
        usWinDescent=DESCENT,
        xAvgCharWidth=UNITS_PER_EM,
        sxHeight=UNITS_PER_EM // 2,
        sCapHeight=ASCENT,
        usWeightClass=400,
        fsType=0,  # may be embedded and installed
        fsSelection=USE_REGULAR_STYLE,
        achVendID="NONE",
        ulCodePageRange1=1,
        ulUnicodeRange1=1,
        ulUnicodeRange2=PRIVATE_USE_AREA,
    )
    builder.setupPost(isFixedPitch=1)
    font = builder.font
    font["gasp"] = newTable("gasp")
    font["gasp"].version = 1
    font["gasp"].gaspRange = {0xFFFF: GREYSCALE_WITHOUT_GRID_FITTING}
    font["head"].created = font["head"].modified = FIXED_TIME
    font.recalcTimestamp = False
    return font


def main(icons_path, table_path, font_path):
    """Builds the font file."""
    with open(icons_path, encoding="utf-8") as icons:
        collection = json.load(icons)
    rows = read_table(table_path)
    glyphs = {row.name: true_type_glyph(find_icon(collection, row.icon)) for row in rows}
    code_names = {code: row.name for row in rows for code in row.codes}
    build_font(glyphs, code_names).save(font_path)


if __name__ == "__main__":
    main(*sys.argv[1:])
