"""A desk whose program is installed for everybody: below a prefix, the user's own folder made by the program."""
import os
import shutil
import subprocess

from desktop import PROGRAM_NAME, Desktop
from store import Store

# What packagers and users call their folders.
PREFIX = "opt für alle 100%"


def build_folder():
    """The build whose program is installed."""
    folder = os.environ.get("AMBERTASK_BUILD", "")
    if not os.path.isfile(os.path.join(folder, "cmake_install.cmake")):
        raise RuntimeError(f"AMBERTASK_BUILD names no build folder: '{folder}'")
    return folder


def install(prefix, root=None):
    """Installs the build below `prefix`; with `root` as a packager does it, who wants the files elsewhere."""
    environment = {"PATH": "/usr/bin:/bin"}
    if root:
        environment["DESTDIR"] = root
    subprocess.run(["cmake", "--install", build_folder(), "--prefix", prefix], env=environment, check=True,
                   capture_output=True)


class InstalledDesktop(Desktop):
    """The program folder is not there before the first start."""

    def _copy_program(self):
        self.program = os.path.join(self.environment["XDG_DATA_HOME"], PROGRAM_NAME)
        self.data_file = os.path.join(self.program, "data.dat")
        self.store = Store(self.data_file)
        self.install(PREFIX)

    def install(self, name):
        """Installs the program below the prefix `name` of this desk and starts that from now on."""
        self.prefix = self.path(name)
        install(self.prefix)
        self.executable = os.path.join(self.prefix, "bin", PROGRAM_NAME)
        self.shipped_folder = os.path.join(self.prefix, "share", "ambertask")

    def in_folder(self, *parts):
        return os.path.join(self.program, *parts)

    def ship(self, name, content):
        """What a later version does: from now on the installed one ships this."""
        with open(os.path.join(self.shipped_folder, name), "wb") as file:
            file.write(content)

    def shipped(self, *parts):
        with open(os.path.join(self.shipped_folder, *parts), "rb") as file:
            return file.read()

    def bring_later_version(self):
        """Another executable, modules in a folder of its own: those of this version are gone, what is shipped is not."""
        os.remove(self.executable)
        shutil.rmtree(os.path.join(self.prefix, "lib", "ambertask"))

    def uninstall(self):
        shutil.rmtree(self.prefix)
