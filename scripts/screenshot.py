"""Saves a part of a virtual screen as a picture:  screenshot.py FRAMEBUFFER PICTURE.png X Y WIDTH HEIGHT

FRAMEBUFFER is the file in which Xvfb (-fbdir) keeps its screen, an X window dump.
"""
import struct
import sys
import zlib

HEADER_WORDS = 25


def read_pixels(dump):
    """Width, height, and a function that gives a row's pixels as RGB bytes."""
    header = struct.unpack(">%dI" % HEADER_WORDS, dump[:4 * HEADER_WORDS])
    header_size, width, height, byte_order = header[0], header[4], header[5], header[7]
    bits, line_bytes, colors = header[11], header[12], header[19]
    if bits != 32 or byte_order != 0:
        raise ValueError("a screen of 24 bit colours is expected")
    start = header_size + 12 * colors

    def row(y):
        line = dump[start + y * line_bytes:start + y * line_bytes + 4 * width]
        rgb = bytearray(3 * width)
        rgb[0::3], rgb[1::3], rgb[2::3] = line[2::4], line[1::4], line[0::4]
        return bytes(rgb)

    return width, height, row


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, rows):
    """The PNG file of rows of RGB bytes."""
    header = struct.pack(">IIBBBBB", width, len(rows), 8, 2, 0, 0, 0)
    pixels = b"".join(b"\0" + row for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(pixels, 9))
            + chunk(b"IEND", b""))


def main(framebuffer, picture, *place):
    with open(framebuffer, "rb") as file:
        width, height, row = read_pixels(file.read())
    x, y, wide, high = map(int, place)
    left, right = max(x, 0), min(x + wide, width)
    rows = [row(line)[3 * left:3 * right] for line in range(max(y, 0), min(y + high, height))]
    with open(picture, "wb") as file:
        file.write(png(right - left, rows))


if __name__ == "__main__":
    main(*sys.argv[1:])
