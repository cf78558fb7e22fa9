"""The program on Wayland, where windows are the desktop's: it places and activates them, and nobody else."""
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from notifier import NotifierArea
from polling import holds_for, wait_until
from sway import SwayDesktop

PAST = datetime(2020, 1, 1, 9, 0)


class WaylandCase(DesktopCase):
    def make_desk(self):
        return SwayDesktop()

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0, show_ballon_icon=1)
        self.store.category("Work")

    def serve_notifications(self):
        self.area = NotifierArea(self.desk.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.area.close)

    def come_due(self, name):
        task = self.store.add_task(name, reminder=PAST)
        return task, self.area.wait_notification(names.alert_title(1))

    def type_into_new_task(self, text):
        """Opens the task dialog and types a name into it; returns the box that holds it."""
        self.user.main().find(*names.ADD).press()
        self.user.wait_active(names.TASK_DIALOG)
        box = self.user.dialog().find(*names.TASK_NAME)
        wait_until(lambda: box.has("focused"), "the name can be typed")
        self.desk.input.type(text)
        wait_until(lambda: box.text == text, f"the name is '{text}'")
        return box


class NotificationTest(WaylandCase):
    """A desktop with a notification service and an area for icons."""

    def setUp(self):
        super().setUp()
        self.serve_notifications()
        self.user = self.start()
        self.area.wait_item()
        self.user.wait_loaded()

    def test_a_reminder_leaves_the_keyboard_where_it_is_and_is_answered_on_the_desktop(self):
        box = self.type_into_new_task("Call")
        task, number = self.come_due("Anna & <Bob>")
        self.desk.input.type(" back")
        wait_until(lambda: box.text == "Call back", "what is typed lands where it did")
        self.assertTrue(self.desk.screen.active().title == names.TASK_DIALOG)
        self.assertIsNone(self.user.seek_window(names.alert_title(1)))
        self.assertEqual(self.area.notifications[-1]["text"], "Anna &amp; &lt;Bob&gt;")
        self.assertEqual(self.area.offers[number][0::2], ["default", "open", "later", "dismiss"])
        self.assertEqual(self.store.task(task)["played"], 1)
        self.area.answer(number, "dismiss")
        wait_until(lambda: self.store.task(task)["dismissed"] == 1, "the reminder is dismissed")
        self.assertTrue(self.desk.screen.active().title == names.TASK_DIALOG)
        self.desk.input.key("Tab")
        category = self.user.dialog().find(*names.TASK_CATEGORY)
        wait_until(lambda: category.has("focused"), "the category can be chosen")
        self.desk.input.type("Work")
        wait_until(lambda: category.name == "Work", "the category is chosen")
        self.desk.input.key("Return")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Anna & <Bob>", "Call back"])

    def test_open_shows_the_alert_and_the_task(self):
        _, number = self.come_due("Due")
        self.area.answer(number, "open")
        self.user.window(names.alert_title(1))
        self.user.window(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Due", "the task is loaded")
        self.user.wait_active(names.TASK_DIALOG)
        self.desk.input.key("Escape")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.alert(1).find(*names.DISMISS).press()
        self.user.wait_hidden(names.alert_title(1))

    def test_the_close_box_hides_and_the_icon_brings_the_window_back(self):
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        self.area.wait_notification("Ambertask")
        self.area.activate()
        self.user.wait_active(names.MAIN)
        # Another area takes the place of this one, as when the desktop's panel is started anew.
        self.area.close()
        self.serve_notifications()
        self.area.wait_item()
        self.area.choose("Exit")
        self.assertEqual(self.user.program.wait_end(), 0)


class BareTest(WaylandCase):
    """Nothing but a compositor: no icons, no notifications."""

    def test_the_close_box_leaves_a_window_that_can_be_reached(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.user.window(names.MAIN).close()
        # sway minimizes nothing; hidden, the window would be gone for good.
        holds_for(lambda: self.user.shows(names.MAIN), "the main window is there", 1)
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_the_death_of_the_compositor_ends_the_program_and_the_data_is_sound(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.desk.compositor.kill()
        self.user.program.wait_end()
        self.assertEqual(self.store.execute("pragma integrity_check"), [{"integrity_check": "ok"}])

    def test_the_alert_comes_up_and_the_settings_say_what_the_desktop_does_not_do(self):
        self.store.add_task("Due", reminder=PAST)
        self.user = self.start()
        self.user.window(names.alert_title(1))
        self.user.alert(1).find(*names.DISMISS).press()
        self.user.wait_hidden(names.alert_title(1))
        self.user.wait_active(names.MAIN)
        self.desk.input.key("3", "Alt_L")
        on_top = self.user.main().find(*names.ON_TOP)
        self.assertIn("lets no program keep its windows on top", on_top.description)


if __name__ == "__main__":
    main()
