"""The program and the user's session: it is started by it, joins it, and leaves it without a trace."""
import contextlib
import os
import shutil
import signal

import names
from case import DesktopCase, main
from desktop import PROGRAM_NAME, Desktop
from gi.repository import Gio
from polling import wait_until
from sessions import RESTART_NEVER, SessionManager

# All that a desktop entry escapes, and what a shell would take for its own.
HARD_NAME = "a b\"c`d$HOME\\e%f'g;h&i ü"

# No disk copies that many bytes before the box of the copy is seen; a hole takes no room.
LARGE = 8 << 30


def names_below(folder):
    return sorted(os.path.join(place, name) for place, folders, files in os.walk(folder) for name in folders + files)


class SessionCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.add_task("Alpha")

    def wait_gone(self, program):
        """The program has left with status 0: no icon, no word, and its folder holds what it held before."""
        self.assertEqual(program.wait_end(), 0)
        wait_until(lambda: self.desk.screen.tray_icons() == [], "the tray icon is gone")
        self.assertEqual((program.output(), program.errors()), ("", ""))
        self.assertEqual(names_below(self.desk.program), self.files)
        self.assertEqual(self.store.execute("pragma integrity_check"), [{"integrity_check": "ok"}])
        self.assertEqual([task["task_name"] for task in self.store.tasks()], ["Alpha"])

    def start_shown(self, manager=None):
        self.files = names_below(self.desk.program)
        user = self.start(environment={"SESSION_MANAGER": manager.address} if manager else None)
        if manager:
            # The program joins the session before it does anything else.
            manager.wait_joined()
        user.wait_loaded()
        user.wait_rows(["Alpha"])
        user.tray_icon()
        return user


class LogOutTest(SessionCase):
    def setUp(self):
        super().setUp()
        self.manager = SessionManager()
        self.addCleanup(self.manager.close)
        self.user = self.start_shown(self.manager)

    def log_out(self):
        self.manager.ask_to_save()
        self.manager.end()
        self.manager.wait(lambda: self.manager.left, "the program leaves the session")
        self.wait_gone(self.user.program)

    def test_a_log_out_ends_the_program_with_its_window_shown(self):
        self.log_out()

    def test_a_log_out_ends_the_program_while_it_is_hidden(self):
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        self.log_out()

    def test_a_log_out_under_an_open_question_deletes_nothing(self):
        self.user.select_row("Alpha")
        self.desk.input.key("Delete")
        self.user.access.message_box(names.DELETE_QUESTION)
        self.log_out()

    def test_a_log_out_with_open_dialog_and_menu(self):
        self.user.open_new_task()
        self.user.open_tray_menu()
        self.log_out()

    def test_a_log_out_under_an_open_file_dialog(self):
        self.user.click_control(self.user.open_page("Maintenance"), names.BACKUP)
        self.user.wait_active(names.SAVE_FILE)
        self.log_out()

    def test_a_log_out_that_is_called_off_changes_nothing(self):
        self.manager.ask_to_save()
        self.manager.cancel()
        self.assertTrue(self.user.shows(names.MAIN))
        self.user.select_row("Alpha")
        self.assertEqual(self.user.first_tray_entry(), "Hide")
        self.assertEqual(self.user.exit(), 0)

    def test_the_session_does_not_bring_the_program_back_by_itself(self):
        # That is for the setting "Start with windows" to say, or the program would come twice.
        self.assertEqual(self.manager.properties["RestartStyleHint"][0][0], RESTART_NEVER)
        self.log_out()


class SignalTest(SessionCase):
    def end_by(self, number):
        user = self.start_shown()
        user.program.send(number)
        self.wait_gone(user.program)

    def test_termination(self):
        self.end_by(signal.SIGTERM)

    def test_interrupt(self):
        self.end_by(signal.SIGINT)

    def test_hang_up(self):
        self.end_by(signal.SIGHUP)

    def test_many_requests_at_once(self):
        user = self.start_shown()
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT) * 5:
            user.program.send(number)
        self.wait_gone(user.program)


