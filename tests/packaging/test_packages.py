"""The packages on a bare system, used by somebody who may write to the home folder alone.

    AMBERTASK_PACKAGES=build/packages /usr/bin/python3 tests/packaging/test_packages.py

Needs root, for the bare system, and the package mirror.
"""
import glob
import hashlib
import os
import shutil
import signal
import stat
import subprocess
import tempfile
import unittest
from datetime import datetime

from bare import HOME, USER, BareDesktop, BareSystem
from desktop import PROGRAM_NAME
from polling import wait_until
import names

SYSTEM = BareSystem()
SHIPPED = "usr/share/ambertask"
LIST = SHIPPED + "/shipped.sha256"
HELP = "Ambertask Help"


def setUpModule():
    unittest.addModuleCleanup(SYSTEM.remove)
    SYSTEM.make()


def package(pattern):
    found = glob.glob(os.path.join(os.environ["AMBERTASK_PACKAGES"], pattern))
    if len(found) != 1:
        raise RuntimeError(f"not one package {pattern}: {found}")
    return found[0]


def later_package(folder):
    """The package of a later version, which ships a skin more."""
    tree = os.path.join(folder, "tree")
    subprocess.run(["dpkg-deb", "--raw-extract", package("*.deb"), tree], check=True)
    skins = os.path.join(tree, SHIPPED, "Skins")
    with open(os.path.join(skins, "Aqua.skf"), "rb") as file:
        copper = file.read().replace(b"Aqua", b"Copper")
    with open(os.path.join(skins, "Copper.skf"), "wb") as file:
        file.write(copper)
    with open(os.path.join(tree, LIST), "a", encoding="ascii") as text:
        text.write(hashlib.sha256(copper).hexdigest() + "  Skins/Copper.skf\n")
    control = os.path.join(tree, "DEBIAN", "control")
    with open(control, encoding="utf-8") as text:
        lines = text.read().splitlines()
    with open(control, "w", encoding="utf-8") as text:
        text.writelines(("Version: 99.0-1" if line.startswith("Version:") else line) + "\n" for line in lines)
    made = os.path.join(folder, "later.deb")
    subprocess.run(["dpkg-deb", "--root-owner-group", "--build", tree, made], check=True, stdout=subprocess.DEVNULL)
    return made


class PackageCase(unittest.TestCase):
    def desk_of(self, executable, program):
        self.desk = self.enterContext(BareDesktop(SYSTEM, executable, program))

    def start(self):
        """The program, its window and its tray icon are there."""
        program = self.desk.start()
        window = self.wait_window(program, names.MAIN)
        wait_until(self.desk.screen.tray_icons, "the tray icon is docked")
        window.activate()
        wait_until(lambda: window.active, "the window is active")
        return program

    def wait_window(self, program, title, seconds=20):
        def look():
            self.assertTrue(program.running(), program.errors())
            return self.desk.screen.client(title, program.pid)
        return wait_until(look, f"'{title}' is shown", seconds)

    def work(self, program):
        """Help and report open: their modules are found, with all that they link."""
        self.desk.input.key("F1")
        self.wait_window(program, HELP).close()
        main = self.wait_window(program, names.MAIN)
        main.activate()
        wait_until(lambda: main.active, "the window is active")
        self.desk.input.key("p", "Alt_L")
        self.wait_window(program, names.REPORT).close()

    def end(self, program):
        program.send(signal.SIGTERM)
        self.assertEqual(program.wait_end(), 0)
        self.assertEqual((program.output(), program.errors()), ("", ""))

    def add_due_task(self, name):
        """Stored beside the program, and the file stays its user's."""
        self.desk.store.add_task(name, reminder=datetime(2020, 1, 1), sound="/nowhere.wav")
        self.assertEqual((os.stat(self.desk.data_file).st_uid, os.stat(self.desk.data_file).st_gid), SYSTEM.ids())


