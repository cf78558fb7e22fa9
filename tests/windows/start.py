"""How long the packed program takes under Wine until its window is there, beside an empty window that wears the same skin.

    start.py ARCHIVE EMPTY_WINDOW [ROUNDS]

EMPTY_WINDOW is benchmarks/limit_empty_window.exe in the folder of a build with tests. Elapsed time, medians of alternating
starts after one that does not count.
"""
import os
import shutil
import statistics
import subprocess
import sys
import zipfile

from wine import Wine, wait_until, windows_path

HERE = os.path.dirname(os.path.abspath(__file__))
FOLDER = "C:\\Ambertask"


def main():
    archive, empty_window = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 15
    with Wine() as wine:
        with zipfile.ZipFile(archive) as packed:
            packed.extractall(os.path.dirname(wine.path(FOLDER)))
        # Beside the same libraries.
        shutil.copy(empty_window, wine.path(FOLDER))
        starter = os.path.join(wine.folder, "first.exe")
        subprocess.run(["x86_64-w64-mingw32-g++-posix", "-O1", "-static", "-o", starter,
                        os.path.join(HERE, "FirstWindow.cpp")], check=True)
        told = os.path.join(wine.folder, "told.txt")
        wine.show_desktop()
        wine.on_desktop(windows_path(starter), windows_path(told), str(rounds + 1), FOLDER + "\\Ambertask.exe",
                        FOLDER + "\\limit_empty_window.exe " + FOLDER + "\\Skins\\Aqua.skf")

        def lines():
            try:
                with open(told, encoding="ascii") as file:
                    return file.read().splitlines()
            except FileNotFoundError:
                return []
        wait_until(lambda: lines()[-1:] == ["end"], "all are started", 60 + 10 * rounds)
        taken = ([], [])
        for line in lines()[2:-1]:
            program, milliseconds = line.split()
            taken[int(program)].append(float(milliseconds))
    if min(map(min, taken)) < 0:
        sys.exit("a program has shown no window")
    program, empty = map(statistics.median, taken)
    for name, times in zip(("program", "empty window"), taken):
        print(f"{name}: {statistics.median(times):.0f} ms ({min(times):.0f} to {max(times):.0f})")
    print(f"ratio: {program / empty:.2f}")


if __name__ == "__main__":
    main()
