"""The program on a desk, and what a user does with it by mouse and keyboard."""
from gi.repository import GLib

import names
from access import Access
from polling import wait_rest, wait_until
from xinput import RIGHT


class User:
    """Starts the program and works it. Windows and controls are looked up anew for every act."""

    def __init__(self, desk, clock=None, environment=None, arguments=None, command=None):
        self.desk = desk
        self.program = desk.start(clock, command, environment, arguments)
        self.access = Access(desk.access_address(), self.program.pid)

    def close(self):
        self.access.close()

    # Windows ----------------------------------------------------------------------------------------------

    def seek_window(self, title):
        """The window as the window manager sees it, or None while it is hidden."""
        return self.desk.screen.client(title, self.program.pid)

    def window(self, title, seconds=20):
        """The window, once it is shown."""
        def look():
            window = self.seek_window(title)
            return window if window and window.mapped else None
        return wait_until(look, f"window '{title}' is shown", seconds)

    def shows(self, title):
        """Whether the user can see the window: it is there and not minimized."""
        window = self.seek_window(title)
        return bool(window) and window.mapped and not window.minimized

    def wait_hidden(self, title):
        wait_until(lambda: not self.shows(title), f"window '{title}' is hidden")

    def wait_active(self, title):
        def look():
            active = self.desk.screen.active()
            return active is not None and active.title == title and active.pid == self.program.pid
        wait_until(look, f"window '{title}' is active")

    def wait_loaded(self):
        """Returns once the main window is shown, active and its list is there."""
        self.window(names.MAIN)
        self.wait_active(names.MAIN)
        return self.main()

    def main(self):
        return self.access.window(names.MAIN)

    def dialog(self):
        return self.access.window(names.TASK_DIALOG)

    def alert(self, count, seconds=20):
        return self.access.window(names.alert_title(count), seconds)

    # Mouse and keyboard -----------------------------------------------------------------------------------

    def click(self, node):
        self.desk.input.click(*self.place_of(node))

    def place_of(self, node):
        """The middle of a control, once its window has come to rest."""
        return wait_rest(node.center, f"{node!r} rests", polls=5)

    def click_control(self, window, control):
        self.click(window.find(*control))

    def check(self, window, control, checked=True):
        box = window.find(*control)
        wait_until(lambda: box.has("enabled"), f"{box!r} can be checked")
        if box.checked != checked:
            # The indicator lies at the left end; the middle of a stretched box is empty space.
            x, y, _, height = box.place()
            self.desk.input.click(x + 8, y + height // 2)
        wait_until(lambda: box.checked == checked, f"{box!r} is {'checked' if checked else 'unchecked'}")

    def type_into(self, window, control, text):
        box = window.find(*control)
        wait_until(lambda: box.has("enabled"), f"{box!r} can be typed into")
        self.click(box)
        wait_until(lambda: box.has("focused"), f"{box!r} has the focus")
        self.desk.input.key("a", "Control_L")
        self.desk.input.type(text)
        wait_until(lambda: box.text == text, f"{box!r} holds '{text}'")

    def choose(self, window, control, entry):
        combo = window.find(*control)
        self.click(combo)
        wait_until(lambda: any(node.has("showing") for node in combo.all("list")), f"{combo!r} is open")
        self.desk.input.type(entry)
        self.desk.input.key("Return")
        wait_until(lambda: combo.name == entry, f"'{entry}' is chosen")

    def set_time(self, window, control, hour, minute):
        """Steps a time picker with the arrow keys; it shows hours and minutes."""
        picker = window.find(*control)
        wait_until(lambda: picker.has("enabled"), f"{picker!r} can be set")
        x, y, _, height = picker.place()
        self.desk.input.click(x + 12, y + height // 2)
        wait_until(lambda: picker.has("focused"), f"{picker!r} has the focus")
        self.desk.input.key("Home")
        self._step(picker, 0, hour)
        for _ in range(3):
            self.desk.input.key("Right")
        self._step(picker, 1, minute)
        wait_until(lambda: picker.text == f"{hour:02}:{minute:02}", f"{picker!r} shows {hour:02}:{minute:02}")

    def _step(self, picker, section, wanted):
        """One key at a time, each seen to work: a picker may count keys that come at once as a held key."""
        def shown():
            return int(picker.text.split(":")[section])
        while shown() != wanted:
            before = shown()
            self.desk.input.key("Up" if before < wanted else "Down")
            wait_until(lambda value=before: shown() != value, f"{picker!r} follows the key")

    def entries(self, window, control):
        """The entries of a combo box, open or not."""
        return [entry.name for entry in window.find(*control).children()[0].children()]

    def open_page(self, page):
        """Brings a page of the main window to the front; returns the window."""
        window = self.main()
        self.click(window.find("page", page))
        window.find(*names.PAGES[page])
        return window

    # Boxes and file dialogs -------------------------------------------------------------------------------

    def answer(self, text, control, title=names.MAIN):
        """Answers the message box that says `text`."""
        box = self.access.message_box(text, title)
        self.click_control(box, control)
        wait_until(lambda: box not in self.access.windows(), f"the box '{text}' closes")

    def file_dialog(self, title):
        """Qt's own file dialog, once it can be typed into."""
        self.wait_active(title)
        return self.access.window(title)

    def choose_file(self, title, path):
        """Types a path into the file dialog and confirms it."""
        self.type_into(self.file_dialog(title), names.FILE_NAME, path)
        self.desk.input.key("Return")
        self.wait_hidden(title)
        self.wait_answering()

    def cancel_file(self, title):
        self.click_control(self.file_dialog(title), names.CANCEL)
        self.wait_hidden(title)
        self.wait_answering()

    def wait_answering(self):
        """Returns once the program reads its messages again: what followed a closed dialog is then done."""
        wait_until(lambda: self.access.application() is not None and self.main().name, "the program answers")

    # Grids ------------------------------------------------------------------------------------------------

    def grid(self, window=None):
        return (window or self.main()).find("grid")

    def row_names(self, window=None):
        """The name column of every row, from the top."""
        grid = self.grid(window)
        column = next(index for index, header in enumerate(grid.headers()) if header == "Name")
        return [grid.cell(row, column).name for row in range(grid.rows())]

    def wait_rows(self, names_expected, window=None):
        def same():
            try:
                return self.row_names(window) == names_expected
            except GLib.Error:
                return False
        wait_until(same, f"the grid lists {names_expected}")

    def row_place(self, name, window=None):
        """A place on the screen inside the row of that name."""
        grid = self.grid(window)
        column = next(index for index, header in enumerate(grid.headers()) if header == "Name")
        cell = grid.cell(self.row_names(window).index(name), column)
        return self.place_of(cell)

    def select_row(self, name, window=None):
        self.desk.input.click(*self.row_place(name, window))
        grid = self.grid(window)
        row = self.row_names(window).index(name)
        wait_until(lambda: row in grid.selected_rows(), f"row '{name}' is selected")

    # Tray -------------------------------------------------------------------------------------------------

    def tray_icon(self):
        icons = wait_until(self.desk.screen.tray_icons, "the tray icon is docked")
        # The area moves an icon after it has docked, and a menu that opens while the focus is still on its way from
        # one window to another is closed again: no user is that fast.
        wait_rest(lambda: (icons[0].place(), self.desk.screen.active()), "icon and focus rest")
        return icons[0]

    def double_click_tray(self):
        self.desk.input.double_click(*self.tray_icon().center())

    def open_tray_menu(self):
        """Opens the tray menu by a right click; returns it."""
        self.desk.input.click(*self.tray_icon().center(), button=RIGHT)
        return self.access.shown("menu")

    def choose_tray_entry(self, entry):
        menu = self.open_tray_menu()
        self.click(menu.find("menu entry", entry))

    def first_tray_entry(self):
        """Opens the tray menu, reads the caption of its first entry and closes it with Escape."""
        menu = self.open_tray_menu()
        caption = menu.children()[0].name
        self.desk.input.key("Escape")
        wait_until(lambda: not menu.has("showing"), "the tray menu closes")
        return caption

    def exit(self):
        """Ends the program as the user does. Returns its exit status."""
        self.choose_tray_entry("Exit")
        return self.program.wait_end()

    # The task dialog --------------------------------------------------------------------------------------

    def open_new_task(self):
        self.click_control(self.main(), names.ADD)
        self.wait_active(names.TASK_DIALOG)
        return self.dialog()
