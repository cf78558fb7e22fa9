"""A category and its tasks from their making to their end, as assistive technology works the program: without mouse and
keys, by actions, texts and selections on the accessibility bus."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import PERIOD_AND_SLACK, wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
CATEGORY = "Home and garden"


class AccessCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        for act in ("move", "press", "release", "click", "hover", "double_click", "key", "type"):
            setattr(self.desk.input, act, self.refuse_hands)
        self.fill()
        self.clock = self.desk.clock(NOW)
        self.user = self.start(self.clock)
        self.user.wait_loaded()

    def fill(self):
        """Puts into the data file what a test starts with."""

    @staticmethod
    def refuse_hands(*_, **__):
        raise AssertionError("there are neither mouse nor keys on this desk")

    def open_page(self, page):
        window = self.user.main()
        window.find("page", page).press()
        window.find(*names.PAGES[page])
        return window

    def write(self, window, control, text):
        box = window.find(*control)
        wait_until(lambda: box.has("enabled"), f"{box!r} can be written into")
        box.set_text(text)
        wait_until(lambda: box.text == text, f"{box!r} holds '{text}'")

    def choose(self, window, control, entry):
        combo = window.find(*control)
        entries = {node.name: node for node in combo.children()[0].children()}
        entries[entry].press()
        wait_until(lambda: combo.name == entry and entries[entry].has("selected"), f"'{entry}' is chosen")

    def select(self, name, window=None):
        """Selects the row of that name and answers the cell with the name."""
        grid = self.user.grid(window)
        row = self.user.row_names(window).index(name)
        cell = grid.cell(row, grid.headers().index("Name"))
        if not cell.has("selected"):
            cell.press()
        wait_until(lambda: grid.selected_rows() == [row], f"'{name}' is selected")
        return cell

    def answer_yes(self, question):
        box = self.user.access.message_box(question)
        box.find(*names.YES).press()
        wait_until(lambda: box not in self.user.access.windows(), "the question closes")

    def reminders(self):
        return {task["task_name"]: (task["reminder_date_time"], task["reminder_on"], task["dismissed"], task["played"])
                for task in self.store.tasks()}

    # The steps --------------------------------------------------------------------------------------------

    def add_category(self):
        self.open_page("Categories").find(*names.ADD_CATEGORY).press()
        dialog = self.user.access.window(names.CATEGORY_DIALOG)
        self.write(dialog, names.CATEGORY_NAME, CATEGORY)
        self.write(dialog, names.CATEGORY_DESCRIPTION, "All that grows")
        dialog.find(*names.icon(1)).toggle(True)
        dialog.find(*names.OK).press()
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        rows = self.store.execute("select * from categories where cat_name=?", (CATEGORY,))
        self.assertEqual([(row["cat_desc"], row["cat_icon"], row["custom_icon"]) for row in rows],
                         [("All that grows", 1, 0)])
        return rows[0]["cat_id"]

    def add_task(self, name, due, category=CATEGORY):
        """With a reminder at its due moment of this day."""
        self.open_page("Tasks").find(*names.ADD).press()
        dialog = self.user.access.window(names.TASK_DIALOG)
        self.write(dialog, names.TASK_NAME, name)
        self.choose(dialog, names.TASK_CATEGORY, category)
        reminder = dialog.find(*names.REMINDER_ON)
        self.assertFalse(dialog.find(*names.SOUND_ON).has("enabled"))
        reminder.toggle(True)
        wait_until(lambda: dialog.find(*names.SOUND_ON).has("enabled"), "the toggle opens what belongs to the reminder")
        reminder.toggle(False)
        wait_until(lambda: not dialog.find(*names.SOUND_ON).has("enabled"), "and closes it")
        self.write(dialog, names.DUE_TIME, due)
        reminder.toggle(True)
        wait_until(lambda: dialog.find(*names.REMINDER_TIME).text == due, "the reminder starts at the due moment")
        dialog.find(*names.OK).press()
        self.user.wait_hidden(names.TASK_DIALOG)

    def wait_alert(self, moment, rows):
        self.clock.set(moment)
        alert = self.user.alert(len(rows), PERIOD_AND_SLACK)
        self.user.wait_rows(rows, alert)
        return alert


class ScreenReaderTest(AccessCase):
    def test_a_category_and_its_tasks_are_made_reminded_of_edited_and_deleted_over_the_bus(self):
        starters = self.store.execute("select cat_name from categories order by cat_id")
        category = self.add_category()
        self.add_task("Water the plants", "10:30")
        self.add_task("Pay the gardener", "10:31")
        self.user.wait_rows(["Water the plants", "Pay the gardener"])
        self.assertEqual([task["cat_id"] for task in self.store.tasks()], [category, category])
        self.assertEqual(self.reminders(), {"Water the plants": ("2026-03-02 10:30:00", 1, 0, 0),
                                            "Pay the gardener": ("2026-03-02 10:31:00", 1, 0, 0)})
        self.postpone_one_and_dismiss_both()
        self.edit_and_delete()
        self.delete_category()
        self.assertEqual(self.store.tasks(), [])
        self.assertEqual(self.store.execute("select cat_name from categories order by cat_id"), starters)

    def postpone_one_and_dismiss_both(self):
        alert = self.wait_alert(datetime(2026, 3, 2, 10, 42, 10), ["Water the plants", "Pay the gardener"])
        cell = self.select("Pay the gardener", alert)
        self.assertIn("11 minutes late", cell.description)
        self.assertIn(f"Category: {CATEGORY}", cell.description)
        alert.find(*names.USUAL_MOMENTS).press()
        self.user.access.shown("menu").find("menu entry", "In 1 hour").press()
        wait_until(lambda: alert.find(*names.LATER_TIME).text == "11:42", "an hour from now is filled in")
        alert.find(*names.REMIND_LATER).press()
        self.user.wait_rows(["Water the plants"], alert)
        self.select("Water the plants", alert)
        alert.find(*names.DISMISS).press()
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual(self.reminders(), {"Water the plants": ("2026-03-02 10:30:00", 0, 1, 1),
                                            "Pay the gardener": ("2026-03-02 11:42:00", 1, 0, 0)})

        alert = self.wait_alert(datetime(2026, 3, 2, 11, 42, 10), ["Pay the gardener"])
        alert.find(*names.DISMISS_ALL).press()
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.reminders()["Pay the gardener"], ("2026-03-02 11:42:00", 0, 1, 1))

    def edit_and_delete(self):
        untouched = self.store.task_named("Water the plants")
        before = self.store.task_named("Pay the gardener")
        self.select("Pay the gardener")
        self.user.main().find(*names.EDIT).press()
        dialog = self.user.access.window(names.TASK_DIALOG)
        wait_until(lambda: dialog.find(*names.TASK_NAME).text == "Pay the gardener", "the task is loaded")
        self.write(dialog, names.TASK_NAME, "Thank the gardener")
        self.write(dialog, names.TASK_DESCRIPTION, "With flowers")
        self.choose(dialog, names.TASK_STATUS, "In Progress")
        self.choose(dialog, names.TASK_PRIORITY, "High")
        dialog.find(*names.OK).press()
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Water the plants", "Thank the gardener"])
        self.assertEqual(self.store.task(before["task_id"]),
                         {**before, "task_name": "Thank the gardener", "task_desc": "With flowers",
                          "task_status": 1, "task_periority": 0})

        self.select("Thank the gardener")
        self.user.main().find(*names.DELETE).press()
        self.answer_yes(names.DELETE_QUESTION)
        self.user.wait_rows(["Water the plants"])
        self.assertEqual(self.store.tasks(), [untouched])

    def delete_category(self):
        categories = self.open_page("Categories").find(*names.CATEGORY_LIST)
        entry = next(node for node in categories.children() if node.name == CATEGORY)
        entry.press()
        wait_until(lambda: entry.has("selected"), "the category is selected")
        self.user.main().find(*names.DELETE_CATEGORY).press()
        self.answer_yes(names.delete_category_question(CATEGORY))
        wait_until(lambda: CATEGORY not in [node.name for node in categories.children()], "the category is gone")

    def test_every_window_says_that_it_is_one(self):
        self.assertEqual(self.user.main().role, "frame")
        self.user.main().find(*names.ADD).press()
        self.assertEqual(self.user.access.window(names.TASK_DIALOG).role, "dialog")


class GridTest(AccessCase):
    def fill(self):
        for name in ("Water the plants", "Pay the gardener"):
            self.store.add_task(name, due=datetime(2026, 4, 1, 9, 0))

    def test_the_grid_tells_of_what_it_shows_and_of_nothing_else(self):
        grid = self.user.grid()
        self.user.wait_rows(["Water the plants", "Pay the gardener"])
        self.assertEqual(grid.headers(), ["Name", "Status", "Due Date", "periority", "reminder"])
        first, second = grid.row_texts(0), grid.row_texts(1)
        self.assertEqual(first[:2], ["Water the plants", "Not Started"])
        self.assertEqual([node.name for node in grid.children()], grid.headers() + first + second)
        self.assertEqual([grid.place_in_table(node) for node in grid.children()[5:]],
                         [(row, column) for row in range(2) for column in range(5)])

        self.assertTrue(grid.grab_focus())
        wait_until(lambda: grid.has("focused"), "the grid has the focus")
        cell = self.select("Pay the gardener")
        wait_until(lambda: self.user.access.told("focused")[-1:] == [cell], "the focus is told to be in the cell")
        self.assertEqual(self.user.access.told("selected")[-1], cell)
        other = self.select("Water the plants")
        wait_until(lambda: self.user.access.told("selected")[-1:] == [other], "the other is told to be selected")
        wait_until(lambda: self.user.access.told("selected", on=False)[-1:] == [cell], "and the first no longer")


if __name__ == "__main__":
    main()
