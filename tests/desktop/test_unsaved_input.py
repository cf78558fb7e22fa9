"""Input that is not saved is never lost without a word."""
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)


class UnsavedInputTest(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.add_task("Alpha")
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()
        self.user.wait_rows(["Alpha"])

    def half_typed(self, name="Half"):
        dialog = self.user.open_new_task()
        self.user.choose(dialog, names.TASK_CATEGORY, "Work")
        self.user.type_into(dialog, names.TASK_NAME, name)
        return dialog

    def press_beside(self, control):
        """Presses a button of the main window, which lies behind the dialog."""
        self.user.click(self.user.main().find("page", "Tasks"))
        self.user.wait_active(names.MAIN)
        self.user.click_control(self.user.main(), control)

    def question(self, name):
        box = self.user.access.message_box(names.not_saved(name))
        wait_until(lambda: box.find(*names.CANCEL).has("focused"), "Cancel is the default")
        return box

    def wait_closed(self, box):
        wait_until(lambda: box not in self.user.access.windows(), "the question closes")

    def test_a_new_task_over_a_half_typed_one_asks_and_enter_keeps_it(self):
        self.half_typed()
        self.press_beside(names.ADD)
        box = self.question("Half")
        client = wait_until(lambda: next((client for client in self.desk.screen.clients()
                                          if client.owner == self.user.window(names.TASK_DIALOG)), None),
                            "the question belongs to the dialog")
        wait_until(lambda: self.desk.screen.is_above(client, self.user.window(names.TASK_DIALOG)),
                   "the question stands above the dialog")
        self.desk.input.key("Return")
        self.wait_closed(box)
        self.user.wait_active(names.TASK_DIALOG)
        self.assertEqual(self.user.dialog().find(*names.TASK_NAME).text, "Half")
        self.desk.input.type("done")
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Halfdone", "the keys go on")
        self.assertEqual(len(self.store.tasks()), 1)

    def test_saved_from_the_question_both_are_there(self):
        self.half_typed()
        self.press_beside(names.ADD)
        self.user.click_control(self.question("Half"), names.SAVE)
        self.user.wait_rows(["Alpha", "Half"])
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "", "a new task can be entered")
        self.user.click_control(self.user.dialog(), names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_active(names.MAIN)

    def test_discarded_input_gives_way_to_the_task_that_was_asked_for(self):
        self.user.select_row("Alpha")
        self.half_typed()
        self.press_beside(names.EDIT)
        self.question("Half")
        self.desk.input.key("d", "Alt_L")
        self.user.wait_active(names.TASK_DIALOG)
        wait_until(lambda: self.user.dialog().find(*names.TASK_NAME).text == "Alpha", "the task is loaded")
        self.assertEqual(len(self.store.tasks()), 1)

    def test_input_that_was_hidden_by_the_tray_comes_back_with_the_question(self):
        self.half_typed()
        self.user.double_click_tray()
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_hidden(names.MAIN)
        self.user.double_click_tray()
        self.user.wait_active(names.MAIN)
        self.assertFalse(self.user.shows(names.TASK_DIALOG))
        self.user.click_control(self.user.main(), names.ADD)
        box = self.question("Half")
        self.assertTrue(self.user.shows(names.TASK_DIALOG))
        self.desk.input.key("Escape")
        self.wait_closed(box)
        self.user.wait_active(names.TASK_DIALOG)
        self.assertEqual(self.user.dialog().find(*names.TASK_NAME).text, "Half")

    def test_exit_is_not_held_up_by_the_question(self):
        self.half_typed()
        self.desk.input.key("Escape")
        self.question("Half")
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        self.assertEqual(len(self.store.tasks()), 1)


if __name__ == "__main__":
    main()
