#!/usr/bin/python3
"""Builds the pictures that the calendar offers from packaged icons and own drawings.

usage: build_pictures.py ICONS.json TABLE.tsv OUT

ICONS.json is an icon collection (each icon the inside of an SVG drawing), TABLE.tsv names the
pictures in the order of the picker: group, name, layers. OUT holds them in that order: the lengths
of group and name (a byte each), group, name, then for each of SIZES the length of a PNG file (four
bytes, the lowest first) and the file. Needs rsvg-convert. The same input gives the same bytes.
"""

import io
import json
import pathlib
import re
import struct
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from xml.etree import ElementTree

from PIL import Image

SIZES = (48, 96)
BOX = 32  # units of every drawing's sides
OWN_DRAWINGS = pathlib.Path(__file__).parent.parent.parent / "resources" / "pictures"
SVG = "http://www.w3.org/2000/svg"


def own_body(name):
    """Returns what is inside an own drawing."""
    root = ElementTree.parse(OWN_DRAWINGS / f"{name}.svg").getroot()
    if root.get("viewBox") != f"0 0 {BOX} {BOX}":
        raise ValueError(f"{name}: another box than {BOX} units")
    return "".join(ElementTree.tostring(child, encoding="unicode") for child in root)


def packaged_body(icons, name):
    """Returns what is inside a packaged icon, which may be another name of one."""
    alias = icons.get("aliases", {}).get(name)
    if alias and name not in icons["icons"]:
        if set(alias) - {"parent", "hidden"}:
            raise ValueError(f"{name}: an icon that is turned or moved")
        name = alias["parent"]
    icon = icons["icons"][name]
    if icon.get("height", BOX) != BOX or icon.get("width", BOX) != BOX or icon.get("left"):
        raise ValueError(f"{name}: another box than {BOX} units")
    return icon["body"]


def layer(icons, spec, number):
    """Returns one layer as an SVG group; gradients and masks get names of that layer alone."""
    name, _, place = spec.partition("@")
    left, top, size = map(float, place.split(",")) if place else (0, 0, BOX)
    own = name.startswith("own:")
    body = own_body(name.removeprefix("own:")) if own else packaged_body(icons, name)
    body = re.sub(r'(id="|url\(#|href="#)', rf"\g<1>l{number}", body)
    return f'<g transform="translate({left:g} {top:g}) scale({size / BOX:g})">{body}</g>'


def render(drawing, size):
    """Returns the drawing as the bytes of a square PNG."""
    command = ["rsvg-convert", "--width", str(size), "--height", str(size)]
    png = subprocess.run(command, input=drawing, check=True, capture_output=True).stdout
    packed = io.BytesIO()
    Image.open(io.BytesIO(png)).save(packed, "PNG", optimize=True)
    return packed.getvalue()


def picture(icons, row):
    """Returns one row's picture as it stands in the result."""
    group, name, specs = row
    layers = "".join(layer(icons, spec, i) for i, spec in enumerate(specs.split("+")))
    drawing = (
        f'<svg xmlns="{SVG}" xmlns:xlink="http://www.w3.org/1999/xlink" '
        f'width="{BOX}" height="{BOX}" viewBox="0 0 {BOX} {BOX}">{layers}</svg>'
    ).encode()
    record = bytes((len(group), len(name))) + group.encode("ascii") + name.encode("ascii")
    for size in SIZES:
        png = render(drawing, size)
        record += struct.pack("<I", len(png)) + png
    return record


def read_table(path):
    """Returns the table's rows: group, name and layers."""
    with open(path, encoding="utf-8") as table:
        lines = [line.rstrip("\n") for line in table]
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


def main(icons_path, table_path, result_path):
    """Builds the file."""
    with open(icons_path, encoding="utf-8") as collection:
        icons = json.load(collection)
    with ThreadPoolExecutor() as pool:
        records = list(pool.map(lambda row: picture(icons, row), read_table(table_path)))
    with open(result_path, "wb") as result:
        result.write(b"".join(records))


if __name__ == "__main__":
    main(*sys.argv[1:])
