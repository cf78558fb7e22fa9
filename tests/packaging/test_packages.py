"""The packages on a bare system, used by somebody who may write to the home folder alone.

    AMBERTASK_PACKAGES=build/packages /usr/bin/python3 tests/packaging/test_packages.py

Needs root, for the bare system, and the package mirror.
"""
import glob
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
from polling import wait_rest, wait_until
import names

SYSTEM = BareSystem()
# Below the prefix.
SHIPPED = "share/ambertask"
MODULES = "lib/ambertask"
LATER = b"\n/* of the later version */\n"
MINE = b"\n/* as I like it */\n"
# What a first start makes, as it is called in the system.
OWN_FOLDER = HOME + "/.local/share/" + PROGRAM_NAME
HELP = "Ambertask Help"


def setUpModule():
    unittest.addModuleCleanup(SYSTEM.remove)
    SYSTEM.make()


def package(pattern):
    found = glob.glob(os.path.join(os.environ["AMBERTASK_PACKAGES"], pattern))
    if len(found) != 1:
        raise RuntimeError(f"not one package {pattern}: {found}")
    return found[0]


def read(*parts):
    with open(os.path.join(*parts), "rb") as file:
        return file.read()


def write(content, *parts):
    with open(os.path.join(*parts), "wb") as file:
        file.write(content)


def make_later(prefix):
    """Turns what lies below the prefix into a later version: another Aqua and Lemon, a skin more, and modules in a
    folder of its own."""
    skins = os.path.join(prefix, SHIPPED, "Skins")
    write(read(skins, "Aqua.skf").replace(b"Aqua", b"Copper"), skins, "Copper.skf")
    for name in ("Aqua.skf", "Lemon.skf"):
        write(read(skins, name) + LATER, skins, name)
    modules = os.path.join(prefix, MODULES)
    (version,) = os.listdir(modules)
    later = "9" * len(version)
    os.rename(os.path.join(modules, version), os.path.join(modules, later))
    executable = os.path.join(prefix, "bin", PROGRAM_NAME)
    place, place_later = (f"/ambertask/{name}".encode("utf-16-le") for name in (version, later))
    program = read(executable)
    if program.count(place) != 1:
        raise RuntimeError("the program does not name the folder of its modules")
    write(program.replace(place, place_later), executable)


def later_archive(folder):
    subprocess.run(["tar", "-C", folder, "-xzf", package("*.tar.gz")], check=True)
    make_later(os.path.join(folder, PROGRAM_NAME))
    made = os.path.join(folder, "later.tar.gz")
    subprocess.run(["tar", "-C", folder, "--owner=0", "--group=0", "-czf", made, PROGRAM_NAME], check=True)
    return made, read(folder, PROGRAM_NAME, "bin", PROGRAM_NAME)


def later_package(folder):
    tree = os.path.join(folder, "tree")
    subprocess.run(["dpkg-deb", "--raw-extract", package("*.deb"), tree], check=True)
    make_later(os.path.join(tree, "usr"))
    control = os.path.join(tree, "DEBIAN", "control")
    with open(control, encoding="utf-8") as text:
        lines = text.read().splitlines()
    with open(control, "w", encoding="utf-8") as text:
        text.writelines(("Version: 99.0-1" if line.startswith("Version:") else line) + "\n" for line in lines)
    made = os.path.join(folder, "later.deb")
    subprocess.run(["dpkg-deb", "--root-owner-group", "--build", tree, made], check=True, stdout=subprocess.DEVNULL)
    return made, read(tree, "usr", "bin", PROGRAM_NAME)


