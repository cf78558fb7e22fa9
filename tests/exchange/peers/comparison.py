"""A copy of the program without a display, and the comparison of what it has with what another program has."""
import datetime
import difflib
import json
import os
import shutil
import sqlite3
import subprocess
import tempfile

from tasks import FIELDS, TASKS, ZONE, said

DOCUMENT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "..", "docs", "exchange-peers.md")
STATES = ("open", "started", "done", "open", "open")
PRIORITIES = ("high", "normal", "low")
WRITES, READS = "writes", "reads"


class Ambertask:
    """A copy of the program in a home of its own, without a display."""

    def __init__(self, executable):
        self._home = tempfile.mkdtemp(prefix="ambertask-exchange-")
        folder = os.path.join(self._home, "program")
        shutil.copytree(os.path.dirname(executable), folder)
        self._executable = os.path.join(folder, os.path.basename(executable))
        self._data_file = os.path.join(folder, "data.dat")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self._home)

    def call(self, *words):
        environment = {"HOME": self._home, "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8", "TZ": ZONE}
        result = subprocess.run([self._executable, *words], env=environment, cwd=self._home, stdin=subprocess.DEVNULL,
                                capture_output=True, text=True, timeout=60, check=False)
        if result.returncode != 0:
            raise RuntimeError(f"{words} ended with {result.returncode}: {result.stderr or result.stdout}")
        return result.stdout

    def rows(self):
        """What it lists, in the words of tasks.py."""
        return [{"name": task["task_name"], "text": task["task_desc"], "due": task["task_due_date"][:16],
                 "alarm": task["reminder_date_time"][:16] if task["reminder_on"] else None,
                 "state": STATES[task["task_status"]], "priority": PRIORITIES[task["task_periority"]],
                 "category": task["category"]} for task in json.loads(self.call("--list", "--json"))]

    def fill(self):
        """Puts the tasks into the data file that can be in it: none is without a due date."""
        connection = sqlite3.connect(self._data_file)
        with connection:
            categories = dict(connection.execute("select cat_name, cat_id from categories"))
            for task in TASKS:
                if not task.due:
                    continue
                due = task.due if isinstance(task.due, datetime.datetime) else \
                    datetime.datetime.combine(task.due, datetime.time())
                connection.execute(
                    "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
                    "reminder_date_time) values(?,?,?,?,?,?,?,?)",
                    (task.name, task.text, STATES.index(task.state), categories[task.category], said(due) + ":00",
                     PRIORITIES.index(task.priority), task.alarm is not None, said(task.alarm or due) + ":00"))
        connection.close()


def matching(row, rows):
    """The row of the same task: of the same name, or of one much like it when names are lost."""
    names = [one["name"] or "" for one in rows]
    near = difflib.get_close_matches(row["name"], names, 1, 0.3)
    return rows[names.index(near[0])] if near else {}


def is_kept(field, before, after):
    if field == "due":
        # A day has come through when the moment lies in it; without a due date any is as good.
        return before is None or (after or "").startswith(before)
    return before == after


def compare(given, got, of_program):
    """For each field "kept", "lost" or, when the other program's rows have no such field, "none"; and the losses."""
    cells, losses = {}, []
    if len(given) != len(got):
        losses.append(f"{len(given)} tasks became {len(got)}")
    for field in FIELDS:
        if not any(field in row for row in of_program):
            cells[field] = "none"
            continue
        found = [(row, matching(row, got).get(field)) for row in given if field in row]
        lost = [f"{field} of {row['name']!r}: {row[field]!r} became {after!r}" for row, after in found
                if not is_kept(field, row[field], after)]
        cells[field] = "lost" if lost else "kept"
        losses += lost
    return cells, losses


def documented():
    """The cells of the table in the document, by program, direction and field."""
    cells = {}
    with open(DOCUMENT, encoding="utf-8") as text:
        for line in text:
            words = [word.strip() for word in line.strip().strip("|").split("|")]
            if len(words) == 2 + len(FIELDS) and words[1] in (WRITES, READS):
                cells[words[0].split()[0], words[1]] = dict(zip(FIELDS, words[2:]))
    return cells
