"""The command line of the finished program: commands without a display, beside a running copy, and what stays a start."""
import csv
import fcntl
import json
import os
import shutil
import signal
import sqlite3
import struct
import subprocess
import tempfile
import termios
import unittest
from datetime import datetime

import names
from case import DesktopCase, main
from desktop import PROGRAM_NAME, program_folder
from installed import install
from polling import wait_until
from store import Store
from test_start_and_stop import snapshot

HOSTILE = "a\ttab, a\nline, \"quotes\"; a \\ and \u65e5\u672c\x1b[2J"


class CommandCase(unittest.TestCase):
    """A program folder and a home that nothing but the program writes into; no display, no session."""

    def setUp(self):
        self.place = self.enterContext(tempfile.TemporaryDirectory(prefix="commands ü "))
        self.home = os.path.join(self.place, "home")
        os.mkdir(self.home)
        self.environment = {"PATH": "/usr/bin:/bin", "HOME": self.home}
        for name in ("LSAN_OPTIONS", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LD_LIBRARY_PATH"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        self.make_program()

    def make_program(self):
        self.use_folder("program")

    def use_folder(self, name):
        """The commands are those of a copy of the program with fresh data."""
        self.folder = self.path(name)
        shutil.copytree(program_folder(), self.folder)
        self.executable = os.path.join(self.folder, PROGRAM_NAME)
        self.store = Store(os.path.join(self.folder, "data.dat"))

    def path(self, name):
        return os.path.join(self.place, name)

    def begin(self, *arguments, **options):
        return subprocess.Popen([self.executable, *arguments], env=self.environment, cwd=self.place,
                                stdin=options.pop("stdin", subprocess.DEVNULL), stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, **options)

    def run_it(self, *arguments, status=0, given=None, variables=None):
        """What the command writes; it must say nothing when it is to succeed, and one line otherwise."""
        done = subprocess.run([self.executable, *arguments], env={**self.environment, **(variables or {})}, cwd=self.place,
                              input=given or b"", capture_output=True, timeout=60)
        self.assertEqual(done.returncode, status, done.stderr)
        self.said = done.stderr.decode()
        self.assertEqual(self.said.count("\n"), 0 if status == 0 else 1, self.said)
        return done.stdout.decode()


class ListTest(CommandCase):
    def test_the_list_has_a_line_for_each_task_whatever_its_texts_hold(self):
        self.store.add_task(HOSTILE, task_desc=HOSTILE)
        self.store.add_task("second", category="Shopping", reminder=datetime(2030, 5, 6, 7, 8))
        lines = self.run_it("--list").split("\n")
        self.assertEqual(len(lines), 4)
        rows = [line.split("\t") for line in lines[:3]]
        self.assertEqual({len(row) for row in rows}, {14})
        first, second = (dict(zip(rows[0], row)) for row in rows[1:])
        self.assertEqual(json.loads('"' + first["task_name"].replace('"', '\\"') + '"'), HOSTILE)
        self.assertEqual((second["task_name"], second["category"], second["reminder_on"], second["reminder_date_time"]),
                         ("second", "Shopping", "1", "2030-05-06 07:08:00"))

    def test_the_json_list_holds_what_the_data_file_holds(self):
        self.store.add_task(HOSTILE, task_desc=HOSTILE, played=1)
        self.store.add_task("second", category="Shopping", reminder=datetime(2030, 5, 6, 7, 8), file="/bin/true")
        stored = self.store.execute("select tasks.*, cat_name as category from tasks join categories using(cat_id)")
        self.assertEqual(json.loads(self.run_it("--list", "--json")), stored)

    def test_it_is_utf8_whatever_the_locale_is(self):
        self.store.add_task("\u00fc\u65e5")
        for locale in ("C", "POSIX", "de_DE.ISO-8859-1"):
            self.assertIn("\t\u00fc\u65e5\t", self.run_it("--list", variables={"LC_ALL": locale}))

    def test_a_reader_that_goes_away_ends_it_quietly(self):
        for _ in range(300):
            self.store.add_task("x" * 1000)
        child = self.begin("--list")
        child.stdout.read(1)
        child.stdout.close()
        self.assertEqual((child.wait(), child.stderr.read()), (1, b""))
        child.stderr.close()

    def test_whoever_reads_slowly_does_not_keep_the_data_file(self):
        for _ in range(300):
            self.store.add_task("x" * 1000)
        for words in (["--list"], ["--export", "-", "--format", "ics"]):
            child = self.begin(*words)
            child.stdout.read(1)
            # The pipe is full by now, and the command waits.
            self.store.execute("update tasks set task_name='changed meanwhile' where task_id=1")
            child.communicate()
            self.assertEqual(child.returncode, 0)

    def test_a_full_disk_is_said(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([self.executable, "--list"], env=self.environment, stdout=full, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 1)
        self.assertIn(b"the disk is full", done.stderr)

    def test_it_changes_nothing(self):
        before = snapshot(self.place)
        for words in (["--list"], ["--list", "--json"], ["--help"], ["--version"]):
            self.run_it(*words)
        self.assertEqual(snapshot(self.place), before)

    def test_damage_is_said_in_a_sentence(self):
        data = os.path.join(self.folder, "data.dat")
        with open(data, "r+b") as file:
            file.truncate(3000)
        self.run_it("--list", status=1)
        self.assertIn("data.dat", self.said)
        os.remove(data)
        self.run_it("--list", status=1)
        self.assertIn("does not exist", self.said)
        self.assertFalse(os.path.exists(data))


class ExchangeTest(CommandCase):
    def fill(self):
        self.store.add_task(HOSTILE.replace("\x1b", ""), task_desc="first\n\nthird", reminder=datetime(2030, 5, 6, 7, 8),
                            file="/bin/true", sound="bell.wav")
        self.store.add_task("second", category="H\u00f6fe", task_status=3, task_periority=2, played=1, dismissed=1)

    def rows(self):
        """All of the tasks but their ids."""
        return self.store.execute("select task_name, task_desc, task_status, cat_name, task_due_date, task_periority, "
                                  "reminder_on, reminder_date_time, reminder_sound, reminder_file, played, dismissed "
                                  "from tasks join categories using(cat_id) order by task_id")

    def test_all_comes_back_from_a_file_and_through_a_pipe(self):
        self.fill()
        stored = self.rows()
        for number, ending in enumerate(("ics", "csv")):
            file = self.path("tasks." + ending)
            self.assertEqual(self.run_it("--export", file), "")
            piped = self.run_it("--export", "-", "--format", ending).encode()
            self.use_folder(f"other{number}")
            self.run_it("--import", file, "--yes", "--with-programs")
            self.assertEqual(self.rows(), stored)
            self.use_folder(f"piped{number}")
            self.run_it("--import", "-", "--format", ending, "--yes", "--with-programs", given=piped)
            self.assertEqual(self.rows(), stored)

    def test_the_csv_is_read_by_others(self):
        self.fill()
        rows = list(csv.reader(self.run_it("--export", "-", "--format", "csv").splitlines(keepends=True)))
        self.assertEqual([row[0] for row in rows[1:]], [row["task_name"] for row in self.rows()])

    def test_a_preview_names_what_would_be_and_stores_nothing(self):
        self.fill()
        file = self.path("tasks.ics")
        self.run_it("--export", file)
        self.use_folder("other")
        before = snapshot(self.folder)
        preview = self.run_it("--import", file, status=1)
        self.assertIn("New: second\n", preview)
        self.assertIn("New category: H\u00f6fe\n", preview)
        self.assertIn("/bin/true\n", preview)
        self.assertIn("2 tasks are new.\n", preview)
        self.assertEqual(snapshot(self.folder), before)
        self.assertIn("--yes", self.said)

    def test_a_yes_alone_drops_programs_and_names_them(self):
        self.fill()
        file = self.path("tasks.ics")
        self.run_it("--export", file)
        self.use_folder("other")
        self.assertIn("/bin/true\n", self.run_it("--import", file, "--yes"))
        self.assertEqual([row["reminder_file"] for row in self.rows()], ["", ""])
        self.assertIn("There is nothing to import.\n", self.run_it("--import", file, "--yes"))
        self.assertEqual(len(self.rows()), 2)

    def test_a_file_that_is_none_of_its_format_is_refused_in_a_sentence(self):
        file = self.path("letter.ics")
        with open(file, "w", encoding="ascii") as text:
            text.write("Dear Bob,\nthis is no calendar.\n")
        before = snapshot(self.folder)
        self.run_it("--import", file, "--yes", status=1)
        self.run_it("--import", self.path("missing.ics"), "--yes", status=1)
        self.assertIn("missing.ics", self.said)
        self.assertEqual(snapshot(self.folder), before)

    def test_an_export_that_fails_leaves_the_file_as_it_was(self):
        before = snapshot(self.folder)
        self.run_it("--export", self.path("no/such/folder.ics"), status=1)
        self.assertIn("folder.ics", self.said)
        self.run_it("--export", os.path.join(self.folder, "data.dat"), "--format", "csv", status=1)
        self.assertEqual(snapshot(self.folder), before)

    def test_an_interrupt_stores_nothing(self):
        before = snapshot(self.folder)
        child = self.begin("--import", "-", "--format", "csv", "--yes", stdin=subprocess.PIPE)
        child.stdin.write(b"Name\nfirst\nsec")
        child.stdin.flush()
        wait_until(lambda: self.unread(child.stdin) == 0, "the command has read what there is, and waits for more")
        child.send_signal(signal.SIGINT)
        child.communicate()
        self.assertEqual(child.returncode, -signal.SIGINT)
        self.assertEqual(snapshot(self.folder), before)

    @staticmethod
    def unread(pipe):
        """How many bytes are in the pipe."""
        return struct.unpack("i", fcntl.ioctl(pipe, termios.FIONREAD, b"\0\0\0\0"))[0]

    def test_a_data_file_that_another_writes_is_said(self):
        self.fill()
        file = self.path("tasks.ics")
        self.run_it("--export", file)
        self.use_folder("other")
        writer = sqlite3.connect(os.path.join(self.folder, "data.dat"), isolation_level=None)
        writer.execute("begin exclusive")
        self.run_it("--list", status=1)
        self.assertIn("another program is using it", self.said)
        self.run_it("--import", file, "--yes", status=1)
        writer.execute("rollback")
        writer.close()
        self.assertEqual(self.rows(), [])


class UsageTest(CommandCase):
    def test_a_mistake_is_said_with_a_pointer_to_the_help(self):
        before = snapshot(self.place)
        for words in (["--exprot", "tasks.ics"], ["--export"], ["--export", "tasks.pdf"], ["--import", "-"],
                      ["--list", "tasks.ics"], ["--yes"], ["--list", "--json=yes"], ["--format", "ics"],
                      ["--list", "--export", "tasks.ics"]):
            self.assertEqual(self.run_it(*words, status=2), "")
            self.assertIn("--help", self.said)
        self.assertEqual(snapshot(self.place), before)

    def test_help_and_version_go_to_standard_output(self):
        self.assertIn("--with-programs", self.run_it("--help"))
        self.assertRegex(self.run_it("--version"), r"\AAmbertask \d+\.\d+\.\d+\n\Z")

    def test_it_speaks_the_language_of_the_system(self):
        before = self.run_it("--list", "--json")
        english, german = (self.complaint(language) for language in ("en", "de"))
        self.assertNotEqual(english, german)
        self.assertEqual(self.run_it("--list", "--json", variables={"LANGUAGE": "de", "LC_ALL": "C.UTF-8"}), before)

    def complaint(self, language):
        os.rename(os.path.join(self.folder, "data.dat"), self.path("away"))
        self.run_it("--list", status=1, variables={"LANGUAGE": language, "LC_ALL": "C.UTF-8"})
        os.rename(self.path("away"), os.path.join(self.folder, "data.dat"))
        return self.said


class FirstStartTest(CommandCase):
    """An installed program that nobody has started yet."""

    def make_program(self):
        prefix = self.path("usr")
        install(prefix)
        self.executable = os.path.join(prefix, "bin", PROGRAM_NAME)
        self.folder = os.path.join(self.home, ".local", "share", PROGRAM_NAME)
        self.store = Store(os.path.join(self.folder, "data.dat"))

    def test_only_an_import_that_stores_makes_the_program_folder_and_none_notes_a_start(self):
        file = self.path("tasks.csv")
        with open(file, "w", encoding="utf-8") as text:
            text.write("Name,Category\nBob,Work\n")
        self.run_it("--help")
        self.run_it("--version")
        self.run_it("--list", status=1)
        self.assertIn(self.folder, self.said)
        self.run_it("--export", self.path("all.ics"), status=1)
        self.assertIn("New: Bob\n", self.run_it("--import", file, status=1))
        self.assertEqual(os.listdir(self.home), [])
        self.run_it("--import", file, "--yes")
        self.assertEqual([task["task_name"] for task in self.store.tasks()], ["Bob"])
        self.assertIn("Bob", self.run_it("--list"))
        self.assertEqual(sorted(os.listdir(os.path.join(self.home, ".local"))), ["share"])


class RunningCopyTest(DesktopCase):
    def run_beside(self, *arguments):
        variables = {name: value for name, value in self.desk.environment.items() if name not in ("DISPLAY", "QT_QPA_PLATFORM")}
        return subprocess.run([self.desk.executable, *arguments], env=variables, check=True, capture_output=True,
                              timeout=60).stdout.decode()

    def test_a_running_copy_shows_what_was_imported_at_its_next_tick(self):
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.store.add_task("Alpha")
        user = self.start()
        user.wait_loaded()
        user.wait_rows(["Alpha"])
        file = self.desk.write("tasks.csv", "Name,Category,Due\nBeta,Errands,2031-01-01 10:00\n")
        self.run_beside("--import", file, "--yes")
        user.wait_rows(["Alpha", "Beta"])
        self.assertEqual(self.run_beside("--list").count("\n"), 3)
        self.assertEqual(user.exit(), 0)

    def test_words_and_options_of_qt_start_the_program(self):
        program = self.desk.start(arguments=["tasks.ics", "-style", "fusion", "--title", "--list", "-unknown"])
        wait_until(lambda: self.desk.screen.client("--list", program.pid) or self.desk.screen.client(names.MAIN, program.pid),
                   "the main window is shown")
        program.send(signal.SIGTERM)
        self.assertEqual((program.wait_end(), program.output()), (0, ""))


if __name__ == "__main__":
    main()
