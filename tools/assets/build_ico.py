#!/usr/bin/python3
"""Builds the program's icon file from two drawings.

usage: build_ico.py SMALL.svg LARGE.svg OUT.ico

SMALL is drawn for a grid of 16 pixels and serves up to 24, LARGE serves the other sizes. Sizes up
to 64 are 32-bit bitmaps, 256 is a PNG picture. Needs rsvg-convert. The same input gives the same
bytes.
"""

import io
import struct
import subprocess
import sys

from PIL import Image

SIZES = (16, 20, 24, 32, 40, 48, 64, 256)
LARGEST_OF_SMALL_DRAWING = 24
PNG_SIZE = 256
OPAQUE_FROM = 128  # alpha below is transparent in the one-bit mask
BITS_PER_PIXEL = 32
HEADER_SIZE = 40  # BITMAPINFOHEADER


def render(drawing, size):
    """Returns the drawing as the bytes of a square PNG."""
    command = ["rsvg-convert", "--width", str(size), "--height", str(size), drawing]
    return subprocess.run(command, check=True, capture_output=True).stdout


def mask_row(alphas):
    """Packs one row of the one-bit mask, 1 where transparent, padded to whole 32-bit words."""
    padded = len(alphas) + -len(alphas) % 32
    bits = "".join("0" if alpha >= OPAQUE_FROM else "1" for alpha in alphas).ljust(padded, "0")
    return int(bits, 2).to_bytes(padded // 8, "big")


def bitmap(png):
    """Converts a PNG into the bitmap form of an icon: header, pixels and mask, bottom row first."""
    image = Image.open(io.BytesIO(png)).convert("RGBA")
    flipped = image.transpose(Image.Transpose.FLIP_TOP_BOTTOM)
    size = image.width
    pixels = flipped.tobytes("raw", "BGRA")
    alpha = flipped.getchannel("A").tobytes()
    mask = b"".join(mask_row(alpha[start : start + size]) for start in range(0, len(alpha), size))
    header = struct.pack(
        "<IiiHHIIiiII",
        HEADER_SIZE,
        size,
        2 * size,  # the height counts the mask too
        1,
        BITS_PER_PIXEL,
        0,
        len(pixels) + len(mask),
        0,
        0,
        0,
        0,
    )
    return header + pixels + mask


def icon_file(images):
    """Joins `images` (size, bytes) with the directory that goes before them."""
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = len(directory) + 16 * len(images)
    for size, data in images:
        side = size % 256  # 256 is written as 0
        directory += struct.pack(
            "<BBBBHHII", side, side, 0, 0, 1, BITS_PER_PIXEL, len(data), offset
        )
        offset += len(data)
    return directory + b"".join(data for _, data in images)


def main(small, large, icon_path):
    """Builds the icon file."""
    images = []
    for size in SIZES:
        png = render(small if size <= LARGEST_OF_SMALL_DRAWING else large, size)
        images.append((size, png if size == PNG_SIZE else bitmap(png)))
    with open(icon_path, "wb") as icon:
        icon.write(icon_file(images))


if __name__ == "__main__":
    main(*sys.argv[1:])
