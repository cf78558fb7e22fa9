"""The settings page on the screen: what saving changes at once, and what only saving changes."""
import configparser
import os

from Xlib import X

import names
from case import DesktopCase, main
from desktop import PROGRAM_NAME
from polling import wait_rest, wait_until

COLUMNS = ["Name", "Status", "Due Date", "periority", "reminder"]
TASKS = ["Alpha", "Beta", "Gamma"]
AQUA = (0xEA, 0xF3, 0xF5)
MIDNIGHT = (0x17, 0x1B, 0x24)
COPPER = (0xB8, 0x73, 0x33)
VANISHING = (X.UnmapNotify, X.DestroyNotify, X.ReparentNotify)


class SettingsCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        for name in TASKS:
            self.store.add_task(name)
        self.user = self.start()
        self.user.wait_loaded()

    def open_settings(self):
        return self.user.open_page("Settings")

    def save(self):
        """Saves what differs from the stored settings."""
        before = self.store.settings()
        self.user.click_control(self.user.main(), names.SAVE_SETTINGS)
        wait_until(lambda: self.store.settings() != before, "the settings are written")

    def background(self):
        """The colour of the window where the settings page is empty."""
        x, y, width, height = self.user.main().place()
        return self.desk.screen.pixel(x + width // 2, y + height - 60)

    def wait_background(self, colour):
        wait_until(lambda: self.background() == colour, f"the window has the colour {colour}")

    def headers(self):
        return self.user.main().find("grid", "Tasks", showing=False).headers()


class SavingTest(SettingsCase):
    def test_topmost_comes_and_goes_on_the_window_where_it_stands(self):
        window = self.user.window(names.MAIN)
        place = wait_rest(window.place, "the window rests")
        main_window = self.open_settings()
        display = self.desk.screen.display
        window.handle.change_attributes(event_mask=X.StructureNotifyMask)
        display.sync()
        for on in (True, False, True):
            self.user.check(main_window, names.ON_TOP, on)
            self.assertEqual(window.topmost, not on, "nothing happens before Save")
            self.user.click_control(main_window, names.SAVE_SETTINGS)
            wait_until(lambda wanted=on: window.topmost == wanted, f"the window is topmost: {on}")
            self.assertEqual(self.store.settings()["always_on_top"], int(on))
            self.assertEqual(self.user.seek_window(names.MAIN), window)
            self.assertEqual(window.place(), place)
            self.assertTrue(window.mapped)
        window.handle.change_attributes(event_mask=0)
        display.sync()
        seen = [display.next_event() for _ in range(display.pending_events())]
        self.assertEqual([event for event in seen if event.type in VANISHING and event.window.id == window.id], [])

    def test_the_list_has_the_columns_that_were_saved(self):
        main_window = self.open_settings()
        self.assertEqual(self.headers(), COLUMNS)
        self.user.check(main_window, names.STATUS_COLUMN, False)
        self.user.check(main_window, names.REMINDER_COLUMN, False)
        self.assertEqual(self.headers(), COLUMNS, "nothing happens before Save")
        self.save()
        wait_until(lambda: self.headers() == ["Name", "Due Date", "periority"], "two columns are gone")
        self.user.check(main_window, names.PRIORITY_COLUMN, False)
        self.user.check(main_window, names.DUE_DATE_COLUMN, False)
        self.save()
        wait_until(lambda: self.headers() == ["Name"], "the name is left")
        self.user.open_page("Tasks")
        self.user.wait_rows(TASKS)
        self.open_settings()
        for box in (names.STATUS_COLUMN, names.DUE_DATE_COLUMN, names.PRIORITY_COLUMN, names.REMINDER_COLUMN):
            self.user.check(main_window, box)
        self.save()
        wait_until(lambda: self.headers() == COLUMNS, "all columns are back")

    def test_the_grid_lines_go_and_come_with_save(self):
        self.wait_lines(True)
        main_window = self.open_settings()
        for on in (False, True):
            self.user.check(main_window, names.SHOW_GRID, on)
            self.save()
            self.user.open_page("Tasks")
            self.wait_lines(on)
            self.open_settings()

    def wait_lines(self, shown):
        self.user.wait_rows(TASKS)
        grid = self.user.grid()
        # The first row may wear the frame of the focus.
        upper, lower = grid.cell(1, 0).place(), grid.cell(2, 0).place()
        # Right of the text: one column of points from one row into the next.
        right = upper[0] + upper[2] - 12

        def colours():
            return {self.desk.screen.pixel(right, y) for y in range(upper[1] + 4, lower[1] + 4)}
        wait_until(lambda: (len(colours()) > 1) == shown, f"a line between the rows: {shown}")

    def test_the_session_entry_disappears_and_appears_with_save(self):
        entry = os.path.join(self.desk.environment["XDG_CONFIG_HOME"], "autostart", PROGRAM_NAME + ".desktop")
        wait_until(lambda: os.path.exists(entry), "the first start has made the entry")
        main_window = self.open_settings()
        self.user.check(main_window, names.START_WITH_SESSION, False)
        self.assertTrue(os.path.exists(entry), "nothing happens before Save")
        self.save()
        wait_until(lambda: not os.path.exists(entry), "the entry is gone")
        self.user.check(main_window, names.START_WITH_SESSION)
        self.assertFalse(os.path.exists(entry), "nothing happens before Save")
        self.save()
        wait_until(lambda: os.path.exists(entry), "the entry is back")
        values = configparser.ConfigParser(interpolation=None)
        values.read(entry, encoding="utf-8")
        self.assertEqual(values["Desktop Entry"]["Exec"].strip('"'), os.path.join(self.desk.program, PROGRAM_NAME))

    def test_edits_that_were_not_saved_are_gone_after_a_visit_to_another_page(self):
        before = self.store.settings()
        main_window = self.open_settings()
        self.user.check(main_window, names.ON_TOP)
        self.user.check(main_window, names.SHOW_GRID, False)
        self.user.check(main_window, names.STATUS_COLUMN, False)
        self.user.choose(main_window, names.SKIN, "Midnight")
        self.user.open_page("Tasks")
        self.open_settings()
        states = [main_window.find(*box).checked for box in (names.ON_TOP, names.SHOW_GRID, names.STATUS_COLUMN)]
        self.assertEqual(states, [False, True, True])
        self.assertEqual(main_window.find(*names.SKIN).name, "Aqua")
        self.assertEqual(self.store.settings(), before)
        self.assertEqual(self.headers(), COLUMNS)
        self.assertFalse(self.user.window(names.MAIN).topmost)
        self.wait_background(AQUA)


class SkinTest(SettingsCase):
    def write_skin(self, name, colour):
        """A skin file of the user's own, the dark one in another colour."""
        with open(os.path.join(self.desk.program, "Skins", "Midnight.skf"), encoding="utf-8") as file:
            text = file.read()
        text = text.replace("@name Midnight", "@name " + name)
        text = text.replace("@color window #171b24", "@color window #%02x%02x%02x" % colour)
        return self.desk.write(os.path.join("home", name + ".skf"), text)

    def test_a_skin_is_worn_after_save_only_and_at_the_next_start(self):
        main_window = self.open_settings()
        self.wait_background(AQUA)
        self.user.choose(main_window, names.SKIN, "Midnight")
        # The box is drawn after the choice: had the choice changed the window, it would show by now.
        self.user.check(main_window, names.SHOW_BALLOON, False)
        self.assertEqual(wait_rest(self.background, "the picture rests"), AQUA)
        self.assertEqual(self.store.settings()["skin"], "Aqua")
        self.save()
        self.wait_background(MIDNIGHT)
        self.assertEqual(self.store.settings()["skin"], "Midnight")
        self.assertEqual(self.user.exit(), 0)

        self.user = self.start()
        self.user.wait_loaded()
        self.open_settings()
        self.wait_background(MIDNIGHT)
        self.assertEqual(self.user.main().find(*names.SKIN).name, "Midnight")

    def test_a_skin_is_added_by_the_file_dialog_and_worn_once_chosen_and_saved(self):
        skin = self.write_skin("Copper", COPPER)
        main_window = self.open_settings()
        shipped = self.user.entries(main_window, names.SKIN)
        self.user.click_control(main_window, names.ADD_SKIN)
        self.user.choose_file(names.OPEN_FILE, skin)
        self.user.answer(names.SKIN_ADDED, names.OK)
        entries = self.user.entries(main_window, names.SKIN)
        self.assertEqual(sorted(entries), sorted(shipped + ["Copper"]))
        self.assertEqual(main_window.find(*names.SKIN).name, entries[0], "the first entry is selected")
        with open(skin, "rb") as source, open(os.path.join(self.desk.program, "Skins", "Copper.skf"), "rb") as copy:
            self.assertEqual(copy.read(), source.read())
        self.assertEqual(wait_rest(self.background, "the picture rests"), AQUA)

        self.user.choose(main_window, names.SKIN, "Copper")
        self.save()
        self.wait_background(COPPER)
        self.assertEqual(self.store.settings()["skin"], "Copper")

    def refuse_skin(self, path):
        """Adds the file by the dialog; a line says why not, and the page answers, so no box was shown."""
        folder = os.path.join(self.desk.program, "Skins")
        before = sorted(os.listdir(folder))
        main_window = self.open_settings()
        entries = self.user.entries(main_window, names.SKIN)
        self.user.click_control(main_window, names.ADD_SKIN)
        self.user.choose_file(names.OPEN_FILE, path)
        self.user.wait_active(names.MAIN)
        self.assertIn("The skin was not added: ", self.user.access.shown("notification").name)
        self.user.check(main_window, names.SHOW_BALLOON, False)
        self.assertEqual(self.user.entries(main_window, names.SKIN), entries)
        self.assertEqual(sorted(os.listdir(folder)), before)

    def test_a_file_that_is_no_skin_is_refused_without_a_box_and_not_copied(self):
        self.refuse_skin(self.desk.write(os.path.join("home", "Letter.skf"), "Dear all,\n" * 40))

    def test_a_file_in_the_place_of_a_skin_that_is_too_large_is_refused_without_a_box(self):
        skin = self.write_skin("Copper", COPPER)
        with open(skin, "a", encoding="utf-8") as file:
            file.write("/* " + "filler " * 160000 + "*/\n")
        self.refuse_skin(skin)

    def test_more_skins_are_looked_for_on_the_vendors_page(self):
        main_window = self.open_settings()
        self.user.click_control(main_window, names.MORE_SKINS)
        wait_until(lambda: self.desk.starts_recorded(self.desk.opened), "a page is opened")
        self.assertEqual([start[1:] for start in self.desk.starts_recorded(self.desk.opened)],
                         [[names.VENDOR + "/ambertask_skins.htm?referer=p"]])

    def test_a_cancelled_file_dialog_adds_no_skin_and_says_nothing(self):
        folder = os.path.join(self.desk.program, "Skins")
        before = sorted(os.listdir(folder))
        main_window = self.open_settings()
        entries = self.user.entries(main_window, names.SKIN)
        self.user.click_control(main_window, names.ADD_SKIN)
        self.user.cancel_file(names.OPEN_FILE)
        self.user.wait_active(names.MAIN)
        # A box would block the page.
        self.user.check(main_window, names.SHOW_BALLOON, False)
        self.assertEqual(self.user.entries(main_window, names.SKIN), entries)
        self.assertEqual(main_window.find(*names.SKIN).name, "Aqua")
        self.assertEqual(sorted(os.listdir(folder)), before)


if __name__ == "__main__":
    main()
