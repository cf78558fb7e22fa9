"""The icon in the notification area, and desktops that have none."""
import signal
from datetime import datetime

from gi.repository import GLib

import names
from case import DesktopCase, main
from notifier import NotifierArea
from polling import PERIOD_AND_SLACK, holds_for, wait_until
from xinput import RIGHT


# The dot on the icon while reminders are due.
BADGE = (0xa3, 0x15, 0x15)


def says(node, text):
    """Whether the object or a label in it shows the text."""
    try:
        return node.name == text or any(label.name == text for label in node.all("label", showing=False))
    except GLib.Error:
        return False


def balloon_label(user):
    """The label that the balloon shows its text in, or None."""
    try:
        labels = [label for window in user.access.windows() for label in window.all("label")
                  if label.name == names.BALLOON]
    except GLib.Error:
        return None
    return labels[0] if labels else None


def contrast(one, other):
    """The contrast of two colours (red, green, blue), as accessibility guidelines count it: 1 to 21."""
    def lightness(colour):
        parts = [part / 255 for part in colour]
        linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]
    low, high = sorted((lightness(one), lightness(other)))
    return (high + 0.05) / (low + 0.05)


class TrayCase(DesktopCase):
    balloon = 1
    minimize_on_start = 0

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=self.minimize_on_start, show_ballon_icon=self.balloon)

    def balloon_shows(self, user):
        return any(says(node, names.BALLOON) for node in user.access.windows())


