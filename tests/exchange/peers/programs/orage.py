"""orage: its editor for tasks, its import and its export by the command line."""
import calendar
import datetime
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import calendars  # noqa: E402
import peer  # noqa: E402

NUMBERS = {"high": 1, "normal": 5, "low": 9}
TITLE = "New appointment - Orage"
WHEEL_DOWN = 5


class Orage:
    def __init__(self, desk):
        from access import Access  # noqa: PLC0415 - the desk's
        from polling import wait_until  # noqa: PLC0415

        self.desk = desk
        self.tasks = 0
        self.wait = wait_until
        program = desk.start_beside(["orage"])
        self.access = Access(desk.environment["AT_SPI_BUS_ADDRESS"], program.pid)
        self.window = self.access.window("Orage", 120)

    def content(self):
        with open(os.path.join(self.desk.environment["XDG_DATA_HOME"], "orage", "orage.ics"), encoding="utf-8") as text:
            return text.read()

    def click(self, node):
        self.desk.input.click(*node.center())

    def tick(self, node, checked):
        if node.checked != checked:
            self.click(node)
            self.wait(lambda: node.checked == checked, f"{node!r} is changed")

    def set_number(self, field, number):
        from gi.repository import GLib  # noqa: PLC0415

        value = GLib.Variant("(ssv)", ("org.a11y.atspi.Value", "CurrentValue", GLib.Variant("d", number)))
        field.call("org.freedesktop.DBus.Properties", "Set", value)
        self.wait(lambda: field.text == str(number), f"the field says {number}")

    def choose_day(self, button, day):
        self.click(button)
        dialog = self.access.window("Pick the date")
        grid = dialog.find("calendar")
        now = datetime.date.today()
        self.desk.input.move(*grid.center())
        for _ in range((day.year - now.year) * 12 + day.month - now.month):
            self.desk.input.press(WHEEL_DOWN)
            self.desk.input.release(WHEEL_DOWN)
        # Weeks begin with Sunday; above the six of them stand the month and the names of the days.
        place = (calendar.weekday(day.year, day.month, 1) + 1) % 7 + day.day - 1
        x, y, width, height = grid.place()
        row, column = divmod(place, 7)
        self.desk.input.click(x + width * (2 * column + 1) // 14, y + 54 + 17 * row)
        self.click(dialog.find("button", "OK"))
        self.wait(lambda: button.name == f"{day:%m/%d/%y}", f"the day is {day}")

    def add(self, task):
        self.window.find("menu entry", "New", showing=False).press()
        editor = self.access.window(TITLE)
        self.click(editor.find("option", "Todo"))
        form = editor.find("page", "General").children()[0].children()
        labels = {one.name.strip(): number for number, one in enumerate(form) if one.role == "label"}

        def field(caption, role):
            """What stands beside the label of that caption."""
            node = form[labels[caption] - 1]
            return node if node.role == role else node.find(role)

        field("Title", "text").set_text(task.name)
        field("Note", "text").set_text(task.text)
        field("Categories", "text").set_text(task.category)
        self.set_number(field("Priority", "spin button"), NUMBERS[task.priority])
        self.tick(editor.find("check box", "Set"), task.due is not None)
        if task.due:
            self.tick(editor.find("check box", "Duration"), False)
            with_time = isinstance(task.due, datetime.datetime)
            self.tick(editor.find("check box", "All day event"), not with_time)
            due = next(one for one in form if one.seek("check box", "Set"))
            if with_time:
                minute, hour = due.all("spin button")
                self.set_number(hour, task.due.hour)
                self.set_number(minute, task.due.minute)
            self.choose_day(next(one for one in due.all("push button") if "/" in one.name and one.name[0].isdigit()),
                            task.due)
        if task.state == "done":
            self.tick(editor.find("check box", "Done"), True)
        self.set_alarm(editor, task)
        self.click(editor.find("button", "Save and close"))
        self.tasks += 1
        self.wait(lambda: self.content().count("END:VTODO") == self.tasks, "it keeps " + task.name)

    def set_alarm(self, editor, task):
        self.click(editor.find("page", "Alarm"))
        window = editor.find("check box", "Use Orage window")
        self.tick(window, task.relative)
        for one in editor.all("check box"):
            if one.name == "Use" and one.checked:
                self.tick(one, False)
        if task.relative:
            page = editor.find("page", "Alarm")
            minutes = next(one for one in page.all("spin button") if one.text == "5")
            self.set_number(minutes, 15)
            self.click(page.find("combo box", "Before Start"))
            self.desk.input.key("Down")
            self.desk.input.key("Return")
            page.find("combo box", "Before End")


def write(file):
    with peer.desk() as desk:
        orage = Orage(desk)
        for one in peer.TASKS:
            orage.add(one)
        desk.run(["orage", "--export", file])
    rows = [peer.as_row(one) for one in peer.TASKS]
    for one, row in zip(peer.TASKS, rows):
        # It has reminders at a time before the due date alone, and done or not done.
        row["alarm"] = row["alarm"] if one.relative else None
        row["state"] = "done" if one.state == "done" else "open"
    return rows


def read(file):
    with open(file, encoding="utf-8") as text:
        wanted = text.read().count("END:VTODO")
    with peer.desk() as desk:
        orage = Orage(desk)
        desk.run(["orage", file])
        orage.wait(lambda: orage.content().count("END:VTODO") == wanted, "it keeps what it has read", 30)
        rows = calendars.rows(orage.content())
    for row in rows:
        # It has done or not done, and knows it by that line alone.
        row["state"] = "done" if row["completed"] else "open"
    return rows


peer.main(write, read)
