"""The desk itself: what the other tests rely on."""
import os
import unittest
from datetime import datetime

from case import main
from desktop import Desktop
from polling import holds_for, wait_until
from processes import descendants
from sound import write_tone


class DeskTest(unittest.TestCase):
    def test_a_desk_leaves_no_process_and_no_file(self):
        with Desktop(sound=True) as desk:
            root = desk.root
            self.assertTrue(descendants(os.getpid()))
        self.assertEqual(descendants(os.getpid()), [])
        self.assertFalse(os.path.exists(root))

    def test_two_desks_stand_side_by_side(self):
        with Desktop() as left, Desktop() as right:
            self.assertNotEqual(left.environment["DISPLAY"], right.environment["DISPLAY"])
            left.screen.open_plain_window("only left", 10, 10, 200, 100)
            wait_until(lambda: left.screen.client("only left"), "the window is managed")
            self.assertIsNone(right.screen.client("only left"))

    def test_waiting_fails_when_nothing_happens(self):
        with self.assertRaisesRegex(AssertionError, "it never comes"):
            wait_until(lambda: False, "it never comes", 0.1)
        with self.assertRaisesRegex(AssertionError, "it stays"):
            holds_for(lambda: False, "it stays", 0.1)

    def test_the_recording_tells_tone_from_silence(self):
        with Desktop(sound=True) as desk:
            self.assertEqual(desk.sound.loud_seconds(), 0)
            tone = desk.path("tone.wav")
            write_tone(tone, 660, 1.0)
            desk.run(["paplay", tone])
            wait_until(lambda: desk.sound.loud_seconds() > 0.9, "the whole tone is recorded")
            self.assertAlmostEqual(desk.sound.pitch(), 660, delta=10)

    def test_a_stepped_clock_is_seen_by_a_running_process(self):
        with Desktop() as desk:
            clock = desk.clock(datetime(2026, 3, 2, 10, 20, 0))
            self.assertTrue(desk.run(["date", "+%F %H:%M"], clock).startswith(b"2026-03-02 10:20"))
            clock.set(datetime(2026, 3, 1, 9, 0, 0))
            self.assertTrue(desk.run(["date", "+%F %H:%M"], clock).startswith(b"2026-03-01 09:00"))

    def test_the_recorder_keeps_words_apart(self):
        with Desktop() as desk:
            record = desk.path("record")
            script = desk.path("a b; touch x$(y).sh")
            desk.write_recorder(script, record)
            desk.run([script, "one two", "three"])
            self.assertEqual(desk.starts_recorded(record), [[script, "one two", "three"]])


if __name__ == "__main__":
    main()
