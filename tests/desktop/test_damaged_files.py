"""No single file of the program folder, data and executable apart, keeps the program from starting when it is damaged."""
import os
import shutil
import signal
from datetime import datetime

import names
from case import DesktopCase, main
from desktop import PROGRAM_NAME
from polling import wait_until

RUBBISH = bytes(range(256)) * 64
NEEDED = {"data.dat", PROGRAM_NAME}
WORN_SKIN = os.path.join("Skins", "Aqua.skf")


def removed(path):
    os.remove(path)


def rubbish(path):
    os.remove(path)
    with open(path, "wb") as file:
        file.write(RUBBISH)


def a_folder(path):
    os.remove(path)
    os.mkdir(path)


DAMAGES = (removed, rubbish, a_folder)


class DamageCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0, skin="Aqua")
        self.store.add_task("Alpha")

    def files(self):
        found = []
        for place, _, names_there in os.walk(self.desk.program):
            found += [os.path.relpath(os.path.join(place, name), self.desk.program) for name in names_there]
        return sorted(set(found) - NEEDED)

    def damage(self, name, how):
        """Puts the file back when the test goes on to the next."""
        path = os.path.join(self.desk.program, name)
        kept = self.desk.path("kept")
        shutil.copy(path, kept)
        how(path)

        def restore():
            if os.path.isdir(path):
                os.rmdir(path)
            shutil.copy(kept, path)
        return restore

    def start_and_work(self, *boxes):
        """The program starts, reports with these boxes and no more, and takes input."""
        user = self.start()
        user.window(names.MAIN)
        for text in boxes:
            user.answer(text, names.OK)
        user.wait_loaded()
        user.wait_rows(["Alpha"])
        # A box would keep the click from the window.
        user.open_page("Settings")
        windows = [window for window in self.desk.screen.clients() if window.pid == user.program.pid]
        self.assertEqual([window.title for window in windows if window.mapped], [names.MAIN])
        user.program.send(signal.SIGTERM)
        self.assertEqual(user.program.wait_end(), 0)


class SweepTest(DamageCase):
    def sweep(self, belongs, *boxes):
        files = [name for name in self.files() if belongs(name)]
        self.assertTrue(files)
        for name in files:
            for how in DAMAGES:
                with self.subTest(file=name, damage=how.__name__):
                    restore = self.damage(name, how)
                    self.start_and_work(*boxes)
                    restore()

    def test_the_skin_that_is_worn(self):
        self.sweep(lambda name: name == WORN_SKIN, "Aqua.skf")

    def test_the_other_skins(self):
        self.sweep(lambda name: name.startswith("Skins/") and name != WORN_SKIN)

    def test_the_sounds(self):
        self.sweep(lambda name: name.startswith("sounds/"))

    def test_modules_help_and_the_rest(self):
        self.sweep(lambda name: not name.startswith(("Skins/", "sounds/")))

    def test_folders_that_are_gone_or_are_files(self):
        for name, boxes in (("Skins", ["Aqua.skf"]), ("sounds", []), ("custom icons", [])):
            path = os.path.join(self.desk.program, name)
            os.rename(path, path + ".away")
            with self.subTest(folder=name, damage="gone"):
                self.start_and_work(*boxes)
            with open(path, "wb") as file:
                file.write(RUBBISH)
            with self.subTest(folder=name, damage="file"):
                self.start_and_work(*boxes)
            os.remove(path)
            os.rename(path + ".away", path)


class OtherVersionsTest(DamageCase):
    """A data file of an earlier version serves, one of a later version is refused."""

    def content(self, suffix=""):
        with open(self.desk.data_file + suffix, "rb") as file:
            return file.read()

    def test_an_earlier_one_is_brought_up_and_kept(self):
        self.store.execute("drop index tasks_by_status")
        self.store.execute("pragma user_version=1")
        before = self.content()
        self.start_and_work()
        self.assertEqual(self.content(".before-upgrade"), before)
        self.assertEqual(self.store.execute("pragma user_version"), [{"user_version": 4}])

    def test_a_later_one_ends_the_start_with_a_sentence_and_a_failure(self):
        self.store.execute("pragma user_version=99")
        before = self.content()
        user = self.start()
        user.click_control(user.access.message_box("later version of Ambertask"), names.OK)
        self.assertEqual(user.program.wait_end(), 1)
        self.assertEqual(self.content(), before)


class UnreadableRecordsTest(DamageCase):
    """A value in the data file that does not convert locks nobody out."""

    def setUp(self):
        super().setUp()
        self.backup = self.desk.path("sound.abk")
        shutil.copy(self.desk.data_file, self.backup)

    def test_one_box_names_the_records_and_a_restore_is_within_reach(self):
        self.store.add_task("Day of no month", task_due_date="0000-00-00")
        self.store.add_task("Word for a status", task_status="abc")
        self.store.execute("update categories set cat_id=40000 where cat_name='Shopping'")
        self.store.set(show_grid="abc")
        user = self.start()
        box = user.access.message_box("Day of no month", names.MAIN)
        text = max((label.name for label in box.all("label")), key=len)
        for part in ("task_due_date", "Word for a status", "task_status", "Shopping", "40000", "show_grid",
                     "restore a backup"):
            self.assertIn(part, text)
        user.click_control(box, names.OK)
        user.wait_rows(["Alpha"])
        user.click_control(user.open_page("Maintenance"), names.RESTORE)
        user.choose_file(names.OPEN_FILE, self.backup)
        wait_until(lambda: self.store.task_named("Word for a status") is None, "the backup is restored")
        user.open_page("Tasks")
        user.wait_rows(["Alpha"])
        user.program.send(signal.SIGTERM)
        self.assertEqual(user.program.wait_end(), 0)


class UseTest(DamageCase):
    """What is damaged is told when it is needed, and the program goes on."""

    def setUp(self):
        super().setUp()
        for module in ("ambertask_help.so", "ambertask_report.so", "ambertask_sound"):
            self.damage(module, rubbish)

    def test_a_damaged_help_module_is_told(self):
        user = self.start()
        user.wait_loaded()
        self.desk.input.key("F1")
        user.answer("The help window is missing from this installation.", names.OK)
        user.open_page("Settings")

    def test_a_damaged_report_module_is_told(self):
        user = self.start()
        user.wait_loaded()
        self.desk.input.key("p", "Alt_L")
        box = user.access.message_box("report")
        user.click(box.find("button", "Continue"))
        user.wait_active(names.MAIN)
        user.open_page("Settings")

    def test_a_damaged_player_makes_a_silent_alert(self):
        self.store.add_task("Due", reminder=datetime(2020, 1, 1),
                            sound=os.path.join(self.desk.program, "sounds", "bell.wav"))
        user = self.start()
        user.alert(1)
        wait_until(lambda: self.store.task_named("Due")["played"] == 1, "the reminder counts as played")
        self.assertTrue(user.program.running())


if __name__ == "__main__":
    main()
