"""Backup, restore and bulk delete through Qt's own file dialogs."""
import os
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from polling import wait_until

NOW = datetime(2026, 3, 2, 10, 20, 30)
PERIOD = 10
SLACK = 5
TODAY = ["Morning", "Afternoon", "Midnight"]
ALL = TODAY + ["Tomorrow"]
# To delete them takes seconds on a fast machine.
MANY = 2_000_000
FILL = """
with recursive n(i) as (select 1 union all select i+1 from n where i<?)
insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,reminder_date_time)
select 'Task '||i,'',i%2,1,'2026-03-02 12:00:00',1,0,'2030-01-01 10:00:00' from n
"""


class MaintenanceCase(DesktopCase):
    always_on_top = 0
    environment = None

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=self.always_on_top, minimize_on_start=0, show_today_tasks=0)
        self.store.add_task("Morning", "Work", due=datetime(2026, 3, 2, 9, 0))
        self.store.add_task("Afternoon", "Work", due=datetime(2026, 3, 2, 15, 0), task_periority=2)
        self.store.add_task("Midnight", "Personal", due=datetime(2026, 3, 2, 23, 59), task_status=1)
        self.store.add_task("Tomorrow", "Personal", due=datetime(2026, 3, 3, 0, 0))
        self.backup = self.desk.path("home", "kept.abk")
        self.previous = self.desk.data_file + ".before-restore"
        self.user = self.start(self.desk.clock(NOW), self.environment)
        self.user.wait_loaded()
        self.user.wait_rows(ALL)

    def data(self, path=None):
        with open(path or self.desk.data_file, "rb") as file:
            return file.read()

    def open_maintenance(self):
        return self.user.open_page("Maintenance")

    def back_up(self):
        self.user.click_control(self.open_maintenance(), names.BACKUP)
        self.user.choose_file(names.SAVE_FILE, self.backup)
        wait_until(lambda: os.path.exists(self.backup), "the backup is written")

    def delete_by_criteria(self, count):
        self.user.click_control(self.open_maintenance(), names.DELETE)
        self.user.answer(names.delete_tasks_question(count), names.YES)

    def restore(self, path):
        self.user.click_control(self.open_maintenance(), names.RESTORE)
        self.user.choose_file(names.OPEN_FILE, path)

    def wait_list(self, expected):
        self.user.open_page("Tasks")
        self.user.wait_rows(expected)

    def shown_list(self):
        grid = self.user.grid()
        return [grid.row_texts(row) for row in range(grid.rows())]


