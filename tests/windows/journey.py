"""A journey through the packed program for Windows, under Wine: from the first start to the uninstaller.

    journey.py ARCHIVE INSTALLER PICTURES

Works the program by keys and looks at what it leaves: data file, registry, files, processes, windows, what was heard. A
picture of each station is left in PICTURES.
"""
import os
import re
import sqlite3
import subprocess
import sys
import tempfile
import wave
import zipfile
from contextlib import closing
from datetime import datetime, timedelta

from wine import DESKTOP, Wine, wait_until, windows_path

HERE = os.path.dirname(os.path.abspath(__file__))
FOLDER = "C:\\Ambertask"
PROGRAM = FOLDER + "\\Ambertask.exe"
INSTALLED = "AppData\\Local\\Programs\\Ambertask"
RUN_KEY = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
UNINSTALL_KEY = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ambertask"
TICK = 10


class Window:
    def __init__(self, line):
        _, x, y, width, height, is_in_front, self.title = (line.rstrip("\n").split(" ", 6) + [""])[:7]
        self.x, self.y, self.width, self.height = int(x), int(y), int(width), int(height)
        self.is_in_front = is_in_front == "1"


class Journey:
    def __init__(self, wine, archive, installer):
        self.wine = wine
        self.archive, self.installer = archive, installer
        self.lister = os.path.join(wine.folder, "list.exe")
        subprocess.run(["x86_64-w64-mingw32-g++-posix", "-O1", "-static", "-o", self.lister,
                        os.path.join(HERE, "ListWindows.cpp")], check=True)

    # What can be seen from outside.

    def windows(self):
        told = os.path.join(self.wine.folder, "windows.txt")
        self.wine.run("explorer", f"/desktop=ambertask,{DESKTOP}", windows_path(self.lister), windows_path(told))

        def lines():
            try:
                with open(told, encoding="utf-8") as file:
                    return [Window(line) for line in file]
            except FileNotFoundError:
                return None
        found = wait_until(lambda: lines() is not None, "the windows are listed", 20) and lines()
        os.remove(told)
        return found

    def window(self, title, seconds=40):
        """The visible window whose title matches."""
        return wait_until(lambda: next((w for w in self.windows() if re.search(title, w.title)), None),
                          f"a window {title}", seconds)

    def no_window(self, title, seconds=20):
        wait_until(lambda: not any(re.search(title, w.title) for w in self.windows()), f"no window {title}", seconds)

    def query(self, statement, values=(), path=FOLDER + "\\data.dat"):
        with closing(sqlite3.connect(self.wine.path(path), timeout=10)) as connection:
            connection.create_collation("NOCASE", lambda left, right: (left.lower() > right.lower())
                                        - (left.lower() < right.lower()))
            with connection:
                return connection.execute(statement, values).fetchall()

    def task(self, name, columns):
        rows = self.query(f"select {columns} from tasks where task_name=?", (name,))
        return rows[0] if rows else None

    def runs(self):
        return self.wine.processes("Ambertask.exe")

    def loudest(self):
        """The largest sample that was heard."""
        try:
            with wave.open(self.wine.sound) as sound:
                data = sound.readframes(sound.getnframes())
        except (FileNotFoundError, EOFError, wave.Error):
            with open(self.wine.sound, "rb") as file:
                data = file.read()[44:]
        return max((abs(int.from_bytes(data[i:i + 2], "little", signed=True)) for i in range(0, len(data) - 1, 2)),
                   default=0)

    def go_to(self, page):
        self.wine.keys(f"alt+{page}", pause=1)

    # The stations.

    def first_start(self):
        with zipfile.ZipFile(self.archive) as packed:
            packed.extractall(os.path.dirname(self.wine.path(FOLDER)))
        assert not os.path.exists(self.wine.path(FOLDER + "\\data.dat"))
        self.wine.start_desktop(PROGRAM)
        self.window("^Ambertask", 90)
        assert os.path.exists(self.wine.path(FOLDER + "\\data.dat")), "the first start makes the data file"
        assert not os.path.exists(self.wine.path(FOLDER + "\\data.new"))

    def run_key(self):
        entry = self.wine.registry("HKLM\\" + RUN_KEY, "Ambertask")
        assert entry == PROGRAM, f"the Run key holds {entry}"

    def adding(self):
        self.wine.keys("ctrl+n", pause=1)
        self.window("^(New Task|Add|Task)")
        self.wine.type("Call Anna")
        self.wine.picture("task-dialog")
        self.wine.keys("Return")
        wait_until(lambda: self.task("Call Anna", "task_id"), "the task is in the data file")

    def reminding(self):
        started = self.wine.path("C:\\started.txt")
        with open(self.wine.path("C:\\start me.bat"), "w", encoding="ascii") as file:
            file.write("@echo started > C:\\started.txt\r\n")
        moment = (datetime.now() - timedelta(minutes=1)).strftime("%Y-%m-%d %H:%M:00")
        self.query("update tasks set reminder_on=1, reminder_date_time=?, reminder_sound=?, reminder_file=?, played=0, "
                   "dismissed=0", (moment, FOLDER + "\\sounds\\bell.wav", "C:\\start me.bat"))
        self.window("[Rr]eminder", 3 * TICK)
        self.wine.picture("alert")
        wait_until(lambda: os.path.exists(started), "the file is started", 20)
        wait_until(lambda: self.loudest() > 1000, "the sound is heard", 20)

    def dismissing(self):
        alert = self.window("[Rr]eminder")
        self.wine.click(alert.x + alert.width // 2, alert.y + 12)
        self.wine.keys("ctrl+m", pause=1)
        wait_until(lambda: self.task("Call Anna", "dismissed") == (1,), "the reminder is dismissed")
        self.no_window("[Rr]eminder")


def main():
    archive, installer, pictures = sys.argv[1:]
    stations = [Journey.first_start, Journey.run_key, Journey.adding, Journey.reminding, Journey.dismissing]
    with Wine(pictures) as wine:
        journey = Journey(wine, archive, installer)
        for number, station in enumerate(stations, 1):
            name = station.__name__.replace("_", " ")
            try:
                station(journey)
            except (AssertionError, OSError, sqlite3.Error, subprocess.SubprocessError) as fault:
                wine.picture(f"{number:02} {name} failed")
                sys.exit(f"{name}: {fault}")
            wine.picture(f"{number:02} {name}")
            print(f"{name}: as expected", flush=True)


main()
