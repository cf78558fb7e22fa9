"""The programs that remind of tasks, for script/bench-peers: what each needs, and its data in its own format."""
import dataclasses
import datetime
import glob
import os
import shutil
from collections.abc import Callable

import rig

DUE = datetime.datetime(2099, 1, 1, 9, 0)
TEXT = "word " * 24


def due(number):
    return DUE + datetime.timedelta(minutes=29 * number)


def title(number):
    return f"Task {number:08} of the long list"


def identity(number):
    return f"00000000-0000-4000-8000-{number:012}"


def write(desk, base, *path):
    """Opens a file for writing below the folder that the desk's variable `base` names."""
    full = os.path.join(desk.environment[base], *path)
    os.makedirs(os.path.dirname(full), exist_ok=True)
    return open(full, "w", encoding="utf-8")


def write_calendar(file, entry, tasks, *heads):
    with file:
        for head in ("BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//bench//EN", *heads):
            file.write(head + "\r\n")
        for number in range(tasks):
            file.write("".join(line + "\r\n" for line in entry(number)))
        file.write("END:VCALENDAR\r\n")


def to_do(number):
    moment = due(number).strftime("%Y%m%dT%H%M%S")
    return ("BEGIN:VTODO", f"UID:{identity(number)}", "DTSTAMP:20260101T000000Z", f"SUMMARY:{title(number)}",
            f"DESCRIPTION:{TEXT}", f"DTSTART:{moment}", f"DUE:{moment}", "BEGIN:VALARM", "ACTION:DISPLAY",
            "TRIGGER;RELATED=START:-PT5M", "DESCRIPTION:due", "END:VALARM", "END:VTODO")


def alarm(number):
    return ("BEGIN:VEVENT", f"UID:{identity(number)}", "DTSTAMP:20260101T000000Z", "X-KDE-KALARM-FLAGS:LOCAL",
            "X-KDE-KALARM-TYPE:ACTIVE", f"DTSTART:{due(number):%Y%m%dT%H%M%S}", "DURATION:PT0S",
            "TRANSP:TRANSPARENT", "BEGIN:VALARM", f"DESCRIPTION:{title(number)}", "ACTION:DISPLAY", "TRIGGER:PT0S",
            "END:VALARM", "END:VEVENT")


# Each fills the program's own data with tasks, and answers the command that starts it.

def ambertask(desk, tasks):
    rig.fill(desk.data_file, tasks)
    return [os.path.join(desk.program, "Ambertask")]


def osmo(desk, tasks):
    with write(desk, "XDG_DATA_HOME", "osmo", "tasks_entries.xml") as data:
        data.write('<?xml version="1.0" encoding="utf-8"?>\n<osmo_tasks version="000404">\n<category_entries/>\n'
                   "<tasks_entries>\n")
        for number in range(tasks):
            moment = due(number)
            data.write(f"<entry><id>{number + 1}</id><status>0</status><due_date>{moment.toordinal()}</due_date>"
                       f"<due_time>{moment.hour * 3600 + moment.minute * 60}</due_time>"
                       f"<start_date>{moment.toordinal()}</start_date><done_date>0</done_date><active>1</active>"
                       "<warning_days>0</warning_days><warning_time>5</warning_time><priority>1</priority>"
                       f"<category>None</category><summary>{title(number)}</summary>"
                       f"<description>{TEXT}</description></entry>\n")
        data.write("</tasks_entries>\n</osmo_tasks>\n")
    return ["osmo"]


def getting_things_gnome(desk, tasks):
    # Without a system bus it does not start.
    desk.environment["DBUS_SYSTEM_BUS_ADDRESS"] = desk.environment["DBUS_SESSION_BUS_ADDRESS"]
    with write(desk, "XDG_CONFIG_HOME", "gtg", "backends.conf") as settings:
        settings.write("[backend_localfile]\nmodule = backend_localfile\npath = gtg_data.xml\nenabled = True\n"
                       "default = True\nfirst_run = False\nhuman-friendly-name = \nuser = \n"
                       f"attached-tags = gtg-tags-all\npid = {identity(0)}\n")
    with write(desk, "XDG_DATA_HOME", "gtg", "gtg_data.xml") as data:
        data.write("<?xml version='1.0' encoding='UTF-8'?>\n<gtgData appVersion=\"0.6\" xmlVersion=\"2\">\n"
                   "<taglist/>\n<searchlist/>\n<tasklist>\n")
        for number in range(tasks):
            data.write(f'<task id="{identity(number)}" status="Active"><title>{title(number)}</title><tags/>'
                       f"<dates><added>2026-01-01</added><due>{due(number):%Y-%m-%d}</due>"
                       "<modified>2026-01-01</modified><recurring_enabled>false</recurring_enabled></dates>"
                       '<recurring enabled="false"><term>None</term></recurring><subtasks/>'
                       f"<content><![CDATA[{TEXT}]]></content></task>\n")
        data.write("</tasklist>\n</gtgData>\n")
    return ["gtg"]


