"""A private Windows: a Wine prefix, a home folder and a screen of its own, which all go when it is closed."""
import os
import re
import shutil
import subprocess
import tempfile
import time

SCREEN = "1280x900"
DESKTOP = "1280x880"
# Sounds go into a file; nobody hears them.
SOUND = 'pcm.!default {{ type file file "{file}" format wav slave.pcm "null" }}\nctl.!default {{ type null }}\n'
# Families that every Windows has and Wine has not: Qt would take the first one of the alphabet for them.
REGISTRY = """REGEDIT4

[HKEY_CURRENT_USER\\Environment]
{variables}

[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes]
"MS Shell Dlg"="Liberation Sans"
"MS Shell Dlg 2"="Liberation Sans"

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Arial"="Liberation Sans"
"Segoe UI"="Liberation Sans"
"Tahoma"="Liberation Sans"
"MS Shell Dlg 2"="Liberation Sans"
"""


def wait_until(holds, what, seconds=60):
    """The first answer of `holds` that counts as true."""
    end = time.monotonic() + seconds
    while True:
        answer = holds()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(0.2)


def windows_path(path):
    """How a program in Wine reaches the file of this machine."""
    return "Z:" + os.path.abspath(path).replace("/", "\\")


class Wine:
    def __init__(self, pictures=None, variables=None):
        """`variables` are set for all programs, by the registry: Wine keeps those of Qt back."""
        self.folder = tempfile.mkdtemp(prefix="ambertask-wine-")
        self.home = os.path.join(self.folder, "home")
        self.prefix = os.path.join(self.folder, "prefix")
        self.sound = os.path.join(self.folder, "sound.wav")
        self.pictures = pictures
        os.mkdir(self.home)
        with open(os.path.join(self.home, ".asoundrc"), "w", encoding="utf-8") as file:
            file.write(SOUND.format(file=self.sound))
        self._children = []
        reading, writing = os.pipe()
        self._screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN + "x24", "-nolisten", "tcp"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as told:
            display = ":" + told.readline().strip()
        keep = {name: os.environ[name] for name in ("PATH", "SOURCE_DATE_EPOCH") if name in os.environ}
        self.environment = keep | {
            "HOME": self.home, "WINEPREFIX": self.prefix, "WINEARCH": "win64", "WINEDEBUG": "-all",
            # No browser engine, no .NET, and no entries in the menus of this machine.
            "WINEDLLOVERRIDES": "mscoree,mshtml=;winemenubuilder.exe=d",
            "DISPLAY": display, "TZ": "UTC", "LC_ALL": "C.UTF-8"}
        self.run("wineboot", "-i", seconds=300)
        self.run("winecfg", "-v", "win10", seconds=300)
        registry = os.path.join(self.folder, "registry.reg")
        lines = [f'"{name}"="{value}"'.replace("\\", "\\\\") for name, value in (variables or {}).items()]
        with open(registry, "w", encoding="ascii") as file:
            file.write(REGISTRY.format(variables="\n".join(lines)))
        self.run("regedit", windows_path(registry))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        # Ends what runs in this prefix, and nothing else.
        subprocess.run(["wineserver", "-k"], env=self.environment, check=False, stderr=subprocess.DEVNULL)
        for child in self._children:
            child.wait(30)
        self._screen.terminate()
        self._screen.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def path(self, path):
        """The file of this machine at a path in Windows, drive C:."""
        return os.path.join(self.prefix, "drive_c", *path.removeprefix("C:\\").split("\\"))

    def run(self, *words, seconds=120, environment=None, cwd=None):
        """Runs a program to its end: its status, and what it has written."""
        # A file, not a pipe: what Wine starts beside it would keep a pipe open.
        with tempfile.TemporaryFile(mode="w+", encoding="utf-8", errors="replace") as output:
            status = subprocess.run(["wine", *words], env=self.environment | (environment or {}), cwd=cwd or self.home,
                                    timeout=seconds, check=False, stdin=subprocess.DEVNULL, stdout=output,
                                    stderr=subprocess.DEVNULL).returncode
            output.seek(0)
            return status, output.read()

    def start(self, *words, cwd=None):
        child = subprocess.Popen(["wine", *words], env=self.environment, cwd=cwd or self.home,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._children.append(child)
        return child

    def show_desktop(self):
        """Opens a desktop with a taskbar in one window of the screen; it stays as long as something runs on it."""
        self.on_desktop("notepad")
        self._xdotool("search", "--sync", "--name", "^ambertask - ")

    def on_desktop(self, *words):
        """Starts a program there."""
        return self.start("explorer", f"/desktop=ambertask,{DESKTOP}", *words)

    def registry(self, key, name):
        """The text of a value; None when it is not there."""
        _, told = self.run("reg", "query", key, "/v", name)
        found = re.search(rf"^\s+{re.escape(name)}\s+REG_\w+\s+(.*?)\s*$", told, re.MULTILINE)
        return found and found.group(1)

    def picture(self, name):
        """What the screen shows."""
        if self.pictures:
            os.makedirs(self.pictures, exist_ok=True)
            subprocess.run(["import", "-window", "root", os.path.join(self.pictures, name + ".png")],
                           env=self.environment, check=True)

    def _xdotool(self, *words):
        return subprocess.run(["xdotool", *words], env=self.environment, check=True, capture_output=True,
                              text=True).stdout

    def keys(self, *names, pause=0.3):
        for name in names:
            self._xdotool("key", "--clearmodifiers", name)
            time.sleep(pause)

    def type(self, text):
        self._xdotool("type", "--delay", "40", text)
        time.sleep(0.3)

    def click(self, x, y, button=1, count=1):
        self._xdotool("mousemove", str(x), str(y), "click", "--repeat", str(count), "--delay", "80", str(button))
        time.sleep(0.5)
