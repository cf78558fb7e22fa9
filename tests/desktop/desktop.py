"""A private desktop for one test: display, window manager, message buses, home folder and a copy of the program."""
import contextlib
import json
import os
import select
import shutil
import stat
import subprocess
import tempfile
import time
from datetime import timezone

from gi.repository import Gio, GLib

import managers
from access import connect_bus
from printer import PrintServer
from processes import Children, adopt_orphans, listens
from polling import wait_until
from sound import SoundServer
from store import Store
from xinput import Input
from xwin import Screen

SCREEN_SIZE = "1280x960x24"
PROGRAM_NAME = "Ambertask"
FAKETIME_LIBRARIES = ("/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1",
                      "/usr/lib/aarch64-linux-gnu/faketime/libfaketime.so.1",
                      "/usr/lib/faketime/libfaketime.so.1")

BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

# Each argument on a line of its own shows whether a shell has looked at a command line.
RECORDER = """#!/bin/sh
{{ printf 'start %s\\n' "$0"; for word in "$@"; do printf 'word %s\\n' "$word"; done; }} >> '{record}'
"""


def program_folder():
    """The finished program, as the build leaves it."""
    folder = os.environ.get("AMBERTASK_FOLDER", "")
    if not os.path.isfile(os.path.join(folder, PROGRAM_NAME)):
        raise RuntimeError(f"AMBERTASK_FOLDER names no folder with the program {PROGRAM_NAME}: '{folder}'")
    return folder


class Program:
    """One running copy of the program."""

    def __init__(self, child, output, errors):
        self._child = child
        self._output = output
        self._errors = errors
        self.pid = child.pid

    def running(self):
        return self._child.poll() is None

    def wait_end(self, seconds=15):
        """The exit status, once the program has ended."""
        wait_until(lambda: not self.running(), f"the program (process {self.pid}) ends", seconds)
        return self._child.returncode

    def send(self, number):
        self._child.send_signal(number)

    def output(self):
        with open(self._output, encoding="utf-8", errors="replace") as text:
            return text.read()

    def errors(self):
        with open(self._errors, encoding="utf-8", errors="replace") as text:
            return text.read()


