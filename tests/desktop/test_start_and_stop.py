"""How the program starts, refuses to start, and ends."""
import configparser
import fcntl
import hashlib
import os
import shutil
import signal
import subprocess
import sys
from datetime import datetime

import names
from access import Access
from case import DesktopCase, main
from desktop import PROGRAM_NAME
from polling import wait_until

OTHER_USER = 65534
HOLDER = """
import sqlite3, sys, time
connection = sqlite3.connect(sys.argv[1], isolation_level=None)
connection.execute("begin exclusive")
open(sys.argv[2], "w").close()
time.sleep(600)
"""
# Waits until the lock on the gate is free, with all others, and becomes the program.
BEHIND_THE_GATE = """
import fcntl, os, sys
gate = open(sys.argv[1])
open(os.path.join(sys.argv[2], str(os.getpid())), "w").close()
fcntl.flock(gate, fcntl.LOCK_SH)
os.execv(sys.argv[3], sys.argv[3:])
"""


def snapshot(*folders):
    """Every file below the folders with its content and its time of change."""
    found = {}
    for folder in folders:
        for place, _, files in os.walk(folder):
            for name in files:
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    found[path] = (hashlib.sha256(file.read()).hexdigest(), os.stat(path).st_mtime_ns)
    return found


class StartCase(DesktopCase):
    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.entry = os.path.join(self.desk.environment["XDG_CONFIG_HOME"], "autostart", PROGRAM_NAME + ".desktop")

    def marks(self):
        """The files of the state folder: the record of a first start."""
        return sorted(snapshot(self.desk.environment["XDG_STATE_HOME"]))


class SingleCopyTest(StartCase):
    def test_a_second_copy_ends_at_once_without_any_sign(self):
        user = self.start()
        user.wait_loaded()
        before = snapshot(self.desk.program, self.desk.environment["HOME"])
        clients = self.desk.screen.clients()
        icons = self.desk.screen.tray_icons()
        second = self.desk.start()
        self.assertEqual(second.wait_end(5), 0)
        self.assertEqual((second.output(), second.errors()), ("", ""))
        self.assertEqual(snapshot(self.desk.program, self.desk.environment["HOME"]), before)
        self.assertEqual(self.desk.screen.clients(), clients)
        self.assertEqual(self.desk.screen.tray_icons(), icons)
        self.assertEqual(user.exit(), 0)

    def test_a_copy_starts_again_after_the_first_was_killed(self):
        first = self.start()
        first.wait_loaded()
        first.program.send(signal.SIGKILL)
        self.assertEqual(first.program.wait_end(), -signal.SIGKILL)
        second = self.start()
        second.wait_loaded()
        self.assertEqual(second.exit(), 0)

    def test_of_forty_copies_at_once_exactly_one_stays(self):
        for _ in range(3):
            self.start_forty_at_once()

    def start_forty_at_once(self):
        gate = self.desk.write("gate", "")
        waiting = self.desk.path("waiting")
        os.makedirs(waiting, exist_ok=True)
        with open(gate, encoding="ascii") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            copies = [self.desk.start(command=[sys.executable, "-c", BEHIND_THE_GATE, gate, waiting])
                      for _ in range(40)]
            wait_until(lambda: len(os.listdir(waiting)) == 40, "forty copies wait at the gate", 60)
        wait_until(lambda: sum(copy.running() for copy in copies) == 1, "thirty-nine copies end", 60)
        left = next(copy for copy in copies if copy.running())
        wait_until(lambda: self.desk.screen.client(names.MAIN, left.pid), "the last one shows its window", 30)
        ended = [copy for copy in copies if copy is not left]
        self.assertEqual([copy.wait_end() for copy in ended], [0] * 39)
        self.assertEqual({copy.output() + copy.errors() for copy in ended}, {""})
        left.send(signal.SIGTERM)
        self.assertEqual(left.wait_end(), 0)
        shutil.rmtree(waiting)

    def test_a_started_file_does_not_keep_the_place_of_the_program(self):
        sign = self.desk.path("lasting.pid")
        script = self.desk.write("lasting.sh", f"#!/bin/sh\necho $$ > '{sign}'\nexec sleep 600\n", 0o755)
        self.store.add_task("Due", reminder=datetime(2020, 1, 1, 9, 0), file=script)
        first = self.start()
        first.alert(1)
        wait_until(lambda: os.path.exists(sign) and os.path.getsize(sign), "the file is started")
        first.program.send(signal.SIGKILL)
        first.program.wait_end()
        second = self.start()
        second.window(names.MAIN)
        self.assertTrue(second.program.running())
        with open(sign, encoding="ascii") as number:
            self.assertTrue(os.path.exists("/proc/" + number.read().strip()), "the started file still runs")


    def test_who_may_only_read_the_folder_cannot_keep_the_program_from_starting(self):
        folder = os.open(self.desk.program, os.O_RDONLY | os.O_DIRECTORY)
        self.addCleanup(os.close, folder)
        fcntl.flock(folder, fcntl.LOCK_EX)
        user = self.start()
        user.wait_loaded()
        self.assertEqual(user.exit(), 0)

    def test_a_copy_that_ends_leaves_nothing_of_its_guard(self):
        before = sorted(os.listdir(self.desk.program))
        user = self.start()
        user.wait_loaded()
        self.assertEqual(user.exit(), 0)
        self.assertEqual(sorted(os.listdir(self.desk.program)), before)


