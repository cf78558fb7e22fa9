"""The program on GNOME's shell: its notifications, its panel's icons, its keyboard."""
import signal

import names
import test_wayland
from case import main
from gnome import GnomeDesktop
from polling import holds_for, wait_until

LATER = "Later (15 minutes)"
PAST_YEAR = str(test_wayland.PAST.year)


class GnomeCase(test_wayland.WaylandCase):
    icons = True

    def make_desk(self):
        return GnomeDesktop(self.icons)

    def come_due(self, name, count=1):
        task = self.store.add_task(name, reminder=test_wayland.PAST)
        self.desk.shell.wait_banner(names.alert_title(count))
        return task

    def answer(self, caption):
        self.desk.input.click(*self.desk.shell.banner_button(caption))


class ShellTest(GnomeCase):
    """With the extension for icons."""

    def setUp(self):
        super().setUp()
        self.user = self.start()
        self.user.wait_loaded()

    def test_a_reminder_leaves_the_keyboard_where_it_is_and_is_answered_on_the_desktop(self):
        box = self.type_into_new_task("Call")
        first = self.come_due("Anna")
        self.desk.input.type(" back")
        wait_until(lambda: box.text == "Call back", "what is typed lands where it did")
        self.assertIsNone(self.user.seek_window(names.alert_title(1)))
        banner = self.desk.shell.banner()
        self.assertEqual((banner["text"], banner["buttons"]), ("Anna", ["Open", LATER, "Dismiss"]))
        self.answer("Dismiss")
        wait_until(lambda: self.store.task(first)["dismissed"] == 1, "the reminder is dismissed")
        wait_until(lambda: not self.desk.shell.is_told(names.alert_title(1)), "the notification is gone")
        second = self.come_due("Bob")
        self.answer(LATER)
        wait_until(lambda: not self.store.task(second)["reminder_date_time"].startswith(PAST_YEAR),
                   "the reminder is postponed")
        self.desk.input.key("Tab")
        self.desk.input.type("Work")
        category = self.user.dialog().find(*names.TASK_CATEGORY)
        wait_until(lambda: category.name == "Work", "the category is chosen")
        self.desk.input.key("Return")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.assertIsNotNone(self.store.task_named("Call back"))

    def test_open_shows_the_alert_and_the_task(self):
        task = self.come_due("Due")
        self.answer("Open")
        self.user.window(names.alert_title(1))
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Due", "the task is loaded")
        self.desk.input.key("Escape")
        self.user.wait_active(names.alert_title(1))
        self.user.alert(1).find(*names.DISMISS).press()
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.store.task(task)["dismissed"], 1)

    def test_the_close_box_hides_and_the_icon_brings_the_window_back_and_ends_the_program(self):
        icon = self.desk.shell.icon()
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        wait_until(lambda: self.desk.shell.is_told("Ambertask"), "a notification says where the program is")
        self.desk.input.double_click(*icon)
        self.user.wait_active(names.MAIN)
        self.desk.input.click(*icon)
        self.desk.input.click(*self.desk.shell.menu_entry("Exit"))
        self.assertEqual(self.user.program.wait_end(), 0)

    def minimize(self, title):
        self.user.window(title).minimize()
        wait_until(lambda: self.user.window(title).minimized, f"window '{title}' is minimized")
        # Less than a user takes for the next gesture; Qt finds out after a tenth of a second without a frame.
        holds_for(lambda: self.user.window(title).minimized, f"window '{title}' stays minimized", 0.5)

    def test_the_icon_brings_a_minimized_window_back_and_hides_it_again(self):
        icon = self.desk.shell.icon()
        self.minimize(names.MAIN)
        self.desk.input.double_click(*icon)
        # The shell has it active before it has been painted.
        wait_until(lambda: self.user.main().has("active"), "the main window is active")
        self.desk.input.double_click(*icon)
        wait_until(lambda: self.user.access.seek_window(names.MAIN) is None, "the main window is hidden")
        self.desk.input.double_click(*icon)
        wait_until(lambda: self.user.main().has("active"), "the main window is active")
        self.minimize(names.MAIN)
        self.desk.input.click(*icon)
        self.desk.input.click(*self.desk.shell.menu_entry("Show"))
        self.user.wait_active(names.MAIN)

    def test_the_icon_brings_a_minimized_window_back_with_its_dialog(self):
        box = self.type_into_new_task("Call")
        self.minimize(names.MAIN)
        wait_until(lambda: self.user.window(names.TASK_DIALOG).minimized, "the dialog goes with its owner")
        self.desk.input.double_click(*self.desk.shell.icon())
        wait_until(lambda: self.user.shows(names.MAIN) and self.user.shows(names.TASK_DIALOG), "both are there")
        self.assertEqual(box.text, "Call")

    def test_open_brings_a_minimized_alert_back(self):
        self.come_due("Due")
        self.answer("Open")
        self.user.wait_active(names.TASK_DIALOG)
        self.desk.input.key("Escape")
        self.user.wait_active(names.alert_title(1))
        self.minimize(names.alert_title(1))
        self.come_due("Second", 2)
        self.answer("Open")
        self.user.wait_active(names.alert_title(2))

    def test_a_hidden_window_can_be_reached_when_the_icons_go(self):
        self.desk.shell.icon()
        self.user.window(names.MAIN).close()
        wait_until(lambda: self.user.seek_window(names.MAIN) is None, "the main window is hidden")
        self.desk.shell.show_icons(False)
        self.assertTrue(wait_until(lambda: self.user.seek_window(names.MAIN), "the main window is there").minimized)
        self.desk.shell.show_icons(True)
        self.desk.input.double_click(*self.desk.shell.icon())
        self.user.wait_active(names.MAIN)

    def test_the_end_of_the_shell_ends_the_program_and_the_data_is_sound(self):
        self.desk.compositor.send_signal(signal.SIGKILL)
        self.user.program.wait_end()
        self.assertEqual(self.store.execute("pragma integrity_check"), [{"integrity_check": "ok"}])


class BareShellTest(GnomeCase):
    """As GNOME comes: it shows no icons."""

    icons = False

    def test_the_close_box_minimizes_and_a_reminder_is_told(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.user.window(names.MAIN).close()
        wait_until(lambda: self.user.window(names.MAIN).minimized, "the main window is minimized")
        self.come_due("Due")
        holds_for(lambda: self.user.window(names.MAIN).minimized, "the main window stays where it is", 1)
        self.answer("Open")
        self.user.wait_active(names.TASK_DIALOG)

    def test_started_minimized_it_can_be_reached(self):
        self.store.set(minimize_on_start=1)
        self.user = self.start()
        wait_until(lambda: self.user.window(names.MAIN).minimized, "the main window is minimized")


if __name__ == "__main__":
    main()
