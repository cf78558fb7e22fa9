"""Puts PNG pictures into one icon file of Windows, the smallest first.

    write_icon.py ICON PNG...

Every picture stays a PNG in it, which Windows reads from version 6 on.
"""
import struct
import sys


def picture(png):
    with open(png, "rb") as file:
        data = file.read()
    width, height = struct.unpack_from(">II", data, 16)
    return width, height, data


def main():
    pictures = sorted(picture(png) for png in sys.argv[2:])
    place = 6 + 16 * len(pictures)
    head = struct.pack("<HHH", 0, 1, len(pictures))
    for width, height, data in pictures:
        # 256 does not fit into a byte and is written as 0.
        head += struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(data), place)
        place += len(data)
    with open(sys.argv[1], "wb") as file:
        file.write(head + b"".join(data for _, _, data in pictures))


main()
