"""What the X server and the window manager know of the windows: state, owner, order, place, picture."""
import struct
import zlib

from Xlib import X, XK, Xutil, display, error
from Xlib.protocol import event

ICONIC = 3
KEY_NAMES = {symbol: name.removeprefix("XK_") for name, symbol in vars(XK).items() if name.startswith("XK_")}


class Window:
    """A top-level window of the desk."""

    def __init__(self, screen, handle):
        self._screen = screen
        self.handle = handle
        self.id = handle.id

    def __eq__(self, other):
        return isinstance(other, Window) and self.id == other.id

    def __hash__(self):
        return self.id

    def __repr__(self):
        return f"<window {self.id:#x} '{self.title}'>"

    def _property(self, name):
        return self._screen.property(self.handle, name)

    @property
    def title(self):
        text = self._property("_NET_WM_NAME") or self._property("WM_NAME")
        return text.decode("utf-8", "replace") if isinstance(text, bytes) else (text or "")

    @property
    def pid(self):
        return (self._property("_NET_WM_PID") or [0])[0]

    @property
    def states(self):
        return {self._screen.atom_name(atom) for atom in self._property("_NET_WM_STATE") or []}

    @property
    def topmost(self):
        return "_NET_WM_STATE_ABOVE" in self.states

    @property
    def modal(self):
        return "_NET_WM_STATE_MODAL" in self.states

    @property
    def demands_attention(self):
        return "_NET_WM_STATE_DEMANDS_ATTENTION" in self.states

    @property
    def owner(self):
        """The window that this one belongs to and stays above, or None."""
        owner = (self._property("WM_TRANSIENT_FOR") or [0])[0]
        return self._screen.window(owner) if owner and owner != self._screen.root.id else None

    @property
    def mapped(self):
        try:
            return self.handle.get_attributes().map_state == X.IsViewable
        except error.XError:
            return False

    @property
    def minimized(self):
        state = self._property("WM_STATE")
        return bool(state) and state[0] == ICONIC

    @property
    def active(self):
        return self._screen.active() == self

    def place(self):
        """Position on the screen and size: x, y, width, height."""
        geometry = self.handle.get_geometry()
        corner = self.handle.translate_coords(self._screen.root, 0, 0)
        return -corner.x, -corner.y, geometry.width, geometry.height

    def center(self):
        x, y, width, height = self.place()
        return x + width // 2, y + height // 2

    def close(self):
        """What the close box of the title bar does."""
        self._screen.tell_manager(self.handle, "_NET_CLOSE_WINDOW", [0, 2, 0, 0, 0])

    def activate(self):
        """What a click in a task bar does."""
        self._screen.tell_manager(self.handle, "_NET_ACTIVE_WINDOW", [2, 0, 0, 0, 0])

    def move(self, x, y, width, height):
        """What a user does who drags the window and its edges; the place is that of the frame."""
        north_west, with_all, from_user = 1, 0xF << 8, 2 << 12
        self._screen.tell_manager(self.handle, "_NET_MOVERESIZE_WINDOW",
                                  [north_west | with_all | from_user, x, y, width, height])

    def frame(self):
        """Widths of the frame: left, right, top, bottom."""
        return tuple(self._property("_NET_FRAME_EXTENTS") or (0, 0, 0, 0))

    def outer_place(self):
        """Position and size with the frame: x, y, width, height."""
        x, y, width, height = self.place()
        left, right, top, bottom = self.frame()
        return x - left, y - top, width + left + right, height + top + bottom

    def minimize(self):
        self._screen.tell_manager(self.handle, "WM_CHANGE_STATE", [ICONIC, 0, 0, 0, 0])

    def describe(self):
        return {"id": hex(self.id), "title": self.title, "pid": self.pid, "mapped": self.mapped,
                "minimized": self.minimized, "states": sorted(self.states), "owner": repr(self.owner)}


