"""What the benchmarks of the whole program share: a desk to run on, data files, results."""
import contextlib
import json
import os
import shutil
import sqlite3
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "tests", "desktop"))

SMOKE = "--smoke" in sys.argv
BUILD = os.path.abspath(sys.argv[-1])

# None of them is late: what a late task costs must not depend on the day of the measuring.
FILL = """
with recursive n(i) as (select 1 union all select i+1 from n where i<?)
insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,reminder_date_time)
select printf('Task %08d of the long list', i)||'..',
       substr('A description that goes on for two or three lines, as most of them do, with enough words in it to make one '
              ||'hundred and twenty letters.',1,120),
       i%5, i%4+1, datetime('2096-01-01', printf('%d minutes', (i*7919%10007)*29)), i%3, i%3=0, '2099-01-01 00:00:00'
from n
"""


def result(what, ours, unit, reference=None, target=None):
    """One line for script/bench."""
    row = {"what": what, "ours": ours, "unit": unit, "target": target}
    if reference is not None:
        row.update(reference=reference, ratio=ours / reference)
    print(json.dumps(row), flush=True)


def fill(data_file, tasks, due=None, **settings):
    """Makes the data file hold that many tasks, due then or in some distant year, and sets columns of the settings."""
    connection = sqlite3.connect(data_file)
    with connection:
        connection.execute("delete from tasks")
        # High ids would be given anew by the next start.
        connection.execute("delete from sqlite_sequence where name='tasks'")
        connection.execute(FILL, (tasks,))
        if due is not None:
            connection.execute("update tasks set task_due_date=?", (due,))
        for name, value in settings.items():
            connection.execute(f"update settings set {name}=?", (value,))
    connection.close()


class BareDesk:
    """For a smoke test: no display, no buses; a copy of the program in a home of its own."""

    def __init__(self):
        self.root = tempfile.mkdtemp(prefix="ambertask-bench-")
        self.program = os.path.join(self.root, "program")
        shutil.copytree(os.path.join(BUILD, "Ambertask"), self.program)
        self.environment = {"HOME": self.root, "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8", "TZ": "UTC",
                            "QT_QPA_PLATFORM": "offscreen"}

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.root)


@contextlib.contextmanager
def desk():
    """A private desktop with a copy of the program: window manager, notification area, no screen reader."""
    if SMOKE:
        with BareDesk() as bare:
            yield bare
        return
    import desktop  # noqa: PLC0415 - needs packages that a smoke test does without
    with desktop.Desktop(folder=os.path.join(BUILD, "Ambertask")) as full:
        del full.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        yield full
