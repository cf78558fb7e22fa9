"""A desk on GNOME's shell without a screen: its windows, notifications, icons, keyboard and mouse.

The shell runs what a test asks of it, which it allows to nobody else, by an extension of the desk's own.
"""
import json
import os

from gi.repository import Gio, GLib

from access import connect_bus
from compositors import CompositorDesktop
from polling import wait_rest, wait_until

NAME = "org.gnome.Shell"
ICONS = "ubuntu-appindicators@ubuntu.com"
DESK = "desk@tests"
EXTENSION = "function init() { global.context.unsafe_mode = true; }\nfunction enable() {}\nfunction disable() {}\n"
SETTINGS = "[org/gnome/shell]\nenabled-extensions={extensions}\nwelcome-dialog-last-shown-version='99'\n"
SERVICE = "/usr/share/gnome-shell/org.gnome.Shell.Notifications"
# A window takes a moment to notice that the seat has got these, so they are there from the start.
DEVICES = """global.deskDevices = (({DeviceType, seat}) => ({
    keyboard: seat.create_virtual_device(DeviceType.KEYBOARD_DEVICE),
    pointer: seat.create_virtual_device(DeviceType.POINTER_DEVICE)}))({
    DeviceType: imports.gi.Clutter.InputDeviceType,
    seat: imports.gi.Clutter.get_default_backend().get_default_seat()}); true"""
WINDOWS = """global.get_window_actors().map(actor => actor.meta_window).map(window => ({
    number: window.get_id(), title: window.get_title(), pid: window.get_pid(), active: window.has_focus(),
    minimized: !window.showing_on_its_workspace()}))"""
WINDOW = "global.get_window_actors().map(actor => actor.meta_window).find(window => window.get_id() == {number})"
CENTER = "(actor => [actor.get_transformed_position(), [actor.width, actor.height]])"
ICON = "Object.entries(Main.panel.statusArea).find(([name]) => name.startsWith('appindicator'))[1]"
NAMED_KEYS = {" ": "space", "&": "ampersand", "<": "less", ">": "greater"}
LEFT = 1


class Shell:
    """What GNOME's shell shows, asked in its own language."""

    def __init__(self, address):
        self._bus = connect_bus(address)

    def close(self):
        self._bus.close_sync(None)

    def owns(self, name):
        return self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                   "NameHasOwner", GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, 5000,
                                   None).unpack()[0]

    def ask(self, script):
        done, answer = self._bus.call_sync(NAME, "/org/gnome/Shell", NAME, "Eval", GLib.Variant("(s)", (script,)), None,
                                           Gio.DBusCallFlags.NONE, 10000, None).unpack()
        if not done:
            raise RuntimeError(f"the shell does not do this: {script}: {answer}")
        return json.loads(answer) if answer else None

    def is_up(self):
        try:
            return self.ask("!Main.layoutManager._startingUp")
        except (GLib.Error, RuntimeError):
            return False

    def center(self, actor):
        """The middle of an actor on the screen, once it rests there."""
        def place():
            return self.ask(f"{CENTER}({actor})")
        (x, y), (width, height) = wait_rest(place, f"{actor} rests")
        return x + width / 2, y + height / 2

    # Windows ----------------------------------------------------------------------------------------------

    def clients(self):
        return [Window(self, values) for values in self.ask(WINDOWS)]

    def client(self, title, pid=None):
        return next((window for window in self.clients() if window.title == title and pid in (None, window.pid)), None)

    def active(self):
        return next((window for window in self.clients() if window.active), None)

    def screenshot(self, path):
        self._bus.call_sync("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot", "org.gnome.Shell.Screenshot",
                            "Screenshot", GLib.Variant("(bbs)", (False, False, path)), None, Gio.DBusCallFlags.NONE,
                            10000, None)

    # Notifications ----------------------------------------------------------------------------------------

    def banner(self):
        """Title, text and captions of the buttons of the notification on the screen, or None."""
        return self.ask("""(banner => banner && {title: banner.notification.title,
            text: banner.notification.bannerBodyText,
            buttons: banner._buttonBox ? banner._buttonBox.get_children().map(button => button.label) : []})
            (Main.messageTray._banner)""")

    def wait_banner(self, title):
        def shown():
            banner = self.banner()
            return banner if banner and banner["title"] == title else None
        return wait_until(shown, f"a notification '{title}' shows")

    def banner_button(self, caption):
        """Where a button of the notification is."""
        return self.center("Main.messageTray._banner._buttonBox.get_children().find(button => button.label == "
                           f"{json.dumps(caption)})")

    def is_told(self, title):
        """Whether a notification of that title is kept, on the screen or in the list."""
        return self.ask("Main.messageTray.getSources().some(source => source.notifications.some(notification => "
                        f"notification.title == {json.dumps(title)}))")

    # Icons ------------------------------------------------------------------------------------------------

    def has_icon(self):
        return self.ask("Object.keys(Main.panel.statusArea).some(name => name.startsWith('appindicator'))")

    def icon(self):
        wait_until(self.has_icon, "the icon is in the panel")
        return self.center(ICON)

    def show_icons(self, shown):
        self.ask(f"Main.extensionManager.{'enable' if shown else 'disable'}Extension('{ICONS}')")

    def menu_entry(self, caption):
        """Where an entry of the icon's open menu is."""
        entry = (f"{ICON}.menu._getMenuItems().find(entry => entry.label && entry.label.text.replace('_', '') "
                 f"== {json.dumps(caption)})")
        wait_until(lambda: self.ask(f"{ICON}.menu.isOpen && !!{entry}"), f"the menu with '{caption}' is open")
        return self.center(entry)


