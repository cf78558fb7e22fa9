"""What the scripts of the programs share. Each is run in the system of the programs, as its ordinary user:

    PROGRAM.py write FILE   makes the program hold the tasks of tasks.py, and writes FILE from it as a user would;
                            answers, as JSON, the tasks as the program can hold them
    PROGRAM.py read FILE    makes the program read FILE; answers, as JSON, what it has now
"""
import contextlib
import datetime
import json
import os
import subprocess
import sys
import zoneinfo

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "desktop"))

from tasks import TASKS, ZONE, as_row, said  # noqa: E402, F401

BERLIN = zoneinfo.ZoneInfo(ZONE)


def main(write=None, read=None):
    direction, file = sys.argv[1:]
    json.dump({"write": write, "read": read}[direction](file), sys.stdout, ensure_ascii=False, indent=1)


def run(*words, **options):
    """Runs a command to its end; its output. A failure names what it said."""
    result = subprocess.run(words, capture_output=True, text=True, timeout=120, check=False, **options)
    if result.returncode != 0:
        raise RuntimeError(f"{words} ended with {result.returncode}: {result.stdout}{result.stderr}")
    return result.stdout


def local(moment):
    """A moment of any zone, or none, as the wall clock of ZONE shows it."""
    return moment.astimezone(BERLIN).replace(tzinfo=None) if moment.tzinfo else moment


@contextlib.contextmanager
def desk():
    """A private desktop whose session bus starts the services that programs ask for."""
    from desktop import Desktop  # noqa: PLC0415 - only for programs with windows
    from polling import wait_until  # noqa: PLC0415
    from processes import listens  # noqa: PLC0415

    class PeerDesk(Desktop):
        def _copy_program(self):
            pass

    with PeerDesk(tray=False, folder="/usr") as made:
        made.environment["TZ"] = ZONE
        # The bus of the services has an accessibility bus of its own, and programs choose differently between the two.
        made.environment["AT_SPI_BUS_ADDRESS"] = made.access_address()
        socket = made.path("services-socket")
        made.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + socket
        made.start_beside(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--address=unix:path=" + socket])
        wait_until(lambda: listens(socket), "the bus of the services listens")
        # Programs that look for the system's services find none, instead of ending.
        made.environment["DBUS_SYSTEM_BUS_ADDRESS"] = made.environment["DBUS_SESSION_BUS_ADDRESS"]
        yield made


def day_or_moment(value):
    """What the libraries give for a date property, as tasks.said tells it."""
    if isinstance(value, datetime.datetime):
        return said(local(value))
    return said(value)


def home(*parts):
    return os.path.join(os.environ["HOME"], *parts)
