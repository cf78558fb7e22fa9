"""osmo: its own file of tasks, and "Export tasks" in its window. It shows the events of others and imports no tasks."""
import os
import sys
import xml.sax.saxutils

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import datetime  # noqa: E402

import peer  # noqa: E402

PRIORITIES = {"low": 0, "normal": 1, "high": 2}


def entry(number, task):
    moment = task.due
    seconds = moment.hour * 3600 + moment.minute * 60 if isinstance(moment, datetime.datetime) else -1
    due = moment.toordinal() if moment else 0

    def plain(text):
        return xml.sax.saxutils.escape(text)

    return (f"<entry><id>{number}</id><status>0</status><due_date>{due}</due_date><due_time>{seconds}</due_time>"
            "<start_date>0</start_date><done_date>0</done_date><active>1</active><warning_days>0</warning_days>"
            f"<warning_time>0</warning_time><priority>{PRIORITIES[task.priority]}</priority>"
            f"<category>{plain(task.category)}</category><summary>{plain(task.name)}</summary>"
            f"<description>{plain(task.text)}</description></entry>\n")


def write(file):
    from access import Access  # noqa: PLC0415 - the desk's
    from polling import wait_until  # noqa: PLC0415

    # It exports none without a date, and hides those that are done.
    tasks = [one for one in peer.TASKS if one.due and one.state != "done"]
    categories = "".join(f"<name>{name}</name>" for name in sorted({one.category for one in tasks}))
    with peer.desk() as desk:
        folder = os.path.join(desk.environment["XDG_DATA_HOME"], "osmo")
        os.makedirs(folder)
        with open(os.path.join(folder, "tasks_entries.xml"), "w", encoding="utf-8") as data:
            data.write('<?xml version="1.0" encoding="utf-8"?>\n<osmo_tasks version="000404">\n'
                       f"<category_entries>{categories}</category_entries>\n<tasks_entries>\n"
                       + "".join(entry(number, one) for number, one in enumerate(tasks, 1))
                       + "</tasks_entries>\n</osmo_tasks>\n")
        program = desk.start_beside(["osmo"])
        access = Access(desk.environment["AT_SPI_BUS_ADDRESS"], program.pid)
        window = access.window("Osmo 0.4.4", 120)
        # By the mouse: its dialogs would keep an accessible press, and with it the bus, until they are closed.
        desk.input.click(*window.find("page", "Tasks").center())
        desk.input.click(*window.find("button", "Export tasks").center())
        dialog = access.window("Save tasks")
        desk.input.key("a", "Control_L")
        desk.input.type(file)
        desk.input.click(*dialog.find("button", "Save").center())
        wait_until(lambda: os.path.exists(file) and os.path.getsize(file), "osmo has written the file")
    # Done or not, alarms and how urgent it is never get into that file.
    return [{field: value for field, value in peer.as_row(one).items() if field in ("name", "text", "due", "category")}
            for one in tasks]


peer.main(write)
