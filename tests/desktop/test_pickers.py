"""Dates, times and lists under a real mouse and real keys: what a click, Ctrl+A and the wheel do."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 2, 15, 10, 20, 30)
WHEEL_DOWN = 5


class PickersTest(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()

    def click_begin(self, picker):
        x, y, _, height = picker.place()
        self.desk.input.click(x + 12, y + height // 2)
        wait_until(lambda: picker.has("focused"), f"{picker!r} has the focus")

    def test_a_time_is_typed_where_it_was_clicked(self):
        picker = self.user.open_new_task().find(*names.DUE_TIME)
        self.click_begin(picker)
        self.desk.input.type("0211")
        wait_until(lambda: picker.text == "02:11", "the time is typed")
        self.desk.input.key("a", "Control_L")
        self.desk.input.type("1345")
        wait_until(lambda: picker.text == "13:45", "the time is typed over all of it")
        self.desk.input.key("Home")
        self.desk.input.type("09:07")
        wait_until(lambda: picker.text == "09:07", "the time is typed with its separator")

    def test_the_wheel_turns_a_filter_only_after_a_click(self):
        window = self.user.main()
        self.user.wait_active(names.MAIN)
        combo = window.find("combo box", "Status")
        place = self.user.place_of(combo)
        before = combo.name
        self.desk.input.click(*place, WHEEL_DOWN)
        # A click on the page behind it proves that the turn has been and gone.
        self.user.open_page("Categories")
        self.user.open_page("Tasks")
        self.assertEqual(combo.name, before)
        self.assertFalse(combo.has("focused"))
        self.desk.input.click(*place)
        wait_until(lambda: any(node.has("showing") for node in combo.all("list")), "the list is open")
        self.desk.input.key("Escape")
        wait_until(lambda: combo.has("focused"), "the list has the focus")
        self.desk.input.click(*place, WHEEL_DOWN)
        wait_until(lambda: combo.name != before, "the wheel turns the list")

    def test_the_chosen_entry_of_a_closed_list_is_told_to_screen_readers(self):
        combo = self.user.main().find("combo box", "Status")
        self.user.wait_active(names.MAIN)
        entries = combo.children()[0].children()
        chosen = next(entry for entry in entries if entry.has("selected"))
        self.desk.input.key("u", "Alt_L")
        wait_until(lambda: self.user.access.told("focused")[-2:] == [combo, chosen], "the box and its entry are told")
        self.desk.input.key("Up" if chosen == entries[-1] else "Down")
        after = entries[entries.index(chosen) + (-1 if chosen == entries[-1] else 1)]
        wait_until(lambda: self.user.access.told("focused")[-1] == after, "the entry chosen by key is told")
        self.assertEqual(combo.name, after.name)
        self.assertTrue(after.has("focused"))
        self.assertFalse(chosen.has("focused"))

    def test_the_pages_are_turned_from_a_list(self):
        window = self.user.main()
        self.user.wait_active(names.MAIN)
        combo = window.find("combo box", "Status")
        before = combo.name
        self.desk.input.key("u", "Alt_L")
        wait_until(lambda: combo.has("focused"), "the list has the focus")
        self.desk.input.key("Page_Down", "Control_L")
        window.find(*names.CATEGORY_LIST)
        self.desk.input.key("Tab", "Control_L")
        window.find(*names.PAGES["Settings"])
        self.desk.input.key("Page_Up", "Control_L")
        self.desk.input.key("Tab", "Control_L", "Shift_L")
        window.find("grid", "Tasks")
        self.assertEqual(combo.name, before)


if __name__ == "__main__":
    main()
