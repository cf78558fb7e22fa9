"""What the tests of this folder have in common: a desk of their own for each, and evidence of a failure."""
import sys
import unittest

from gi.repository import GLib

from desktop import Desktop
from user import User


class DesktopCase(unittest.TestCase):
    """Sets up one desk a test. Subclasses say what stands on it."""

    tray = True
    sound = False

    def make_desk(self):
        return Desktop(tray=self.tray, sound=self.sound)

    def setUp(self):
        self.desk = self.enterContext(self.make_desk())
        self.store = self.desk.store
        self.users = []

    def tearDown(self):
        result = self._outcome.result
        if any(test is self for test, _ in result.failures + result.errors):
            self.desk.keep_evidence(self.id().rpartition("__main__.")[2])
            for user in self.users:
                print(f"At the end of {self.id()}:", *told(user), sep="\n  ", file=sys.stderr)

    def start(self, clock=None, environment=None):
        """Starts the program; the user who works it leaves when the test ends."""
        user = User(self.desk, clock, environment)
        self.users.append(user)
        self.addCleanup(user.close)
        return user


def told(user):
    """What a program says to its user at this moment, line by line: where nobody sees the screen, it tells a question
    that nobody expected from a key that was lost and from a program that hangs."""
    try:
        lines = [f"process {user.program.pid} " + ("runs" if user.program.running() else "has ended")]
        for window in user.access.windows():
            if window.has("showing"):
                lines.append(f"{window!r} {sorted(window.states)}: "
                             + "; ".join(label.name for label in window.all("label")))
                lines += [f"  focused: {node!r}" for node in window.walk() if node.has("focused")]
    except GLib.Error as error:
        lines.append(f"the program does not tell: {error.message}")
    return lines + user.program.errors().splitlines()[-10:]


def main():
    unittest.main(verbosity=2)
