"""A notification area of the StatusNotifierItem kind: the desktop's side of it, served on the session bus."""
from gi.repository import Gio, GLib

from access import connect_bus
from polling import wait_until

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
INTERFACES = """<node>
  <interface name="org.kde.StatusNotifierWatcher">
    <method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
    <method name="RegisterStatusNotifierHost"><arg name="service" type="s" direction="in"/></method>
    <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <property name="ProtocolVersion" type="i" access="read"/>
    <signal name="StatusNotifierItemRegistered"><arg name="service" type="s"/></signal>
    <signal name="StatusNotifierHostRegistered"/>
  </interface>
  <interface name="org.freedesktop.Notifications">
    <method name="Notify">
      <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
      <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
    </method>
    <method name="CloseNotification"><arg type="u" direction="in"/></method>
    <method name="GetCapabilities"><arg type="as" direction="out"/></method>
    <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
    <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
    <method name="GetServerInformation">
      <arg type="s" direction="out"/><arg type="s" direction="out"/><arg type="s" direction="out"/>
      <arg type="s" direction="out"/>
    </method>
  </interface>
</node>"""


class NotifierArea:
    """Takes icons and notifications in. Calls of the program are answered whenever a test polls."""

    def __init__(self, address):
        self._bus = connect_bus(address)
        self.items = []
        self.notifications = []
        self.offers = {}
        self.withdrawn = []
        described = Gio.DBusNodeInfo.new_for_xml(INTERFACES)
        for path, interface in zip(("/StatusNotifierWatcher", "/org/freedesktop/Notifications"), described.interfaces):
            self._bus.register_object(path, interface, self._called, self._asked, None)
        for name in (WATCHER, "org.freedesktop.Notifications"):
            self._ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                      GLib.Variant("(su)", (name, 0)))

    def close(self):
        if not self._bus.is_closed():
            self._bus.close_sync(None)

    def _called(self, _connection, sender, _path, _interface, method, arguments, invocation):
        values = arguments.unpack()
        if method == "RegisterStatusNotifierItem":
            self.items.append((sender, values[0]))
            invocation.return_value(None)
            self._bus.emit_signal(None, "/StatusNotifierWatcher", WATCHER, "StatusNotifierItemRegistered",
                                  GLib.Variant("(s)", (values[0],)))
        elif method == "Notify":
            self.notifications.append({"title": values[3], "text": values[4], "milliseconds": values[7]})
            self.offers[len(self.notifications)] = values[5]
            invocation.return_value(GLib.Variant("(u)", (len(self.notifications),)))
        elif method == "CloseNotification":
            self.withdrawn.append(values[0])
            invocation.return_value(None)
        elif method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", (["body", "body-markup", "actions"],)))
        elif method == "GetServerInformation":
            invocation.return_value(GLib.Variant("(ssss)", ("desk", "tests", "1", "1.2")))
        else:
            invocation.return_value(None)

    def _asked(self, _connection, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", [service for _, service in self.items]),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def _ask(self, owner, path, interface, method, arguments=None):
        """A call that keeps serving the program meanwhile: it may call back before it answers."""
        answers = []

        def answered(bus, result):
            try:
                answers.append((bus.call_finish(result), None))
            except GLib.Error as failure:
                answers.append((None, failure))

        self._bus.call(owner, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 10000, None, answered)
        wait_until(lambda: answers, f"{method} is answered")
        value, failure = answers[0]
        if failure:
            raise failure
        return value.unpack()

    # Notifications, by their numbers counted from 1 ----------------------------------------------------------

    def wait_notification(self, title):
        """The number of the last notification, once that has this title."""
        def shown():
            return bool(self.notifications) and self.notifications[-1]["title"] == title
        wait_until(shown, f"a notification '{title}' comes")
        return len(self.notifications)

    def answer(self, number, key):
        """What a click on one of its buttons does, or on its text for "default"."""
        for signal, value in (("ActionInvoked", GLib.Variant("(us)", (number, key))),
                              ("NotificationClosed", GLib.Variant("(uu)", (number, 2)))):
            self._bus.emit_signal(None, "/org/freedesktop/Notifications", "org.freedesktop.Notifications", signal,
                                  value)

    # The one icon of the program --------------------------------------------------------------------------

    def wait_item(self):
        return wait_until(lambda: self.items, "an icon registers")[0][0]

    def item_property(self, name):
        return self._ask(self.wait_item(), "/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (ITEM, name)))[0]

    def tip(self):
        """The tool tip's title."""
        return self.item_property("ToolTip")[2]

    def activate(self):
        """What a click on the icon does on such a desktop."""
        self._ask(self.wait_item(), "/StatusNotifierItem", ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def menu(self):
        """The entries of the icon's menu: caption and number."""
        owner, path = self.wait_item(), self.item_property("Menu")
        layout = self._ask(owner, path, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
        return {properties.get("label", "").replace("_", ""): number for number, properties, _ in layout[2]}

    def choose(self, caption):
        owner, path, number = self.wait_item(), self.item_property("Menu"), self.menu()[caption]
        self._ask(owner, path, MENU, "Event",
                  GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0)))