class TrayIconTest(TrayCase):
    def setUp(self):
        super().setUp()
        self.user = self.start()
        self.user.wait_loaded()

    def test_the_icon_docks_with_its_tool_tip(self):
        self.desk.input.hover(*self.user.tray_icon().center())
        tip = self.user.access.window(names.TRAY_TIP)
        self.assertEqual(tip.role, "tool tip")

    def test_a_double_click_hides_and_shows(self):
        self.user.double_click_tray()
        self.user.wait_hidden(names.MAIN)
        self.assertTrue(self.desk.screen.tray_icons(), "the icon stays while the window is hidden")
        self.assertEqual(self.user.first_tray_entry(), "Show")
        self.user.double_click_tray()
        self.user.window(names.MAIN)
        self.assertEqual(self.user.first_tray_entry(), "Hide")

    def test_a_double_click_brings_a_minimized_window_back(self):
        window = self.user.window(names.MAIN)
        window.minimize()
        wait_until(lambda: window.minimized, "the main window is minimized")
        self.assertEqual(self.user.first_tray_entry(), "Show")
        self.user.double_click_tray()
        wait_until(lambda: window.mapped and not window.minimized, "the main window is back")
        self.user.wait_active(names.MAIN)

    def test_a_double_click_brings_a_minimized_window_back_with_its_dialog(self):
        self.store.category("Work")
        self.user.open_new_task()
        window, dialog = self.user.window(names.MAIN), self.user.window(names.TASK_DIALOG)
        window.minimize()
        wait_until(lambda: window.minimized, "the main window is minimized")
        self.user.double_click_tray()
        for shown in (window, dialog):
            wait_until(lambda: shown.mapped and not shown.minimized, "both are back")

    def test_a_double_click_hides_the_open_dialogs_too(self):
        self.store.category("Work")
        self.user.open_new_task()
        self.user.double_click_tray()
        self.user.wait_hidden(names.MAIN)
        self.user.wait_hidden(names.TASK_DIALOG)

    def test_a_double_click_hides_an_open_category_dialog_too(self):
        main_window = self.user.open_page("Categories")
        self.user.click_control(main_window, names.ADD_CATEGORY)
        self.user.wait_active(names.CATEGORY_DIALOG)
        self.user.double_click_tray()
        self.user.wait_hidden(names.MAIN)
        self.user.wait_hidden(names.CATEGORY_DIALOG)

    def test_a_single_left_click_does_nothing(self):
        window = self.user.window(names.MAIN)
        place = window.place()
        self.desk.input.click(*self.user.tray_icon().center())
        # Longer than a double click may take: no late answer to the single one either.
        holds_for(lambda: self.user.shows(names.MAIN) and not self.menu_shows(), "nothing happens", 1)
        self.assertEqual(window.place(), place)
        self.assertEqual(self.user.first_tray_entry(), "Hide")

    def menu_shows(self):
        return self.user.access.seek_shown("menu") is not None

    def test_a_right_click_opens_the_menu_at_the_pointer(self):
        menu = self.user.open_tray_menu()
        self.assertEqual([entry.name for entry in menu.children()], ["Hide"] + names.TRAY_MENU[1:])
        x, y, width, height = menu.place()
        icon_x, icon_y = self.user.tray_icon().center()
        self.assertTrue(x - 2 <= icon_x <= x + width + 2 and y - 2 <= icon_y <= y + height + 40, menu.place())

    def test_hide_and_show_by_the_menu(self):
        self.user.choose_tray_entry("Hide")
        self.user.wait_hidden(names.MAIN)
        self.user.choose_tray_entry("Show")
        self.user.window(names.MAIN)
        self.user.wait_active(names.MAIN)

    def test_about_opens_the_about_box(self):
        self.user.choose_tray_entry("About")
        self.user.window(names.ABOUT)
        box = self.user.access.window(names.ABOUT)
        self.user.click_control(box, names.OK)
        self.user.wait_hidden(names.ABOUT)

    def test_send_feedback_opens_the_vendors_page(self):
        self.user.choose_tray_entry("Send feedback")
        wait_until(lambda: self.desk.starts_recorded(self.desk.opened), "a page is opened")
        self.assertEqual([start[1:] for start in self.desk.starts_recorded(self.desk.opened)],
                         [[names.VENDOR + "/support.htm?referer=p"]])

    def test_help_opens_at_its_first_topic(self):
        self.user.choose_tray_entry("Help")
        self.user.window("Ambertask Help")
        topic = self.user.access.window("Ambertask Help").find("label", "Topic")
        wait_until(lambda: topic.text.startswith("Welcome to Ambertask"), "the first topic is shown")

    def test_exit_ends_with_status_0_and_takes_the_icon_away(self):
        self.assertEqual(self.user.exit(), 0)
        wait_until(lambda: not self.desk.screen.tray_icons(), "the icon is gone")
        self.assertEqual(self.user.program.errors(), "")

    def test_exit_while_hidden(self):
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        self.assertEqual(self.user.exit(), 0)

    def test_exit_with_an_open_dialog(self):
        self.store.category("Work")
        self.user.open_new_task()
        self.assertEqual(self.user.exit(), 0)

    def test_a_termination_signal_ends_with_status_0(self):
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        wait_until(lambda: not self.desk.screen.tray_icons(), "the icon is gone")

    def test_the_close_box_hides_and_a_balloon_says_so_for_two_seconds(self):
        self.user.tray_icon()
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        wait_until(lambda: self.balloon_shows(self.user), "the balloon shows")
        wait_until(lambda: not self.balloon_shows(self.user), "the balloon goes", 6)
        self.assertTrue(self.user.program.running())
        self.assertEqual(self.user.first_tray_entry(), "Show")


class DarkBalloonTest(TrayCase):
    def test_the_balloon_can_be_read_in_a_dark_skin(self):
        self.store.set(skin="Midnight")
        user = self.start()
        user.wait_loaded()
        user.tray_icon()
        user.window(names.MAIN).close()
        label = wait_until(lambda: balloon_label(user), "the balloon shows")
        left, top, width, height = label.place()
        letters = self.desk.screen.pixels(left, top, width, height)
        # Letters are few; the ground is what there is most of.
        ground = max(set(letters), key=letters.count)
        best = max(contrast(colour, ground) for colour in set(letters))
        self.assertGreaterEqual(best, 7, f"letters on {ground}")


