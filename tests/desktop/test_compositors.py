"""The program on the compositors of GNOME and KDE: a reminder is told by the desktop and takes nobody's keyboard."""
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from compositors import CompositorDesktop
from notifier import NotifierArea
from polling import holds_for, wait_until

PAST = datetime(2020, 1, 1, 9, 0)


class Compositor:
    """The tests; a subclass names the compositor."""

    def make_desk(self):
        return CompositorDesktop(self.compositor)

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0, show_ballon_icon=1)
        self.store.category("Work")
        self.serve_notifications()
        self.user = self.start()
        self.area.wait_item()
        self.wait_active(names.MAIN)

    def serve_notifications(self):
        self.area = NotifierArea(self.desk.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.area.close)

    def wait_active(self, title):
        wait_until(lambda: self.user.access.window(title).has("active"), f"window '{title}' is active")

    def come_due(self, name):
        task = self.store.add_task(name, reminder=PAST)
        return task, self.area.wait_notification(names.alert_title(1))

    def test_a_reminder_is_told_while_the_dialog_stays_active(self):
        self.user.main().find(*names.ADD).press()
        self.wait_active(names.TASK_DIALOG)
        task, number = self.come_due("Call")
        holds_for(lambda: self.user.dialog().has("active"), "the dialog is active", 1)
        self.assertIsNone(self.user.access.seek_window(names.alert_title(1)))
        self.area.answer(number, "dismiss")
        wait_until(lambda: self.store.task(task)["dismissed"] == 1, "the reminder is dismissed")
        self.assertTrue(self.user.dialog().has("active"))

    def test_open_shows_the_alert_and_the_task(self):
        task, number = self.come_due("Call")
        self.area.answer(number, "open")
        self.user.access.window(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Call", "the task is loaded")
        self.user.alert(1).find(*names.DISMISS).press()
        wait_until(lambda: self.user.access.seek_window(names.alert_title(1)) is None, "the alert is hidden")
        self.assertEqual(self.store.task(task)["dismissed"], 1)

    def test_the_icon_survives_another_panel_and_ends_the_program(self):
        self.area.close()
        self.serve_notifications()
        self.area.wait_item()
        self.area.choose("Exit")
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_the_death_of_the_compositor_ends_the_program_and_the_data_is_sound(self):
        self.desk.compositor.send_signal(signal.SIGKILL)
        self.user.program.wait_end()
        self.assertEqual(self.store.execute("pragma integrity_check"), [{"integrity_check": "ok"}])


class MutterTest(Compositor, DesktopCase):
    compositor = "mutter"


class KwinTest(Compositor, DesktopCase):
    compositor = "kwin"


if __name__ == "__main__":
    main()
