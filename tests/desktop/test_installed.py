"""The program installed below a prefix: each user has a program folder of their own."""
import hashlib
import os
import shutil
import signal
import stat
import subprocess
from datetime import datetime

import names
from access import Access
from case import DesktopCase, main
from desktop import PROGRAM_NAME
from gi.repository import Gio
from installed import InstalledDesktop, install
from polling import wait_until
from test_start_and_stop import OTHER_USER, snapshot

HELP = "Ambertask Help"


def mode(path):
    return stat.S_IMODE(os.stat(path).st_mode)


class InstalledCase(DesktopCase):
    def make_desk(self):
        return InstalledDesktop(tray=self.tray, sound=self.sound)

    def setUp(self):
        super().setUp()
        self.user_data = os.path.dirname(self.desk.program)
        self.entry = os.path.join(self.desk.environment["XDG_CONFIG_HOME"], "autostart", PROGRAM_NAME + ".desktop")

    def run_once(self):
        user = self.start()
        user.wait_loaded()
        self.assertEqual(user.exit(), 0)

    def refuse(self, program, *words):
        """A box that says the words; then the program has ended with status 1."""
        window = wait_until(lambda: self.desk.screen.client(names.MAIN, program.pid), "a message box is shown")
        if words:
            access = Access(self.desk.access_address(), program.pid)
            self.addCleanup(access.close)
            text = " ".join(label.name for label in access.message_box("").all("label"))
            for word in words:
                self.assertIn(word, text)
        window.activate()
        wait_until(lambda: window.active, "the message box is active")
        self.desk.input.key("Return")
        self.assertEqual(program.wait_end(), 1)

    def read(self, *parts):
        with open(self.desk.in_folder(*parts), "rb") as file:
            return file.read()

    def write(self, content, *parts):
        with open(self.desk.in_folder(*parts), "wb") as file:
            file.write(content)


class FirstStartTest(InstalledCase):
    def test_the_first_start_makes_a_folder_of_the_users_own(self):
        before = snapshot(self.desk.prefix)
        self.run_once()
        self.assertEqual(os.listdir(self.user_data), [PROGRAM_NAME])
        self.assertEqual(sorted(os.listdir(self.desk.program)), [PROGRAM_NAME, "data.dat"])
        self.assertEqual(os.readlink(self.desk.in_folder(PROGRAM_NAME)), self.desk.executable)
        self.assertEqual(mode(self.desk.program), 0o700)
        self.assertEqual(mode(self.desk.data_file), 0o600)
        self.assertEqual(snapshot(self.desk.prefix), before, "the installation is as it was")

    def test_what_is_stored_is_there_at_the_next_start(self):
        user = self.start()
        user.wait_loaded()
        user.open_new_task()
        user.type_into(user.dialog(), names.TASK_NAME, "Alpha")
        user.choose(user.dialog(), names.TASK_CATEGORY, "Work")
        user.click_control(user.dialog(), names.OK)
        user.wait_rows(["Alpha"])
        self.assertEqual(user.exit(), 0)
        user = self.start()
        user.wait_loaded()
        user.wait_rows(["Alpha"])

    def test_of_ten_first_starts_at_once_exactly_one_stays(self):
        copies = [self.desk.start() for _ in range(10)]
        wait_until(lambda: sum(copy.running() for copy in copies) == 1, "nine copies end", 60)
        left = next(copy for copy in copies if copy.running())
        wait_until(lambda: self.desk.screen.client(names.MAIN, left.pid), "the last one shows its window", 30)
        self.assertEqual([copy.wait_end() for copy in copies if copy is not left], [0] * 9)
        self.assertEqual(os.listdir(self.user_data), [PROGRAM_NAME])

    def test_a_folder_that_cannot_be_made_is_reported(self):
        os.makedirs(os.path.dirname(self.user_data), exist_ok=True)
        shutil.rmtree(self.user_data, ignore_errors=True)
        with open(self.user_data, "w", encoding="ascii") as file:
            file.write("a file where a folder should be")
        self.refuse(self.desk.start(), "The program folder could not be made", self.user_data)
        self.assertFalse(os.path.exists(self.entry))

    def test_a_folder_without_its_data_is_an_error_and_no_fresh_start(self):
        self.run_once()
        os.remove(self.desk.data_file)
        before = snapshot(self.desk.program)
        self.refuse(self.desk.start(), "data.dat")
        self.assertEqual(snapshot(self.desk.program), before)


