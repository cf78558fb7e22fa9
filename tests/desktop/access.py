"""The program's controls as assistive technology sees them: found by role and caption, read and worked.

Talks to the accessibility bus directly, so each desk of one test process has a bus of its own and nothing is cached.
"""
from gi.repository import Gio, GLib

from polling import pump, wait_until

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
EDITABLE = "org.a11y.atspi.EditableText"
TABLE = "org.a11y.atspi.Table"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"
SELECTION = "org.a11y.atspi.Selection"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
LABELLED_BY = 2
STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "expanded": 10, "focusable": 11, "focused": 12,
          "pressed": 20, "selected": 23, "sensitive": 24, "showing": 25, "visible": 30}
# Rows of a table are read through the table; walking ten thousand cells would take the whole test.
OPAQUE_ROLES = {"table", "tree", "tree table", "list", "column header", "row header", "table cell"}


class Node:
    """One object of the program's accessible tree. Cheap to make; every property is asked anew."""

    def __init__(self, bus, owner, path):
        self._bus = bus
        self.owner = owner
        self.path = path

    def __eq__(self, other):
        return isinstance(other, Node) and (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))

    def __repr__(self):
        try:
            return f"<{self.role} '{self.name}'>"
        except GLib.Error:
            return "<gone>"

    def call(self, interface, method, arguments=None):
        return self._bus.call(self.owner, self.path, interface, method, arguments)

    def get(self, interface, name):
        return self._bus.call(self.owner, self.path, "org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (interface, name)))[0]

    @property
    def name(self):
        """What the user reads: without the marks where a long word may be broken into lines."""
        return self.get(ACCESSIBLE, "Name").replace("\u200b", "")

    @property
    def description(self):
        return self.get(ACCESSIBLE, "Description")

    @property
    def role(self):
        return self.call(ACCESSIBLE, "GetRoleName")[0]

    @property
    def states(self):
        low, high = self.call(ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    def has(self, state):
        return state in self.states

    def children(self):
        return [Node(self._bus, owner, path) for owner, path in self.call(ACCESSIBLE, "GetChildren")[0]]

    def labels(self):
        """The texts of the labels whose buddy this control is."""
        found = []
        for kind, targets in self.call(ACCESSIBLE, "GetRelationSet")[0]:
            if kind == LABELLED_BY:
                found += [Node(self._bus, owner, path).name for owner, path in targets]
        return found

    def captions(self):
        return [plain(text) for text in [self.name] + self.labels()]

    def walk(self, depth=12):
        """This object and those below it, breadth first, without the insides of tables and lists."""
        level = [self]
        for _ in range(depth):
            following = []
            for node in level:
                yield node
                try:
                    if node.role not in OPAQUE_ROLES:
                        following += node.children()
                except GLib.Error:
                    continue
            level = following

    def all(self, role, showing=True):
        found = []
        for node in self.walk():
            try:
                if node.role in as_roles(role) and (not showing or node.has("showing")):
                    found.append(node)
            except GLib.Error:
                continue
        return found

    def seek(self, role, *captions, showing=True):
        """The first control of that role with one of the captions, or None."""
        wanted = {plain(caption) for caption in captions}
        for node in self.all(role, showing):
            try:
                if not wanted or wanted.intersection(node.captions()):
                    return node
            except GLib.Error:
                continue
        return None

    def find(self, role, *captions, seconds=15, showing=True):
        """As `seek`, but waits for it and fails when it does not come."""
        return wait_until(lambda: self.seek(role, *captions, showing=showing), f"{role} {captions} in {self!r}",
                          seconds)

    # What is shown ----------------------------------------------------------------------------------------

    @property
    def text(self):
        """The content of a text box or picker."""
        return self.call(TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def checked(self):
        return self.has("checked")

    def place(self):
        """Position on the screen and size."""
        return self.call(COMPONENT, "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def center(self):
        x, y, width, height = self.place()
        return x + width // 2, y + height // 2

    def rows(self):
        return self.get(TABLE, "NRows")

    def columns(self):
        return self.get(TABLE, "NColumns")

    def headers(self):
        return [self.call(TABLE, "GetColumnDescription", GLib.Variant("(i)", (column,)))[0]
                for column in range(self.columns())]

    def cell(self, row, column):
        owner, path = self.call(TABLE, "GetAccessibleAt", GLib.Variant("(ii)", (row, column)))[0]
        return Node(self._bus, owner, path)

    def place_in_table(self, cell):
        """Row and column of a cell, by the number that it has among all that the table holds."""
        number = GLib.Variant("(i)", (cell.call(ACCESSIBLE, "GetIndexInParent")[0],))
        return self.call(TABLE, "GetRowAtIndex", number)[0], self.call(TABLE, "GetColumnAtIndex", number)[0]

    def row_texts(self, row):
        return [self.cell(row, column).name for column in range(self.columns())]

    def selected_rows(self):
        return list(self.call(TABLE, "GetSelectedRows")[0])

    # What is done -----------------------------------------------------------------------------------------

    def press(self):
        """Works a button, menu entry or check box without the mouse."""
        self.call(ACTION, "DoAction", GLib.Variant("(i)", (0,)))

    def actions(self):
        return [self.call(ACTION, "GetName", GLib.Variant("(i)", (index,)))[0]
                for index in range(self.get(ACTION, "NActions"))]

    def show_menu(self):
        """Opens the menu that belongs to a control or to a cell of a table."""
        self.call(ACTION, "DoAction", GLib.Variant("(i)", (self.actions().index("ShowMenu"),)))

    def add_row(self, row):
        """Selects a row of a table besides those that are selected."""
        self.call(TABLE, "AddRowSelection", GLib.Variant("(i)", (row,)))

    def grab_focus(self):
        return self.call(COMPONENT, "GrabFocus")[0]

    def set_text(self, text):
        self.call(EDITABLE, "SetTextContents", GLib.Variant("(s)", (text,)))

    def toggle(self, checked):
        if self.checked != checked:
            self.press()
            wait_until(lambda: self.checked == checked, f"{self!r} is {'checked' if checked else 'unchecked'}")


# Versions of Qt have different names for one role.
ROLES = {
    "button": ("push button", "button"),
    "menu button": ("button menu", "push button menu"),
    "message box": ("alert message", "alert", "message box"),
    "text box": ("text", "entry"),
    "combo box": ("combo box",),
    "check box": ("check box",),
    "option": ("radio button",),
    "picker": ("spin box", "date editor", "spin button"),
    "grid": ("table", "tree", "tree table"),
    "list": ("list", "list box"),
    "page": ("page tab",),
    "menu": ("popup menu", "menu"),
    "menu entry": ("menu item", "check menu item", "radio menu item"),
    "tool tip": ("tool tip",),
    "label": ("label",),
    "notification": ("notification",),
}


def as_roles(role):
    return ROLES.get(role, (role,))


def plain(text):
    """A caption without its mnemonic mark, closing colon and dots."""
    return text.replace("&", "").strip().rstrip(":.…").strip().casefold()


def connect_bus(address):
    """A connection to a message bus, which lives and dies without taking this process along."""
    connection = Gio.DBusConnection.new_for_address_sync(
        address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
        None, None)
    connection.set_exit_on_close(False)
    return connection


class Access:
    """The accessible objects of one program on a desk."""

    def __init__(self, address, pid):
        self.pid = pid
        self._connection = connect_bus(address)
        self._shown = []
        self._told = []
        self._connection.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, None,
                                          Gio.DBusSignalFlags.NONE, self._state_changed)
        # Qt sends only the events that somebody has asked the registry for.
        for kind in ("showing", "focused", "selected"):
            wait_until(lambda kind=kind: self._ask_for_events(kind), "the accessibility registry answers")

    def close(self):
        self._connection.close_sync(None)

    def call(self, owner, path, interface, method, arguments=None):
        return self._connection.call_sync(owner, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                          10000, None).unpack()

    def _ask_for_events(self, kind):
        try:
            self.call(REGISTRY[0], "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
                      GLib.Variant("(sass)", (f"object:state-changed:{kind}", [], "")))
            return True
        except GLib.Error:
            return False

    def _state_changed(self, _connection, sender, path, _interface, _signal, arguments):
        kind, shown = arguments.unpack()[:2]
        if kind == "showing" and shown:
            self._shown.append(Node(self, sender, path))
        self._told.append((kind, bool(shown), Node(self, sender, path)))

    def told(self, kind, on=True):
        """The objects of which the program has told that their state of that kind is on or off now, in turn."""
        pump()
        return [node for told_kind, told_on, node in self._told if (told_kind, told_on) == (kind, on)]

    def _pid_of(self, owner):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))[0]

    def application(self):
        """The root of the program, or None while it has not joined the bus."""
        try:
            for node in Node(self, *REGISTRY).children():
                if self._pid_of(node.owner) == self.pid:
                    return node
        except GLib.Error:
            pass
        return None

    def windows(self):
        application = self.application()
        return application.children() if application else []

    def seek_window(self, title, showing=True):
        """The window of that title; message boxes, which share the main window's title, are not meant."""
        for node in self.windows():
            try:
                if node.name == title and node.role not in as_roles("message box") \
                        and (not showing or node.has("showing")):
                    return node
            except GLib.Error:
                continue
        return None

    def window(self, title, seconds=15, showing=True):
        return wait_until(lambda: self.seek_window(title, showing), f"window '{title}'", seconds)

    def message_box(self, text, title="Ambertask", seconds=15):
        """The message box that says `text`, once it shows."""
        def look():
            for node in self.windows():
                try:
                    if node.name == title and node.role in as_roles("message box") and node.has("showing") \
                            and any(text in label.name for label in node.all("label")):
                        return node
                except GLib.Error:
                    continue
            return None
        return wait_until(look, f"message box '{text}'", seconds)

    def seek_shown(self, role, *captions):
        """An object without a parent on the bus (pop-up menu, balloon, tool tip), by the event of its showing."""
        pump()
        for node in reversed(self._shown):
            try:
                if node.role in as_roles(role) and node.has("showing") \
                        and (not captions or node.name in captions):
                    return node
            except GLib.Error:
                continue
        return None

    def shown(self, role, *captions, seconds=15):
        return wait_until(lambda: self.seek_shown(role, *captions), f"{role} {captions} shows", seconds)
