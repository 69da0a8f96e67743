#!/usr/bin/python3
"""smooth_fonts.py FROM TO copies the fonts of one folder into another, for a desktop to test on.

The stand-ins for the platform's interface font hold bitmaps for small sizes and ask not to be smoothed
there; on a user's machine its letters are smooth at every size. So their copies go without both. The
outlines of the bold one are those of the other, set wider: they are made as heavy as they are wide.
The symbols' stand-in shows another sign in place of bullets. Fonts that are fine as they are become links.
"""
import pathlib
import sys

from fontTools.ttLib import TTFont, newTable
from fontTools.ttLib.tables._g_l_y_f import GlyphCoordinates

ROUGH = {"tahoma.ttf": 0, "tahomabd.ttf": 140}  # and by how much, in font units, they are too thin
BITMAPS = ("EBDT", "EBLC", "BDF ")
FIT_AND_SMOOTH_ALWAYS = {0xFFFF: 0x000F}


def embolden(font, by):
    """Draws every outline a second time, farther to the right."""
    for glyph in (font["glyf"][name] for name in font.getGlyphOrder()):
        if glyph.numberOfContours <= 0:  # empty, or made of others
            continue
        points = glyph.coordinates
        ends = glyph.endPtsOfContours
        glyph.endPtsOfContours = ends + [end + len(points) for end in ends]
        glyph.flags = glyph.flags + glyph.flags
        glyph.coordinates = GlyphCoordinates([*points, *((x + by, y) for x, y in points)])
        glyph.numberOfContours *= 2


def smooth(source, target, too_thin_by):
    font = TTFont(source)
    if too_thin_by:
        embolden(font, too_thin_by)
    for table in BITMAPS:
        if table in font:
            del font[table]
    font["gasp"] = newTable("gasp")
    font["gasp"].version = 1
    font["gasp"].gaspRange = FIT_AND_SMOOTH_ALWAYS
    font.save(target)


def mend_bullet(source, target):
    font = TTFont(source)
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap[0xB7] = "bullet"
    font.save(target)


def main():
    folder = pathlib.Path(sys.argv[2])
    for source in pathlib.Path(sys.argv[1]).iterdir():
        if source.name in ROUGH:
            smooth(source, folder / source.name, ROUGH[source.name])
        elif source.name == "symbol.ttf":
            mend_bullet(source, folder / source.name)
        else:
            (folder / source.name).symlink_to(source)


main()