class ReadOnlyTest(InstalledCase):
    """Whoever may not write: nothing is forbidden to root, so the program runs as somebody else."""

    def setUp(self):
        super().setUp()
        self.command = []
        if os.geteuid() == 0:
            self.command = ["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups"]
            for name in ("HOME", "XDG_RUNTIME_DIR"):
                subprocess.run(["chown", "-R", str(OTHER_USER), self.desk.environment[name]], check=True)

    def close_to_writing(self, *folders):
        for folder in folders:
            os.chmod(folder, 0o500)
            self.addCleanup(os.chmod, folder, 0o700)

    def test_a_home_that_may_not_be_written_is_reported(self):
        os.makedirs(self.user_data, exist_ok=True)
        self.close_to_writing(self.user_data)
        if self.command:
            os.chown(self.user_data, OTHER_USER, OTHER_USER)
        # The accessibility bus does not tell one user what a box of another says.
        words = [] if self.command else ["could not be made", self.user_data]
        self.refuse(self.desk.start(command=self.command), *words)
        self.assertEqual(os.listdir(self.user_data), [])
        self.assertFalse(os.path.exists(self.entry))

    def test_a_program_folder_that_may_not_be_written_is_shown_as_it_is(self):
        program = self.desk.start(command=self.command)
        wait_until(lambda: self.desk.screen.client(names.MAIN, program.pid), "the window is shown")
        program.send(signal.SIGTERM)
        self.assertEqual(program.wait_end(), 0)
        os.chmod(self.desk.data_file, 0o400)
        self.close_to_writing(*(path for path, _, _ in os.walk(self.desk.program)))
        before = snapshot(self.desk.program)
        program = self.desk.start(command=self.command)
        wait_until(lambda: self.desk.screen.client(names.MAIN, program.pid), "the window is shown")
        self.assertEqual(len(wait_until(self.desk.screen.tray_icons, "the tray icon is docked")), 1)
        program.send(signal.SIGTERM)
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual(snapshot(self.desk.program), before)


