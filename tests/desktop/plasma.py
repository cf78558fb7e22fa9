"""A desk on Plasma without a screen: its panel and notifications, worked as assistive technology does."""
import glob

from gi.repository import Gio, GLib

from access import Access, connect_bus
from compositors import CompositorDesktop
from polling import wait_until

MINIMIZE = "for (const window of workspace.clientList()) if (window.caption == '{title}') window.minimized = true;"
# An icon of the notification area; what the task bar has of the same name is larger.
LARGEST_ICON = 30


class PlasmaDesktop(CompositorDesktop):
    """As Desktop, without a keyboard or a mouse."""

    def __init__(self):
        super().__init__("kwin")

    def _start_compositor(self, command, settings):
        # It asks a system bus for much, and does without an answer.
        self.environment.update({"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5",
                                 "DBUS_SYSTEM_BUS_ADDRESS": self.environment["DBUS_SESSION_BUS_ADDRESS"]})
        super()._start_compositor(command, settings)
        self._bus = connect_bus(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        activities = glob.glob("/usr/lib/*/libexec/kactivitymanagerd")[0]
        for line, platform, name in (([activities], "offscreen", "org.kde.ActivityManager"),
                                     (["kded5"], "wayland", "org.kde.StatusNotifierWatcher"),
                                     (["plasmashell", "--no-respawn"], "wayland", "org.freedesktop.Notifications")):
            self.shell = self._children.start(
                line, {**self.environment, "QT_QPA_PLATFORM": platform, "QT_QUICK_BACKEND": "software"}, name)
            wait_until(lambda name=name: self._owns(name), f"{name} is served", 60)

    def _meet_user(self):
        super()._meet_user()
        self._access = Access(self.access_address(), self.shell.pid)

    def __exit__(self, *details):
        self._access.close()
        self._bus.close_sync(None)
        super().__exit__(*details)

    def _call(self, owner, path, interface, method, arguments):
        return self._bus.call_sync(owner, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 5000,
                                   None).unpack()

    def _owns(self, name):
        return self._call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                          GLib.Variant("(s)", (name,)))[0]

    def minimize(self, title):
        """As the button of its frame does."""
        file = GLib.Variant("(s)", (self.write("minimize.js", MINIMIZE.format(title=title)),))
        number = self._call("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", "loadScript", file)[0]
        self._call("org.kde.KWin", f"/{number}", "org.kde.kwin.Script", "run", None)
        self._call("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", "unloadScript", file)

    def seek_buttons(self, caption):
        try:
            return [button for window in self._access.windows() for button in window.all("button")
                    if button.name == caption]
        except GLib.Error:
            return []

    def button(self, caption):
        """A button of the one notification on the screen."""
        return wait_until(lambda: self.seek_buttons(caption), f"a notification offers '{caption}'")[0]

    def icon(self):
        """The icon of the program in the panel; its "Press" is a click."""
        def small():
            return [button for button in self.seek_buttons("Ambertask") if button.place()[2] < LARGEST_ICON]
        return wait_until(small, "the icon is in the panel")[0]