class LongCopyTest(SessionCase):
    """An end that comes while a copy shows how far it is: no part of it stays."""

    def setUp(self):
        super().setUp()
        self.user = self.start_shown()
        self.backup = self.desk.path("backups", "kept.abk")
        os.mkdir(os.path.dirname(self.backup))

    @contextlib.contextmanager
    def enlarged(self, file):
        """What lies behind the last page is none of the engine's, but it is copied."""
        size = os.stat(file).st_size
        os.truncate(file, LARGE)
        try:
            yield
        finally:
            os.truncate(file, size)

    def choose(self, button, title):
        self.user.click_control(self.user.open_page("Maintenance"), button)
        self.user.type_into(self.user.file_dialog(title), names.FILE_NAME, self.backup)
        self.desk.input.key("Return")

    def end_during_copy(self):
        """The end comes as soon as the box shows how far the copy is. The X server is asked: a program that copies
        answers nobody else in time."""
        program = self.user.program
        wait_until(lambda: sum(window.pid == program.pid and window.title == names.MAIN and window.mapped
                               for window in self.desk.screen.clients()) == 2, "the box is shown")
        program.send(signal.SIGTERM)
        self.wait_gone(program)

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def test_the_end_during_a_backup_leaves_no_part_of_it(self):
        before = self.read(self.desk.data_file)
        with self.enlarged(self.desk.data_file):
            self.choose(names.BACKUP, names.SAVE_FILE)
            self.end_during_copy()
        self.assertEqual(os.listdir(os.path.dirname(self.backup)), [])
        self.assertEqual(self.read(self.desk.data_file), before)

    def test_the_end_during_a_backup_leaves_the_earlier_one(self):
        self.desk.write(os.path.join("backups", "kept.abk"), "of yesterday")
        with self.enlarged(self.desk.data_file):
            self.choose(names.BACKUP, names.SAVE_FILE)
            self.user.answer("already exists", names.YES, names.SAVE_FILE)
            self.end_during_copy()
        self.assertEqual(self.read(self.backup), b"of yesterday")

    def test_the_end_during_a_restore_leaves_the_data_as_they_were(self):
        before = self.read(self.desk.data_file)
        shutil.copy(self.desk.data_file, self.backup)
        with self.enlarged(self.backup):
            self.choose(names.RESTORE, names.OPEN_FILE)
            self.end_during_copy()
        self.assertEqual(self.read(self.desk.data_file), before)
        self.assertFalse(os.path.exists(self.desk.data_file + ".before-restore"))


class LostDisplayTest(SessionCase):
    def test_a_display_that_goes_leaves_no_damage(self):
        user = self.start_shown()
        files = self.files
        user.window(names.MAIN).handle.kill_client()
        self.desk.screen.display.sync()
        self.assertIn(user.program.wait_end(), (0, 1), "it ends by itself and not by a crash")
        # Nobody is left to take the lock's file away; it holds nobody up, and the next clean end does.
        self.assertIn(names_below(self.desk.program), (files, sorted([*files, self.desk.data_file + "-lock"])))
        user = self.start_shown()
        self.assertEqual(user.exit(), 0)
        self.assertEqual(names_below(self.desk.program), files)


class SessionStartTest(SessionCase):
    def make_desk(self):
        return Desktop(name=HARD_NAME)

    def test_the_entry_starts_the_program_from_a_folder_with_a_hard_name(self):
        self.assertEqual(self.start_shown().exit(), 0)
        entry = Gio.DesktopAppInfo.new_from_filename(
            os.path.join(self.desk.environment["XDG_CONFIG_HOME"], "autostart", PROGRAM_NAME + ".desktop"))
        context = Gio.AppLaunchContext()
        for name, value in self.desk.environment.items():
            context.setenv(name, value)
        self.assertTrue(entry.launch([], context))
        window = wait_until(lambda: self.desk.screen.client(names.MAIN), "the program shows its window")
        self.assertEqual(os.readlink(f"/proc/{window.pid}/exe"), self.desk.executable)
        os.kill(window.pid, signal.SIGTERM)
        wait_until(lambda: self.desk.screen.client(names.MAIN) is None, "the program has ended")


if __name__ == "__main__":
    main()
