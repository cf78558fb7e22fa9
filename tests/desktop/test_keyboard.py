"""A category and its tasks from their making to their end, by keys alone: whoever has no mouse loses nothing."""
from datetime import datetime

import names
from case import DesktopCase, main
from polling import holds_for, wait_until

START = datetime(2026, 3, 2, 10, 20, 30)
PERIOD_AND_SLACK = 15
# With blanks, as names have them: a blank opens the list of a combo box.
CATEGORY = "Home and garden"


class KeyboardCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        for act in ("move", "press", "release", "click", "hover", "double_click"):
            setattr(self.desk.input, act, self.refuse_mouse)
        self.clock = self.desk.clock(START)
        self.user = self.start(self.clock)
        self.user.wait_loaded()

    @staticmethod
    def refuse_mouse(*_, **__):
        raise AssertionError("there is no mouse on this desk")

    # What a user does and sees ----------------------------------------------------------------------------

    def alt(self, letter):
        self.desk.input.key(letter, "Alt_L")

    def ctrl(self, letter, *modifiers):
        self.desk.input.key(letter, "Control_L", *modifiers)

    def key(self, *keys):
        for key in keys:
            self.desk.input.key(key)

    def type(self, text):
        self.desk.input.type(text)

    def wait_focus(self, window, control):
        node = window.find(*control)
        wait_until(lambda: node.has("focused"), f"{node!r} has the focus")
        return node

    def go_to(self, letter, window, control):
        """By its mnemonic to a control; returns it."""
        wait_until(lambda: window.find(*control).has("enabled"), f"{control} can be reached")
        self.alt(letter)
        return self.wait_focus(window, control)

    def write(self, letter, window, control, text):
        box = self.go_to(letter, window, control)
        self.desk.input.key("a", "Control_L")
        self.type(text)
        wait_until(lambda: box.text == text, f"{box!r} holds '{text}'")

    def choose(self, letter, window, control, entry):
        """Writes the name of an entry over a closed combo box."""
        combo = self.go_to(letter, window, control)
        self.type(entry)
        wait_until(lambda: combo.name == entry, f"'{entry}' is chosen")
        self.assertFalse([node for node in combo.all("list") if node.has("showing")], "the list stays closed")

    def answer_yes(self, question):
        box = self.user.access.message_box(question)
        self.alt("y")
        wait_until(lambda: box not in self.user.access.windows(), "the question closes")
        self.user.wait_active(names.MAIN)

    def wait_selected(self, row, window=None):
        grid = self.user.grid(window)
        wait_until(lambda: grid.selected_rows() == [row], f"row {row} is selected")

    def wait_grid_focus(self, window=None):
        """The manager may name a window active before the program has the keyboard."""
        def look():
            grid = self.user.grid(window)
            return grid.has("focused") or any(grid.cell(row, column).has("focused") for row in range(grid.rows())
                                              for column in range(grid.columns()))
        wait_until(look, "the grid has the focus")

    def wait_list_focus(self):
        categories = self.user.main().find(*names.CATEGORY_LIST)
        wait_until(lambda: categories.has("focused")
                   or any(entry.has("focused") for entry in categories.children()), "the list has the focus")
        return categories

    # The steps --------------------------------------------------------------------------------------------

    def category(self):
        rows = self.store.execute("select * from categories where cat_name=?", (CATEGORY,))
        return rows[0] if rows else None

    def add_category(self):
        self.alt("2")
        self.user.main().find(*names.CATEGORY_LIST)
        self.alt("a")
        self.user.wait_active(names.CATEGORY_DIALOG)
        dialog = self.user.access.window(names.CATEGORY_DIALOG)
        name = self.wait_focus(dialog, names.CATEGORY_NAME)
        self.type(CATEGORY)
        wait_until(lambda: name.text == CATEGORY, "the name is written")
        self.write("d", dialog, names.CATEGORY_DESCRIPTION, "All that grows")
        self.go_to("f", dialog, names.DEFAULT_ICON)
        self.key("Tab")
        self.wait_focus(dialog, names.icon(0))
        self.key("Right")
        wait_until(lambda: dialog.find(*names.icon(1)).checked, "the arrow chooses the next picture")
        self.alt("o")
        self.user.wait_hidden(names.CATEGORY_DIALOG)
        self.user.wait_active(names.MAIN)

    def add_task(self, name, due, category=CATEGORY):
        """With a reminder at its due moment of this day."""
        self.alt("1")
        self.user.main().find("grid", "Tasks")
        self.alt("a")
        self.user.wait_active(names.TASK_DIALOG)
        dialog = self.user.dialog()
        box = self.wait_focus(dialog, names.TASK_NAME)
        self.type(name)
        wait_until(lambda: box.text == name, "the name is written")
        self.choose("c", dialog, names.TASK_CATEGORY, category)
        picker = self.go_to("m", dialog, names.DUE_TIME)
        self.type(due.replace(":", ""))
        wait_until(lambda: picker.text == due, "the due time is set")
        self.alt("e")
        wait_until(lambda: dialog.find(*names.REMINDER_ON).checked, "the reminder is on")
        wait_until(lambda: dialog.find(*names.REMINDER_TIME).text == due, "it starts at the due moment")
        self.alt("o")
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.wait_active(names.MAIN)

    def reminders(self):
        return {task["task_name"]: (task["reminder_date_time"], task["reminder_on"], task["dismissed"], task["played"])
                for task in self.store.tasks()}

    def wait_alert(self, moment, rows):
        """The alert, once it has come up and the user has gone to it, unless nothing else had the keyboard."""
        self.clock.set(moment)
        alert = self.user.alert(len(rows), PERIOD_AND_SLACK)
        title = names.alert_title(len(rows))
        window = self.user.window(title)
        holds_for(lambda: window.mapped, "it is there while its buttons rest", 1)
        if self.user.shows(names.MAIN):
            self.user.wait_active(names.MAIN)
            self.desk.input.switch_window()
        self.user.wait_active(title)
        self.user.wait_rows(rows, alert)
        self.wait_selected(0, alert)
        self.wait_grid_focus(alert)
        return alert


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
        for _ in ("to the row of pages", "to the header"):
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