class Desktop:
    """Context manager. Everything it starts ends with it, everything it writes is removed with it."""

    def __init__(self, tray=True, sound=False, folder=None, name="program", manager=None):
        """`folder` holds the finished program, `name` is the name of the copy that runs here, `manager` that of the
        window manager (see managers.py)."""
        self._with_tray = tray
        self._with_sound = sound
        self._source = folder or program_folder()
        self._name = name
        self._manager = manager or managers.chosen()
        self._starts = 0
        self.screen = None
        self.sound = None

    def __enter__(self):
        adopt_orphans()
        self.root = tempfile.mkdtemp(prefix="ambertask-desk-")
        # Another user's process has to reach the program folder and the sockets below.
        os.chmod(self.root, 0o755)
        self.logs = self._make_folder("logs")
        self._children = Children(self.root, self.logs)
        try:
            self._make_home()
            self._copy_program()
            self._start_display()
            self._start_buses()
            self._start_window_manager()
            if self._with_tray:
                self.start_tray()
            if self._with_sound:
                self.sound = SoundServer(self._children, self.environment, self.root)
            self._meet_user()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, *_):
        # What cannot be ended or removed must not keep the rest alive.
        with contextlib.ExitStack() as steps:
            steps.callback(shutil.rmtree, self.root)
            steps.callback(self._children.end_all)
            if self.screen:
                steps.callback(self.screen.close)

    def _meet_user(self):
        """What the user sees of the desk and works it with."""
        self.screen = Screen(self.environment["DISPLAY"])
        self.input = Input(self.screen)

    # The folders ------------------------------------------------------------------------------------------

    def _make_folder(self, *parts, mode=0o755):
        path = os.path.join(self.root, *parts)
        os.makedirs(path, exist_ok=True)
        os.chmod(path, mode)
        return path

    def path(self, *parts):
        return os.path.join(self.root, *parts)

    def _make_home(self):
        self.commands = self._make_folder("bin")
        self.opened = self.path("opened")
        self.write_recorder(os.path.join(self.commands, "xdg-open"), self.opened)
        kept = ("LSAN_OPTIONS", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LD_LIBRARY_PATH")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ}
        self.environment.update({
            "LANG": "C.UTF-8",
            "TZ": "UTC",
            "PATH": self.commands + ":/usr/bin:/bin",
            "HOME": self._make_folder("home"),
            "XDG_CONFIG_HOME": self._make_folder("home", ".config"),
            "XDG_DATA_HOME": self._make_folder("home", ".local", "share"),
            "XDG_STATE_HOME": self._make_folder("home", ".local", "state"),
            "XDG_CACHE_HOME": self._make_folder("home", ".cache"),
            "XDG_RUNTIME_DIR": self._make_folder("run", mode=0o700),
            "TMPDIR": self._make_folder("tmp", mode=0o777 | stat.S_ISVTX),
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            # Where no server listens, whatever printers the machine has.
            "CUPS_SERVER": self.path("cups.sock"),
            "PULSE_SERVER": "unix:" + self.path("pulse-socket"),
            "PULSE_CLIENTCONFIG": self.path("pulse-client.conf"),
        })
        # Without this a desk without sound would start a sound server by itself.
        self.write("pulse-client.conf", "autospawn = no\n")

    def write(self, name, text, mode=0o644):
        path = self.path(name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        os.chmod(path, mode)
        return path

    def write_recorder(self, path, record):
        """Makes `path` a program that only notes in the file `record` how it was started."""
        with open(path, "w", encoding="utf-8") as script:
            script.write(RECORDER.format(record=record))
        os.chmod(path, 0o755)

    def _copy_program(self):
        self.program = self.path(self._name)
        shutil.copytree(self._source, self.program, symlinks=False)
        self.executable = os.path.join(self.program, PROGRAM_NAME)
        self.data_file = os.path.join(self.program, "data.dat")
        self.store = Store(self.data_file)

    # What the desktop consists of -------------------------------------------------------------------------

    def _start_display(self):
        read_end, write_end = os.pipe()
        try:
            self._children.start(
                ["Xvfb", "-displayfd", str(write_end), "-screen", "0", SCREEN_SIZE, "-nolisten", "tcp", "-noreset",
                 "-ac"], self.environment, "xvfb", pass_fds=(write_end,))
        finally:
            os.close(write_end)
        with os.fdopen(read_end, "rb") as numbers:
            if not select.select([numbers], [], [], 20)[0]:
                raise RuntimeError("the display does not start")
            number = numbers.readline().decode().strip()
        if not number:
            raise RuntimeError("the display ended: " + self.log("xvfb.err"))
        self.environment["DISPLAY"] = ":" + number

    def access_address(self):
        """Where the accessibility bus of this desk listens."""
        bus = connect_bus(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        try:
            return bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                 Gio.DBusCallFlags.NONE, 5000, None).unpack()[0]
        finally:
            bus.close_sync(None)

    def _start_bus(self, name, variable):
        socket = self.path(name + "-socket")
        configuration = self.write(name + ".conf", BUS_CONFIGURATION.format(socket=socket))
        self._children.start(["dbus-daemon", "--config-file=" + configuration, "--nofork", "--nopidfile"],
                             self.environment, name)
        wait_until(lambda: listens(socket), name + " listens")
        self.environment[variable] = "unix:path=" + socket

    def _start_buses(self):
        # The session bus can activate no service: nothing runs on this desk that was not started here.
        self._start_bus("session-bus", "DBUS_SESSION_BUS_ADDRESS")
        self._children.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1"],
                             self.environment, "access-launcher")

        def launched():
            try:
                return self.access_address()
            except GLib.Error:
                return None

        wait_until(launched, "the accessibility bus is there")

    def _start_window_manager(self):
        managers.start(self._manager, self._children, self.environment)
        watcher = Screen(self.environment["DISPLAY"])
        try:
            wait_until(watcher.has_window_manager, "the window manager is there")
        finally:
            watcher.close()

    def start_printer(self):
        """Makes a printer stand on the desk; returns its server."""
        return PrintServer(self._children, self.environment, self.root)

    def start_tray(self):
        """Starts a notification area; returns its process for `end`."""
        tray = self._children.start(
            ["trayer", "--edge", "bottom", "--align", "right", "--widthtype", "pixel", "--width", "200", "--height",
             "32", "--SetDockType", "true", "--SetPartialStrut", "false"], self.environment, "trayer")
        watcher = Screen(self.environment["DISPLAY"])
        try:
            wait_until(watcher.tray_manager, "the notification area is there")
        finally:
            watcher.close()
        return tray

    def end(self, child):
        self._children.end(child)

    # The program ------------------------------------------------------------------------------------------

    def start(self, clock=None, command=None, environment=None, arguments=None):
        """Starts the executable of this desk. `clock` is a Clock; `command` stands before the executable's path,
        `arguments` behind it."""
        self._starts += 1
        name = f"program{self._starts}"
        variables = dict(self.environment)
        if clock:
            variables.update(clock.environment())
        variables.update(environment or {})
        line = (command or []) + [self.executable] + (arguments or [])
        child = self._children.start(line, variables, name, cwd=self.path("home"))
        return Program(child, os.path.join(self.logs, name + ".out"), os.path.join(self.logs, name + ".err"))

    def start_beside(self, arguments):
        """Starts another program on this desk; it ends with the desk."""
        return self._children.start(arguments, self.environment, os.path.basename(arguments[0]))

    def run(self, arguments, clock=None):
        """Runs a short command on this desk; returns its output."""
        variables = {**self.environment, **(clock.environment() if clock else {})}
        return subprocess.run(arguments, env=variables, cwd=self.path("home"), check=True, capture_output=True,
                              timeout=20).stdout

    def clock(self, moment):
        """A clock for `start`, which shows `moment` now."""
        return Clock(self.path("clock"), moment)

    def log(self, name):
        with open(os.path.join(self.logs, name), encoding="utf-8", errors="replace") as text:
            return text.read()

    def starts_recorded(self, record):
        """How a recorder was started: for each start the list of its own path and its arguments."""
        starts = []
        if os.path.exists(record):
            with open(record, encoding="utf-8") as lines:
                for line in lines.read().splitlines():
                    kind, _, value = line.partition(" ")
                    if kind == "start":
                        starts.append([value])
                    else:
                        starts[-1].append(value)
        return starts

    def keep_evidence(self, name):
        """Copies screenshot, logs and data of a failed test to AMBERTASK_ARTIFACTS, if that is given."""
        target = os.environ.get("AMBERTASK_ARTIFACTS")
        if not target:
            return
        folder = os.path.join(target, name)
        os.makedirs(folder, exist_ok=True)
        self.screen.screenshot(os.path.join(folder, "screen.png"))
        with open(os.path.join(folder, "windows.json"), "w", encoding="utf-8") as text:
            json.dump([window.describe() for window in self.screen.clients()], text, indent=1)
        for log in os.listdir(self.logs):
            shutil.copy(os.path.join(self.logs, log), folder)
        if os.path.exists(self.data_file):
            shutil.copy(self.data_file, folder)


class Clock:
    """The wall clock that a program sees. Stepping it leaves the monotonic clock, and so its timers, alone."""

    def __init__(self, file, moment):
        self._file = file
        self.set(moment)

    def set(self, moment):
        """Makes it `moment` (a datetime; the desk lies in UTC) now; from there the clock runs on."""
        offset = moment.replace(tzinfo=timezone.utc).timestamp() - time.time()
        beside = self._file + ".new"
        with open(beside, "w", encoding="ascii") as text:
            text.write(f"{offset:+.3f}\n")
        os.replace(beside, self._file)

    def environment(self):
        library = next((path for path in FAKETIME_LIBRARIES if os.path.exists(path)), None)
        if not library:
            raise RuntimeError("libfaketime is not installed")
        return {
            "LD_PRELOAD": library,
            "FAKETIME_TIMESTAMP_FILE": self._file,
            "FAKETIME_NO_CACHE": "1",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1",
            "DONT_FAKE_MONOTONIC": "1",
            "NO_FAKE_STAT": "1",
        }
