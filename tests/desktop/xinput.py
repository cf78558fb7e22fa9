"""Mouse and keyboard as the user has them: events go through the server to whatever lies there."""
import time

from Xlib import X, XK
from Xlib.ext import xtest

from polling import wait_until

LEFT, MIDDLE, RIGHT = 1, 2, 3
# A little more than Qt's own limits.
DOUBLE_CLICK_SECONDS = 0.5
DOUBLE_CLICK_DISTANCE = 10
FINGER_SECONDS = 0.06
NAMED = {" ": "space", "\t": "Tab", "\n": "Return"}


class Input:
    def __init__(self, screen):
        self._display = screen.display
        self._last_click = (-DOUBLE_CLICK_DISTANCE, 0, 0.0)

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
        self._part_from_last_click(x, y)
        self.hover(x, y)
        for number in range(times):
            if number:
                self._pause(FINGER_SECONDS)
            self.press(button)
            self.release(button)
        self._last_click = (x, y, time.monotonic())

    def _part_from_last_click(self, x, y):
        """Two clicks that are meant as two must not come as fast as a double click."""
        last_x, last_y, moment = self._last_click
        if abs(x - last_x) + abs(y - last_y) < DOUBLE_CLICK_DISTANCE:
            self._pause(moment + DOUBLE_CLICK_SECONDS - time.monotonic())

    def _pause(self, seconds):
        """A finger's own time: events at one and the same millisecond are not what a mouse sends."""
        end = time.monotonic() + seconds
        wait_until(lambda: time.monotonic() >= end, "the finger has moved")

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
        self.hold(0, name, *modifiers)

    def hold(self, seconds, name, *modifiers):
        """Holds one key down for so long: the X server repeats it."""
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
        if seconds:
            self._display.sync()
            self._pause(seconds)
        xtest.fake_input(self._display, X.KeyRelease, code)
        for modifier in reversed(held):
            xtest.fake_input(self._display, X.KeyRelease, modifier)
        self._display.sync()

    def switch_window(self):
        """Alt+Tab at the speed of fingers: window managers take the keyboard for it, which is lost on a faster one."""
        alt, tab = (self._code(XK.string_to_keysym(name))[0] for name in ("Alt_L", "Tab"))
        for kind, code in (X.KeyPress, alt), (X.KeyPress, tab), (X.KeyRelease, tab), (X.KeyRelease, alt):
            xtest.fake_input(self._display, kind, code)
            self._display.sync()
            self._pause(FINGER_SECONDS)

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