class HiddenStartTest(TrayCase):
    minimize_on_start = 1

    def test_a_double_click_leaves_the_window_hidden_while_the_task_dialog_is_open(self):
        self.store.add_task("Due", reminder=datetime(2020, 1, 1, 9, 0))
        user = self.start()
        alert = user.alert(1)
        user.select_row("Due", alert)
        user.click_control(alert, names.OPEN_ITEM)
        user.window(names.TASK_DIALOG)
        user.double_click_tray()
        # The menu is opened by the same icon, after what the double click does.
        self.assertEqual(user.first_tray_entry(), "Show")
        self.assertIsNone(user.seek_window(names.MAIN))
        self.assertTrue(user.shows(names.TASK_DIALOG))
        user.click_control(user.dialog(), names.CANCEL)
        user.wait_hidden(names.TASK_DIALOG)
        user.double_click_tray()
        user.window(names.MAIN)
        self.assertEqual(user.first_tray_entry(), "Hide")


class DueReminderTest(TrayCase):
    """One reminder is due; its task and another one are late."""

    def setUp(self):
        super().setUp()
        self.store.add_task("Due", reminder=datetime(2020, 1, 1, 9, 0))
        self.store.add_task("Late", due=datetime(2020, 1, 1, 9, 0))
        self.user = self.start()
        self.user.alert(1)

    def has_badge(self):
        return BADGE in self.desk.screen.pixels(*self.user.tray_icon().place())

    def test_the_tool_tip_says_what_is_due_and_what_is_late(self):
        self.desk.input.hover(*self.user.tray_icon().center())
        tip = self.user.access.window(names.TRAY_TIP + "\n1 due, 2 overdue")
        self.assertEqual(tip.role, "tool tip")

    def test_the_badge_comes_when_the_alert_goes_and_goes_with_the_reminder(self):
        self.user.wait_loaded()
        holds_for(lambda: not self.has_badge(), "no badge while the alert is in front", 1)
        self.user.window(names.alert_title(1)).close()
        wait_until(self.has_badge, "the icon wears a badge")
        self.store.execute("update tasks set dismissed=1")
        wait_until(lambda: not self.has_badge(), "the badge goes at the next tick", PERIOD_AND_SLACK)


class SilentCloseTest(TrayCase):
    balloon = 0

    def test_without_the_setting_the_close_box_hides_silently(self):
        user = self.start()
        user.wait_loaded()
        user.tray_icon()
        user.window(names.MAIN).close()
        user.wait_hidden(names.MAIN)
        holds_for(lambda: not self.balloon_shows(user), "no balloon shows", 1)
        self.assertEqual(user.first_tray_entry(), "Show")

    def test_the_check_box_counts_before_it_is_saved(self):
        user = self.start()
        main_window = user.wait_loaded()
        user.tray_icon()
        user.click(main_window.find("page", "Settings"))
        box = main_window.find(*names.SHOW_BALLOON)
        box.toggle(True)
        user.window(names.MAIN).close()
        wait_until(lambda: self.balloon_shows(user), "the balloon shows")
        self.assertEqual(self.store.settings()["show_ballon_icon"], 0)


