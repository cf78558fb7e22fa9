"""Copies into a folder the libraries that the executables in it need, and theirs.

    bring_along.py FOLDER SEARCHED...

Fails on a library that neither lies in a searched folder nor is one of Windows.
"""
import os
import re
import shutil
import subprocess
import sys

CROSS = "x86_64-w64-mingw32"
# What links a library of Windows is named after it.
LINKED = f"/usr/{CROSS}/lib"


def binaries(folder):
    for place, _, names in os.walk(folder):
        for name in names:
            if name.lower().endswith((".exe", ".dll")):
                yield os.path.join(place, name)


def needed(binary):
    told = subprocess.run([f"{CROSS}-objdump", "-p", binary], check=True, capture_output=True, text=True).stdout
    return re.findall(r"DLL Name: (\S+)", told)


def is_of_windows(library):
    stem = os.path.splitext(library)[0].lower()
    return stem == "msvcrt" or stem.startswith("api-ms-win-") or os.path.exists(os.path.join(LINKED, f"lib{stem}.a"))


def main():
    folder, searched = sys.argv[1], sys.argv[2:]
    found = {os.path.basename(path).lower() for path in binaries(folder)}
    waiting, missing = list(binaries(folder)), set()
    while waiting:
        binary = waiting.pop()
        for library in needed(binary):
            if library.lower() in found:
                continue
            sources = [path for path in (os.path.join(place, library) for place in searched) if os.path.exists(path)]
            if sources:
                found.add(library.lower())
                waiting.append(shutil.copy(sources[0], folder))
            elif not is_of_windows(library):
                missing.add(f"{library}, which {os.path.basename(binary)} needs")
    if missing:
        sys.exit("not found: " + "; ".join(sorted(missing)))


main()
