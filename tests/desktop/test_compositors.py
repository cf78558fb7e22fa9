"""The program on the compositors of GNOME and KDE: a reminder is told by the desktop and takes nobody's keyboard."""
import signal

import names
import test_wayland
from case import main
from compositors import CompositorDesktop
from polling import holds_for, wait_until


class Compositor:
    """The tests; a subclass names the compositor."""

    def make_desk(self):
        return CompositorDesktop(self.compositor)

    def setUp(self):
        super().setUp()
        self.serve_notifications()
        self.user = self.start()
        self.area.wait_item()
        self.wait_active(names.MAIN)

    def wait_active(self, title):
        wait_until(lambda: self.user.access.window(title).has("active"), f"window '{title}' is active")

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


class MutterTest(Compositor, test_wayland.WaylandCase):
    compositor = "mutter"


class KwinTest(Compositor, test_wayland.WaylandCase):
    compositor = "kwin"


if __name__ == "__main__":
    main()
