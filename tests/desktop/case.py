"""What the tests of this folder have in common: a desk of their own for each, and evidence of a failure."""
import unittest

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

    def tearDown(self):
        result = self._outcome.result
        if any(test is self for test, _ in result.failures + result.errors):
            self.desk.keep_evidence(self.id().rpartition("__main__.")[2])

    def start(self, clock=None, environment=None):
        """Starts the program; the user who works it leaves when the test ends."""
        user = User(self.desk, clock, environment)
        self.addCleanup(user.close)
        return user


def main():
    unittest.main(verbosity=2)
