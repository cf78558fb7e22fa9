"""The program on Plasma: its notifications and its panel's icons."""
import signal

import names
import test_wayland
from case import main
from plasma import PlasmaDesktop
from polling import holds_for, wait_until

LATER = "Later (15 minutes)"


class PlasmaTest(test_wayland.WaylandCase):
    def make_desk(self):
        return PlasmaDesktop()

    def setUp(self):
        super().setUp()
        self.user = self.start()
        self.wait_active(names.MAIN)
        self.desk.icon()

    def wait_active(self, title):
        wait_until(lambda: self.user.access.window(title).has("active"), f"window '{title}' is active")

    def wait_gone(self, title):
        wait_until(lambda: self.user.access.seek_window(title) is None, f"window '{title}' is hidden")

    def minimize(self, title):
        self.desk.minimize(title)
        # What is minimized is not active; a user takes longer than this for the next gesture.
        wait_until(lambda: not self.user.access.window(title).has("active"), f"window '{title}' is minimized")
        holds_for(lambda: not self.user.access.window(title).has("active"), f"window '{title}' stays minimized", 0.5)

    def add_due(self, name):
        return self.store.add_task(name, reminder=test_wayland.PAST)

    def test_a_reminder_is_answered_on_the_desktop_while_the_dialog_stays_active(self):
        self.user.main().find(*names.ADD).press()
        self.wait_active(names.TASK_DIALOG)
        first = self.add_due("Anna")
        self.desk.button("Dismiss").press()
        wait_until(lambda: self.store.task(first)["dismissed"] == 1, "the reminder is dismissed")
        wait_until(lambda: not self.desk.seek_buttons("Dismiss"), "the notification is gone")
        second = self.add_due("Bob")
        self.desk.button(LATER).press()
        wait_until(lambda: self.store.task(second)["reminder_date_time"] > "2021", "the reminder is postponed")
        self.assertTrue(self.user.dialog().has("active"))

    def test_open_shows_the_task_and_brings_a_minimized_alert_back(self):
        self.add_due("Due")
        self.desk.button("Open").press()
        self.wait_active(names.TASK_DIALOG)
        self.user.dialog().find(*names.CANCEL).press()
        self.wait_active(names.alert_title(1))
        self.minimize(names.alert_title(1))
        self.add_due("Second")
        self.desk.button("Open").press()
        self.wait_active(names.alert_title(2))

    def test_the_icon_shows_and_hides_and_brings_a_minimized_window_back(self):
        self.desk.icon().press()
        self.wait_gone(names.MAIN)
        self.desk.icon().press()
        self.wait_active(names.MAIN)
        self.minimize(names.MAIN)
        self.desk.icon().press()
        self.wait_active(names.MAIN)

    def test_without_its_panel_a_reminder_brings_the_alert_up(self):
        self.desk.shell.send_signal(signal.SIGKILL)
        task = self.add_due("Due")
        self.user.alert(1).find(*names.DISMISS).press()
        self.wait_gone(names.alert_title(1))
        self.assertEqual(self.store.task(task)["dismissed"], 1)


if __name__ == "__main__":
    main()
