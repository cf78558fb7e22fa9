"""A task with a reminder from its making to its end, as assistive technology works the program."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
PERIOD_AND_SLACK = 15


class AccessCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.clock = self.desk.clock(NOW)
        self.user = self.start(self.clock)
        self.user.wait_loaded()

    def flags(self, name):
        row = self.store.task_named(name)
        return row["dismissed"], row["reminder_on"], row["reminder_date_time"]


class ScreenReaderTest(AccessCase):
    def test_a_task_is_made_reminded_of_and_dismissed_through_the_accessibility_bus(self):
        self.user.main().find(*names.ADD).press()
        dialog = self.user.access.window(names.TASK_DIALOG)
        dialog.find(*names.TASK_NAME).set_text("Water the plants")
        self.user.wait_active(names.TASK_DIALOG)
        # A list of the tool kit offers the bus no way to choose from it.
        self.user.choose(dialog, names.TASK_CATEGORY, "Work")
        reminder = dialog.find(*names.REMINDER_ON)
        self.assertFalse(dialog.find(*names.SOUND_ON).has("enabled"))
        reminder.toggle(True)
        wait_until(lambda: dialog.find(*names.SOUND_ON).has("enabled"), "the toggle opens what belongs to the reminder")
        reminder.toggle(False)
        wait_until(lambda: not dialog.find(*names.SOUND_ON).has("enabled"), "and closes it")
        dialog.find(*names.DUE_TIME).set_text("10:30")
        wait_until(lambda: dialog.find(*names.DUE_TIME).text == "10:30", "the due time is set")
        reminder.toggle(True)
        wait_until(lambda: dialog.find(*names.REMINDER_TIME).text == "10:30", "the reminder starts at the due moment")
        dialog.find(*names.OK).press()
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Water the plants"])
        self.assertEqual(self.flags("Water the plants"), (0, 1, "2026-03-02 10:30:00"))

        self.clock.set(datetime(2026, 3, 2, 10, 42, 10))
        alert = self.user.alert(1, PERIOD_AND_SLACK)
        self.user.wait_rows(["Water the plants"], alert)
        cell = self.user.grid(alert).cell(0, 1)
        self.assertIn("12 minutes late", cell.description)
        self.assertIn("Category: ", cell.description)
        alert.find(*names.DISMISS).press()
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.flags("Water the plants")[:2], (1, 0))


if __name__ == "__main__":
    main()
