"""The window managers that a desk can have, each with the settings of its distribution."""
import glob
import os

from gi.repository import Gio, GLib

from access import connect_bus
from polling import wait_until

# No taskbar and no toolbar: they would be a second notification area.
COMMANDS = {
    "openbox": ["openbox", "--sm-disable"],
    "metacity": ["metacity", "--sm-disable", "--no-composite"],
    "icewm": ["icewm"],
    "fluxbox": ["fluxbox"],
    "xfwm4": ["xfwm4", "--compositor=off", "--sm-client-disable"],
}
FILES = {
    "icewm": {".icewm/preferences": "ShowTaskBar=0\n"},
    "fluxbox": {
        ".fluxbox/init": "session.screen0.toolbar.visible: false\nsession.screen0.toolbar.tools: clock\n",
        # Its wallpaper may fail to be set, and the message about that takes the keyboard.
        ".fluxbox/overlay": "background: none\n",
    },
}
SETTINGS_SERVICE = "org.xfce.Xfconf"


def chosen():
    """The one that AMBERTASK_WINDOW_MANAGER names."""
    return os.environ.get("AMBERTASK_WINDOW_MANAGER", "openbox")


def start(name, children, environment):
    """Starts the window manager among the children of a desk."""
    # Its own settings are kept nowhere: nothing on the desk could serve them.
    variables = {**environment, "GSETTINGS_BACKEND": "memory", "NO_AT_BRIDGE": "1"}
    for path, text in FILES.get(name, {}).items():
        path = os.path.join(environment["HOME"], path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
    if name == "xfwm4":
        _start_settings_service(children, variables)
    return children.start(COMMANDS[name], variables, name)


def _start_settings_service(children, environment):
    """xfwm4 does not start without its settings, and the desk's bus starts no service by itself."""
    children.start([glob.glob("/usr/lib/*/xfce4/xfconf/xfconfd")[0]], environment, "xfconfd")
    bus = connect_bus(environment["DBUS_SESSION_BUS_ADDRESS"])

    def served():
        return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                             GLib.Variant("(s)", (SETTINGS_SERVICE,)), None, Gio.DBusCallFlags.NONE, 5000,
                             None).unpack()[0]
    try:
        wait_until(served, "the settings of xfwm4 are served")
    finally:
        bus.close_sync(None)
