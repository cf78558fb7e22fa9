"""The first hour: tasks are added, completed, deleted and postponed, several at once, and all of it is taken back; by
keys alone, and through assistive technology alone."""
from datetime import datetime

import names
from by_keys import KeyboardCase
from case import main
from polling import wait_until
from test_access import AccessCase

TASKS = ["Pay the rent", "Water the plants", "Call the bank"]
DUE = ["10:30", "10:31", "10:32"]
NOT_STARTED, COMPLETED = 0, 2


class WhatIsThere:
    """What a test of this file looks at, whichever way it works."""

    def statuses(self):
        return [task["task_status"] for task in self.store.tasks()]

    def wait_stored(self, what, wanted):
        wait_until(lambda: what() == wanted, f"{wanted} is stored")

    def wait_all_selected(self, rows, window=None):
        grid = self.user.grid(window)
        wait_until(lambda: grid.selected_rows() == rows, f"the rows {rows} are selected")


class SeveralTasksByKeysTest(WhatIsThere, KeyboardCase):
    def open_menu(self):
        self.key("Menu")
        return self.user.access.shown("menu")

    def test_three_tasks_are_added_completed_deleted_and_postponed_and_it_is_taken_back(self):
        for task, due in zip(TASKS, DUE):
            self.add_task(task, due, category="Work")
        self.user.wait_rows(TASKS)
        stored = self.store.tasks()

        self.wait_grid_focus()
        self.ctrl("f")
        self.desk.input.type("PLANT")
        self.user.wait_rows(TASKS[1:2])
        self.key("Down")
        self.wait_grid_focus()
        self.wait_selected(0)
        self.ctrl("d")
        self.wait_stored(self.statuses, [NOT_STARTED, COMPLETED, NOT_STARTED])
        self.wait_selected(0)
        self.key("Escape")
        self.user.wait_rows(TASKS)
        self.wait_selected(1)
        self.ctrl("z")
        self.wait_stored(self.store.tasks, stored)
        self.ctrl("z", "Shift_L")
        self.wait_stored(self.statuses, [NOT_STARTED, COMPLETED, NOT_STARTED])
        self.ctrl("z")
        self.wait_stored(self.store.tasks, stored)

        self.wait_grid_focus()
        self.key("Home")
        self.desk.input.key("Down", "Shift_L")
        self.wait_all_selected([0, 1])
        self.key("Delete")
        self.answer_yes(names.delete_tasks_question(2))
        self.user.wait_rows(TASKS[2:])
        self.wait_selected(0)
        self.ctrl("z")
        self.user.wait_rows(TASKS)
        self.assertEqual(self.store.tasks(), stored)

        alert = self.wait_alert(datetime(2026, 3, 2, 10, 42, 10), TASKS)
        self.desk.input.key("Down", "Shift_L")
        self.wait_all_selected([0, 1], alert)
        menu = self.open_menu()
        self.assertEqual([entry.name for entry in menu.children()], names.ALERT_MENU)
        self.key("r", "h")
        self.user.wait_rows(TASKS[2:], alert)
        self.assertEqual([moment for moment, *_ in self.reminders().values()],
                         ["2026-03-02 11:42:00", "2026-03-02 11:42:00", "2026-03-02 10:32:00"])

        self.desk.input.switch_window()
        self.user.wait_active(names.MAIN)
        self.ctrl("z")
        self.user.wait_rows(TASKS, alert)
        self.assertEqual([moment for moment, *_ in self.reminders().values()],
                         ["2026-03-02 10:30:00", "2026-03-02 10:31:00", "2026-03-02 10:32:00"])

    def test_held_keys_change_once(self):
        tasks = [f"Task {number}" for number in range(8)]
        for task in tasks:
            self.store.add_task(task)
        self.user.wait_rows(tasks)
        self.wait_grid_focus()
        self.key("Home")
        for row in range(8):
            self.wait_selected(row)
            self.ctrl("d")
            self.wait_stored(self.statuses, [COMPLETED] * (row + 1) + [NOT_STARTED] * (7 - row))
            self.key("Down")
        self.desk.input.hold(3, "z", "Control_L")
        self.user.wait_answering()
        self.assertEqual(self.statuses(), [COMPLETED] * 7 + [NOT_STARTED])
        # A shortcut of a button.
        self.desk.input.hold(3, "n", "Alt_L")
        self.user.wait_answering()
        self.assertEqual(self.statuses(), [COMPLETED] * 6 + [NOT_STARTED] * 2)
        # The list follows a held key to its end.
        self.key("End")
        self.desk.input.hold(3, "Up")
        self.wait_selected(0)

    def test_the_menu_of_the_list_opens_by_both_keys_and_works_by_keys(self):
        for task, due in zip(TASKS, DUE):
            self.add_task(task, due, category="Work")
        self.user.wait_rows(TASKS)
        self.wait_grid_focus()
        self.key("Home")
        self.wait_selected(0)
        self.ctrl("a")
        self.wait_all_selected([0, 1, 2])
        menu = self.open_menu()
        entries = [entry.name for entry in menu.children() if entry.has("showing") and entry.name]
        self.assertEqual(entries, names.LIST_MENU)
        self.key("Escape")
        wait_until(lambda: not menu.has("showing"), "the menu closes")
        self.wait_grid_focus()
        self.desk.input.key("F10", "Shift_L")
        self.user.access.shown("menu")
        self.key("i", "Down", "Down", "Return")
        self.wait_stored(lambda: [task["task_periority"] for task in self.store.tasks()], [0, 0, 0])
        self.wait_all_selected([0, 1, 2])
        self.ctrl("z")
        self.wait_stored(lambda: [task["task_periority"] for task in self.store.tasks()], [1, 1, 1])


