"""Turns PNG pictures into their bare pixels: a start would spend more on finding a reader than on reading.

    write_pixels.py FOLDER PNG...

Each picture becomes FOLDER/<name>.pixels: rows of red, green, blue, alpha, one byte each, the colours multiplied with
the alpha. Reads what the renderer writes: eight bits a channel, with alpha, not interlaced.
"""
import os
import struct
import sys
import zlib

CHANNELS = 4


def chunks(data):
    position = 8
    while position < len(data):
        length, kind = struct.unpack_from(">I4s", data, position)
        yield kind, data[position + 8:position + 8 + length]
        position += 12 + length


def paeth(left, above, corner):
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))


def unfiltered(kind, row, before):
    for i, value in enumerate(row):
        left = row[i - CHANNELS] if i >= CHANNELS else 0
        corner = before[i - CHANNELS] if i >= CHANNELS else 0
        above = before[i]
        row[i] = (value + (0, left, above, (left + above) // 2, paeth(left, above, corner))[kind]) & 0xFF
    return row


def multiplied(row):
    for i in range(0, len(row), CHANNELS):
        alpha = row[i + 3]
        for channel in range(i, i + 3):
            product = row[channel] * alpha
            row[channel] = (product + (product >> 8) + 0x80) >> 8
    return row


def pixels(png):
    with open(png, "rb") as file:
        data = file.read()
    header, packed = b"", b""
    for kind, content in chunks(data):
        header = content if kind == b"IHDR" else header
        packed += content if kind == b"IDAT" else b""
    width, height, *rest = struct.unpack(">IIBBBBB", header)
    if rest != [8, 6, 0, 0, 0]:
        sys.exit(f"{png} has another form than the renderer's")
    rows, length = zlib.decompress(packed), width * CHANNELS
    before, found = bytearray(length), bytearray()
    for start in range(0, height * (length + 1), length + 1):
        before = unfiltered(rows[start], bytearray(rows[start + 1:start + 1 + length]), before)
        found += multiplied(bytearray(before))
    return found


def main():
    folder = sys.argv[1]
    for png in sys.argv[2:]:
        name = os.path.splitext(os.path.basename(png))[0]
        with open(os.path.join(folder, name + ".pixels"), "wb") as file:
            file.write(pixels(png))


main()
