"""The data file of the desk's own program copy: arranged before the program starts, read while it runs."""
import sqlite3
from datetime import datetime

MOMENT = "%Y-%m-%d %H:%M:%S"


def _fold(left, right):
    left, right = left.casefold(), right.casefold()
    return (left > right) - (left < right)


class Store:
    """Opens the file anew for each call, so that it never holds a lock against the program."""

    def __init__(self, path):
        self._path = path

    def _connect(self):
        connection = sqlite3.connect(f"file:{self._path}?mode=rw", uri=True, timeout=5)
        connection.row_factory = sqlite3.Row
        connection.create_collation("NOCASE", _fold)
        return connection

    def execute(self, statement, values=()):
        """Runs a statement; the rows of a query as dictionaries, otherwise the id of a new row."""
        connection = self._connect()
        try:
            with connection:
                cursor = connection.execute(statement, values)
                if cursor.description:
                    return [dict(row) for row in cursor.fetchall()]
                return cursor.lastrowid
        finally:
            connection.close()

    def set(self, **settings):
        """Changes columns of the one settings row."""
        columns = ", ".join(f"[{name}]=?" for name in settings)
        self.execute(f"update settings set {columns}", list(settings.values()))

    def settings(self):
        return self.execute("select * from settings")[0]

    def category(self, name):
        """The id of the category, added if there is none of that name."""
        rows = self.execute("select cat_id from categories where cat_name=?", (name,))
        if rows:
            return rows[0]["cat_id"]
        return self.execute("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                            "values(?,'',0,0,'')", (name,))

    def add_task(self, name, category="Work", due=None, reminder=None, sound="", file="", **columns):
        """Adds a task, its reminder on when `reminder` (a datetime) is given. Returns its id."""
        moment = (due or reminder or datetime(2030, 1, 1)).strftime(MOMENT)
        values = {
            "task_name": name, "task_desc": "", "task_status": 0, "cat_id": self.category(category),
            "task_due_date": moment, "task_periority": 1, "reminder_on": 1 if reminder else 0,
            "reminder_date_time": (reminder or due or datetime(2030, 1, 1)).strftime(MOMENT),
            "reminder_sound": str(sound), "reminder_file": str(file)}
        values.update(columns)
        names = ",".join(values)
        marks = ",".join("?" * len(values))
        return self.execute(f"insert into tasks({names}) values({marks})", list(values.values()))

    def tasks(self):
        return self.execute("select * from tasks order by task_id")

    def task(self, task_id):
        """The task's row, or None."""
        rows = self.execute("select * from tasks where task_id=?", (task_id,))
        return rows[0] if rows else None

    def task_named(self, name):
        rows = self.execute("select * from tasks where task_name=?", (name,))
        return rows[0] if rows else None
