"""Mouse and keyboard as the user has them: events go through the server to whatever lies there."""
from Xlib import X, XK
from Xlib.ext import xtest

LEFT, MIDDLE, RIGHT = 1, 2, 3
NAMED = {" ": "space", "\t": "Tab", "\n": "Return"}


class Input:
    def __init__(self, screen):
        self._display = screen.display

    def move(self, x, y):
        xtest.fake_input(self._display, X.MotionNotify, x=x, y=y)
        self._display.sync()

    def hover(self, x, y):
        """Brings the pointer there in two steps: windows only notice a pointer that travels inside them."""
        self.move(x - 1, y)
        self.move(x, y)

    def press(self, button=LEFT):
        xtest.fake_input(self._display, X.ButtonPress, button)
        self._display.sync()

    def release(self, button=LEFT):
        xtest.fake_input(self._display, X.ButtonRelease, button)
        self._display.sync()

    def click(self, x, y, button=LEFT, times=1):
        self.hover(x, y)
        for _ in range(times):
            self.press(button)
            self.release(button)

    def double_click(self, x, y):
        self.click(x, y, times=2)

    def _code(self, symbol):
        codes = list(self._display.keysym_to_keycodes(symbol))
        for code, index in codes:
            if index in (0, 1):
                return code, index == 1
        raise ValueError(f"no key for symbol {symbol:#x}")

    def key(self, name, *modifiers):
        """Strikes one key by its X name ("Return", "Delete", "a") while the modifiers are held down."""
        symbol = XK.string_to_keysym(name)
        if not symbol:
            raise ValueError(f"unknown key {name}")
        code, shifted = self._code(symbol)
        held = [self._code(XK.string_to_keysym(modifier))[0] for modifier in modifiers]
        if shifted:
            held.append(self._code(XK.XK_Shift_L)[0])
        for modifier in held:
            xtest.fake_input(self._display, X.KeyPress, modifier)
        xtest.fake_input(self._display, X.KeyPress, code)
        xtest.fake_input(self._display, X.KeyRelease, code)
        for modifier in reversed(held):
            xtest.fake_input(self._display, X.KeyRelease, modifier)
        self._display.sync()

    def type(self, text):
        """Types ASCII text; letters that the keyboard lacks are an error, never dropped."""
        for letter in text:
            if letter in NAMED:
                self.key(NAMED[letter])
            else:
                code, shifted = self._code(ord(letter))
                shift = self._code(XK.XK_Shift_L)[0]
                if shifted:
                    xtest.fake_input(self._display, X.KeyPress, shift)
                xtest.fake_input(self._display, X.KeyPress, code)
                xtest.fake_input(self._display, X.KeyRelease, code)
                if shifted:
                    xtest.fake_input(self._display, X.KeyRelease, shift)
        self._display.sync()