class NoDisplayTest(StartCase):
    """Without a desktop to run on: one sentence, a failure status, and nothing touched."""

    def refuse(self, **display):
        before = snapshot(self.desk.program)
        program = self.desk.start(environment={"DISPLAY": "", "WAYLAND_DISPLAY": "", **display})
        self.assertEqual(program.wait_end(), 1)
        self.assertEqual(program.output(), "")
        self.assertEqual(program.errors().count("\n"), 1, program.errors())
        self.assertEqual(snapshot(self.desk.program), before)
        self.assertEqual(self.marks(), [])
        return program.errors()

    def test_without_a_display(self):
        self.assertIn("Ambertask needs a graphical desktop", self.refuse())

    def test_with_a_display_that_is_none(self):
        self.refuse(DISPLAY=":9999")
        self.refuse(DISPLAY="nonsense")

    def test_with_a_wayland_display_that_is_none(self):
        self.refuse(WAYLAND_DISPLAY="wayland-9999", QT_QPA_PLATFORM="wayland;xcb")

    def test_the_sentence_is_in_the_language_of_the_user(self):
        self.assertIn("Arbeitsumgebung", self.refuse(LANG="C.UTF-8", LANGUAGE="de"))


class FirstStartTest(StartCase):
    def test_the_first_start_registers_with_the_session_whatever_the_setting_says(self):
        self.store.set(start_with_windows=0)
        self.assertEqual(self.marks(), [])
        user = self.start()
        user.wait_loaded()
        wait_until(lambda: os.path.exists(self.entry), "the autostart entry is written")
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.entry, encoding="utf-8")
        values = entry["Desktop Entry"]
        self.assertEqual((values["Type"], values["Name"]), ("Application", PROGRAM_NAME))
        self.assertEqual(values["Exec"].strip('"'), os.path.join(self.desk.program, PROGRAM_NAME))
        self.assertNotEqual(self.marks(), [], "the first start is recorded")
        self.assertEqual(user.exit(), 0)

    def test_a_later_start_leaves_the_entry_alone(self):
        user = self.start()
        user.wait_loaded()
        wait_until(lambda: os.path.exists(self.entry), "the autostart entry is written")
        self.assertEqual(user.exit(), 0)
        os.remove(self.entry)
        marks = self.marks()
        user = self.start()
        user.wait_loaded()
        self.assertEqual(user.exit(), 0)
        self.assertFalse(os.path.exists(self.entry))
        self.assertEqual(self.marks(), marks)

    def test_nothing_is_made_that_others_may_write_even_where_the_mask_allows_it(self):
        self.addCleanup(os.umask, os.umask(0))
        user = self.start()
        user.wait_loaded()
        wait_until(lambda: os.path.exists(self.entry), "the autostart entry is written")
        self.assertEqual(user.exit(), 0)
        made = [*self.marks(), self.entry, self.desk.data_file]
        folders = [os.path.dirname(path) for path in made[:-1]]
        self.assertEqual({path: oct(os.stat(path).st_mode & 0o022) for path in made + folders},
                         {path: "0o0" for path in made + folders})


