"""kalarm: its command line, and the calendar file that it keeps. It has alarms alone: a text and a moment.

The first line of the text is what its users have for a name."""
import os
import shutil
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import peer  # noqa: E402


def events(calendar):
    if not os.path.exists(calendar):
        return -1
    with open(calendar, encoding="utf-8") as text:
        return text.read().count("END:VEVENT")


def write(file):
    from polling import wait_until  # noqa: PLC0415 - the desk's

    rows = []
    with peer.desk() as desk:
        # Otherwise it asks where the alarms of an earlier version are.
        with open(os.path.join(desk.environment["XDG_CONFIG_HOME"], "kalarmrc"), "w", encoding="utf-8") as settings:
            settings.write("[General]\nAutoStart=false\nBackend=FileResources\nVersion=3.5.4.2\n")
        calendar = os.path.join(desk.environment["XDG_DATA_HOME"], "kalarm", "calendar.ics")
        desk.start_beside(["kalarm"])
        wait_until(lambda: events(calendar) == 0, "kalarm has its calendar", 120)
        for one in peer.TASKS:
            if one.alarm:
                desk.start_beside(["kalarm", "--time", f"{one.alarm:%Y-%m-%d-%H:%M}", one.name + "\n" + one.text])
                moment = peer.said(one.alarm)
                rows.append({"name": one.name, "text": one.text, "due": moment, "alarm": moment})
                wait_until(lambda: events(calendar) == len(rows), "kalarm keeps " + one.name, 120)
        shutil.copyfile(calendar, file)
    return rows


peer.main(write)
