"""The program has no thread beside its first; libraries have. Nothing of ours may run in theirs."""
import os
import re
import subprocess
from datetime import datetime

import names
import racecheck
from case import DesktopCase, main
from polling import wait_until
from sound import write_tone
from user import User

SOURCES = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# What a binary that starts a thread asks other libraries for.
STARTS_A_THREAD = re.compile(r"pthread_create|thrd_create|_M_start_thread|_ZN7QThread|QThreadPool|QtConcurrent"
                             r"|QFutureInterface|_ZN9QRunnable|_ZNSt13__future|clone3?$", re.MULTILINE)
# The names of Qt's threads as the system shows them, truncated: of the X connection, of the message bus, and of the one
# that reads folders for a file dialog.
AT_REST = {"QXcbEventQueue", "QDBusConnection"}
OF_A_FILE_DIALOG = {"QFileInfoGather"}
LONG_AGO = datetime(2026, 1, 2, 9, 0)
# The checker slows a program down some thirty times.
PATIENCE = 90


def asked_for(binary):
    """The names that a binary wants from libraries."""
    return subprocess.run(["nm", "-D", "--undefined-only", binary], check=True, capture_output=True, text=True).stdout


class ThreadCase(DesktopCase):
    sound = True

    def setUp(self):
        super().setUp()
        self.store.set(always_on_top=0, minimize_on_start=0, show_today_tasks=0)
        self.tone = self.desk.path("tone.wav")
        write_tone(self.tone, 550, 1.0)

    def threads(self):
        """The names of the threads beside the first."""
        found = []
        place = f"/proc/{self.user.program.pid}/task"
        for number in sorted(os.listdir(place), key=int)[1:]:
            with open(os.path.join(place, number, "comm"), encoding="utf-8") as name:
                found.append(name.read().strip().partition("::")[0])
        return found

    def sound_one(self):
        """A reminder sounds and is listed."""
        self.store.add_task("Sounding", reminder=LONG_AGO, sound=self.tone)
        self.user.alert(1, PATIENCE)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.3, "the sound plays", PATIENCE)


class OwnThreadsTest(ThreadCase):
    def test_no_binary_of_the_program_can_start_a_thread(self):
        binaries = [os.path.join(self.desk.program, name) for name in os.listdir(self.desk.program)
                    if name == "Ambertask" or name.endswith(".so")]
        self.assertEqual(len(binaries), 4)
        self.assertEqual({binary: STARTS_A_THREAD.findall(asked_for(binary)) for binary in binaries},
                         {binary: [] for binary in binaries})

    def test_a_binary_that_can_start_a_thread_is_recognized(self):
        for name in ("reliability/racing_threads", "system/tst_programfolder"):
            binary = os.path.join(os.environ["AMBERTASK_BUILD"], "tests", name)
            self.assertTrue(STARTS_A_THREAD.search(asked_for(binary)), name)

    def test_every_thread_belongs_to_a_library(self):
        self.user = self.start()
        self.user.wait_loaded()
        self.assertEqual(sorted(self.threads()), sorted(AT_REST))
        self.sound_one()
        self.assertEqual(sorted(self.threads()), sorted(AT_REST))
        self.user.click_control(self.user.open_page("Maintenance"), names.BACKUP)
        self.user.file_dialog(names.SAVE_FILE)
        wait_until(lambda: OF_A_FILE_DIALOG <= set(self.threads()), "the dialog looks into its folder")
        self.assertEqual(set(self.threads()) - AT_REST, OF_A_FILE_DIALOG)
        self.user.cancel_file(names.SAVE_FILE)
        wait_until(lambda: set(self.threads()) <= AT_REST, "the dialog's thread ends")
        self.assertEqual(self.user.exit(), 0)


class ThreadCheckerTest(ThreadCase):
    def is_ours(self, place):
        return place.startswith((self.desk.program, os.environ["AMBERTASK_BUILD"], SOURCES))

    def judged(self, log):
        """The number of all reports, and those that count."""
        with open(log, encoding="utf-8", errors="replace") as file:
            text = file.read()
        self.assertTrue(racecheck.has_ended(text), text[-2000:])
        return racecheck.count(text), racecheck.races_of_ours(text, self.is_ours)

    def check(self, name, environment=None):
        """Runs a test program under the checker; returns what `judged` does."""
        log = self.desk.path("checker.log")
        binary = os.path.join(os.environ["AMBERTASK_BUILD"], "tests", name)
        ended = subprocess.run(racecheck.under_checker(log) + [binary], timeout=300, check=False, capture_output=True,
                               env={**self.desk.environment, **(environment or {})})
        self.assertEqual(ended.returncode, 0, ended.stdout + ended.stderr)
        return self.judged(log)

    def test_a_race_is_found(self):
        _, races = self.check("reliability/racing_threads")
        self.assertTrue(any("data race" in race and "countUp" in race for race in races), races)

    def test_many_threads_that_make_one_program_folder_do_not_race(self):
        _, races = self.check("system/tst_programfolder", {"QT_QPA_PLATFORM": "offscreen"})
        self.assertEqual(races, [])

    def test_nothing_of_the_program_runs_in_a_thread_of_a_library(self):
        log = self.desk.path("checker.log")
        self.user = User(self.desk, command=racecheck.under_checker(log))
        self.addCleanup(self.user.close)
        self.user.window(names.MAIN, PATIENCE)
        self.user.wait_loaded()
        self.sound_one()
        self.user.click_control(self.user.open_page("Maintenance"), names.BACKUP)
        self.user.window(names.SAVE_FILE, PATIENCE)
        target = self.desk.path("checked.abk")
        self.user.choose_file(names.SAVE_FILE, target)
        wait_until(lambda: os.path.exists(target), "the backup is there", PATIENCE)
        self.user.choose_tray_entry("Exit")
        self.assertEqual(self.user.program.wait_end(PATIENCE), 0)
        reports, races = self.judged(log)
        print(f"{reports} reports of libraries, {len(races)} of the program")
        self.assertGreater(reports, 0, "the checker has seen no second thread")
        self.assertEqual(races, [])


if __name__ == "__main__":
    main()
