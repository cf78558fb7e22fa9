"""A desk on Wayland: the compositor sway without a screen, in the place of X server and window manager."""
import contextlib
import glob
import json
import os
import subprocess

from desktop import Desktop
from polling import wait_until
from processes import listens

# sway refuses root.
OTHER_USER = 65534
CONFIGURATION = "xwayland disable\nfloating_modifier none\n"
MODIFIERS = {"Control_L": "ctrl", "Alt_L": "alt", "Shift_L": "shift"}


class Window:
    """A window that is shown. Wayland tells of no hidden ones, and of a minimized one nothing."""

    mapped = True
    minimized = False

    def __init__(self, screen, node):
        self._screen = screen
        self._node = node

    @property
    def number(self):
        return self._node["id"]

    @property
    def title(self):
        return self._node["name"]

    @property
    def pid(self):
        return self._node["pid"]

    @property
    def active(self):
        return any(window.number == self.number and window._node["focused"] for window in self._screen.clients())

    @property
    def urgent(self):
        return self._node["urgent"]

    def place(self):
        rect = self._node["rect"]
        return rect["x"], rect["y"], rect["width"], rect["height"]

    def close(self):
        """As its close box does."""
        self._screen.command(f"[con_id={self.number}] kill")

    def activate(self):
        self._screen.command(f"[con_id={self.number}] focus")

    def describe(self):
        return {"title": self.title, "pid": self.pid, "place": self.place(), "focused": self._node["focused"]}


class Screen:
    """What the compositor knows of the windows."""

    def __init__(self, environment, socket):
        self._environment = environment
        self._socket = socket

    def close(self):
        pass

    def _ask(self, *words):
        return subprocess.run(["swaymsg", "--socket", self._socket, *words], env=self._environment, check=True,
                              capture_output=True, timeout=20).stdout

    def command(self, text):
        self._ask(text)

    def clients(self):
        found, pending = [], [json.loads(self._ask("--raw", "--type", "get_tree"))]
        while pending:
            node = pending.pop()
            if node.get("pid"):
                found.append(Window(self, node))
            pending += node.get("nodes", []) + node.get("floating_nodes", [])
        return found

    def client(self, title, pid=None):
        return next((window for window in self.clients() if window.title == title and pid in (None, window.pid)), None)

    def active(self):
        return next((window for window in self.clients() if window._node["focused"]), None)

    def screenshot(self, path):
        with contextlib.suppress(FileNotFoundError):
            subprocess.run(["grim", path], env=self._environment, check=False, timeout=20)


class Keyboard:
    """Typing into the window that has the focus."""

    def __init__(self, children, environment):
        self._environment = environment
        # The seat has a keyboard for as long as one is held; a window takes a moment to notice it.
        children.start(["wtype", "-s", "86400000"], environment, "keyboard")

    def key(self, name, *modifiers):
        """Strikes one key by its name ("Return", "Delete", "a") while the modifiers are held down."""
        words = []
        for modifier in modifiers:
            words += ["-M", MODIFIERS[modifier]]
        words += ["-k", name]
        for modifier in modifiers:
            words += ["-m", MODIFIERS[modifier]]
        self._strike(words)

    def type(self, text):
        self._strike([text])

    def _strike(self, words):
        subprocess.run(["wtype", *words], env=self._environment, check=True, timeout=20)


class SwayDesktop(Desktop):
    """As Desktop, without a notification area."""

    def __init__(self):
        super().__init__(tray=False)

    def _start_display(self):
        runtime = self._make_folder("sway", mode=0o700)
        configuration = self.write("sway.conf", CONFIGURATION)
        command = ["sway", "--config", configuration]
        if os.geteuid() == 0:
            os.chown(runtime, OTHER_USER, OTHER_USER)
            command = ["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups"] + command
        self.compositor = self._children.start(
            command, {**self.environment, "XDG_RUNTIME_DIR": runtime, "HOME": runtime, "XDG_CONFIG_HOME": runtime,
                      "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"}, "sway")

        def socket(pattern):
            return next((path for path in glob.glob(os.path.join(runtime, pattern)) if listens(path)), None)

        display = wait_until(lambda: socket("wayland-[0-9]"), "the compositor is there")
        self._control = wait_until(lambda: socket("sway-ipc.*"), "the compositor can be asked")
        self.environment.update({"WAYLAND_DISPLAY": display, "QT_QPA_PLATFORM": "wayland"})

    def _start_window_manager(self):
        """It is the compositor."""

    def _meet_user(self):
        self.screen = Screen(self.environment, self._control)
        self.input = Keyboard(self._children, self.environment)
