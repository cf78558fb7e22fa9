"""A system of the distribution in a folder of its own, with the other programs in it and an ordinary user."""
import json
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
TESTS = os.path.join(HERE, "..", "..")
sys.path.insert(0, os.path.join(TESTS, "packaging"))

from bare import HOME, USER, BareSystem, codename  # noqa: E402
from tasks import ZONE  # noqa: E402

# Each with what its script needs to work it.
PACKAGES = {
    "taskwarrior": ["taskwarrior"],
    "gtg": ["gtg", "radicale"],
    "korganizer": ["korganizer", "akonadi-backend-sqlite"],
    "kalarm": ["kalarm"],
    "orage": ["orage"],
    "endeavour": ["endeavour", "gir1.2-ecal-2.0"],
    "osmo": ["osmo"],
    "todoman": ["todoman"],
    "libical": [],
    "python3-vobject": ["python3-vobject"],
}
# Display, buses, window manager, and what works a window there.
DESK = ["adwaita-icon-theme", "at-spi2-core", "dbus", "dbus-daemon", "fonts-dejavu-core", "fonts-wqy-microhei",
        "gir1.2-ical-3.0", "librsvg2-common", "openbox", "python3-gi", "python3-xlib", "tzdata", "xclip", "xvfb"]

# What one run leaves in the home folder is gone with it.
ENTER = """mount -t proc proc "$1/proc"
mount -t tmpfs -o mode=1777 tmp "$1/tmp"
mkdir -p "$1/dev/shm"
mount -t tmpfs -o mode=1777 shm "$1/dev/shm"
mount -t tmpfs -o mode=0700,uid="$(stat -c %u "$1$HOME")" home "$1$HOME"
mount --bind "$2" "$1/mnt/tests"
mount --bind "$3" "$1/mnt/files"
exec /usr/sbin/chroot --userspec="$4" "$1" "${@:5}"
"""


def cache():
    base = os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache")
    return os.path.join(base, "ambertask", "exchange-peers-" + codename())


class PeerSystem(BareSystem):
    """Made once and kept; made anew when what is to be installed has changed."""

    def make(self):
        folder = cache()
        self.root = os.path.join(folder, "root")
        wanted = json.dumps([PACKAGES, DESK])
        stamp = os.path.join(folder, "packages")
        if os.path.exists(stamp):
            with open(stamp, encoding="utf-8") as text:
                if text.read() == wanted:
                    return
            os.remove(stamp)
        if not os.path.exists(self.path("etc/dpkg/dpkg.cfg.d/unsafe-io")):
            os.makedirs(folder, exist_ok=True)
            super().make(folder)
            os.makedirs(self.path("mnt/tests"))
            os.makedirs(self.path("mnt/files"))
            # Nothing of the system runs in there.
            with open(self.path("usr/sbin/policy-rc.d"), "w", encoding="ascii") as text:
                text.write("#!/bin/sh\nexit 101\n")
            os.chmod(self.path("usr/sbin/policy-rc.d"), 0o755)
        packages = sorted({*DESK, *(name for names in PACKAGES.values() for name in names)})
        self.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", *packages)
        self.run("apt-get", "clean")
        self.run("ln", "-sf", "/usr/share/zoneinfo/" + ZONE, "/etc/localtime")
        with open(self.path("etc/timezone"), "w", encoding="ascii") as text:
            text.write(ZONE + "\n")
        with open(stamp, "w", encoding="utf-8") as text:
            text.write(wanted)

    def work(self, program, direction, files, name, seconds=600):
        """Runs the script of a program with the file `name` of the folder `files`; what it says on its output.

        Everything that it starts ends with it."""
        words = ["/usr/bin/python3", f"/mnt/tests/exchange/peers/programs/{program}.py", direction,
                 "/mnt/files/" + name]
        environment = {"HOME": HOME, "USER": USER, "LOGNAME": USER, "PATH": "/usr/sbin:/usr/bin:/sbin:/bin",
                       "LANG": "C.UTF-8", "TZ": ZONE, "PYTHONDONTWRITEBYTECODE": "1"}
        command = ["setpriv", "--pdeathsig", "KILL", "unshare", "--mount", "--pid", "--fork", "--kill-child",
                   "bash", "-ec", ENTER, "bash", self.root, TESTS, files, USER, *words]
        return subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=seconds)
