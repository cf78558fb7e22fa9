"""korganizer: its editor for tasks and its import, both in its window, and the calendar file that its storage keeps."""
import datetime
import os
import shutil
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import calendars  # noqa: E402
import peer  # noqa: E402

PRIORITIES = {"high": "1", "normal": "5", "low": "9"}
PERCENT = {"open": 0, "started": 50, "done": 100}


class Korganizer:
    def __init__(self, desk):
        from access import Access, connect_bus  # noqa: PLC0415 - the desk's
        from polling import wait_until  # noqa: PLC0415

        self.desk = desk
        self.tasks = 0
        self.wait = wait_until
        # The database server that the storage takes by default wants to be set up first.
        folder = os.path.join(desk.environment["XDG_CONFIG_HOME"], "akonadi")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "akonadiserverrc"), "w", encoding="utf-8") as settings:
            settings.write("[%General]\nDriver=QSQLITE3\n")
        self.calendar = os.path.join(desk.environment["XDG_DATA_HOME"], "apps", "korganizer", "std.ics")
        program = desk.start_beside(["korganizer"])
        self.access = Access(desk.environment["AT_SPI_BUS_ADDRESS"], program.pid)
        self.bus = connect_bus(desk.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.wait(lambda: os.path.exists(self.calendar), "korganizer has its calendar", 120)
        self.window = self.wait(lambda: next((one for one in self.access.windows() if one.role == "frame"), None),
                                "its window", 120)

    def content(self):
        with open(self.calendar, encoding="utf-8") as text:
            return text.read()

    def open_editor(self, name, text):
        from gi.repository import Gio, GLib  # noqa: PLC0415

        before = set(self.access.windows())
        self.bus.call_sync("org.kde.korganizer", "/Calendar", "org.kde.Korganizer.Calendar", "openTodoEditor",
                           GLib.Variant("(ssas)", (name, text, [])), None, Gio.DBusCallFlags.NONE, 30000, None)
        return self.wait(lambda: next((one for one in self.access.windows() if one not in before and one.has("showing")
                                       and one.seek("label", "Due", showing=False)), None), "its editor", 30)

    def type_into(self, combo, text):
        field = next(one for one in combo.children() if one.role == "text")
        self.desk.input.click(*field.center())
        self.desk.input.key("a", "Control_L")
        self.desk.input.type(text + "\t")
        self.wait(lambda: field.text == text, f"the field says {text}")

    def add(self, task):
        editor = self.open_editor(task.name, task.text)
        parts = editor.children()
        names = [(one.role, one.name) for one in parts]
        start = names.index(("label", "Start:")) + 1
        due = names.index(("label", "Due:")) + 1
        parts[start].toggle(False)
        parts[due].toggle(task.due is not None)
        with_time = isinstance(task.due, datetime.datetime)
        if task.due:
            parts[names.index(("check box", "All Day"))].toggle(not with_time)
            self.type_into(parts[due + 1], f"{task.due:%d %b %Y}")
            if with_time:
                self.type_into(parts[due + 2], f"{task.due:%H:%M:%S}")
        self.set_progress(parts[names.index(("label", "Completion:")) + 1], task)
        if task.relative:
            self.desk.input.click(*editor.find("page", "Reminder").center())
            # What it proposes is a quarter of an hour before the task is due.
            self.desk.input.click(*editor.find("button", "Add").center())
        editor.find("button", "OK").press()
        self.wait(lambda: self.content().count("END:VTODO") == self.tasks + 1, "it keeps " + task.name, 30)
        self.tasks += 1

    def set_progress(self, panel, task):
        """How much is done, and how urgent it is."""
        slider, combo = (next(one for one in panel.children() if one.role == role) for role in ("slider", "combo box"))
        slider.grab_focus()
        self.desk.input.key("Home")
        for percent in range(10, PERCENT[task.state] + 1, 10):
            self.desk.input.key("Right")
            panel.find("label", f"{percent}%")
        self.desk.input.key("Tab")
        self.wait(lambda: combo.has("focused"), "the priority has the focus")
        for _ in range(int(PRIORITIES[task.priority])):
            self.desk.input.key("Down")
        self.wait(lambda: combo.name.startswith(PRIORITIES[task.priority]), "its priority")


def write(file):
    with peer.desk() as desk:
        korganizer = Korganizer(desk)
        for one in peer.TASKS:
            korganizer.add(one)
        shutil.copyfile(korganizer.calendar, file)
    rows = [peer.as_row(one) for one in peer.TASKS]
    for one, row in zip(peer.TASKS, rows):
        # Its editor has reminders at a time before the due date alone. Tags were not tried.
        del row["category"]
        if not one.relative:
            row["alarm"] = None
    return rows


def read(file):
    with peer.desk() as desk:
        korganizer = Korganizer(desk)
        before = set(korganizer.access.windows())
        desk.start_beside(["korganizer", "--merge", file])
        # Into which calendar?
        dialog = korganizer.wait(lambda: next((one for one in korganizer.access.windows()
                                               if one not in before and one.has("showing")), None), "its question", 30)
        calendars_of_it = dialog.find("grid")
        korganizer.wait(lambda: calendars_of_it.rows() > 0, "its calendars are listed", 30)
        x, y = calendars_of_it.place()[:2]
        desk.input.click(x + 40, y + 10)
        korganizer.wait(lambda: dialog.find("button", "OK").has("sensitive"), "it can be answered")
        dialog.find("button", "OK").press()
        with open(file, encoding="utf-8") as text:
            wanted = text.read().count("END:VTODO")
        korganizer.wait(lambda: korganizer.content().count("END:VTODO") == wanted, "it keeps what it has read", 10)
        return calendars.rows(korganizer.content())


peer.main(write, read)
