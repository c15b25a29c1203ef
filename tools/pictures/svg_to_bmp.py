#!/usr/bin/env python3
"""Renders drawings as the bitmaps that the program shows: svg_to_bmp.py RSVG-CONVERT SOURCE.svg TARGET.BMP

rsvg-convert makes a PNG of the drawing in its own size; its rows are put on white and written as a bitmap of
24 bits a pixel, which every viewer of catalogue pictures reads.
"""

import struct
import subprocess
import sys
import zlib
from pathlib import Path


def chunks(png):
    """The parts of a PNG file: kind and content."""
    assert png[:8] == b"\x89PNG\r\n\x1a\n", "no PNG"
    at = 8
    while at < len(png):
        (length,) = struct.unpack_from(">I", png, at)
        yield png[at + 4:at + 8], png[at + 8:at + 8 + length]
        at += length + 12


def paeth(left, above, corner):
    nearest = left + above - corner
    distances = abs(nearest - left), abs(nearest - above), abs(nearest - corner)
    return (left, above, corner)[distances.index(min(distances))]


def unfiltered(raw, width, height, size):
    """The rows of an image with that many bytes a pixel."""
    stride, before = width * size, bytes(width * size)
    for number in range(height):
        kind, *row = raw[number * (stride + 1):(number + 1) * (stride + 1)]
        for i in range(stride):
            left, corner = (row[i - size], before[i - size]) if i >= size else (0, 0)
            guess = (0, left, before[i], (left + before[i]) // 2, paeth(left, before[i], corner))[kind]
            row[i] = (row[i] + guess) & 0xFF
        before = bytes(row)
        yield before


def pixels(png):
    """Width, and the rows of a PNG as lists of red, green and blue on white."""
    header, data = None, b""
    for kind, content in chunks(png):
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", content)
        elif kind == b"IDAT":
            data += content
    width, height, depth, colour, _, _, interlaced = header
    assert (depth, interlaced) == (8, 0) and colour in (2, 6), f"a PNG of another kind: {header}"
    size = 4 if colour == 6 else 3
    rows = []
    for row in unfiltered(zlib.decompress(data), width, height, size):
        opacity = [row[i + 3] if size == 4 else 255 for i in range(0, len(row), size)]
        rows.append([tuple((row[i * size + c] * a + 255 * (255 - a) + 127) // 255 for c in range(3))
                     for i, a in enumerate(opacity)])
    return width, rows


def bitmap(width, rows):
    """A BMP file: rows from the bottom up, blue first, each filled up to four bytes."""
    padding = bytes(-3 * width % 4)
    body = b"".join(b"".join(bytes(reversed(pixel)) for pixel in row) + padding for row in reversed(rows))
    head = struct.pack("<IiiHHIIiiII", 40, width, len(rows), 1, 24, 0, len(body), 3780, 3780, 0, 0)
    return b"BM" + struct.pack("<IHHI", 14 + len(head) + len(body), 0, 0, 14 + len(head)) + head + body


def main(arguments):
    renderer, source, target = arguments
    png = subprocess.run([renderer, source], check=True, stdout=subprocess.PIPE).stdout
    Path(target).write_bytes(bitmap(*pixels(png)))


if __name__ == "__main__":
    main(sys.argv[1:])
