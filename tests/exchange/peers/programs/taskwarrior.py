"""taskwarrior: its command line. It exchanges JSON, so some lines of a script stand between, as its users have them."""
import csv
import datetime
import json
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))

import peer  # noqa: E402

OPTIONS = ("rc.confirmation=no", "rc.verbose=nothing", "rc.gc=off", "rc.json.array=1")
FORM = "%Y%m%dT%H%M%SZ"
LETTERS = {"high": "H", "normal": "M", "low": "L"}

COLUMNS = ("Name", "Description", "Status", "Category", "Due", "Priority", "UID")


def task(*words):
    return peer.run("task", *OPTIONS, *words)


def prepare():
    with open(peer.home(".taskrc"), "w", encoding="utf-8") as settings:
        settings.write(f"data.location={peer.home('.task')}\n")


def exported():
    return json.loads(task("export"))


def moment(text):
    parsed = datetime.datetime.strptime(text, FORM).replace(tzinfo=datetime.timezone.utc)
    return peer.said(peer.local(parsed))


def typed(text):
    """As it has to be written on its command line."""
    return text.replace("\\", "\\\\")


def as_it_has():
    """No alarms; a day is its first minute."""
    rows = []
    for one in exported():
        state = "done" if one["status"] == "completed" else "started" if "start" in one else "open"
        rows.append({"name": one["description"],
                     "text": "\n".join(note["description"] for note in one.get("annotations", [])),
                     "due": moment(one["due"]) if "due" in one else None,
                     "state": state,
                     "priority": {"H": "high", "L": "low"}.get(one.get("priority"), "normal"),
                     "category": one.get("project")})
    return rows


def write(file):
    prepare()
    for number, one in enumerate(peer.TASKS, 1):
        words = ["project:" + one.category, "priority:" + LETTERS[one.priority]]
        if one.due:
            words.append("due:" + one.due.isoformat())
        task("add", *words, "--", typed(one.name))
        if one.text:
            task(str(number), "annotate", "--", typed(one.text))
        if one.state == "started":
            task(str(number), "start")
        if one.state == "done":
            task(str(number), "done")
    with open(file, "w", encoding="utf-8", newline="") as stream:
        rows = csv.writer(stream)
        rows.writerow(COLUMNS)
        for one, row in zip(exported(), as_it_has()):
            rows.writerow([row["name"], row["text"], row["state"], row["category"], row["due"] or "", row["priority"],
                           one["uuid"]])
    return as_it_has()


def read(file):
    prepare()
    with open(file, encoding="utf-8") as listed:
        ours = json.load(listed)
    now = datetime.datetime.now(datetime.timezone.utc).strftime(FORM)
    tasks = []
    for one in ours:
        due = datetime.datetime.fromisoformat(one["task_due_date"]).replace(tzinfo=peer.BERLIN)
        tasks.append({"description": one["task_name"], "entry": now, "project": one["category"],
                      "status": "completed" if one["task_status"] == 2 else "pending",
                      "due": due.astimezone(datetime.timezone.utc).strftime(FORM),
                      "priority": "HML"[one["task_periority"]]})
        if one["task_status"] == 1:
            tasks[-1]["start"] = now
        if one["task_status"] == 2:
            tasks[-1]["end"] = now
        if one["task_desc"]:
            tasks[-1]["annotations"] = [{"entry": now, "description": one["task_desc"]}]
    peer.run("task", *OPTIONS, "import", "-", input=json.dumps(tasks))
    return as_it_has()


peer.main(write, read)
