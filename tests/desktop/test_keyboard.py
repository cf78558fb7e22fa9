"""A category and its tasks from their making to their end, by keys alone: whoever has no mouse loses nothing."""
from datetime import datetime

import names
from by_keys import CATEGORY, KeyboardCase
from case import main
from polling import wait_until


class TypicalEventByKeysTest(KeyboardCase):
    def test_a_category_and_its_tasks_are_made_reminded_of_edited_and_deleted(self):
        starters = self.store.execute("select cat_name from categories order by cat_id")
        self.add_category()
        category = self.category()
        self.assertEqual((category["cat_desc"], category["cat_icon"], category["custom_icon"]),
                         ("All that grows", 1, 0))

        self.add_task("Water the plants", "10:30")
        self.add_task("Pay the gardener", "10:31")
        self.user.wait_rows(["Water the plants", "Pay the gardener"])
        self.assertEqual([(task["task_name"], task["cat_id"], task["task_due_date"]) for task in self.store.tasks()],
                         [("Water the plants", category["cat_id"], "2026-03-02 10:30:00"),
                          ("Pay the gardener", category["cat_id"], "2026-03-02 10:31:00")])
        self.assertEqual(self.reminders(), {"Water the plants": ("2026-03-02 10:30:00", 1, 0, 0),
                                            "Pay the gardener": ("2026-03-02 10:31:00", 1, 0, 0)})

        self.postpone_one_and_dismiss_both()
        self.edit_and_delete()
        self.delete_category()
        self.assertEqual(self.store.tasks(), [])
        self.assertEqual(self.store.execute("select cat_name from categories order by cat_id"), starters)

    def postpone_one_and_dismiss_both(self):
        alert = self.wait_alert(datetime(2026, 3, 2, 10, 42, 10), ["Water the plants", "Pay the gardener"])
        self.ctrl("t")
        menu = self.user.access.shown("menu")
        self.key("h")
        wait_until(lambda: not menu.has("showing"), "the menu closes")
        wait_until(lambda: alert.find(*names.LATER_TIME).text == "11:42", "an hour from now is filled in")
        self.ctrl("r")
        self.user.wait_rows(["Pay the gardener"], alert)
        self.wait_selected(0, alert)
        self.ctrl("m")
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual(self.reminders(), {"Water the plants": ("2026-03-02 11:42:00", 1, 0, 0),
                                            "Pay the gardener": ("2026-03-02 10:31:00", 0, 1, 1)})
        self.user.wait_active(names.MAIN)

        self.wait_alert(datetime(2026, 3, 2, 11, 42, 10), ["Water the plants"])
        self.ctrl("m")
        self.user.wait_hidden(names.alert_title(1))
        self.assertEqual(self.reminders()["Water the plants"], ("2026-03-02 11:42:00", 0, 1, 1))
        self.user.wait_active(names.MAIN)

    def edit_and_delete(self):
        untouched = self.store.task_named("Pay the gardener")
        before = self.store.task_named("Water the plants")
        self.wait_grid_focus()
        self.key("Home")
        self.wait_selected(0)
        self.key("Return")
        self.user.wait_active(names.TASK_DIALOG)
        dialog = self.user.dialog()
        wait_until(lambda: dialog.find(*names.TASK_NAME).text == "Water the plants", "the task is loaded")
        self.choose("s", dialog, names.TASK_STATUS, "Waiting on someone else")
        self.choose("p", dialog, names.TASK_PRIORITY, "High")
        self.write("t", dialog, names.TASK_NAME, "Water the trees")
        self.key("Return")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_rows(["Water the trees", "Pay the gardener"])
        self.assertEqual(self.store.task(before["task_id"]),
                         {**before, "task_name": "Water the trees", "task_status": 3, "task_periority": 0})

        self.user.wait_active(names.MAIN)
        self.wait_grid_focus()
        self.key("Home")
        self.wait_selected(0)
        self.key("Delete")
        self.answer_yes(names.DELETE_QUESTION)
        self.user.wait_rows(["Pay the gardener"])
        self.assertEqual(self.store.tasks(), [untouched])

    def delete_category(self):
        self.alt("2")
        categories = self.wait_list_focus()
        self.type(CATEGORY)
        wait_until(lambda: [entry.name for entry in categories.children() if entry.has("selected")] == [CATEGORY],
                   "the category is selected")
        self.alt("d")
        self.answer_yes(names.delete_category_question(CATEGORY))
        wait_until(lambda: CATEGORY not in [entry.name for entry in categories.children()], "the category is gone")


