"""Packs a folder into a zip archive: the same bytes for the same files.

    make_zip.py FOLDER ARCHIVE

SOURCE_DATE_EPOCH is the time that every file gets. Empty folders are packed, too.
"""
import os
import sys
import time
import zipfile


def members(folder):
    for place, folders, names in os.walk(folder):
        folders.sort()
        for name in sorted(names):
            yield os.path.join(place, name)
        if not folders and not names:
            yield place + os.sep


def main():
    folder, archive = os.path.abspath(sys.argv[1]), sys.argv[2]
    moment = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    with zipfile.ZipFile(archive, "w") as packed:
        for path in members(folder):
            entry = zipfile.ZipInfo(os.path.relpath(path, os.path.dirname(folder)), moment)
            entry.create_system = 0
            if path.endswith(os.sep):
                entry.filename += "/"
                entry.external_attr = 0x10
                packed.writestr(entry, b"")
                continue
            with open(path, "rb") as file:
                packed.writestr(entry, file.read(), zipfile.ZIP_DEFLATED, 9)


main()
