"""A task with a reminder, from the "Add" button to the dismissal, by mouse and keyboard."""
import os
import time
from datetime import datetime

import names
from case import DesktopCase, main
from polling import holds_for, wait_until
from sound import write_tone

START = datetime(2026, 3, 2, 10, 20, 30)
DUE = datetime(2026, 3, 2, 10, 30, 0)
PERIOD = 10
# From the tick to a window on the screen, on a busy machine.
SLACK = 5


class TypicalEventTest(DesktopCase):
    sound = True

    def setUp(self):
        super().setUp()
        self.clock = self.desk.clock(START)
        self.tone = self.desk.path("reminder.wav")
        write_tone(self.tone, 880, 1.0)
        self.script = self.desk.path("reminder file")
        self.record = self.desk.path("record")
        self.desk.write_recorder(self.script, self.record)
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.category("Work")

    def test_a_reminder_set_by_hand_comes_up_within_a_period_plays_and_starts_its_file_once(self):
        user = self.start(self.clock)
        user.wait_loaded()
        dialog = user.open_new_task()
        user.type_into(dialog, names.TASK_NAME, "Call Anna's office")
        user.choose(dialog, names.TASK_CATEGORY, "Work")
        user.set_time(dialog, names.DUE_TIME, DUE.hour, DUE.minute)
        user.check(dialog, names.REMINDER_ON)
        self.assertEqual(dialog.find(*names.REMINDER_TIME).text, "10:30", "the reminder starts at the due moment")
        user.check(dialog, names.SOUND_ON)
        user.type_into(dialog, names.SOUND_PATH, self.tone)
        user.check(dialog, names.FILE_ON)
        user.type_into(dialog, names.FILE_PATH, self.script)
        user.click_control(dialog, names.OK)
        user.wait_hidden(names.TASK_DIALOG)
        user.wait_rows(["Call Anna's office"])

        task = self.store.task_named("Call Anna's office")
        self.assertEqual(task["task_due_date"], "2026-03-02 10:30:00")
        self.assertEqual(task["reminder_date_time"], "2026-03-02 10:30:00")
        self.assertEqual((task["reminder_on"], task["played"], task["dismissed"]), (1, 0, 0))
        self.assertEqual((task["reminder_sound"], task["reminder_file"]), (self.tone, self.script))
        self.assertFalse(os.path.exists(self.record), "the file waits for its moment")

        heard = self.desk.sound.position()
        self.clock.set(DUE)
        stepped = time.monotonic()
        alert = user.alert(1, PERIOD + SLACK)
        self.assertLess(time.monotonic() - stepped, PERIOD + SLACK)
        user.window(names.alert_title(1))
        user.wait_rows(["Call Anna's office"], alert)
        wait_until(lambda: self.desk.sound.loud_seconds(heard) > 0.7, "the sound plays")
        self.assertAlmostEqual(self.desk.sound.pitch(heard), 880, delta=20)
        wait_until(lambda: self.desk.starts_recorded(self.record), "the file is started")
        self.assertEqual(self.store.task(task["task_id"])["played"], 1)

        # The next tick brings a second reminder: a fence after which a repetition would have been seen.
        self.store.add_task("Second", reminder=DUE)
        both = user.alert(2, PERIOD + SLACK)
        user.wait_rows(["Call Anna's office", "Second"], both)
        self.assertEqual(self.desk.starts_recorded(self.record), [[self.script]])
        self.assertLess(self.desk.sound.loud_seconds(heard), 1.3, "the sound played once")

        user.select_row("Call Anna's office", both)
        user.click_control(both, names.DISMISS)
        user.wait_rows(["Second"], both)
        task = self.store.task(task["task_id"])
        self.assertEqual((task["dismissed"], task["reminder_on"]), (1, 0))
        self.assertEqual(user.exit(), 0)