class AlertByKeysTest(KeyboardCase):
    def test_a_reminder_opens_its_task_and_escape_leaves_both_as_they_were(self):
        self.add_task("Water the plants", "10:30", category="Work")
        self.add_task("Pay the gardener", "10:31", category="Work")
        # With the main window in sight the focus would go there.
        self.alt("F4")
        self.user.wait_hidden(names.MAIN)
        alert = self.wait_alert(datetime(2026, 3, 2, 10, 42, 10), ["Water the plants", "Pay the gardener"])
        due = self.store.tasks()
        self.key("End")
        self.wait_selected(1, alert)
        self.ctrl("o")
        self.user.wait_active(names.TASK_DIALOG)
        dialog = self.user.dialog()
        wait_until(lambda: dialog.find(*names.TASK_NAME).text == "Pay the gardener", "the task is loaded")
        self.write("t", dialog, names.TASK_NAME, "Never stored")
        self.key("Escape")
        box = self.user.access.message_box(names.not_saved("Never stored"))
        wait_until(lambda: box.find(*names.CANCEL).has("focused"), "the default loses nothing")
        self.alt("d")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_active(names.alert_title(2))
        self.wait_grid_focus(alert)
        self.wait_selected(1, alert)
        self.assertEqual(self.store.tasks(), due)
        self.ctrl("m", "Shift_L")
        self.user.wait_hidden(names.alert_title(2))
        self.assertEqual(self.reminders(), {"Water the plants": ("2026-03-02 10:30:00", 0, 1, 1),
                                            "Pay the gardener": ("2026-03-02 10:31:00", 0, 1, 1)})


class HeaderMenuByKeysTest(KeyboardCase):
    """An icon in the notification area takes no key; its menu opens from the header of the window, too."""

    def setUp(self):
        super().setUp()
        self.alt("2")
        self.wait_list_focus()
        for _ in ("to the field that finds", "to the row of pages", "to the header"):
            self.desk.input.key("Tab", "Shift_L")

    def open_menu(self, *keys):
        self.wait_focus(self.user.main(), ("link", "Organizer"))
        self.desk.input.key(*keys)
        menu = self.user.access.shown("menu")
        wait_until(lambda: menu.children()[0].has("focused"), "the first entry is selected")
        return menu

    def choose_entry(self, entry, *keys):
        menu = self.open_menu(*keys)
        entries = [node.name for node in menu.children()]
        self.assertEqual(entries, ["Hide"] + names.TRAY_MENU[1:])
        for place in range(1, entries.index(entry) + 1):
            self.key("Down")
            wait_until(lambda node=menu.children()[place]: node.has("focused"), f"entry {place} is selected")
        self.key("Return")

    def test_the_menu_key_leads_to_the_about_box_and_ends_the_program(self):
        self.choose_entry("About", "Menu")
        self.user.wait_active(names.ABOUT)
        self.alt("o")
        self.user.wait_hidden(names.ABOUT)
        self.user.wait_active(names.MAIN)
        self.choose_entry("Exit", "Menu")
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_shift_and_f10_do_as_the_menu_key_does(self):
        self.choose_entry("Exit", "F10", "Shift_L")
        self.assertEqual(self.user.program.wait_end(), 0)


if __name__ == "__main__":
    main()
