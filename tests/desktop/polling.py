"""Waiting for a condition with a deadline: the only way in which these tests let time pass."""
import time

from gi.repository import GLib

DEFAULT_SECONDS = 15.0
# The period of the program's ticks, and slack.
PERIOD_AND_SLACK = 15
INTERVAL = 0.02


def pump():
    """Delivers what has arrived from the message buses: signals, and calls of what a test serves itself."""
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def wait_until(condition, what, seconds=DEFAULT_SECONDS):
    """Returns the first true value of `condition`; fails with `what` when `seconds` have gone by."""
    deadline = time.monotonic() + seconds
    while True:
        pump()
        value = condition()
        if value:
            return value
        if time.monotonic() >= deadline:
            raise AssertionError(f"not within {seconds:g} s: {what}")
        time.sleep(INTERVAL)


def wait_rest(value, what, seconds=DEFAULT_SECONDS, polls=15):
    """Returns once `value` has been the same for a number of polls in a row; it is then that value."""
    seen = []

    def resting():
        seen.append(value())
        return len(seen) >= polls and all(one == seen[-1] for one in seen[-polls:])

    wait_until(resting, what, seconds)
    return seen[-1]


def holds_for(condition, what, seconds):
    """Fails with `what` as soon as `condition` is false within the next `seconds`.

    Prefer a later event as a fence; this is for what only a stretch of time can show.
    """
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        pump()
        if not condition():
            raise AssertionError(f"did not last for {seconds:g} s: {what}")
        time.sleep(INTERVAL)
