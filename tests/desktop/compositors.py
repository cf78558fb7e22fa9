"""Desks on the compositors that the large desktops are built on, without a screen. Neither of them tells a test of its
windows, so what is shown and active is what assistive technology hears."""
import glob
import os
import shutil

from desktop import Desktop
from polling import wait_until
from processes import listens

COMMANDS = {
    "mutter": ["mutter", "--headless", "--wayland", "--no-x11", "--virtual-monitor", "1280x960"],
    "kwin": ["kwin_wayland", "--virtual", "--width", "1280", "--height", "960", "--no-lockscreen"],
}


class NoScreen:
    """In the place of what other desks know of windows."""

    def close(self):
        pass

    def clients(self):
        return []

    def screenshot(self, path):
        pass


class CompositorDesktop(Desktop):
    """As Desktop, without a notification area, a keyboard or a mouse."""

    def __init__(self, name):
        super().__init__(tray=False)
        self._compositor_name = name

    def _start_display(self):
        """The compositor needs the buses, so it comes after them."""

    def _start_window_manager(self):
        program = COMMANDS[self._compositor_name][0]
        # kwin has a capability for its priority, with which a container does not let it start. A copy has none.
        shutil.copy(shutil.which(program), os.path.join(self.commands, program))
        self._start_compositor(COMMANDS[self._compositor_name], {"GSETTINGS_BACKEND": "memory"})

    def _start_compositor(self, command, settings):
        runtime = self.environment["XDG_RUNTIME_DIR"]
        variables = {**self.environment, "NO_AT_BRIDGE": "1", **settings}
        # kwin asks its own platform for one.
        del variables["QT_QPA_PLATFORM"]
        self.compositor = self._children.start(command, variables, self._compositor_name)

        def display():
            sockets = (path for path in glob.glob(os.path.join(runtime, "wayland-*")) if not path.endswith(".lock"))
            return next((path for path in sockets if listens(path)), None)

        self.environment.update({"WAYLAND_DISPLAY": wait_until(display, "the compositor is there"),
                                 "QT_QPA_PLATFORM": "wayland"})

    def _meet_user(self):
        self.screen = NoScreen()
        self.input = None