class NoTrayTest(TrayCase):
    tray = False

    def setUp(self):
        super().setUp()
        self.user = self.start()
        self.user.wait_loaded()

    def wait_minimized(self):
        window = self.desk.screen.client(names.MAIN, self.user.program.pid)
        wait_until(lambda: window.minimized, "the main window is minimized")
        return window

    def open_header_menu(self):
        header = self.user.main().find("link", "Amber", "Organizer")
        self.desk.input.click(*header.center(), button=RIGHT)
        return self.user.access.shown("menu")

    def test_the_close_box_minimizes_and_a_task_bar_brings_the_window_back(self):
        self.user.window(names.MAIN).close()
        window = self.wait_minimized()
        window.activate()
        wait_until(lambda: self.user.shows(names.MAIN), "the main window is back")
        self.assertTrue(self.user.program.running())

    def test_the_header_opens_the_tray_menu_and_its_exit_ends_the_program(self):
        menu = self.open_header_menu()
        self.assertEqual([entry.name for entry in menu.children()], ["Hide"] + names.TRAY_MENU[1:])
        self.user.click(menu.find("menu entry", "Exit"))
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_hide_minimizes_and_counts_as_hidden(self):
        self.user.click(self.open_header_menu().find("menu entry", "Hide"))
        self.wait_minimized()
        self.desk.start_tray()
        self.assertEqual(self.user.first_tray_entry(), "Show")
        self.user.choose_tray_entry("Show")
        wait_until(lambda: self.user.shows(names.MAIN), "the main window is back")

    def test_a_tray_that_appears_later_takes_the_icon_and_goes_on_with_hiding(self):
        self.desk.start_tray()
        self.user.tray_icon()
        self.user.window(names.MAIN).close()
        wait_until(lambda: self.user.seek_window(names.MAIN) is None, "the main window is hidden, not minimized")
        self.assertEqual(self.user.first_tray_entry(), "Show")

    def test_a_tray_that_comes_back_gets_the_icon_again(self):
        tray = self.desk.start_tray()
        self.user.tray_icon()
        self.desk.end(tray)
        wait_until(lambda: not self.desk.screen.tray_icons(), "the icon has no place")
        self.desk.start_tray()
        self.assertEqual(self.user.first_tray_entry(), "Hide")
        self.assertEqual(self.user.exit(), 0)

    def test_a_tray_that_goes_leaves_the_hidden_window_reachable(self):
        tray = self.desk.start_tray()
        self.user.tray_icon()
        self.user.window(names.MAIN).close()
        wait_until(lambda: self.user.seek_window(names.MAIN) is None, "the main window is hidden")
        self.desk.end(tray)
        wait_until(lambda: self.user.seek_window(names.MAIN), "a task bar lists the main window again")

    def test_a_termination_signal_ends_with_status_0(self):
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)


class HiddenStartWithoutTrayTest(TrayCase):
    tray = False
    minimize_on_start = 1

    def test_a_hidden_start_is_minimized(self):
        user = self.start()
        window = wait_until(lambda: user.seek_window(names.MAIN), "a task bar lists the main window")
        wait_until(lambda: window.minimized, "it is minimized")


class NotifierAreaTest(TrayCase):
    tray = False

    def setUp(self):
        super().setUp()
        self.area = NotifierArea(self.desk.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.area.close)
        self.user = self.start()
        # First: the program waits for the area's answers, and the area answers only here.
        self.area.wait_item()
        self.user.wait_loaded()

    def test_the_icon_registers_with_its_tool_tip_and_menu(self):
        self.assertEqual(self.area.tip(), names.TRAY_TIP)
        self.assertEqual(list(self.area.menu()), ["Hide"] + names.TRAY_MENU[1:])

    def has_badge(self):
        # Alpha, red, green, blue for each pixel, in all sizes of the icon.
        return all(bytes([255, *BADGE]) in bytes(picture) for _, _, picture in self.area.item_property("IconPixmap"))

    def test_tool_tip_and_badge_follow_the_reminders(self):
        self.assertFalse(self.has_badge())
        self.store.add_task("Due", reminder=datetime(2020, 1, 1, 9, 0))
        self.user.alert(1)
        wait_until(lambda: self.area.tip() == names.TRAY_TIP + "\n1 due, 1 overdue", "the tool tip says so")
        self.assertEqual(self.area.notifications, [], "the alert window comes up by itself here")
        holds_for(lambda: not self.has_badge(), "no badge while the alert is in front", 1)
        self.user.window(names.alert_title(1)).close()
        wait_until(self.has_badge, "the icon wears a badge")

    def test_the_one_gesture_hides_and_shows(self):
        self.area.activate()
        wait_until(lambda: self.user.seek_window(names.MAIN) is None, "the main window is hidden")
        self.area.activate()
        self.user.window(names.MAIN)

    def test_the_balloon_becomes_a_notification(self):
        self.user.window(names.MAIN).close()
        wait_until(lambda: self.area.notifications, "a notification comes")
        self.assertEqual(self.area.notifications,
                         [{"title": "Ambertask", "text": names.BALLOON, "milliseconds": 2000}])

    def test_exit_by_the_menu_ends_with_status_0(self):
        self.area.choose("Exit")
        self.assertEqual(self.user.program.wait_end(), 0)


if __name__ == "__main__":
    main()
