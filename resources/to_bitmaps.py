#!/usr/bin/env python3
"""Turns one rendered PNG into the bitmaps that are checked in.

Usage: to_bitmaps.py KIND WIDTH RENDERED.png TARGET
Writes TARGET.png and, unless KIND is png-only, TARGET.bmp with 24 bits per pixel.

pixel-art  every pixel has a colour of the palette or is transparent; the BMP is magenta there
picture    edges may be smooth; the BMP stands on white
png-only   no BMP
"""

import pathlib
import re
import sys

from PIL import Image

MASK = (255, 0, 255)
WHITE = (255, 255, 255)
PALETTE_ROW = re.compile(r"^\| #([0-9A-F]{6}) \|", re.MULTILINE)


def palette():
    """The colours of the table in README.md."""
    readme = pathlib.Path(__file__).with_name("README.md").read_text(encoding="utf-8")
    return {tuple(bytes.fromhex(colour)) for colour in PALETTE_ROW.findall(readme)}


def check_pixel_art(picture, name):
    """Ends the program at the first pixel that a mask or the palette could not give."""
    allowed = palette()
    for x in range(picture.width):
        for y in range(picture.height):
            *colour, opacity = picture.getpixel((x, y))
            if opacity not in (0, 255):
                sys.exit(f"{name}: the pixel {x}, {y} is half transparent")
            if opacity == 255 and tuple(colour) not in allowed:
                sys.exit(f"{name}: the pixel {x}, {y} has a colour outside the palette: {colour}")


def save_bmp(picture, background, target):
    flat = Image.new("RGB", picture.size, background)
    flat.paste(picture, mask=picture.getchannel("A"))
    flat.save(f"{target}.bmp")


def main(kind, width, source, target):
    picture = Image.open(source).convert("RGBA")
    if picture.width != int(width):
        sys.exit(f"{target}: {picture.width} pixels wide instead of {width}")
    if kind == "pixel-art":
        check_pixel_art(picture, target)
    picture.save(f"{target}.png", optimize=True)
    if kind != "png-only":
        save_bmp(picture, MASK if kind == "pixel-art" else WHITE, target)


if __name__ == "__main__":
    main(*sys.argv[1:])
