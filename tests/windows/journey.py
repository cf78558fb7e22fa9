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
import wave
import zipfile
from contextlib import closing
from datetime import datetime, timedelta, timezone

from wine import DESKTOP, Wine, wait_until, windows_path

HERE = os.path.dirname(os.path.abspath(__file__))
FOLDER = "C:\\Ambertask"
PROGRAM = FOLDER + "\\Ambertask.exe"
DATA = FOLDER + "\\data.dat"
BACKUP = "C:\\backup.abk"
MAIN, ALERT, HELP = "^Ambertask$", "Reminder", "Help"
INSTALLED = "AppData\\Local\\Programs\\Ambertask"
RUN_KEY = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
UNINSTALL_KEY = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ambertask"


class Window:
    def __init__(self, line):
        x, y, width, height, is_in_front, self.title = line.split(" ", 5)
        self.x, self.y, self.width, self.height = int(x), int(y), int(width), int(height)
        self.is_in_front = is_in_front == "1"


class Journey:
    def __init__(self, wine, archive, installer):
        self.wine = wine
        self.archive, self.installer = archive, installer
        self.installed = None
        self.looker = os.path.join(wine.folder, "look.exe")
        subprocess.run(["x86_64-w64-mingw32-g++-posix", "-O1", "-static", "-o", self.looker,
                        os.path.join(HERE, "LookAround.cpp")], check=True)

    # What can be seen from outside.

    def look_around(self, kind):
        """The lines of LookAround.cpp about windows, processes or the clipboard."""
        told = os.path.join(self.wine.folder, "told.txt")
        self.wine.run("explorer", f"/desktop=ambertask,{DESKTOP}", windows_path(self.looker), windows_path(told))

        def lines():
            try:
                with open(told, encoding="utf-8") as file:
                    return file.read().splitlines()
            except FileNotFoundError:
                return []
        wait_until(lambda: lines()[-1:] == ["end"], "the desktop is looked at")
        found = lines()
        os.remove(told)
        return [line.removeprefix(kind + " ") for line in found if line.startswith(kind + " ")]

    def windows(self):
        return [Window(line) for line in self.look_around("window")]

    def runs(self):
        """How many copies run."""
        return self.look_around("process").count("Ambertask.exe")

    def window(self, title, seconds=60):
        """The visible window whose title matches."""
        return wait_until(lambda: next((w for w in self.windows() if re.search(title, w.title)), None),
                          f"a window {title}", seconds)

    def no_window(self, title, seconds=60):
        wait_until(lambda: not any(re.search(title, w.title) for w in self.windows()), f"no window {title}", seconds)

    def query(self, statement, values=(), path=DATA):
        with closing(sqlite3.connect(self.wine.path(path), timeout=10)) as connection:
            connection.create_collation("NOCASE", lambda left, right: (left.lower() > right.lower())
                                        - (left.lower() < right.lower()))
            with connection:
                return connection.execute(statement, values).fetchall()

    def task(self, name, columns):
        rows = self.query(f"select {columns} from tasks where task_name=?", (name,))
        return rows[0] if rows else None

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

    def bring_in_front(self, title):
        """Gives the window of that title the keyboard."""
        def is_in_front():
            window = self.window(title)
            if not window.is_in_front:
                self.wine.click(window.x + window.width // 2, window.y + 12)
            return window.is_in_front
        wait_until(is_in_front, f"{title} has the keyboard")

    def go_to(self, page):
        self.bring_in_front(MAIN)
        self.wine.keys(f"alt+{page}", pause=1)

    def choose_file(self, path):
        """Answers a file dialog of the system."""
        wait_until(lambda: len(self.windows()) > 1, "a file dialog")
        self.wine.keys("alt+n")
        self.wine.keys("ctrl+a", "BackSpace")
        self.wine.type(path)
        self.wine.keys("Return", pause=1)

    def start(self, program):
        self.wine.on_desktop(program)
        self.window(MAIN, 90)

    def click_tray_icon(self, **click):
        """It is the last one in the bar at the foot of the desktop."""
        height = int(DESKTOP.rpartition("x")[2])
        bar = next(w for w in self.windows() if not w.title and w.y + w.height == height)
        self.wine.click(bar.x + bar.width - 11, bar.y + bar.height // 2, **click)

    def ask_for_help(self, key, topic, *keys_there):
        """The topic, or its entry in the contents, is read back by the clipboard, and the help is closed."""
        self.wine.keys(key)
        self.bring_in_front(HELP)
        self.wine.keys(*keys_there)

        def is_shown():
            self.wine.keys("ctrl+a", "ctrl+c")
            return self.look_around("clipboard") == [topic]
        wait_until(is_shown, f"the help shows {topic}")
        self.wine.picture(f"help - {topic}")
        self.wine.keys("Escape")
        self.no_window(HELP)

    # The stations.

    def first_start(self):
        with zipfile.ZipFile(self.archive) as packed:
            packed.extractall(os.path.dirname(self.wine.path(FOLDER)))
        assert not os.path.exists(self.wine.path(DATA))
        self.start(PROGRAM)
        assert os.path.exists(self.wine.path(DATA)), "the first start makes the data file"
        assert not os.path.exists(self.wine.path(FOLDER + "\\data.new"))

    def run_key(self):
        entry = self.wine.registry("HKLM\\" + RUN_KEY, "Ambertask")
        assert entry == PROGRAM, f"the Run key holds {entry}"

    def adding(self):
        self.bring_in_front(MAIN)
        self.wine.keys("ctrl+n", pause=1)
        self.bring_in_front("^Task Details$")
        self.wine.type("Call Anna")
        self.wine.keys("Tab")
        self.wine.type("Work")
        self.wine.picture("task dialog")
        self.wine.keys("Return")
        wait_until(lambda: self.task("Call Anna", "task_id"), "the task is in the data file")

    def reminding(self):
        started = self.wine.path("C:\\started.txt")
        with open(self.wine.path("C:\\start me.bat"), "w", encoding="ascii") as file:
            file.write("@echo started > C:\\started.txt\r\n")
        moment = (datetime.now(timezone.utc) - timedelta(minutes=1)).strftime("%Y-%m-%d %H:%M:00")
        self.query("update tasks set reminder_on=1, reminder_date_time=?, reminder_sound=?, reminder_file=?, played=0, "
                   "dismissed=0", (moment, FOLDER + "\\sounds\\bell.wav", "C:\\start me.bat"))
        self.window(ALERT, 60)
        wait_until(lambda: os.path.exists(started), "the file is started")
        wait_until(lambda: self.loudest() > 1000, "the sound is heard")

    def help_of_the_alert(self):
        self.bring_in_front(ALERT)
        self.ask_for_help("F1", "The alert window")

    def dismissing(self):
        self.bring_in_front(ALERT)
        self.wine.keys("ctrl+a", "ctrl+m", pause=1)
        wait_until(lambda: self.task("Call Anna", "dismissed") == (1,), "the reminder is dismissed")
        self.no_window(ALERT)

    def backup(self):
        self.go_to(4)
        self.wine.keys("alt+b", pause=1)
        self.choose_file(BACKUP)
        wait_until(lambda: os.path.exists(self.wine.path(BACKUP)), "the backup is written")
        assert self.query("select task_name from tasks", path=BACKUP) == [("Call Anna",)]

    def restoring(self):
        self.query("update tasks set task_name='Another name'")
        self.go_to(4)
        self.wine.keys("alt+r", pause=1)
        self.choose_file(BACKUP)
        wait_until(lambda: self.task("Call Anna", "task_id"), "the backup is restored")

    def another_skin(self):
        self.go_to(3)
        self.wine.keys("alt+k")
        self.wine.type("Mid")
        self.wine.keys("Return", pause=1)
        self.wine.keys("alt+s", pause=1)
        wait_until(lambda: self.query("select skin from settings") == [("Midnight",)], "the skin is kept")

    def report(self):
        self.go_to(1)
        self.wine.keys("ctrl+p", pause=2)
        self.bring_in_front("^Tasks Report$")
        self.wine.picture("report")
        self.wine.keys("alt+e", pause=1)
        self.choose_file("C:\\report.pdf")
        pdf = self.wine.path("C:\\report.pdf")
        wait_until(lambda: os.path.exists(pdf), "the report is written")
        text = subprocess.run(["pdftotext", pdf, "-"], check=True, capture_output=True, text=True).stdout
        assert "Call Anna" in text, text
        self.bring_in_front("^Tasks Report$")
        self.wine.keys("Escape")
        self.no_window("^Tasks Report$")

    def help(self):
        for number, page in enumerate(("Tasks", "Categories", "Settings", "Maintenance"), 1):
            self.go_to(number)
            self.ask_for_help("alt+h", f"The page {page}")
        # The contents have the keyboard; they are where they were left.
        self.bring_in_front(MAIN)
        self.ask_for_help("F1", "Welcome to Ambertask", "Home")

    def closing_to_the_tray(self):
        self.bring_in_front(MAIN)
        self.wine.keys("alt+F4", pause=1)
        self.no_window(MAIN)
        assert self.runs() == 1, "the program goes on"

    def second_copy(self):
        self.wine.on_desktop(PROGRAM).wait(60)
        # The desktop does not wait for what it has started.
        wait_until(lambda: self.runs() == 1, "one copy runs")

    def showing_again(self):
        self.click_tray_icon(count=2)
        self.window(MAIN)

    def exit(self):
        self.click_tray_icon(button=3)
        self.wine.picture("tray menu")
        self.wine.keys("Up", "Return")
        wait_until(lambda: self.runs() == 0, "the program has ended")

    def installing(self):
        self.wine.run(windows_path(self.installer), "/S", seconds=300)
        folder = self.wine.registry(UNINSTALL_KEY, "InstallLocation")
        self.installed = folder
        assert folder.endswith(INSTALLED), f"installed into {folder}"
        self.start(folder + "\\Ambertask.exe")
        self.query("update categories set cat_desc='mine' where cat_name='Work'", path=folder + "\\data.dat")

    def upgrading_a_running_copy(self):
        assert self.runs() == 1
        self.wine.run(windows_path(self.installer), "/S", seconds=300)
        assert self.runs() == 0, "the running copy has ended"
        kept = self.query("select cat_desc from categories where cat_name='Work'", path=self.installed + "\\data.dat")
        assert kept == [("mine",)]
        self.start(self.installed + "\\Ambertask.exe")

    def uninstalling(self):
        self.wine.run(self.installed + "\\uninstall.exe", "/S", seconds=300)
        # It goes on as a copy of itself.
        wait_until(lambda: not os.path.exists(self.wine.path(self.installed + "\\Ambertask.exe")), "the program is gone")
        wait_until(lambda: self.wine.registry(UNINSTALL_KEY, "DisplayName") is None, "the entry is gone")
        left = sorted(os.listdir(self.wine.path(self.installed)))
        assert "data.dat" in left and not any(name.endswith((".exe", ".dll")) for name in left), left
        assert self.runs() == 0


def main():
    archive, installer, pictures = sys.argv[1:]
    stations = [Journey.first_start, Journey.run_key, Journey.adding, Journey.reminding,
                Journey.help_of_the_alert, Journey.dismissing, Journey.backup, Journey.restoring, Journey.another_skin,
                Journey.report, Journey.help, Journey.closing_to_the_tray, Journey.second_copy, Journey.showing_again,
                Journey.exit, Journey.installing, Journey.upgrading_a_running_copy, Journey.uninstalling]
    with Wine(pictures) as wine:
        wine.show_desktop()
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


if __name__ == "__main__":
    main()