class BulkDeleteTest(MaintenanceCase):
    def test_all_of_today_goes_to_the_last_minute_after_yes(self):
        main_window = self.open_maintenance()
        self.user.click_control(main_window, names.DELETE)
        self.user.answer(names.delete_tasks_question(3), names.NO)
        self.assertEqual(len(self.store.tasks()), 4)
        self.delete_by_criteria(3)
        self.wait_list(["Tomorrow"])
        self.assertEqual([task["task_name"] for task in self.store.tasks()], ["Tomorrow"])

    def step_day(self, control, key):
        """One day on or back by the arrow keys, in a desktop language that begins a date with its day."""
        picker = self.user.main().find(*control)
        before = picker.text
        x, y, _, height = picker.place()
        self.desk.input.click(x + 8, y + height // 2)
        wait_until(lambda: picker.has("focused"), f"{picker!r} has the focus")
        self.desk.input.key("Home")
        self.desk.input.key(key)
        wait_until(lambda: picker.text != before, f"{picker!r} follows the key")

    def test_the_days_of_the_pickers_bound_what_is_deleted(self):
        main_window = self.open_maintenance()
        self.step_day(names.DATE_TO, "Up")
        self.user.click_control(main_window, names.DELETE)
        self.user.answer(names.delete_tasks_question(4), names.NO)
        self.step_day(names.DATE_FROM, "Up")
        self.delete_by_criteria(1)
        self.wait_list(TODAY)
        self.assertEqual([task["task_name"] for task in self.store.tasks()], TODAY)

    def test_expired_tasks_only(self):
        self.user.click_control(self.open_maintenance(), ("option", "Expired tasks only"))
        self.delete_by_criteria(1)
        self.wait_list(["Afternoon", "Midnight", "Tomorrow"])

    def test_active_tasks_of_one_category_only(self):
        main_window = self.open_maintenance()
        self.user.click_control(main_window, ("option", "Active tasks only"))
        self.user.choose(main_window, names.FILTER_CATEGORY, "Work")
        self.delete_by_criteria(1)
        self.wait_list(["Morning", "Midnight", "Tomorrow"])

    def test_criteria_that_match_nothing_are_told_and_nothing_is_asked(self):
        before = self.data()
        main_window = self.open_maintenance()
        self.user.choose(main_window, names.FILTER_CATEGORY, "Shopping")
        self.user.click_control(main_window, names.DELETE)
        self.user.answer(names.NO_TASKS, names.OK)
        # A question would block the way to the other page.
        self.wait_list(ALL)
        self.assertEqual(self.data(), before)


class LongDeletionTest(MaintenanceCase):
    def setUp(self):
        super().setUp()
        self.store.execute(FILL, (MANY,))
        self.delete_by_criteria(MANY + len(TODAY))
        # The question is modal, too, and gone by now.
        wait_until(self.box_is_active, "the box of the deletion has the keyboard", 60)

    def box_is_active(self):
        active = self.desk.screen.active()
        return active is not None and active.modal

    def count(self):
        return self.store.execute("select count(*) as found from tasks")[0]["found"]

    def test_escape_cancels_it_and_nothing_is_deleted(self):
        self.desk.input.key("Escape")
        wait_until(lambda: not self.box_is_active(), "the box is gone", 60)
        self.assertEqual(self.count(), MANY + len(ALL))
        self.assertEqual(self.user.exit(), 0)

    def test_the_program_ends_in_its_midst_and_nothing_is_deleted(self):
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        self.assertEqual(self.user.program.errors(), "")
        self.assertEqual(self.count(), MANY + len(ALL))


class BackupTest(MaintenanceCase):
    # Month first: the date has strokes, which no file name can hold.
    environment = {"LC_ALL": "en_US.UTF-8"}

    def test_the_proposed_name_has_dashes_and_can_be_taken_as_it_is(self):
        before = self.data()
        self.user.click_control(self.open_maintenance(), names.BACKUP)
        box = self.user.file_dialog(names.SAVE_FILE).find(*names.FILE_NAME)
        wait_until(lambda: box.text == "Ambertaks 3-2-2026", f"a name is proposed, not '{box.text}'")
        wait_until(lambda: box.has("focused"), "the name has the focus")
        self.desk.input.key("Return")
        self.user.wait_hidden(names.SAVE_FILE)
        copy = self.desk.path("home", "Ambertaks 3-2-2026")
        wait_until(lambda: os.path.exists(copy), "the backup has that very name")
        self.assertEqual(self.data(copy), before)
        self.assertEqual(self.data(), before)

    def test_an_existing_file_is_replaced_only_after_yes(self):
        self.desk.write(os.path.join("home", "kept.abk"), "old")
        self.user.click_control(self.open_maintenance(), names.BACKUP)
        dialog = self.user.file_dialog(names.SAVE_FILE)
        self.user.type_into(dialog, names.FILE_NAME, self.backup)
        self.desk.input.key("Return")
        self.user.answer("already exists", names.NO, names.SAVE_FILE)
        self.assertEqual(self.data(self.backup), b"old")
        self.user.wait_active(names.SAVE_FILE)
        self.user.click(dialog.find(*names.FILE_NAME))
        self.desk.input.key("Return")
        self.user.answer("already exists", names.YES, names.SAVE_FILE)
        self.user.wait_hidden(names.SAVE_FILE)
        wait_until(lambda: self.data(self.backup) == self.data(), "the backup has replaced the old file")

    def test_a_screen_reader_is_told_where_the_backup_is_and_the_next_key_takes_it_away(self):
        self.back_up()
        note = self.user.access.shown("notification", f'Backup saved to "{self.backup}"')
        self.assertFalse(note.has("focusable"))
        self.desk.input.key("Tab")
        wait_until(lambda: note in self.user.access.told("showing", False), "it is told to be gone")
        self.assertEqual(note.name, "")
        # The same once more is news, too.
        times = len(self.user.access.told("showing"))
        os.remove(self.backup)
        self.back_up()
        wait_until(lambda: note in self.user.access.told("showing")[times:], "it is told again")

    def test_a_cancelled_backup_writes_nothing(self):
        before = sorted(os.listdir(self.desk.path("home"))), sorted(os.listdir(self.desk.program)), self.data()
        self.user.click_control(self.open_maintenance(), names.BACKUP)
        self.user.cancel_file(names.SAVE_FILE)
        self.wait_list(ALL)
        after = sorted(os.listdir(self.desk.path("home"))), sorted(os.listdir(self.desk.program)), self.data()
        self.assertEqual(after, before)


class RestoreTest(MaintenanceCase):
    def test_a_restore_brings_back_the_list_after_a_bulk_delete(self):
        shown = self.shown_list()
        before = self.data()
        self.back_up()
        self.assertEqual(self.data(self.backup), before)
        self.delete_by_criteria(3)
        self.wait_list(["Tomorrow"])
        emptied = self.data()
        self.assertNotEqual(emptied, before)
        self.restore(self.backup)
        self.user.access.shown("notification", f'Restored 4 tasks from "{self.backup}"; what was there before is in '
                               "data.dat.before-restore")
        self.wait_list(ALL)
        self.assertEqual(self.shown_list(), shown)
        self.assertEqual(self.data(self.previous), emptied, "what was replaced is kept")
        self.assertEqual(self.data(self.backup), before, "the backup is as it was")
        self.assertEqual(self.user.exit(), 0)
        self.user = self.start(self.desk.clock(NOW))
        self.user.wait_loaded()
        self.user.wait_rows(ALL)

    def test_categories_come_back_into_the_list_and_the_filters(self):
        self.back_up()
        main_window = self.user.open_page("Categories")
        categories = main_window.find(*names.CATEGORY_LIST)
        listed = [item.name for item in categories.children()]
        self.user.click(next(item for item in categories.children() if item.name == "Work"))
        self.user.click_control(main_window, names.DELETE_CATEGORY)
        self.user.answer(names.delete_category_question("Work"), names.YES)
        self.wait_list(["Midnight", "Tomorrow"])
        self.restore(self.backup)
        wait_until(lambda: self.user.entries(main_window, names.FILTER_CATEGORY) == ["All"] + listed,
                   "the maintenance page offers the category again")
        self.wait_list(ALL)
        self.assertEqual(self.user.entries(main_window, names.FILTER_CATEGORY), ["All"] + listed)
        dialog = self.user.open_new_task()
        self.assertEqual(self.user.entries(dialog, names.TASK_CATEGORY), listed)
        self.user.click_control(dialog, names.CANCEL)
        self.user.wait_hidden(names.TASK_DIALOG)
        self.user.open_page("Categories")
        self.assertEqual([item.name for item in main_window.find(*names.CATEGORY_LIST).children()], listed)

    def test_the_settings_of_the_page_stay_whatever_the_backup_holds(self):
        self.back_up()
        main_window = self.user.open_page("Settings")
        self.user.check(main_window, names.STATUS_COLUMN, False)
        self.user.check(main_window, names.SHOW_BALLOON, False)
        self.user.choose(main_window, names.SKIN, "Lemon")
        self.user.click_control(main_window, names.SAVE_SETTINGS)
        wait_until(lambda: self.store.settings()["skin"] == "Lemon", "the settings are written")
        # Shown but not saved: the restore saves the page.
        self.user.check(main_window, names.REMINDER_COLUMN, False)
        expected = {**self.store.settings(), "show_task_reminder": 0}
        self.restore(self.backup)
        wait_until(lambda: self.store.settings() == expected, "the page is written into the restored file")
        self.assertEqual(len(self.store.execute("select * from settings")), 1)
        self.wait_list(ALL)
        self.assertEqual(self.user.grid().headers(), ["Name", "Due Date", "periority"])
        self.user.open_page("Settings")
        self.assertEqual(main_window.find(*names.SKIN).name, "Lemon")
        self.assertFalse(main_window.find(*names.STATUS_COLUMN).checked)

    def test_a_cancelled_restore_changes_nothing_and_reminders_go_on(self):
        self.back_up()
        self.delete_by_criteria(3)
        self.wait_list(["Tomorrow"])
        before = self.data()
        self.user.click_control(self.open_maintenance(), names.RESTORE)
        self.user.cancel_file(names.OPEN_FILE)
        self.wait_list(["Tomorrow"])
        self.assertEqual(self.data(), before)
        self.assertFalse(os.path.exists(self.previous))
        self.store.add_task("Due", reminder=NOW)
        self.user.alert(1, PERIOD + SLACK)

    def test_a_file_that_is_no_backup_changes_nothing_and_a_screen_reader_is_told_why(self):
        before = self.data()
        notes = self.desk.write(os.path.join("home", "notes.abk"), "This is a letter.\n" * 500)
        self.restore(notes)
        self.user.access.shown("notification", f'Nothing was restored: "{notes}" is no data file.')
        self.wait_list(ALL)
        self.assertEqual(self.data(), before)
        self.assertFalse(os.path.exists(self.previous))
        self.assertEqual(self.user.exit(), 0)


class AlwaysOnTopTest(MaintenanceCase):
    always_on_top = 1

    def test_questions_and_file_dialogs_open_above_the_topmost_window(self):
        main_window = self.open_maintenance()
        for button, title in ((names.BACKUP, names.SAVE_FILE), (names.RESTORE, names.OPEN_FILE)):
            self.user.click_control(main_window, button)
            self.opens_above(self.user.window(title))
            self.user.cancel_file(title)
            self.user.wait_active(names.MAIN)
        window = self.user.window(names.MAIN)
        self.user.click_control(main_window, names.DELETE)
        self.user.access.message_box(names.delete_tasks_question(3))
        self.opens_above(wait_until(
            lambda: next((client for client in self.desk.screen.clients() if client.owner == window), None),
            "the question belongs to the window"))
        self.user.answer(names.delete_tasks_question(3), names.NO)
        self.wait_list(ALL)

    def opens_above(self, upper):
        window = next(client for client in self.desk.screen.clients() if client == upper.owner)
        self.assertTrue(window.topmost)
        wait_until(lambda: self.desk.screen.is_above(upper, window), f"{upper!r} is above its owner")


if __name__ == "__main__":
    main()
