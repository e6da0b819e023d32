"""make_ico.py NAME ICO: an icon of Windows from share/icons/hicolor/SIZExSIZE/NAME.png, which the program's own
artwork has drawn. Sizes up to 48 pixels are stored as plain pixels, which every part of Windows reads, the rest as PNG.
"""

import struct
import sys
import zlib
from pathlib import Path

SIZES = (16, 24, 32, 48, 64, 128, 256)
LARGEST_PLAIN = 48
THEME = Path(__file__).parents[2] / "share/icons/hicolor"


def chunks(png):
    at = 8
    while at < len(png):
        length, kind = struct.unpack_from(">I4s", png, at)
        yield kind, png[at + 8:at + 8 + length]
        at += 12 + length


def nearest(left, above, corner):
    """The one of the three that lies nearest to their guess, as PNG wants it."""
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))


def rows_of(png):
    """The rows of a PNG as the program writes them: 8 bits of red, green, blue and opacity, from the top."""
    parts = list(chunks(png))
    width, height, depth, colours, _, _, interlaced = struct.unpack(">IIBBBBB", parts[0][1])
    if (depth, colours, interlaced) != (8, 6, 0):
        raise ValueError("no PNG of four bytes for each pixel")
    data = zlib.decompress(b"".join(body for kind, body in parts if kind == b"IDAT"))
    before = bytearray(4 * width)
    for start in range(0, len(data), 4 * width + 1):
        method, row = data[start], bytearray(data[start + 1:start + 1 + 4 * width])
        for k in range(len(row)):
            left = row[k - 4] if k >= 4 else 0
            corner = before[k - 4] if k >= 4 else 0
            above = before[k]
            row[k] = (row[k] + (0, left, above, (left + above) // 2, nearest(left, above, corner))[method]) & 255
        yield bytes(row)
        before = row


def plain(png, size):
    """Rows from the bottom, each pixel as blue, green, red, opacity; then a mask that hides nothing."""
    pixels = b""
    for row in reversed(list(rows_of(png))):
        for k in range(0, len(row), 4):
            pixels += bytes((row[k + 2], row[k + 1], row[k], row[k + 3]))
    mask = bytes((size + 31) // 32 * 4 * size)
    return struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(pixels), 0, 0, 0, 0) + pixels + mask


def icon(name):
    images = []
    for size in SIZES:
        png = (THEME / f"{size}x{size}" / f"{name}.png").read_bytes()
        images.append(plain(png, size) if size <= LARGEST_PLAIN else png)
    head = struct.pack("<HHH", 0, 1, len(images))
    at = len(head) + 16 * len(images)
    for size, image in zip(SIZES, images):
        head += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), at)
        at += len(image)
    return head + b"".join(images)


if __name__ == "__main__":
    Path(sys.argv[2]).write_bytes(icon(sys.argv[1]))
