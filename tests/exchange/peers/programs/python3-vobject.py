"""python3-vobject: a library that reads and checks."""
import datetime
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import peer  # noqa: E402
import vobject  # noqa: E402

STATES = {"IN-PROCESS": "started", "COMPLETED": "done"}


def value(component, name):
    return getattr(component, name).value if hasattr(component, name) else None


def alarm(todo):
    """The moment of the first alarm."""
    for one in todo.contents.get("valarm", []):
        trigger = one.trigger.value
        if isinstance(trigger, datetime.timedelta):
            related = one.trigger.params.get("RELATED", ["START"])[0]
            base = value(todo, "due") if related == "END" else value(todo, "dtstart")
            return peer.day_or_moment(base + trigger)
        return peer.day_or_moment(trigger)
    return None


def read(file):
    rows = []
    with open(file, encoding="utf-8", newline="") as stream:
        for calendar in vobject.readComponents(stream):
            calendar.validate(raiseException=True)
            for todo in calendar.contents.get("vtodo", []):
                number = int(value(todo, "priority") or 0)
                rows.append({"name": value(todo, "summary"), "text": value(todo, "description") or "",
                             "due": peer.day_or_moment(value(todo, "due")), "alarm": alarm(todo),
                             "state": STATES.get(value(todo, "status"), "open"),
                             "priority": "high" if 1 <= number <= 4 else "low" if number > 5 else "normal",
                             "category": (value(todo, "categories") or [None])[0]})
    return rows


peer.main(read=read)