class AlertActionsTest(DesktopCase):
    sound = True

    def setUp(self):
        super().setUp()
        self.clock = self.desk.clock(START)
        self.tone = self.desk.path("reminder.wav")
        write_tone(self.tone, 660, 1.0)
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        past = datetime(2026, 3, 2, 10, 0, 0)
        self.first = self.store.add_task("First", reminder=past, sound=self.tone)
        self.second = self.store.add_task("Second", reminder=past)
        self.user = self.start(self.clock)
        self.alert = self.user.alert(2)
        self.user.window(names.alert_title(2))
        self.user.wait_rows(["First", "Second"], self.alert)

    def flags(self, task):
        row = self.store.task(task)
        return row["dismissed"], row["reminder_on"], row["played"]

    def test_the_first_row_is_selected_and_both_are_marked_played(self):
        self.assertEqual(self.user.grid(self.alert).selected_rows(), [0])
        self.assertEqual((self.flags(self.first), self.flags(self.second)), ((0, 1, 1), (0, 1, 1)))

    def test_dismiss_takes_one_row_and_silences_the_sound_but_keeps_the_caption(self):
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.1, "the sound plays")
        self.user.click_control(self.alert, names.DISMISS)
        self.user.wait_rows(["Second"], self.alert)
        self.assertEqual(self.flags(self.first), (1, 0, 1))
        self.assertEqual(self.flags(self.second), (0, 1, 1))
        self.assertTrue(self.user.shows(names.alert_title(2)))
        self.user.click_control(self.alert, names.DISMISS)
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual(self.flags(self.second), (1, 0, 1))
        self.assertLess(self.desk.sound.loud_seconds(), 0.9, "the sound was cut short")

    def test_dismiss_all_hides_the_window(self):
        self.user.click_control(self.alert, names.DISMISS_ALL)
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual((self.flags(self.first), self.flags(self.second)), ((1, 0, 1), (1, 0, 1)))

    def test_remind_me_later_in_the_current_minute_is_refused(self):
        window = self.user.window(names.alert_title(2))
        holds_for(lambda: window.mapped, "it is there while it takes no keyboard yet", 1)
        window.activate()
        self.user.wait_active(names.alert_title(2))
        before = self.store.tasks()
        self.user.click_control(self.alert, names.REMIND_LATER)
        box = self.user.access.message_box(names.TOO_EARLY)
        self.user.click_control(box, names.OK)
        wait_until(lambda: box not in self.user.access.windows(), "the message closes")
        self.assertEqual(self.store.tasks(), before)
        self.assertEqual(self.user.row_names(self.alert), ["First", "Second"])
        self.assertEqual(self.user.grid(self.alert).selected_rows(), [0])

    def test_remind_me_later_brings_the_reminder_and_its_sound_back(self):
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.8, "the sound plays")
        self.user.set_time(self.alert, names.LATER_TIME, 10, 35)
        self.user.click_control(self.alert, names.REMIND_LATER)
        self.user.wait_rows(["Second"], self.alert)
        task = self.store.task(self.first)
        self.assertEqual(task["reminder_date_time"], "2026-03-02 10:35:00")
        self.assertEqual((task["dismissed"], task["reminder_on"], task["played"]), (0, 1, 0))
        heard = self.desk.sound.position()
        self.clock.set(datetime(2026, 3, 2, 10, 35, 1))
        wait_until(lambda: sorted(self.user.row_names(self.alert)) == ["First", "Second"], "both are listed")
        wait_until(lambda: self.desk.sound.loud_seconds(heard) > 0.7, "the sound plays again")
        self.assertAlmostEqual(self.desk.sound.pitch(heard), 660, delta=20)
        wait_until(lambda: self.flags(self.first) == (0, 1, 1), "the reminder is marked played again")

    def test_open_item_opens_the_selected_task_beside_the_alert(self):
        self.user.select_row("Second", self.alert)
        self.user.click_control(self.alert, names.OPEN_ITEM)
        self.user.window(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Second", "the task is loaded")
        self.assertTrue(self.user.shows(names.alert_title(2)))

    def test_a_double_click_on_a_row_opens_the_task(self):
        self.desk.input.double_click(*self.user.row_place("Second", self.alert))
        self.user.window(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Second", "the task is loaded")

    def test_the_close_box_hides_the_alert_and_silences_the_sound(self):
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.1, "the sound plays")
        self.user.window(names.alert_title(2)).close()
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual(self.flags(self.first), (0, 1, 1))
        self.assertTrue(self.user.program.running())
        # The dismissals of the next tick's rows would show it again: ending proves that nothing hung.
        self.assertEqual(self.user.exit(), 0)
        self.assertLess(self.desk.sound.loud_seconds(), 0.9, "the sound was cut short")


class SteppedClockTest(DesktopCase):
    def test_a_clock_set_back_and_forward_costs_a_period_at_most(self):
        clock = self.desk.clock(START)
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        task = self.store.add_task("Set back", reminder=DUE)
        user = self.start(clock)
        user.wait_loaded()
        clock.set(datetime(2025, 12, 24, 10, 0, 0))
        early = self.store.add_task("Before", reminder=datetime(2025, 12, 24, 9, 0, 0))
        user.wait_rows(["Before"], user.alert(1, PERIOD + SLACK))
        self.assertEqual(self.store.task(early)["played"], 1)
        self.assertEqual(self.store.task(task)["played"], 0, "its moment has not come yet")
        clock.set(datetime(2027, 6, 1, 0, 0, 0))
        user.alert(2, PERIOD + SLACK)
        wait_until(lambda: self.store.task(task)["played"] == 1, "the reminder is marked played")


if __name__ == "__main__":
    main()
