"""gtg: its own task store and its synchronization, with a calendar server on this machine, worked as its windows do."""
import contextlib
import datetime
import os
import subprocess
import sys
import time
import urllib.error
import urllib.request

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import gi  # noqa: E402
import peer  # noqa: E402

gi.require_version("Gtk", "3.0")
gi.require_version("GtkSource", "4")
gi.require_version("Gdk", "3.0")

SERVER = "http://127.0.0.1:5232/"
COLLECTION = SERVER + "tester/tasks/"
LABEL = "tasks"
MAKE = f"""<?xml version="1.0" encoding="utf-8"?>
<C:mkcalendar xmlns:D="DAV:" xmlns:C="urn:ietf:params:xml:ns:caldav"><D:set><D:prop>
<D:displayname>{LABEL}</D:displayname>
<C:supported-calendar-component-set><C:comp name="VTODO"/></C:supported-calendar-component-set>
</D:prop></D:set></C:mkcalendar>"""


def ask(method, data=None, kind="text/calendar; charset=utf-8"):
    request = urllib.request.Request(COLLECTION, data=data, method=method)
    request.add_header("Authorization", "Basic dGVzdGVyOg==")
    request.add_header("Content-Type", kind)
    with urllib.request.urlopen(request, timeout=20) as answer:
        return answer.read()


@contextlib.contextmanager
def server():
    child = subprocess.Popen(["radicale", "--server-hosts", "127.0.0.1:5232", "--auth-type", "none",
                              "--storage-filesystem-folder", peer.home("radicale")],
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        deadline = time.monotonic() + 20
        while True:
            try:
                ask("MKCALENDAR", MAKE.encode(), "text/xml")
                break
            except urllib.error.URLError as error:
                if isinstance(error, urllib.error.HTTPError) or time.monotonic() > deadline:
                    raise
                time.sleep(0.1)
        yield
    finally:
        child.terminate()
        child.wait()


def backend():
    """gtg without its windows, once it has what the server has."""
    from GTG.backends.backend_caldav import Backend  # noqa: PLC0415 - it needs the versions above
    from GTG.core.datastore import DataStore  # noqa: PLC0415

    store = DataStore()
    made = Backend({"pid": "caldav", "period": 15, "username": "tester", "password": "any", "service-url": SERVER,
                    "is-first-run": True, "enabled": True, "default": True})
    made.register_datastore(store)
    made.initialize()
    made.do_periodic_import()
    return store, made


def rows_of(store):
    """What gtg has. It knows neither alarms nor priorities nor that a task was begun."""
    from GTG.core.dates import Accuracy  # noqa: PLC0415
    from GTG.core.task import Task  # noqa: PLC0415

    rows = []
    for tid in store.get_all_tasks():
        task = store.get_task(tid)
        due = task.get_due_date()
        value = None if due.accuracy is Accuracy.fuzzy else due.dt_value
        tags = [tag.lstrip("@") for tag in task.get_tags_name() if not tag.lstrip("@").startswith("DAV_")]
        text = task.get_text()
        if text.startswith("@"):
            text = text.partition("\n\n")[2]
        rows.append({"name": task.get_title(), "text": text, "due": peer.day_or_moment(value),
                     "state": "done" if task.get_status() == Task.STA_DONE else "open",
                     "category": tags[0] if tags else None})
    return rows


def write(file):
    from GTG.core.dates import Date  # noqa: PLC0415
    from GTG.core.task import Task  # noqa: PLC0415

    with server():
        store, made = backend()
        for one in peer.TASKS:
            task = store.new_task()
            task.set_title(one.name)
            task.set_text(one.text)
            # Its calendar has a day alone to choose.
            due = one.due.date() if isinstance(one.due, datetime.datetime) else one.due
            if due:
                task.set_due_date(Date(due))
            task.add_tag(one.category)
            task.add_tag("DAV_" + LABEL)
            if one.state == "done":
                task.set_status(Task.STA_DONE)
            made.set_task(task)
        rows = rows_of(store)
        with open(file, "wb") as calendar:
            calendar.write(ask("GET"))
    return rows


def read(file):
    with server():
        ask("DELETE")
        with open(file, "rb") as calendar:
            ask("PUT", calendar.read())
        return rows_of(backend()[0])


peer.main(write, read)
