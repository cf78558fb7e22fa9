"""Writes the macros INSTALL_FILES and REMOVE_FILES for the installer: every file of a folder, by its name.

    file_list.py FOLDER LIST

The uninstaller removes what was installed and nothing else: users keep files of their own in the same folders.
"""
import os
import sys


def windows(path):
    return "$INSTDIR" if path == "." else "$INSTDIR\\" + path.replace("/", "\\")


def main():
    folder, output = os.path.abspath(sys.argv[1]), sys.argv[2]
    places = []
    for place, folders, names in os.walk(folder):
        folders.sort()
        places.append((os.path.relpath(place, folder), sorted(names)))
    with open(output, "w", encoding="utf-8") as file:
        print("!macro INSTALL_FILES", file=file)
        for place, names in places:
            print(f'  SetOutPath "{windows(place)}"', file=file)
            for name in names:
                print(f'  File "{os.path.normpath(os.path.join(folder, place, name))}"', file=file)
        print("!macroend\n!macro REMOVE_FILES", file=file)
        for place, names in reversed(places):
            for name in names:
                print(f'  Delete "{windows(os.path.normpath(os.path.join(place, name)))}"', file=file)
            if place != ".":
                print(f'  RMDir "{windows(place)}"', file=file)
        print("!macroend", file=file)


main()