class UpgradeTest(InstalledCase):
    sound = True

    def session_would_start(self):
        try:
            return bool(Gio.DesktopAppInfo.new_from_filename(self.entry))
        except TypeError:
            # The binding's word for "there is no such program".
            return False

    def skins(self, user):
        return user.entries(user.open_page("Settings"), names.SKIN)

    def test_skins_sounds_and_help_are_the_installed_ones_and_the_users_come_first(self):
        self.run_once()
        self.store.add_task("Alpha")
        self.desk.ship("Skins/Copper.skf", self.desk.shipped("Skins", "Aqua.skf").replace(b"Aqua", b"Copper"))
        os.mkdir(self.desk.in_folder("Skins"))
        self.write(self.desk.shipped("Skins", "Lemon.skf").replace(b"@name Lemon", b"@name My Lemon"), "Skins", "Lemon.skf")
        user = self.start()
        user.wait_loaded()
        user.wait_rows(["Alpha"])
        self.assertEqual(sorted(self.skins(user)), ["Aqua", "Classic", "Contrast", "Copper", "Midnight", "My Lemon"])
        self.assertEqual(user.exit(), 0)
        self.assertEqual(sorted(os.listdir(self.desk.program)), [PROGRAM_NAME, "Skins", "data.dat"])

    def test_the_copies_of_the_version_before_go_and_what_was_changed_stays(self):
        self.run_once()
        lines = []
        for name in ("Ambertask1.1.chm", "Skins/Aqua.skf", "Skins/Lemon.skf", "sounds/bell.wav"):
            content = self.desk.shipped(name) + b" of the version before"
            os.makedirs(os.path.dirname(self.desk.in_folder(name)), exist_ok=True)
            self.write(content, name)
            lines.append(f"{hashlib.sha256(content).hexdigest()}  {name}\n")
        self.write("".join(lines).encode(), "shipped.sha256")
        mine = self.desk.shipped("Skins", "Lemon.skf") + b"\n/* as I like it */\n"
        self.write(mine, "Skins", "Lemon.skf")
        # Chosen from the copies, and it sounds all the same.
        self.store.add_task("Alpha", reminder=datetime(2020, 1, 1), sound=self.desk.in_folder("sounds", "bell.wav"))
        user = self.start()
        user.alert(1)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.5, "the sound is heard")
        self.assertEqual(sorted(self.skins(user)), ["Aqua", "Classic", "Contrast", "Lemon", "Midnight"])
        self.assertEqual(user.exit(), 0)
        self.assertEqual(sorted(os.listdir(self.desk.program)), [PROGRAM_NAME, "Skins", "copies", "data.dat", "sounds"])
        self.assertEqual(os.listdir(self.desk.in_folder("Skins")), ["Lemon.skf"])
        self.assertEqual(self.read("Skins", "Lemon.skf"), mine)

    def test_the_session_starts_the_program_that_has_moved_to_another_prefix(self):
        self.run_once()
        self.desk.uninstall()
        self.assertFalse(self.session_would_start(), "what is gone is passed over")
        self.desk.install("another $prefix")
        self.run_once()
        with open(self.entry, encoding="utf-8") as text:
            self.assertIn(f'Exec="{self.desk.in_folder(PROGRAM_NAME)}"', text.read())
        self.assertEqual(os.readlink(self.desk.in_folder(PROGRAM_NAME)), self.desk.executable)
        self.assertTrue(self.session_would_start())
        self.desk.executable = self.desk.in_folder(PROGRAM_NAME)
        user = self.start()
        user.wait_loaded()
        self.assertEqual(user.exit(), 0)


class ModulesTest(InstalledCase):
    sound = True

    def setUp(self):
        super().setUp()
        self.run_once()
        self.store.add_task("Alpha", due=datetime(2030, 1, 1))
        self.user = self.start()
        self.user.wait_loaded()

    def use_help_report_and_sound(self):
        user = self.user
        self.desk.input.key("F1")
        topic = user.access.window(HELP).find("label", "Topic")
        wait_until(lambda: topic.text.startswith("Welcome to Ambertask"), "the help is shown")
        self.desk.input.key("Escape")
        user.wait_hidden(HELP)
        user.wait_active(names.MAIN)
        self.desk.input.key("p", "Alt_L")
        user.window(names.REPORT)
        self.store.add_task("Beta", reminder=datetime(2020, 1, 1), sound=os.path.join(self.desk.shipped_folder, "sounds", "bell.wav"))
        user.alert(1)
        wait_until(lambda: self.desk.sound.loud_seconds() > 0.5, "the sound is heard")

    def loaded_modules(self):
        with open(f"/proc/{self.user.program.pid}/maps", encoding="utf-8") as maps:
            return {os.path.basename(line.strip()) for line in maps if "/lib/ambertask/" in line}

    def test_help_report_and_sound_are_found(self):
        self.assertEqual(self.loaded_modules(), set(), "none before its first use")
        self.use_help_report_and_sound()
        self.assertEqual(self.loaded_modules(), {"ambertask_help.so", "ambertask_report.so"})

    def test_a_copy_that_runs_on_while_a_later_version_is_installed_still_has_them(self):
        self.desk.bring_later_version()
        self.use_help_report_and_sound()
        self.assertEqual(self.loaded_modules(), {name + ".so (deleted)" for name in ("ambertask_help", "ambertask_report")})


class PackagerTest(InstalledCase):
    def test_a_staged_installation_has_the_same_files(self):
        staging = self.desk.path("staging area")
        install("/usr", staging)
        self.assertEqual([os.path.relpath(path, staging + "/usr") for path in sorted(snapshot(staging))],
                         [os.path.relpath(path, self.desk.prefix) for path in sorted(snapshot(self.desk.prefix))])


if __name__ == "__main__":
    main()