class SeveralTasksOverTheBusTest(WhatIsThere, AccessCase):
    """The same by actions, texts and selections on the accessibility bus: there are neither mouse nor keys."""

    def cell(self, name, window=None, column="Name"):
        grid = self.user.grid(window)
        return grid.cell(self.user.row_names(window).index(name), grid.headers().index(column))

    def select_all_of(self, tasks, window=None):
        """The first alone, then the others besides it."""
        self.select(tasks[0], window)
        rows = [self.user.row_names(window).index(task) for task in tasks]
        for row in rows[1:]:
            self.user.grid(window).add_row(row)
        self.wait_all_selected(rows, window)

    def choose_entry(self, of, *entries):
        """Opens the menu of a part of a window and chooses an entry, through the menu below one if need be."""
        of.show_menu()
        for entry in entries[:-1]:
            self.user.access.shown("menu").find("menu entry", entry).show_menu()
        menu = self.user.access.shown("menu")
        menu.find("menu entry", entries[-1]).press()
        wait_until(lambda: not menu.has("showing"), "the menu closes")

    def wait_heard(self, said):
        self.user.main().find("notification", said)

    def undo(self, step):
        self.wait_heard(step)
        self.user.main().find(*names.UNDO).press()
        self.wait_heard(f"Undone: {step}")

    def test_three_tasks_are_added_completed_deleted_and_postponed_and_it_is_taken_back(self):
        self.add_three()
        stored = self.store.tasks()
        self.find_one()
        self.complete_one()
        self.undo("1 task completed")
        self.wait_stored(self.store.tasks, stored)
        self.delete_two()
        self.undo("2 tasks deleted")
        self.user.wait_rows(TASKS)
        self.assertEqual(self.store.tasks(), stored)
        self.postpone_two_from_the_alert()

    def add_three(self):
        for task, due in zip(TASKS, DUE):
            self.add_task(task, due, category="Work")
        self.user.wait_rows(TASKS)
        for task in TASKS:
            self.assertEqual(self.cell(task).description, "Due today\nCategory: Work")
            self.assertEqual(self.cell(task, column="Status").name, "Not Started")

    def find_one(self):
        window = self.user.main()
        self.write(window, names.FIND, "PLANT")
        self.user.wait_rows(TASKS[1:2])
        self.wait_heard("1 of 3 tasks")
        self.write(window, names.FIND, "")
        self.user.wait_rows(TASKS)

    def complete_one(self):
        self.choose_entry(self.cell(TASKS[1]), "Complete")
        self.wait_stored(self.statuses, [NOT_STARTED, COMPLETED, NOT_STARTED])
        wait_until(lambda: self.cell(TASKS[1], column="Status").name == "Completed", "the list says so")
        self.wait_all_selected([1])

    def delete_two(self):
        self.select_all_of(TASKS[:2])
        self.choose_entry(self.cell(TASKS[1]), "Delete")
        self.answer_yes(names.delete_tasks_question(2))
        self.user.wait_rows(TASKS[2:])

    def postpone_two_from_the_alert(self):
        alert = self.wait_alert(datetime(2026, 3, 2, 10, 42, 10), TASKS)
        for task in TASKS:
            wait_until(lambda task=task: self.cell(task).description == "Overdue\nCategory: Work", f"'{task}' is late")
        self.assertEqual(self.cell(TASKS[1], alert).description, "Overdue\nCategory: Work\n11 minutes late")
        self.select_all_of(TASKS[:2], alert)
        self.choose_entry(self.user.grid(alert), "Remind me later", "In 1 hour")
        self.user.wait_rows(TASKS[2:], alert)
        self.assertEqual([moment for moment, *_ in self.reminders().values()],
                         ["2026-03-02 11:42:00", "2026-03-02 11:42:00", "2026-03-02 10:32:00"])
        self.undo("2 reminders postponed")
        self.assertEqual([moment for moment, *_ in self.reminders().values()],
                         [f"2026-03-02 {due}:00" for due in DUE])


if __name__ == "__main__":
    main()
