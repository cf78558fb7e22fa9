"""todoman: its command line, on a folder of calendars with one file for each task, as it wants them."""
import datetime
import json
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import peer  # noqa: E402


STATES = {"NEEDS-ACTION": "open", "IN-PROCESS": "started", "COMPLETED": "done"}


def read(file):
    folder = peer.home("calendars", "tasks")
    os.makedirs(folder)
    os.makedirs(peer.home(".config", "todoman"), exist_ok=True)
    with open(peer.home(".config", "todoman", "config.py"), "w", encoding="utf-8") as settings:
        settings.write(f"path = '{peer.home('calendars')}/*'\ndate_format = '%Y-%m-%d'\ntime_format = '%H:%M'\n"
                       "default_list = 'tasks'\n")
    with open(file, encoding="utf-8", newline="") as stream:
        text = stream.read()
    head, *todos = text.split("BEGIN:VTODO\r\n")
    for number, todo in enumerate(todos):
        body = todo.partition("END:VTODO\r\n")[0]
        with open(os.path.join(folder, f"{number}.ics"), "w", encoding="utf-8", newline="") as one:
            one.write(head + "BEGIN:VTODO\r\n" + body + "END:VTODO\r\nEND:VCALENDAR\r\n")
    rows = []
    for status, state in STATES.items():
        for one in json.loads(peer.run("todoman", "--porcelain", "list", "--status", status)):
            due = datetime.datetime.fromtimestamp(one["due"], peer.BERLIN) if one["due"] else None
            number = one["priority"]
            rows.append({"name": one["summary"], "text": one["description"], "due": peer.day_or_moment(due),
                         "state": state,
                         "priority": "high" if 1 <= number <= 4 else "low" if number > 5 else "normal"})
    return rows


peer.main(read=read)
