"""endeavour: its window, and evolution-data-server, where it and evolution keep their tasks.

Its window tells assistive technology little: it is worked by what lies where on a screen of this size.
"""
import calendar
import datetime
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import calendars  # noqa: E402
import peer  # noqa: E402

INBOX = (100, 76)
ADD_TASKS = (780, 630)
# The same place is the line for a new task, then the task itself.
FIRST_LINE = (700, 84)
CHECK_BOX = (506, 78)
DUE_DATE = (525, 156)
NOTES = (700, 330)
LINE_BELOW = (700, 514)
FIRST_DAY = (451, 280)
DAY_SIZE = (31, 24)
WHEEL_DOWN = 5


def store(desk):
    return os.path.join(desk.environment["XDG_DATA_HOME"], "evolution", "tasks", "system", "tasks.ics")


class Endeavour:
    def __init__(self, desk):
        from access import Access  # noqa: PLC0415 - the desk's
        from polling import holds_for, wait_until  # noqa: PLC0415

        self.desk = desk
        self.wait = wait_until
        # It tells nobody when it has painted or taken a paste.
        self.pause = lambda seconds: holds_for(lambda: True, "it has its time", seconds)
        # No graphics processor here.
        desk.environment["GSK_RENDERER"] = "cairo"
        program = desk.start_beside(["endeavour"])
        access = Access(desk.environment["AT_SPI_BUS_ADDRESS"], program.pid)
        self.wait(access.windows, "its window", 60)
        self.pause(4)

    def click(self, place):
        self.desk.input.click(*place)
        self.pause(1.5)

    def paste(self, text):
        with subprocess.Popen(["xclip", "-selection", "clipboard", "-quiet", "-i"], env=self.desk.environment,
                              stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as clipboard:
            clipboard.stdin.write(text.encode())
            clipboard.stdin.close()
            self.pause(0.5)
            self.desk.input.key("v", "Control_L")
            self.pause(1)
            clipboard.kill()

    def wait_kept(self, text):
        self.wait(lambda: os.path.exists(store(self.desk)) and text in calendars.content(store(self.desk)),
                  "the store has " + text)

    def choose_day(self, day):
        self.click(DUE_DATE)
        now = datetime.date.today()
        self.desk.input.move(*FIRST_DAY)
        for _ in range((day.year - now.year) * 12 + day.month - now.month):
            self.desk.input.press(WHEEL_DOWN)
            self.desk.input.release(WHEEL_DOWN)
        self.pause(1)
        # Weeks begin with Sunday.
        row, column = divmod((calendar.weekday(day.year, day.month, 1) + 1) % 7 + day.day - 1, 7)
        self.click((FIRST_DAY[0] + DAY_SIZE[0] * column, FIRST_DAY[1] + DAY_SIZE[1] * row))
        self.desk.input.key("Escape")
        self.pause(1)

    def add(self, task):
        """The first and only one in its list."""
        self.click(INBOX)
        self.click(ADD_TASKS)
        self.click(FIRST_LINE)
        self.paste(task.name)
        self.desk.input.key("Return")
        self.wait_kept("SUMMARY")
        self.pause(1)
        self.click(FIRST_LINE)
        if task.text:
            self.click(NOTES)
            self.paste(task.text)
        if task.due:
            self.choose_day(task.due)
        # What was changed is kept when the task is left.
        self.click(LINE_BELOW)
        if task.text:
            self.wait_kept("DESCRIPTION")
        if task.due:
            self.wait_kept("DUE")
        if task.state == "done":
            self.pause(3)
            self.click(CHECK_BOX)
            self.wait_kept("COMPLETED")


def write(file):
    """Each task is typed in alone: lists move under the mouse. Then the calendars are joined."""
    rows = []
    with open(file, "w", encoding="utf-8", newline="") as joined:
        for one in peer.TASKS:
            with peer.desk() as desk:
                Endeavour(desk).add(one)
                joined.write(calendars.content(store(desk)))
            # It has days without a time, neither reminders nor priorities nor categories, and done or not done.
            row = peer.as_row(one)
            due = one.due.date() if isinstance(one.due, datetime.datetime) else one.due
            rows.append({"name": row["name"], "text": row["text"], "due": peer.said(due),
                         "state": "done" if one.state == "done" else "open"})
    return rows


def take_over(desk, file):
    """Hands the file to the store, as evolution's import does."""
    import gi  # noqa: PLC0415 - with the desk's variables

    os.environ.update(desk.environment)
    gi.require_version("ECal", "2.0")
    gi.require_version("EDataServer", "1.2")
    from gi.repository import ECal, EDataServer, ICalGLib  # noqa: PLC0415

    registry = EDataServer.SourceRegistry.new_sync(None)
    client = ECal.Client.connect_sync(registry.ref_builtin_task_list(), ECal.ClientSourceType.TASKS, 30, None)
    client.receive_objects_sync(ICalGLib.Component.new_from_string(calendars.content(file)), 0, None)


def read(file):
    from polling import wait_until  # noqa: PLC0415 - the desk's

    wanted = calendars.content(file).count("END:VTODO")
    with peer.desk() as desk:
        take_over(desk, file)
        wait_until(lambda: calendars.content(store(desk)).count("END:VTODO") == wanted, "the store keeps them", 30)
        return calendars.rows(calendars.content(store(desk)))


peer.main(write, read)
