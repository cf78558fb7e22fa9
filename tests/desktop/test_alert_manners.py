"""The alert comes up while the user works elsewhere: nothing typed is lost, and no key works in the wrong window."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import PERIOD_AND_SLACK, wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
DUE = datetime(2026, 3, 2, 10, 30, 0)
LATER = datetime(2026, 3, 2, 10, 40, 0)
TYPED = ["d", "space", "Return", "a", "Escape", "Delete", "r"]


class OtherProgramTest(DesktopCase):
    def start_beside_another_program(self, **settings):
        self.store.set(**{"always_on_top": 0, "minimize_on_start": 1, "show_today_tasks": 0, **settings})
        self.task = self.store.add_task("Due", reminder=DUE)
        self.clock = self.desk.clock(NOW)
        self.user = self.start(self.clock)
        self.user.tray_icon()
        if not settings.get("minimize_on_start", 1):
            self.user.wait_loaded()
        self.other = self.desk.screen.open_plain_window("Letter", 700, 100, 400, 300)
        wait_until(lambda: self.other.mapped, "the other program shows")
        self.desk.input.click(*self.other.center())
        wait_until(lambda: self.other.active, "the other program is active")

    def come_up(self, moment=DUE, count=1):
        self.clock.set(moment)
        self.user.alert(count, PERIOD_AND_SLACK)
        return self.user.window(names.alert_title(count))

    def type_a_letter(self):
        for key in TYPED:
            self.desk.input.key(key)
        struck = []

        def all_arrived():
            struck.extend(self.desk.screen.keys_struck())
            return len(struck) >= len(TYPED)
        wait_until(all_arrived, "the keys arrive in the other program")
        self.assertEqual(struck, TYPED)

    def assert_nothing_happened(self, count=1):
        self.assertTrue(self.user.shows(names.alert_title(count)))
        for task in self.store.tasks():
            self.assertEqual((task["dismissed"], task["reminder_on"]), (0, 1))

    def test_the_other_program_stays_active_and_gets_the_keys(self):
        self.start_beside_another_program()
        alert = self.come_up()
        self.type_a_letter()
        wait_until(lambda: self.desk.screen.is_above(alert, self.other), "the alert lies in front")
        wait_until(lambda: alert.demands_attention, "the alert asks for attention")
        self.assertTrue(self.other.active)
        self.assert_nothing_happened()

    def test_with_the_main_window_in_the_background_too(self):
        self.start_beside_another_program(minimize_on_start=0)
        self.come_up()
        self.type_a_letter()
        self.assertTrue(self.other.active)
        self.assert_nothing_happened()

    def test_topmost_it_lies_above_and_leaves_the_keys_where_they_were(self):
        self.start_beside_another_program(always_on_top=1)
        alert = self.come_up()
        wait_until(lambda: self.desk.screen.is_above(alert, self.other), "the alert lies above")
        self.type_a_letter()
        self.assertTrue(self.other.active)
        self.assert_nothing_happened()

    def test_a_minimized_alert_comes_back_without_the_keys(self):
        self.start_beside_another_program()
        alert = self.come_up()
        alert.minimize()
        wait_until(lambda: alert.minimized, "the alert is minimized")
        self.desk.input.click(*self.other.center())
        wait_until(lambda: self.other.active, "the other program is active")
        self.store.add_task("Second", reminder=LATER)
        self.come_up(LATER, 2)
        wait_until(lambda: self.user.shows(names.alert_title(2)), "the alert is back")
        self.type_a_letter()
        self.assertTrue(self.other.active)
        self.assert_nothing_happened(2)

    def test_the_next_time_it_asks_for_attention_too(self):
        self.start_beside_another_program()
        alert = self.come_up()
        wait_until(lambda: alert.demands_attention, "the alert asks for attention")
        self.store.execute("delete from tasks")
        self.user.wait_hidden(names.alert_title(1))
        self.store.add_task("Second", reminder=DUE)
        alert = self.come_up()
        wait_until(lambda: alert.demands_attention, "the alert asks for attention again")

    def test_a_click_into_the_alert_works_it_at_once(self):
        self.start_beside_another_program()
        alert = self.come_up()
        self.user.click_control(self.user.alert(1), names.DISMISS)
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.store.task(self.task)["dismissed"], 1)
        self.assertFalse(alert.mapped)

    def test_the_main_window_comes_in_front_with_the_keyboard_and_the_alert_stays_within_reach(self):
        self.start_beside_another_program()
        alert = self.come_up()
        wait_until(lambda: alert.demands_attention, "the alert asks for attention")
        self.user.double_click_tray()
        self.user.wait_active(names.MAIN)
        main_window = self.user.window(names.MAIN)
        wait_until(lambda: self.desk.screen.is_above(main_window, alert), "the main window lies in front")
        self.assertTrue(alert.mapped and alert.demands_attention)
        # By the mouse alone, and without a task bar.
        self.user.double_click_tray()
        self.user.wait_hidden(names.MAIN)
        self.user.click_control(self.user.alert(1), names.DISMISS)
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.store.task(self.task)["dismissed"], 1)


if __name__ == "__main__":
    main()