class Screen:
    """A connection to the display."""

    def __init__(self, name):
        self.display = display.Display(name)
        self.display.set_error_handler(lambda *_: None)
        self.root = self.display.screen().root
        self._atom_names = {}

    def close(self):
        self.display.close()

    def atom(self, name):
        return self.display.intern_atom(name)

    def atom_name(self, atom):
        if atom not in self._atom_names:
            self._atom_names[atom] = self.display.get_atom_name(atom)
        return self._atom_names[atom]

    def property(self, handle, name):
        try:
            found = handle.get_full_property(self.atom(name), X.AnyPropertyType)
        except error.XError:
            return None
        if not found:
            return None
        return found.value if isinstance(found.value, (bytes, str)) else list(found.value)

    def window(self, number):
        return Window(self, self.display.create_resource_object("window", number))

    def tell_manager(self, handle, message, values):
        self.root.send_event(
            event.ClientMessage(window=handle, client_type=self.atom(message), data=(32, values)),
            event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.display.flush()

    def has_window_manager(self):
        return bool(self.property(self.root, "_NET_SUPPORTING_WM_CHECK"))

    def clients(self):
        """The managed windows, also minimized ones. Hidden windows and pop-ups are not among them."""
        return [self.window(number) for number in self.property(self.root, "_NET_CLIENT_LIST") or []]

    def stacking(self):
        """The managed windows from the lowest to the highest, as the server has them: what a window manager tells of
        it (fluxbox) need not be so."""
        clients = {window.id: window for window in self.clients()}
        found = []
        for frame in self.root.query_tree().children:
            pending = [frame]
            while pending:
                handle = pending.pop()
                if handle.id in clients:
                    found.append(clients[handle.id])
                    break
                try:
                    pending += handle.query_tree().children
                except error.XError:
                    continue
        return found

    def is_above(self, upper, lower):
        order = self.stacking()
        return upper in order and lower in order and order.index(upper) > order.index(lower)

    def active(self):
        number = (self.property(self.root, "_NET_ACTIVE_WINDOW") or [0])[0]
        return self.window(number) if number else None

    def client(self, title, pid=None):
        """The managed window with this title (of this process), or None."""
        for window in self.clients():
            if window.title == title and (pid is None or window.pid == pid):
                return window
        return None

    def unmanaged(self):
        """Mapped windows that the window manager leaves alone: menus, tool tips, balloons."""
        found = []
        for handle in self.root.query_tree().children:
            try:
                attributes = handle.get_attributes()
            except error.XError:
                continue
            if attributes.map_state == X.IsViewable and attributes.override_redirect \
                    and attributes.win_class == X.InputOutput:
                found.append(Window(self, handle))
        return found

    def open_plain_window(self, title, x, y, width, height):
        """Shows a window of another program, to be covered or to take the focus."""
        handle = self.root.create_window(x, y, width, height, 0, X.CopyFromParent, X.InputOutput, X.CopyFromParent,
                                         background_pixel=0x336699,
                                         event_mask=X.FocusChangeMask | X.KeyPressMask)
        handle.set_wm_name(title)
        handle.set_wm_protocols([self.atom("WM_DELETE_WINDOW")])
        handle.set_wm_normal_hints(flags=Xutil.PPosition | Xutil.PSize)
        handle.map()
        self.display.sync()
        return Window(self, handle)

    def keys_struck(self):
        """The symbols of the keys that the plain windows have received since the last call, as X names them."""
        names = []
        while self.display.pending_events():
            one = self.display.next_event()
            if one.type == X.KeyPress:
                names.append(KEY_NAMES.get(self.display.keycode_to_keysym(one.detail, 0)))
        return names

    # The screen itself ------------------------------------------------------------------------------------

    def resize(self, width, height):
        """What unplugging the larger monitor does; never larger than the screen was at first."""
        resources = self.root.xrandr_get_screen_resources()
        output, crtc = resources.outputs[0], resources.crtcs[0]
        name = f"{width}x{height}"
        mode = self.root.xrandr_create_mode(
            (0, width, height, 60 * width * height, width, width, width, 0, height, height, height, len(name), 0),
            name).mode
        self.display.xrandr_add_output_mode(output, mode)
        now = resources.config_timestamp
        self.display.xrandr_set_crtc_config(crtc, now, 0, 0, 0, 1, [])
        self.root.xrandr_set_screen_size(width, height, width // 4, height // 4)
        self.display.xrandr_set_crtc_config(crtc, now, 0, 0, mode, 1, [output])
        self.display.sync()

    def size(self):
        geometry = self.root.get_geometry()
        return geometry.width, geometry.height

    # The notification area --------------------------------------------------------------------------------

    def tray_manager(self):
        owner = self.display.get_selection_owner(self.atom("_NET_SYSTEM_TRAY_S0"))
        return owner if owner else None

    def tray_icons(self):
        """The docked icons that can be seen."""
        manager = self.tray_manager()
        clients = self.property(self.root, "_NET_CLIENT_LIST") or []
        found = []
        pending = [self.window(number).handle for number in clients] + ([manager] if manager else [])
        while pending:
            handle = pending.pop()
            try:
                children = handle.query_tree().children
            except error.XError:
                continue
            for child in children:
                if self.property(child, "_XEMBED_INFO"):
                    icon = Window(self, child)
                    if icon.mapped:
                        found.append(icon)
                pending.append(child)
        return list(dict.fromkeys(found))

    # Pictures ---------------------------------------------------------------------------------------------

    def pixel(self, x, y):
        """The colour shown at a place of the screen: red, green, blue."""
        return self.pixels(x, y, 1, 1)[0]

    def pixels(self, x, y, width, height):
        """The colours shown in a rectangle of the screen, row by row: red, green, blue."""
        data = self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data
        return list(zip(data[2::4], data[1::4], data[0::4]))

    def screenshot(self, path):
        geometry = self.root.get_geometry()
        width, height = geometry.width, geometry.height
        data = self.root.get_image(0, 0, width, height, X.ZPixmap, 0xFFFFFFFF).data
        rows = bytearray()
        for row in range(height):
            line = data[row * width * 4:(row + 1) * width * 4]
            colours = bytearray(width * 3)
            colours[0::3], colours[1::3], colours[2::3] = line[2::4], line[1::4], line[0::4]
            rows += b"\0" + colours

        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        with open(path, "wb") as picture:
            picture.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                          + chunk(b"IDAT", zlib.compress(bytes(rows), 3)) + chunk(b"IEND", b""))
