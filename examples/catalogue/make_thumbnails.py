#!/usr/bin/env python3
"""Write the sample catalogue's thumbnails: three PNG files, and three more on stdout as base64."""

import base64
import math
import pathlib
import struct
import zlib

SIZE = 48


def png(palette, pattern):
    """A SIZE x SIZE indexed PNG whose pixel (x, y) has palette entry pattern(x, y)."""

    def chunk(tag, data):
        checksum = zlib.crc32(tag + data)
        return struct.pack(">I", len(data)) + tag + data + struct.pack(">I", checksum)

    header = struct.pack(">IIBBBBB", SIZE, SIZE, 8, 3, 0, 0, 0)
    rows = b"".join(
        b"\0" + bytes(pattern(x, y) % len(palette) for x in range(SIZE)) for y in range(SIZE)
    )
    colours = b"".join(bytes.fromhex(colour) for colour in palette)
    return (
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", header)
        + chunk(b"PLTE", colours)
        + chunk(b"IDAT", zlib.compress(rows, 9))
        + chunk(b"IEND", b"")
    )


def waves(x, y):
    return int(y + 3 * math.sin(x * math.pi / 12)) // 6


def rings(x, y):
    return int(math.hypot(x - 23.5, y - 23.5)) // 5


def tiles(x, y):
    return x // 12 + y // 12


def stripes(x, y):
    return (x + y) // 8


def diamonds(x, y):
    return (abs(x - 24) + abs(y - 24)) // 8


def bars(x, y):
    return 1 + x // 6 % 2 if y > 46 - (x // 6 * 7 % 5 + 2) * 6 else 0


FILES = {
    "waves.png": png(["12355b", "2a6f97", "61a5c2", "a9d6e5"], waves),
    "rings.png": png(["2b2d42", "8d99ae", "edf2f4", "d90429"], rings),
    "tiles.png": png(["386641", "6a994e", "a7c957", "f2e8cf"], tiles),
}

EMBEDDED = {
    "stripes": png(["3d405b", "e07a5f", "f2cc8f"], stripes),
    "diamonds": png(["5f0f40", "9a031e", "fb8b24"], diamonds),
    "bars": png(["14213d", "fca311", "e5e5e5"], bars),
}


def main():
    folder = pathlib.Path(__file__).resolve().parent / "thumbnails"
    folder.mkdir(exist_ok=True)
    for name, data in FILES.items():
        (folder / name).write_bytes(data)
    for name, data in EMBEDDED.items():
        print(name, base64.b64encode(data).decode("ascii"))


if __name__ == "__main__":
    main()