class DistributionPackageTest(PackageCase):
    def test_it_is_installed_used_brought_up_to_date_and_removed(self):
        SYSTEM.install(package("*.deb"))
        folder = os.path.join(HOME, ".local/share", PROGRAM_NAME)
        self.desk_of("/usr/bin/" + PROGRAM_NAME, folder)
        program = self.start()
        self.work(program)
        self.end(program)
        owner = os.stat(self.desk.program)
        self.assertEqual(((owner.st_uid, owner.st_gid), stat.S_IMODE(owner.st_mode)), (SYSTEM.ids(), 0o700))
        self.assertEqual(stat.S_IMODE(os.stat(self.desk.data_file).st_mode), 0o600)
        with open(SYSTEM.path(HOME + "/.config/autostart/Ambertask.desktop"), encoding="utf-8") as text:
            self.assertIn(f'Exec="{folder}/{PROGRAM_NAME}"', text.read())

        self.add_due_task("Alpha")
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.end(program)

        with tempfile.TemporaryDirectory() as place:
            SYSTEM.install(later_package(place))
        self.assertEqual(SYSTEM.version("ambertask"), "installed 99.0-1")
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.end(program)
        self.assertEqual([task["task_name"] for task in self.desk.store.tasks()], ["Alpha"])
        self.assertTrue(os.path.exists(os.path.join(self.desk.program, "Skins", "Copper.skf")))

        # The session starts it by the link in the user's folder.
        self.desk.executable = folder + "/" + PROGRAM_NAME
        self.end(self.start())

        SYSTEM.run("apt-get", "purge", "-y", "-qq", "ambertask")
        for gone in ("usr/share/ambertask", "usr/lib/ambertask", "usr/bin/Ambertask"):
            self.assertFalse(os.path.lexists(SYSTEM.path(gone)), gone)
        self.assertEqual([task["task_name"] for task in self.desk.store.tasks()], ["Alpha"])


class UnpackedArchiveTest(PackageCase):
    def test_it_is_unpacked_anywhere_and_run(self):
        place = HOME + "/my programs ü"
        SYSTEM.install(package("*.deb"))
        SYSTEM.run("apt-get", "purge", "-y", "-qq", "ambertask")
        shutil.copy(package("*.tar.gz"), SYSTEM.path("/tmp/archive.tar.gz"))
        os.mkdir(SYSTEM.path(place))
        os.chown(SYSTEM.path(place), *SYSTEM.ids())
        subprocess.run(SYSTEM.command(USER, "tar", "-C", place, "-xzf", "/tmp/archive.tar.gz"), check=True)
        folder = place + "/" + PROGRAM_NAME
        self.desk_of(folder + "/" + PROGRAM_NAME, folder)
        self.assertEqual(os.listdir(SYSTEM.path(place)), [PROGRAM_NAME])
        self.assertLessEqual({"README.txt", "LICENSE"}, set(os.listdir(self.desk.program)))
        self.assertEqual(stat.S_IMODE(os.stat(self.desk.data_file).st_mode), 0o600)
        program = self.start()
        self.work(program)
        self.end(program)
        self.add_due_task("Alpha")
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.end(program)
        self.bring_up_to_date(place)
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.end(program)

    def bring_up_to_date(self, place):
        """As README.txt says it."""
        with open(os.path.join(self.desk.program, "README.txt"), encoding="utf-8") as text:
            line = next(line for line in text if line.strip().startswith("tar "))
        words = [word.replace("ambertask-NEW.tar.gz", "/tmp/archive.tar.gz") for word in line.split()]
        subprocess.run(SYSTEM.command(USER, *words, "-C", place), check=True)

    def test_the_libraries_that_its_readme_names_are_enough(self):
        with tempfile.TemporaryDirectory() as place:
            subprocess.run(["tar", "-C", place, "-xzf", package("*.tar.gz")], check=True)
            with open(os.path.join(place, PROGRAM_NAME, "README.txt"), encoding="utf-8") as text:
                line = next(line for line in text if "apt install" in line)
        named = line.partition("apt install")[2].split()
        brought = set(SYSTEM.run("apt-cache", "depends", "--recurse", "--no-recommends", "--no-suggests",
                                 "--no-conflicts", "--no-breaks", "--no-replaces", "--no-enhances", *named).split())
        field = subprocess.run(["dpkg-deb", "--field", package("*.deb"), "Depends"], check=True, capture_output=True,
                               text=True).stdout
        needed = {alternative.split()[0] for alternative in field.split(",")}
        self.assertEqual(needed - brought, set())


if __name__ == "__main__":
    unittest.main(verbosity=2)
