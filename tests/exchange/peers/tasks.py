"""The tasks that every program is given, and what is asked of each: one table for both directions."""
import dataclasses
import datetime

ZONE = "Europe/Berlin"
FIELDS = ("name", "text", "due", "alarm", "state", "priority", "category")
STATES = ("open", "started", "done")
PRIORITIES = ("high", "normal", "low")


@dataclasses.dataclass(frozen=True)
class Task:
    """`due` is a wall-clock moment of ZONE, a day, or nothing; so is `alarm`, a moment or nothing."""

    name: str
    text: str = ""
    due: datetime.datetime | datetime.date | None = None
    alarm: datetime.datetime | None = None
    state: str = "open"
    priority: str = "normal"
    category: str = "Work"
    # Whether the alarm was set as a time before the due moment.
    relative: bool = False


def moment(*parts):
    return datetime.datetime(*parts)


# Far in the future, so that no program reminds of them meanwhile; in summer time and outside of it, because a program
# that reckons with one offset for both is wrong for one of them.
TASKS = (
    Task("Käse, Brot; \"Öl\" \\ 茶 & <b>Tee</b>",
         "Erste Zeile: äöüß, ein Komma\nZweite; mit C:\\Daten, \\ und \"Zeichen\"\n\nVierte: 你好，世界",
         moment(2031, 7, 14, 15, 30), moment(2031, 7, 14, 15, 15), "open", "high", "Work", relative=True),
    Task("Winter call", "One line", moment(2031, 1, 20, 9, 0), moment(2031, 1, 19, 18, 0), "started", "normal",
         "Personal"),
    Task("Only a day", "", datetime.date(2031, 7, 15), None, "open", "low", "Shopping"),
    Task("Whenever", "No date at all", None, None, "open", "normal", "Work"),
    Task("Finished", "It is done", moment(2031, 2, 3, 10, 0), None, "done", "normal", "Work"),
)


def said(value):
    """A field as text, as the scripts hand it on: "2031-07-14 15:30", "2031-07-15", words, or nothing."""
    if value is None:
        return None
    if isinstance(value, datetime.datetime):
        return f"{value:%Y-%m-%d %H:%M}"
    return value.isoformat() if isinstance(value, datetime.date) else value


def as_row(task):
    return {field: said(getattr(task, field)) for field in FIELDS}
