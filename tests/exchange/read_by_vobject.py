"""Reads an iCalendar file with vobject, strictly, and prints the tasks as JSON."""

import json
import sys
import warnings

import vobject

warnings.simplefilter("error")


def value(task, name):
    return task.contents[name][0].value if name in task.contents else None


def main():
    # Without the translation of line ends.
    with open(sys.argv[1], encoding="utf-8", newline="") as file:
        calendars = list(vobject.readComponents(file))
    tasks = []
    for calendar in calendars:
        for task in calendar.contents.get("vtodo", []):
            task.validate(raiseException=True)
            alarms = task.contents.get("valarm", [])
            tasks.append({
                "name": value(task, "summary"),
                "description": value(task, "description"),
                "categories": value(task, "categories"),
                "due": value(task, "due").strftime("%Y-%m-%d %H:%M:%S"),
                "status": value(task, "status"),
                "alarms": [int(alarm.trigger.value.total_seconds()) for alarm in alarms],
            })
    json.dump(tasks, sys.stdout)


main()
