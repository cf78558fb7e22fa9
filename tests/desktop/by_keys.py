"""A user without a mouse."""
from datetime import datetime

import names
from case import DesktopCase
from polling import PERIOD_AND_SLACK, holds_for, wait_until

START = datetime(2026, 3, 2, 10, 20, 30)
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
        self.answer(question, "y")

    def answer(self, question, letter):
        box = self.user.access.message_box(question)
        self.alt(letter)
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

    def add_task(self, name, due, category=CATEGORY, repeat=None):
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
        if repeat:
            self.choose("k", dialog, names.TASK_REPEAT, repeat)
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