class BrokenDataTest(StartCase):
    """Start-up with a data file that cannot serve: a report, a failure status, and nothing touched."""

    def refuse(self, *words, command=None):
        before = snapshot(self.desk.program)
        program = self.desk.start(command=command)
        window = wait_until(lambda: self.desk.screen.client(names.MAIN), "a message box is shown")
        self.assertTrue(program.running())
        if words:
            text = self.box_text(program.pid)
            for word in words:
                self.assertIn(word, text)
        window.activate()
        wait_until(lambda: window.active, "the message box is active")
        self.assertEqual(len(self.desk.screen.tray_icons()), 0)
        self.desk.input.key("Return")
        self.assertGreater(program.wait_end(), 0)
        self.assertEqual(snapshot(self.desk.program), before, "the program folder is as it was")
        self.assertFalse(os.path.exists(self.entry))
        self.assertEqual(self.marks(), [])

    def box_text(self, pid):
        access = Access(self.desk.access_address(), pid)
        self.addCleanup(access.close)
        box = access.message_box("")
        return " ".join(label.name for label in box.all("label"))

    def replace(self, content):
        with open(self.desk.data_file, "wb") as file:
            file.write(content)

    def test_without_a_data_file(self):
        os.remove(self.desk.data_file)
        self.refuse("data.dat")
        self.assertFalse(os.path.exists(self.desk.data_file))

    def test_with_a_file_that_is_no_database(self):
        self.replace(b"This is a text of some length and no database at all.\n" * 200)
        self.refuse("data.dat")

    def test_with_an_empty_file(self):
        self.replace(b"")
        self.refuse("data.dat", "it is empty")

    def test_with_a_file_cut_short(self):
        with open(self.desk.data_file, "rb") as file:
            start = file.read(3000)
        self.replace(start)
        self.refuse("data.dat", "malformed")

    def test_with_a_pipe_in_its_place(self):
        os.remove(self.desk.data_file)
        os.mkfifo(self.desk.data_file)
        self.refuse_without_looking("data.dat", "it is not a file")

    def test_with_a_pipe_in_the_place_of_its_journal(self):
        os.mkfifo(self.desk.data_file + "-journal")
        self.refuse_without_looking("data.dat-journal", "it is not a file")

    def test_with_a_folder_in_the_place_of_its_lock(self):
        os.mkdir(self.desk.data_file + "-lock")
        self.refuse("data.dat-lock")

    def refuse_without_looking(self, *words):
        """To read what lies there would wait for its writer."""
        program = self.desk.start()
        wait_until(lambda: self.desk.screen.client(names.MAIN), "a message box is shown")
        text = self.box_text(program.pid)
        for word in words:
            self.assertIn(word, text)
        program.send(signal.SIGTERM)
        program.wait_end()

    def test_without_a_settings_row(self):
        self.store.execute("delete from settings")
        self.refuse("settings", "missing")

    def test_with_a_file_that_another_program_holds(self):
        # In a process of its own: reading the file here would drop a lock of this one.
        sign = self.desk.path("held")
        self.desk.start_beside([sys.executable, "-c", HOLDER, self.desk.data_file, sign])
        wait_until(lambda: os.path.exists(sign), "the file is held")
        self.refuse("data.dat")

    def test_with_a_file_that_may_not_be_read(self):
        if os.geteuid() != 0:
            os.chmod(self.desk.data_file, 0)
            self.addCleanup(os.chmod, self.desk.data_file, 0o600)
            self.refuse("data.dat")
            return
        # Nothing is unreadable to root, so the program runs as somebody else, with that user's own folders.
        os.chmod(self.desk.data_file, 0o600)
        for name in ("HOME", "XDG_RUNTIME_DIR"):
            subprocess.run(["chown", "-R", str(OTHER_USER), self.desk.environment[name]], check=True)
        # The accessibility bus of this desk takes no other user's programs, so the words of this box are not read.
        self.refuse(command=["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups"])


class StopTest(StartCase):
    def setUp(self):
        super().setUp()
        self.store.add_task("Alpha")
        self.user = self.start()
        self.user.wait_loaded()
        self.user.wait_rows(["Alpha"])

    def test_a_termination_signal_under_an_open_question_ends_with_status_0_and_deletes_nothing(self):
        self.user.select_row("Alpha")
        self.desk.input.key("Delete")
        self.user.access.message_box(names.DELETE_QUESTION)
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)
        self.assertEqual(len(self.store.tasks()), 1)
        self.assertEqual(self.user.program.errors(), "")

    def test_a_termination_signal_while_hidden_ends_with_status_0(self):
        self.user.window(names.MAIN).close()
        self.user.wait_hidden(names.MAIN)
        self.user.program.send(signal.SIGTERM)
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_an_interrupt_of_the_terminal_ends_with_status_0(self):
        self.user.program.send(signal.SIGINT)
        self.assertEqual(self.user.program.wait_end(), 0)

    def test_a_lost_data_file_is_reported_and_the_program_can_go_on(self):
        os.rename(self.desk.data_file, self.desk.data_file + ".away")
        self.user.click_control(self.user.main(), ("option", "Active tasks only"))
        box = self.user.access.message_box("data.dat")
        self.user.click(box.find("button", "Continue"))
        self.user.wait_active(names.MAIN)
        self.assertFalse(os.path.exists(self.desk.data_file))
        os.rename(self.desk.data_file + ".away", self.desk.data_file)
        self.user.main().find("option", "All tasks").press()
        self.user.wait_rows(["Alpha"])
        self.assertEqual(self.user.exit(), 0)


if __name__ == "__main__":
    main()
