"""Where the keyboard goes: real keys, and the focus that the window manager and the program agree on."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)


class FocusCase(DesktopCase):
    minimize_on_start = 0

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=self.minimize_on_start, show_today_tasks=0)
        self.store.add_task("Alpha", due=datetime(2026, 4, 1, 9, 0))
        self.store.add_task("Beta", due=datetime(2026, 4, 2, 9, 0))

    def wait_grid_focus(self, title):
        self.user.wait_active(title)
        wait_until(lambda: self.user.grid(self.user.access.window(title)).has("focused")
                   or self.focused_cell(title), f"the grid of '{title}' has the focus")

    def focused_cell(self, title):
        """A grid with a current cell passes its focus state on to the cell."""
        grid = self.user.grid(self.user.access.window(title))
        return any(grid.cell(row, column).has("focused")
                   for row in range(grid.rows()) for column in range(grid.columns()))


class MainGridTest(FocusCase):
    def setUp(self):
        super().setUp()
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()
        self.user.wait_rows(["Alpha", "Beta"])

    def test_the_program_opens_with_the_focus_in_the_list(self):
        self.wait_grid_focus(names.MAIN)

    def test_cancel_gives_the_focus_back_to_the_list(self):
        dialog = self.user.open_new_task()
        self.user.click_control(dialog, names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.wait_grid_focus(names.MAIN)

    def test_escape_in_the_dialog_cancels(self):
        dialog = self.user.open_new_task()
        self.user.type_into(dialog, names.TASK_NAME, "never saved")
        self.desk.input.key("Escape")
        self.user.answer(names.not_saved("never saved"), names.DISCARD)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.wait_grid_focus(names.MAIN)
        self.assertIsNone(self.store.task_named("never saved"))

    def test_enter_in_the_name_box_saves(self):
        dialog = self.user.open_new_task()
        self.user.choose(dialog, names.TASK_CATEGORY, "Work")
        self.user.type_into(dialog, names.TASK_NAME, "Gamma")
        self.desk.input.key("Return")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Alpha", "Beta", "Gamma"])
        self.assertEqual(self.store.task_named("Gamma")["task_desc"], "")

    def test_enter_in_the_description_breaks_the_line(self):
        dialog = self.user.open_new_task()
        self.user.choose(dialog, names.TASK_CATEGORY, "Work")
        self.user.type_into(dialog, names.TASK_NAME, "Gamma")
        self.user.type_into(dialog, names.TASK_DESCRIPTION, "one")
        self.desk.input.key("Return")
        self.desk.input.type("two")
        wait_until(lambda: dialog.find(*names.TASK_DESCRIPTION).text == "one\ntwo", "the line is broken")
        self.assertTrue(self.user.shows(names.TASK_DIALOG))
        self.user.click_control(dialog, names.OK)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.assertEqual(self.store.task_named("Gamma")["task_desc"].replace("\r\n", "\n"), "one\ntwo")

    def test_a_refused_dialog_puts_the_focus_on_the_culprit(self):
        dialog = self.user.open_new_task()
        self.user.type_into(dialog, names.TASK_NAME, "Gamma")
        self.user.click_control(dialog, names.OK)
        box = self.user.access.message_box(names.NO_CATEGORY)
        self.desk.input.key("Return")
        wait_until(lambda: box not in self.user.access.windows(), "the message closes")
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: dialog.find(*names.TASK_CATEGORY).has("focused"), "the category has the focus")
        self.assertEqual(dialog.find(*names.TASK_NAME).text, "Gamma")

    def test_enter_on_a_row_opens_it(self):
        self.user.select_row("Beta")
        self.desk.input.key("Return")
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Beta", "the task is loaded")

    def test_the_keys_go_on_from_the_task_that_was_edited(self):
        self.store.add_task("Gamma")
        self.user.select_row("Beta")
        self.desk.input.key("Return")
        self.user.wait_active(names.TASK_DIALOG)
        self.user.type_into(self.user.dialog(), names.TASK_NAME, "Delta")
        self.desk.input.key("Return")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Alpha", "Delta", "Gamma"])
        self.wait_grid_focus(names.MAIN)
        self.assertEqual(self.user.grid().selected_rows(), [])
        self.desk.input.key("Down")
        wait_until(lambda: self.user.grid().selected_rows() == [2], "the next row is selected")

    def test_a_double_click_on_a_row_opens_it(self):
        self.desk.input.double_click(*self.user.row_place("Alpha"))
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Alpha", "the task is loaded")

    def test_delete_on_a_row_asks_and_no_keeps_it(self):
        self.user.select_row("Alpha")
        self.desk.input.key("Delete")
        box = self.user.access.message_box(names.DELETE_QUESTION)
        self.user.click_control(box, names.NO)
        self.user.wait_active(names.MAIN)
        self.user.wait_rows(["Alpha", "Beta"])
        self.assertEqual(len(self.store.tasks()), 2)

    def test_enter_and_escape_in_the_question_delete_nothing(self):
        self.user.select_row("Alpha")
        for key in "Return", "KP_Enter", "Escape":
            self.desk.input.key("Delete")
            box = self.user.access.message_box(names.DELETE_QUESTION)
            wait_until(lambda no=box.find(*names.NO): no.has("focused"), "No is the default")
            self.desk.input.key(key)
            wait_until(lambda closed=box: closed not in self.user.access.windows(), "the question closes")
            self.wait_grid_focus(names.MAIN)
        self.user.wait_rows(["Alpha", "Beta"])
        self.assertEqual(len(self.store.tasks()), 2)

    def test_delete_on_a_row_asks_and_yes_removes_it(self):
        self.user.select_row("Alpha")
        self.desk.input.key("Delete")
        box = self.user.access.message_box(names.DELETE_QUESTION)
        self.user.click_control(box, names.YES)
        self.user.wait_rows(["Beta"])
        self.assertEqual([task["task_name"] for task in self.store.tasks()], ["Beta"])
        wait_until(lambda: self.user.grid().selected_rows() == [0], "the next row is selected")
        self.wait_grid_focus(names.MAIN)

    def test_keys_without_a_selected_row_do_nothing(self):
        dialog = self.user.open_new_task()
        self.user.click_control(dialog, names.CANCEL)
        self.wait_grid_focus(names.MAIN)
        self.assertEqual(self.user.grid().selected_rows(), [])
        self.desk.input.key("Delete")
        self.desk.input.key("Return")
        # The dialog that the button opens next proves that no question stands in the way.
        self.user.open_new_task()
        self.assertEqual(len(self.store.tasks()), 2)

    def test_the_focus_follows_the_page(self):
        main_window = self.user.main()
        self.user.click(main_window.find("page", "Settings"))
        self.user.click(main_window.find("page", "Tasks"))
        self.wait_grid_focus(names.MAIN)


class HiddenMainTest(FocusCase):
    minimize_on_start = 1

    def test_cancel_gives_the_focus_back_to_the_alert_while_the_main_window_is_hidden(self):
        self.store.add_task("Due", reminder=datetime(2026, 3, 2, 10, 0))
        self.user = self.start(self.desk.clock(NOW))
        title = names.alert_title(1)
        alert = self.user.alert(1)
        self.user.window(title)
        self.user.click_control(alert, names.OPEN_ITEM)
        self.user.wait_active(names.TASK_DIALOG)
        self.user.click_control(self.user.dialog(), names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.wait_grid_focus(title)
        self.assertFalse(self.user.shows(names.MAIN))

    def test_the_alert_comes_up_with_the_focus_in_its_grid(self):
        self.store.add_task("Due", reminder=datetime(2026, 3, 2, 10, 0))
        self.user = self.start(self.desk.clock(NOW))
        self.user.window(names.alert_title(1))
        self.wait_grid_focus(names.alert_title(1))

    def test_escape_in_the_dialog_of_the_alert_does_the_same(self):
        self.store.add_task("Due", reminder=datetime(2026, 3, 2, 10, 0))
        self.user = self.start(self.desk.clock(NOW))
        title = names.alert_title(1)
        self.user.window(title)
        self.user.click_control(self.user.alert(1), names.OPEN_ITEM)
        self.user.wait_active(names.TASK_DIALOG)
        self.desk.input.key("Escape")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.wait_grid_focus(title)


if __name__ == "__main__":
    main()
