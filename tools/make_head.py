#!/usr/bin/env python3
"""Writes resources/images/FriendDetail/defaultHead.png: the neutral head of a contact without a picture, 90 by 90."""

import pathlib
import struct
import zlib

SIZE = 90
FINE = 4  # samples per pixel and direction
GROUND = (200, 210, 222)
FIGURE = (250, 251, 253)


def inside_figure(x, y):
    """A round head over shoulders, in units of the picture's width."""
    head = (x - 0.5) ** 2 + (y - 0.38) ** 2 <= 0.17**2
    shoulders = ((x - 0.5) / 0.33) ** 2 + ((y - 0.98) / 0.36) ** 2 <= 1.0
    return head or shoulders


def pixel(column, row):
    hits = 0
    for i in range(FINE):
        for j in range(FINE):
            hits += inside_figure((column + (i + 0.5) / FINE) / SIZE, (row + (j + 0.5) / FINE) / SIZE)
    part = hits / (FINE * FINE)
    return bytes(round(g + (f - g) * part) for g, f in zip(GROUND, FIGURE))


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def main():
    rows = b"".join(b"\0" + b"".join(pixel(c, r) for c in range(SIZE)) for r in range(SIZE))
    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 2, 0, 0, 0)
    picture = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")
    root = pathlib.Path(__file__).resolve().parent.parent
    (root / "resources" / "images" / "FriendDetail" / "defaultHead.png").write_bytes(picture)


if __name__ == "__main__":
    main()