class PackageCase(unittest.TestCase):
    def setUp(self):
        for made in (".config", ".local"):
            shutil.rmtree(SYSTEM.path(HOME + "/" + made), ignore_errors=True)

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
        for title, keys in ((HELP, ("F1",)), (names.REPORT, ("p", "Alt_L"))):
            self.give_keys(self.wait_window(program, names.MAIN))
            self.desk.input.key(*keys)
            self.wait_window(program, title).close()
            wait_until(lambda closed=title: self.desk.screen.client(closed, program.pid) is None, f"'{title}' is gone")

    @staticmethod
    def give_keys(window):
        """The window has the keys and keeps them: an alert that has just come up takes them a moment later."""
        def keeps():
            window.activate()
            return wait_rest(lambda: window.active, "who has the keys")
        wait_until(keeps, "the window keeps the keys")

    def loaded_modules(self, program):
        with open(f"/proc/{program.pid}/maps", encoding="utf-8") as maps:
            return {os.path.basename(line.strip()) for line in maps if f"/{MODULES}/" in line}

    def change_skin(self, name):
        """As its user does it: a copy of the shipped one in the user's folder."""
        folder = os.path.join(self.desk.program, "Skins")
        os.makedirs(folder, exist_ok=True)
        write(read(self.shipped_skins(), name) + MINE, folder, name)
        for path in (folder, os.path.join(folder, name)):
            os.chown(path, *SYSTEM.ids())

    def shipped_skins(self):
        prefix = os.path.dirname(os.path.dirname(os.path.realpath(SYSTEM.path(self.desk.executable))))
        return os.path.join(prefix, SHIPPED, "Skins")

    def assert_runs(self, program, executable):
        """It is the later version with its skins; in the user's folder lies the one that was changed, Aqua."""
        self.assertEqual(read(f"/proc/{program.pid}/exe"), executable)
        self.assertTrue(read(self.shipped_skins(), "Lemon.skf").endswith(LATER))
        self.assertIn(b"Copper", read(self.shipped_skins(), "Copper.skf"))
        self.assertEqual(os.listdir(os.path.join(self.desk.program, "Skins")), ["Aqua.skf"])
        self.assertTrue(read(self.desk.program, "Skins", "Aqua.skf").endswith(MINE))

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
        self.desk_of("/usr/bin/" + PROGRAM_NAME, OWN_FOLDER)
        program = self.start()
        self.work(program)
        self.end(program)
        owner = os.stat(self.desk.program)
        self.assertEqual(((owner.st_uid, owner.st_gid), stat.S_IMODE(owner.st_mode)), (SYSTEM.ids(), 0o700))
        self.assertEqual(stat.S_IMODE(os.stat(self.desk.data_file).st_mode), 0o600)
        with open(SYSTEM.path(HOME + "/.config/autostart/Ambertask.desktop"), encoding="utf-8") as text:
            self.assertIn(f'Exec="{OWN_FOLDER}/{PROGRAM_NAME}"', text.read())

        self.add_due_task("Alpha")
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.end(program)
        self.change_skin("Aqua.skf")

        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.assertEqual(self.loaded_modules(program), set())
        with tempfile.TemporaryDirectory() as place:
            later, executable = later_package(place)
            SYSTEM.install(later)
        self.assertEqual(SYSTEM.version("ambertask"), "installed 99.0-1")
        # The copy that runs on has all that it had, a sound for the next reminder, too.
        self.work(program)
        self.add_due_task("Beta")
        self.wait_window(program, names.alert_title(2))
        wait_until(lambda: self.loaded_modules(program) == {name + ".so (deleted)" for name in (
            "ambertask_help", "ambertask_report")}, "its own modules are used")
        self.end(program)

        program = self.start()
        self.wait_window(program, names.alert_title(2))
        self.assert_runs(program, executable)
        self.work(program)
        self.end(program)
        self.assertEqual([task["task_name"] for task in self.desk.store.tasks()], ["Alpha", "Beta"])

        # The session starts it by the link in the user's folder.
        self.desk.executable = OWN_FOLDER + "/" + PROGRAM_NAME
        self.end(self.start())

        SYSTEM.run("apt-get", "purge", "-y", "-qq", "ambertask")
        for gone in ("usr/share/ambertask", "usr/lib/ambertask", "usr/bin/Ambertask"):
            self.assertFalse(os.path.lexists(SYSTEM.path(gone)), gone)
        self.assertEqual([task["task_name"] for task in self.desk.store.tasks()], ["Alpha", "Beta"])


class UnpackedArchiveTest(PackageCase):
    place = HOME + "/my programs ü"
    folder = place + "/" + PROGRAM_NAME

    def setUp(self):
        super().setUp()
        # What it needs comes with the other package.
        SYSTEM.install(package("*.deb"))
        SYSTEM.run("apt-get", "purge", "-y", "-qq", "ambertask")
        os.mkdir(SYSTEM.path(self.place))
        self.addCleanup(shutil.rmtree, SYSTEM.path(self.place))
        os.chown(SYSTEM.path(self.place), *SYSTEM.ids())

    def unpack(self, archive, *words):
        shutil.copy(archive, SYSTEM.path("/tmp/archive.tar.gz"))
        command = [word.replace("ambertask-NEW.tar.gz", "/tmp/archive.tar.gz") for word in words]
        subprocess.run(SYSTEM.command(USER, *command, "-C", self.place), check=True)
        self.assertEqual(os.listdir(SYSTEM.path(self.place)), [PROGRAM_NAME])

    def readme_line(self, beginning):
        with open(SYSTEM.path(self.folder + "/README.txt"), encoding="utf-8") as text:
            return next(line for line in text if line.strip().startswith(beginning))

    def unpack_later(self):
        """As README.txt says it; the bytes of the later program."""
        with tempfile.TemporaryDirectory() as place:
            later, executable = later_archive(place)
            self.unpack(later, *self.readme_line("tar ").split())
        return executable

    def test_the_next_version_is_unpacked_over_it_and_the_tasks_are_there(self):
        self.unpack(package("*.tar.gz"), "tar", "-xzf", "/tmp/archive.tar.gz")
        self.assertLessEqual({PROGRAM_NAME, "README.txt", "LICENSE"}, set(os.listdir(SYSTEM.path(self.folder))))
        self.desk_of(self.folder + "/" + PROGRAM_NAME, OWN_FOLDER)
        program = self.start()
        self.work(program)
        self.end(program)
        self.assertEqual(stat.S_IMODE(os.stat(self.desk.data_file).st_mode), 0o600)
        self.add_due_task("Alpha")
        self.change_skin("Aqua.skf")
        executable = self.unpack_later()
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.assert_runs(program, executable)
        self.work(program)
        self.end(program)

    def test_data_in_its_folder_is_used_there_and_survives_the_next_version(self):
        self.unpack(package("*.tar.gz"), "tar", "-xzf", "/tmp/archive.tar.gz")
        self.desk_of(self.folder + "/" + PROGRAM_NAME, OWN_FOLDER)
        self.end(self.start())
        self.add_due_task("Alpha")
        os.remove(os.path.join(self.desk.program, PROGRAM_NAME))
        for name in os.listdir(self.desk.program):
            shutil.move(os.path.join(self.desk.program, name), SYSTEM.path(self.folder))
        os.rmdir(self.desk.program)
        self.desk_of(self.folder + "/" + PROGRAM_NAME, self.folder)
        self.change_skin("Aqua.skf")
        executable = self.unpack_later()
        program = self.start()
        self.wait_window(program, names.alert_title(1))
        self.assert_runs(program, executable)
        self.work(program)
        self.end(program)
        self.assertFalse(os.path.exists(SYSTEM.path(OWN_FOLDER)))

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