def endeavour(desk, tasks):
    # No graphics processor here: what draws by OpenGL would be emulated, at ten times the cost.
    desk.environment["GSK_RENDERER"] = "cairo"
    write_calendar(write(desk, "XDG_DATA_HOME", "evolution", "tasks", "system", "tasks.ics"), to_do, tasks)
    return ["endeavour"]


def kalarm(desk, tasks):
    with write(desk, "XDG_CONFIG_HOME", "kalarmrc") as settings:
        settings.write("[General]\nAutoStart=false\nBackend=FileResources\nVersion=3.5.4.2\n")
    with write(desk, "XDG_CONFIG_HOME", "kalarmresources") as settings:
        settings.write("[General]\nLastId=1\n\n[Resource_1]\nId=1\nName=Active Alarms\nType=File\nAlarmTypes=Active\n"
                       "Enabled=Active\nStandard=Active\nKeepFormat=true\nUpdateFormat=false\nReadOnly=false\n"
                       "Path[$e]=$HOME/.local/share/kalarm/calendar.ics\n")
    write_calendar(write(desk, "XDG_DATA_HOME", "kalarm", "calendar.ics"), alarm, tasks, "X-KDE-KALARM-VERSION:2.7.0")
    return ["kalarm"]


def korganizer(desk, tasks):
    # The database server that the storage service takes by default does not run as root.
    with write(desk, "XDG_CONFIG_HOME", "akonadi", "akonadiserverrc") as settings:
        settings.write("[%General]\nDriver=QSQLITE3\n")
    write_calendar(write(desk, "XDG_DATA_HOME", "apps", "korganizer", "std.ics"), to_do, tasks)
    return ["korganizer"]


def orage(desk, tasks):
    write_calendar(write(desk, "XDG_DATA_HOME", "orage", "orage.ics"), to_do, tasks)
    return ["orage"]


def taskwarrior(desk, tasks):
    folder = os.path.join(desk.environment["HOME"], ".task")
    with write(desk, "HOME", ".taskrc") as settings:
        settings.write(f"data.location={folder}\nconfirmation=no\nverbose=nothing\ngc=off\n")
    with write(desk, "HOME", ".task", "pending.data") as data:
        for number in range(tasks):
            data.write(f'[description:"{title(number)}" due:"{int(due(number).timestamp())}" '
                       f'entry:"1767225600" status:"pending" uuid:"{identity(number)}"]\n')
    return ["task", "list"]


@dataclasses.dataclass(frozen=True)
class Peer:
    """`needs` are the executables and files without which it is not installed. `services` lets the session bus start
    the services that it asks for, `stop` is the command that ends them. Without a window it is a command that ends by
    itself."""

    name: str
    prepare: Callable
    needs: tuple = ()
    services: bool = False
    stop: tuple = ()
    has_window: bool = True

    def is_installed(self):
        return all(glob.glob(need) if "/" in need else shutil.which(need, path="/usr/bin:/bin") for need in self.needs)


PEERS = (
    Peer("Ambertask", ambertask),
    Peer("osmo", osmo, ("osmo",)),
    Peer("gtg", getting_things_gnome, ("gtg",)),
    Peer("endeavour", endeavour, ("endeavour",), services=True),
    Peer("kalarm", kalarm, ("kalarm",), services=True),
    Peer("korganizer", korganizer, ("korganizer", "/usr/lib/*/qt5/plugins/sqldrivers/libqsqlite3.so"), services=True,
         stop=("akonadictl", "stop")),
    Peer("orage", orage, ("orage",)),
    Peer("taskwarrior, one list", taskwarrior, ("task",), has_window=False),
)
