"""What only a window manager can tell: windows that stay on top, and which window belongs to which."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import holds_for, wait_until

PAST = datetime(2026, 3, 2, 10, 0, 0)
NOW = datetime(2026, 3, 2, 10, 20, 30)


class WindowCase(DesktopCase):
    always_on_top = 0
    minimize_on_start = 0
    due = ()

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=self.always_on_top, minimize_on_start=self.minimize_on_start,
                       show_today_tasks=0)
        self.store.category("Work")
        for name in self.due:
            self.store.add_task(name, reminder=PAST)
        self.user = self.start(self.desk.clock(NOW))

    def cover_all(self):
        """A window of another program over the whole screen, clicked to the front."""
        other = self.desk.screen.open_plain_window("other program", 0, 0, 1280, 900)
        wait_until(lambda: other in self.desk.screen.clients() and other.mapped, "the other window is shown")
        other.activate()
        wait_until(lambda: other.active, "the other window is active")
        return other

    def open_task_dialog(self):
        self.user.wait_loaded()
        self.user.click_control(self.user.main(), names.ADD)
        return self.user.window(names.TASK_DIALOG)


class AlwaysOnTopTest(WindowCase):
    always_on_top = 1

    def test_the_main_window_stays_above_another_program(self):
        self.user.wait_loaded()
        window = self.user.window(names.MAIN)
        wait_until(lambda: window.topmost, "the main window is topmost")
        other = self.cover_all()
        wait_until(lambda: self.desk.screen.is_above(window, other), "the main window is above")

    def test_the_task_dialog_is_topmost_and_above_its_owner(self):
        dialog = self.open_task_dialog()
        wait_until(lambda: dialog.topmost, "the dialog is topmost")
        self.assertEqual(dialog.owner, self.user.window(names.MAIN))
        other = self.cover_all()
        wait_until(lambda: self.desk.screen.is_above(dialog, other), "the dialog is above the other program")
        self.assertTrue(self.desk.screen.is_above(dialog, self.user.window(names.MAIN)))

    def test_an_edited_task_opens_topmost_too(self):
        self.user.wait_loaded()
        self.store.add_task("Later", due=datetime(2027, 1, 1))
        main_window = self.user.main()
        main_window.find("option", "All tasks").press()
        main_window.find("option", "Active tasks only").press()
        self.user.wait_rows(["Later"])
        self.user.select_row("Later")
        self.user.click_control(main_window, names.EDIT)
        dialog = self.user.window(names.TASK_DIALOG)
        wait_until(lambda: dialog.topmost, "the dialog is topmost")

    def test_the_about_box_is_topmost(self):
        self.user.wait_loaded()
        self.user.choose_tray_entry("About")
        about = self.user.window(names.ABOUT)
        wait_until(lambda: about.topmost, "the about box is topmost")
        self.assertTrue(self.desk.screen.is_above(about, self.user.window(names.MAIN)))

    def test_leaving_the_state_by_the_settings_page_keeps_the_window_where_it_is(self):
        window = self.user.window(names.MAIN)
        main_window = self.user.wait_loaded()
        wait_until(lambda: window.topmost, "the main window is topmost")
        place = window.place()
        self.user.click(main_window.find("page", "Settings"))
        box = main_window.find(*names.ON_TOP)
        self.assertTrue(box.checked)
        box.press()
        self.user.click_control(main_window, names.SAVE_SETTINGS)
        wait_until(lambda: not window.topmost, "the main window is an ordinary one")
        self.assertEqual(self.store.settings()["always_on_top"], 0)
        self.assertTrue(self.user.shows(names.MAIN))
        self.assertEqual(window.place(), place)
        box.press()
        self.user.click_control(main_window, names.SAVE_SETTINGS)
        wait_until(lambda: window.topmost, "the main window is topmost again")
        self.assertEqual(window.place(), place)


class AlwaysOnTopAlertTest(WindowCase):
    always_on_top = 1
    due = ("First",)

    def test_the_alert_is_topmost_but_what_it_opens_is_not(self):
        alert = self.user.window(names.alert_title(1))
        wait_until(lambda: alert.topmost, "the alert is topmost")
        node = self.user.alert(1)
        self.user.select_row("First", node)
        self.user.click_control(node, names.OPEN_ITEM)
        dialog = self.user.window(names.TASK_DIALOG)
        self.user.wait_active(names.TASK_DIALOG)
        self.assertFalse(dialog.topmost)
        self.assertEqual(dialog.owner, alert)


class OrdinaryWindowsTest(WindowCase):
    due = ("First",)

    def test_an_alert_that_is_due_at_the_start_comes_up_in_front_of_the_main_window(self):
        alert = self.user.window(names.alert_title(1))
        main_window = self.user.window(names.MAIN)
        wait_until(lambda: self.desk.screen.is_above(alert, main_window), "the alert is in front")
        # Whatever the start still has to do must not bring the main window to the front again.
        holds_for(lambda: self.desk.screen.is_above(alert, main_window), "the alert stays in front", 2)

    def test_no_window_is_topmost(self):
        alert = self.user.window(names.alert_title(1))
        main_window = self.user.window(names.MAIN)
        self.user.click_control(self.user.alert(1), names.OPEN_ITEM)
        dialog = self.user.window(names.TASK_DIALOG)
        self.user.wait_active(names.TASK_DIALOG)
        self.assertEqual([window.topmost for window in (alert, main_window, dialog)], [False, False, False])

    def test_the_owner_follows_the_window_that_opens_the_dialog(self):
        alert = self.user.window(names.alert_title(1))
        self.user.click_control(self.user.alert(1), names.OPEN_ITEM)
        dialog = self.user.window(names.TASK_DIALOG)
        wait_until(lambda: dialog.owner == alert, "the dialog belongs to the alert")
        self.user.click_control(self.user.dialog(), names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        alert.close()
        self.user.wait_hidden(names.alert_title(1))
        self.user.window(names.MAIN).activate()
        self.user.wait_active(names.MAIN)
        self.user.click_control(self.user.main(), names.ADD)
        dialog = self.user.window(names.TASK_DIALOG)
        wait_until(lambda: dialog.owner == self.user.window(names.MAIN), "the dialog belongs to the main window")

    def test_the_dialog_does_not_block_its_owner(self):
        self.user.window(names.alert_title(1)).close()
        self.user.wait_hidden(names.alert_title(1))
        dialog = self.open_task_dialog()
        self.assertFalse(dialog.modal)
        option = self.user.main().find("option", "Active tasks only")
        option.press()
        wait_until(lambda: option.checked, "the main window still answers")


class HiddenStartTest(WindowCase):
    always_on_top = 1
    minimize_on_start = 1
    due = ("First",)

    def test_only_the_alert_shows_and_the_tray_entry_says_show(self):
        alert = self.user.window(names.alert_title(1))
        wait_until(lambda: alert.topmost, "the alert is topmost")
        self.assertIsNone(self.user.seek_window(names.MAIN))
        self.assertEqual(self.user.first_tray_entry(), "Show")
        self.user.choose_tray_entry("Show")
        self.user.window(names.MAIN)
        self.assertEqual(self.user.first_tray_entry(), "Hide")


class OpenOnTodayTest(WindowCase):
    def setUp(self):
        DesktopCase.setUp(self)
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=1)
        self.store.add_task("Today", due=datetime(2026, 3, 2, 23, 59))
        self.store.add_task("Tomorrow", due=datetime(2026, 3, 3, 0, 0))
        self.user = self.start(self.desk.clock(NOW))

    def test_the_list_opens_on_the_tasks_due_today(self):
        self.user.wait_loaded()
        self.user.wait_rows(["Today"])
        self.assertTrue(self.user.main().find("option", "Specific").checked)


if __name__ == "__main__":
    main()
