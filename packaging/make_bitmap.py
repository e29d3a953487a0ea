"""Makes a bitmap, which is what the installer shows, from a rendering without interlacing.

usage: make_bitmap.py PICTURE.png BITMAP.bmp
"""
import pathlib
import struct
import sys
import zlib

RGB, RGBA = 2, 6
CHANNELS = {RGB: 3, RGBA: 4}


def chunks(data):
    """(kind, contents) of each chunk of a PNG file."""
    position = 8
    while position < len(data):
        size, kind = struct.unpack_from(">I4s", data, position)
        yield kind, data[position + 8:position + 8 + size]
        position += size + 12


def predict(kind, left, above, corner):
    """What the filter of a row added to a byte."""
    if kind == 4:
        estimate = left + above - corner
        return min((left, above, corner), key=lambda value: abs(estimate - value))
    return (0, left, above, (left + above) // 2)[kind]


def rows(packed, width, channels):
    """The rows of a picture, their filters undone."""
    data, size = zlib.decompress(packed), width * channels
    above = bytes(size)
    for start in range(0, len(data), size + 1):
        row = bytearray(data[start + 1:start + 1 + size])
        for i in range(size):
            left, corner = (row[i - channels], above[i - channels]) if i >= channels else (0, 0)
            row[i] = (row[i] + predict(data[start], left, above[i], corner)) & 0xFF
        yield bytes(row)
        above = row


def make_bitmap(data):
    """The bytes of the bitmap; what is transparent loses its transparency."""
    parts = list(chunks(data))
    header = struct.unpack(">IIBBBBB", dict(parts)[b"IHDR"])
    width, height, depth, colours, _, _, interlacing = header
    if depth != 8 or colours not in CHANNELS or interlacing:
        raise ValueError("not a PNG of 8 bits a colour without palette and interlacing")
    channels = CHANNELS[colours]
    packed = b"".join(contents for kind, contents in parts if kind == b"IDAT")
    padding = bytes(-3 * width % 4)
    lines = []
    for row in rows(packed, width, channels):
        line = bytearray(3 * width)
        for channel in range(3):
            line[2 - channel::3] = row[channel::channels]
        lines.append(bytes(line) + padding)
    pixels = b"".join(reversed(lines))
    file_header = struct.pack("<2sIII", b"BM", 54 + len(pixels), 0, 54)
    return file_header + struct.pack("<IiiHHIIIIII", 40, width, height, 1, 24, 0, len(pixels),
                                     0, 0, 0, 0) + pixels


def main(arguments):
    if len(arguments) != 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    picture, bitmap = map(pathlib.Path, arguments)
    bitmap.write_bytes(make_bitmap(picture.read_bytes()))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