class Window:
    """A window as the shell had it when it was asked; `active` and the like are of that moment."""

    mapped = True

    def __init__(self, shell, values):
        self._shell = shell
        self.number, self.title, self.pid = values["number"], values["title"], values["pid"]
        self.active, self.minimized = values["active"], values["minimized"]

    def close(self):
        """As its close box does."""
        self._shell.ask(WINDOW.format(number=self.number) + ".delete(global.get_current_time())")

    def minimize(self):
        self._shell.ask(WINDOW.format(number=self.number) + ".minimize()")

    def describe(self):
        return {"title": self.title, "pid": self.pid, "active": self.active, "minimized": self.minimized}


class Hands:
    """Keyboard and mouse."""

    def __init__(self, shell):
        self._shell = shell

    def key(self, name, *modifiers):
        keys = json.dumps([*modifiers, name])
        self._shell.ask(f"""(keys => {{
            const strike = (key, state) => global.deskDevices.keyboard.notify_keyval(
                imports.gi.GLib.get_monotonic_time(), imports.gi.Clutter['KEY_' + key], state);
            keys.forEach(key => strike(key, imports.gi.Clutter.KeyState.PRESSED));
            keys.reverse().forEach(key => strike(key, imports.gi.Clutter.KeyState.RELEASED));
        }})({keys})""")

    def type(self, text):
        for letter in text:
            self.key(NAMED_KEYS.get(letter, letter), *(["Shift_L"] if letter.isupper() else []))

    def click(self, x, y, times=1):
        self._shell.ask(f"""(pointer => {{
            const now = () => imports.gi.GLib.get_monotonic_time();
            pointer.notify_absolute_motion(now(), {x}, {y});
            for (let count = 0; count < {times}; ++count) {{
                pointer.notify_button(now(), {LEFT}, imports.gi.Clutter.ButtonState.PRESSED);
                pointer.notify_button(now(), {LEFT}, imports.gi.Clutter.ButtonState.RELEASED);
            }}
        }})(global.deskDevices.pointer)""")

    def double_click(self, x, y):
        self.click(x, y, 2)


class GnomeDesktop(CompositorDesktop):
    """As Desktop; `icons` says whether the extension for the icons of programs is on."""

    def __init__(self, icons=True):
        super().__init__("gnome-shell")
        self._extensions = [DESK, ICONS] if icons else [DESK]

    def _start_window_manager(self):
        folder = self._make_folder("home", ".local", "share", "gnome-shell", "extensions", DESK)
        description = {"uuid": DESK, "name": "Desk", "description": "Asks the shell", "shell-version": ["43"]}
        self.write(os.path.join(folder, "metadata.json"), json.dumps(description))
        self.write(os.path.join(folder, "extension.js"), EXTENSION)
        folder = self._make_folder("home", ".config", "glib-2.0", "settings")
        self.write(os.path.join(folder, "keyfile"), SETTINGS.format(extensions=self._extensions))
        # It asks a system bus who is logged in, and does without an answer, but not without a bus.
        settings = {"GSETTINGS_BACKEND": "keyfile",
                    "DBUS_SYSTEM_BUS_ADDRESS": self.environment["DBUS_SESSION_BUS_ADDRESS"]}
        self._start_compositor(["gnome-shell", "--headless", "--wayland", "--no-x11", "--virtual-monitor", "1280x960"],
                               settings)
        self.environment["XDG_CURRENT_DESKTOP"] = "GNOME"
        self.shell = Shell(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        wait_until(self.shell.is_up, "the shell is there", 60)
        self._children.start(["gjs", SERVICE], {**self.environment, **settings}, "notifications")
        wait_until(lambda: self.shell.owns("org.freedesktop.Notifications"), "the shell's notifications are served")
        # Root is told not to be root, and everybody sees an overview at the start.
        self.shell.ask("Main.messageTray.getSources().forEach(source => source.destroy()); Main.overview.hide()")
        wait_until(lambda: not self.shell.ask("Main.overview.visible"), "the overview is left")
        self.shell.ask(DEVICES)

    def _meet_user(self):
        self.screen = self.shell
        self.input = Hands(self.shell)
