"""The alert comes up while the user works in the program itself: the window that is being worked in keeps the keys."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import PERIOD_AND_SLACK, holds_for, wait_until

PAST = datetime(2026, 3, 2, 10, 0, 0)
NOW = datetime(2026, 3, 2, 10, 20, 30)
A_MOMENT = 1


class OwnWindowsCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.add_task("Later", due=datetime(2026, 4, 1, 9, 0))

    def start_program(self):
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()

    def come_up(self):
        """A reminder falls due; returns its alert as soon as it is on the screen."""
        self.store.add_task("Due", reminder=PAST)
        return self.user.window(names.alert_title(1), PERIOD_AND_SLACK)

    def wait_above(self, upper, lower):
        wait_until(lambda: self.desk.screen.is_above(upper, lower), f"{upper!r} lies above {lower!r}")

    def assert_nothing_dismissed(self):
        due = self.store.task_named("Due")
        self.assertEqual((due["dismissed"], due["reminder_on"]), (0, 1))


class WhileTheUserWorksTest(OwnWindowsCase):
    def setUp(self):
        super().setUp()
        self.start_program()

    def test_what_is_typed_into_the_task_dialog_lands_there(self):
        dialog = self.user.open_new_task()
        self.user.type_into(dialog, names.TASK_NAME, "half")
        window = self.user.window(names.TASK_DIALOG)
        alert = self.come_up()
        self.desk.input.type(" of d a name")
        wait_until(lambda: dialog.find(*names.TASK_NAME).text == "half of d a name", "the letters are in the dialog")
        self.wait_above(alert, window)
        self.wait_above(alert, self.user.window(names.MAIN))
        wait_until(lambda: alert.demands_attention, "the alert asks for attention")
        holds_for(lambda: window.active, "the dialog has the keyboard", A_MOMENT)
        self.desk.input.type("!")
        wait_until(lambda: dialog.find(*names.TASK_NAME).text == "half of d a name!", "the dialog still has the keys")
        self.assert_nothing_dismissed()

    def test_the_keys_of_the_main_window_go_there_and_dismiss_nothing(self):
        alert = self.come_up()
        self.desk.input.key("d", "Alt_L")
        self.desk.input.key("a", "Alt_L")
        self.user.wait_active(names.TASK_DIALOG)
        self.assertTrue(alert.mapped)
        self.assert_nothing_dismissed()

    def test_turning_to_another_page_leaves_it_in_front(self):
        alert = self.come_up()
        main_window = self.user.window(names.MAIN)
        self.wait_above(alert, main_window)
        for page in range(4):
            self.desk.input.key("Tab", "Control_L")
            self.user.wait_answering()
            holds_for(lambda: main_window.active and self.desk.screen.is_above(alert, main_window),
                      f"the alert lies in front after turn {page}", A_MOMENT)

    def test_alt_tab_activates_it_and_then_its_keys_work(self):
        alert = self.come_up()
        main_window = self.user.window(names.MAIN)
        self.wait_above(alert, main_window)
        holds_for(lambda: main_window.active, "the main window has the keyboard", A_MOMENT)
        self.desk.input.switch_window()
        self.user.wait_active(names.alert_title(1))
        # The window manager tells of it a little before the alert hears of it.
        wait_until(lambda: self.user.access.window(names.alert_title(1)).has("active"), "the alert knows that it is active")
        self.desk.input.key("m", "Control_L")
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.store.task_named("Due")["dismissed"], 1)

    def test_after_a_message_box_it_lies_in_front_and_the_main_window_has_the_keys(self):
        main_window = self.user.window(names.MAIN)
        self.user.select_row("Later")
        self.desk.input.key("Delete")
        box = self.user.access.message_box(names.DELETE_QUESTION)
        alert = self.come_up()
        holds_for(lambda: not alert.active, "the box has the keyboard", A_MOMENT)
        self.desk.input.key("Escape")
        wait_until(lambda: box not in self.user.access.windows(), "the box closes")
        wait_until(lambda: main_window.active, "the main window has the keyboard again")
        self.wait_above(alert, main_window)
        holds_for(lambda: main_window.active and self.desk.screen.is_above(alert, main_window), "it stays so",
                  A_MOMENT)
        self.assertEqual(len(self.store.tasks()), 2)
        self.assert_nothing_dismissed()


class AfterOkTest(OwnWindowsCase):
    def test_the_main_window_that_comes_in_front_has_the_keys(self):
        self.store.add_task("Due", reminder=PAST)
        self.user = self.start(self.desk.clock(NOW))
        alert = self.user.window(names.alert_title(1))
        main_window = self.user.window(names.MAIN)
        self.wait_above(alert, main_window)
        holds_for(lambda: alert.mapped, "the user sees it", A_MOMENT)
        self.user.click_control(self.user.alert(1), names.OPEN_ITEM)
        self.user.wait_active(names.TASK_DIALOG)
        self.user.click_control(self.user.dialog(), names.OK)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_active(names.MAIN)
        self.wait_above(main_window, alert)
        # Delete in the main window, which has no row selected.
        self.desk.input.key("d", "Alt_L")
        holds_for(lambda: main_window.active and alert.mapped, "it stays so", A_MOMENT)
        self.assert_nothing_dismissed()


if __name__ == "__main__":
    main()
