"""A bare system of the distribution in a folder of its own, and a desk whose program runs in there as an ordinary user."""
import os
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "desktop"))

from desktop import PROGRAM_NAME, Desktop, Program  # noqa: E402
from store import Store  # noqa: E402

USER = "tester"
HOME = "/home/" + USER
RUNTIME = "/run/" + USER
# The processes of the system are seen in there, by nobody else: the mount is gone with the last of them.
ENTER = 'mount -t proc proc "$1/proc" && exec /usr/sbin/chroot --userspec="$2" "$1" "${@:3}"'


def codename():
    with open("/etc/os-release", encoding="utf-8") as text:
        return dict(line.strip().split("=", 1) for line in text if "=" in line)["VERSION_CODENAME"]


def mirror():
    """Where this machine has its packages from."""
    targets = subprocess.run(["apt-get", "indextargets", "--format", "$(REPO_URI)", "Created-By: Packages",
                              "Codename: " + codename(), "Component: main"], check=True, capture_output=True, text=True)
    return targets.stdout.split()[0]


class BareSystem:
    def make(self, folder=None):
        """In a folder that is there, or in a temporary one."""
        self._folder = folder or tempfile.mkdtemp(prefix="ambertask-bare-")
        os.chmod(self._folder, 0o755)
        self.root = os.path.join(self._folder, "root")
        subprocess.run(["debootstrap", "--variant=minbase", codename(), self.root, mirror()], check=True,
                       stdout=subprocess.DEVNULL)
        # It need not survive a power cut.
        with open(self.path("etc/dpkg/dpkg.cfg.d/unsafe-io"), "w", encoding="ascii") as text:
            text.write("force-unsafe-io\n")
        self.run("apt-get", "update", "-qq")
        self.run("useradd", "--create-home", USER)
        # What a log-in makes.
        self.run("install", "--directory", "--mode=700", "--owner=" + USER, RUNTIME)

    def remove(self):
        shutil.rmtree(self._folder)

    def path(self, inside):
        return os.path.join(self.root, inside.lstrip("/"))

    def command(self, user, *words):
        """What runs `words` in the system."""
        return ["unshare", "--mount", "bash", "-c", ENTER, "bash", self.root, user, *words]

    def run(self, *words):
        """Runs a command as root; its output."""
        environment = {**os.environ, "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8", "HOME": "/root",
                       "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}
        result = subprocess.run(self.command("root", *words), env=environment, capture_output=True, text=True)
        if result.returncode != 0:
            raise RuntimeError(f"{words}: {result.stdout}{result.stderr}")
        return result.stdout

    def install(self, package):
        """Installs a package file with what it depends on and nothing more."""
        inside = "/tmp/" + os.path.basename(package)
        shutil.copy(package, self.path(inside))
        self.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", inside)

    def version(self, package):
        return self.run("dpkg-query", "--show", "--showformat=${db:Status-Status} ${Version}", package)

    def ids(self):
        """User and group of the ordinary user."""
        home = os.stat(self.path(HOME))
        return home.st_uid, home.st_gid


class BareDesktop(Desktop):
    """Display, window manager and notification area of this machine, the program of the bare system."""

    def __init__(self, system, executable, program):
        """`executable` and the program folder `program` as they are called in the system."""
        super().__init__(folder=system.root)
        self._system = system
        self.executable = executable
        self.program = system.path(program)

    def _copy_program(self):
        self.data_file = os.path.join(self.program, "data.dat")
        self.store = Store(self.data_file)

    def start(self, clock=None, command=None, environment=None):
        self._starts += 1
        name = f"program{self._starts}"
        variables = {"HOME": HOME, "USER": USER, "XDG_RUNTIME_DIR": RUNTIME, "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8", "TZ": "UTC",
                     "DISPLAY": self.environment["DISPLAY"], "QT_QPA_PLATFORM": "xcb", "AMBERTASK_DESK": self.root}
        child = self._children.start(self._system.command(USER, self.executable), variables, name)
        return Program(child, os.path.join(self.logs, name + ".out"), os.path.join(self.logs, name + ".err"))


def without_program(folder):
    """The names in a program folder beside the executable and what belongs to it."""
    return sorted(name for name in os.listdir(folder) if name != PROGRAM_NAME and not name.startswith("ambertask_"))
