"""A print server with one printer that prints nowhere and keeps what it was sent."""
import glob
import os
import subprocess

from polling import wait_until
from processes import listens

CUPSD = "/usr/sbin/cupsd"
NAME = "desk"

SERVER = """Listen {root}/cups.sock
LogLevel warn
DefaultAuthType None
Browsing Off
WebInterface No
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
"""
FILES = """FileDevice Yes
ServerRoot {folder}
RequestRoot {folder}/spool
TempDir {folder}/tmp
CacheDir {folder}/cache
StateDir {folder}/state
Printcap
AccessLog {folder}/access
ErrorLog {root}/logs/cups.log
PageLog {folder}/pages
"""
PRINTERS = """<DefaultPrinter {name}>
DeviceURI file:///dev/null
State Idle
Accepting Yes
</DefaultPrinter>
"""


class PrintServer:
    """Its processes belong to the desk."""

    def __init__(self, children, environment, root):
        self._folder = os.path.join(root, "cups")
        for part in ("spool", "tmp", "cache", "state"):
            os.makedirs(os.path.join(self._folder, part))
        for name, text in (("cupsd.conf", SERVER), ("cups-files.conf", FILES), ("printers.conf", PRINTERS)):
            with open(os.path.join(self._folder, name), "w", encoding="utf-8") as file:
                file.write(text.format(root=root, folder=self._folder, name=NAME))
        children.start([CUPSD, "-f", "-c", os.path.join(self._folder, "cupsd.conf"),
                        "-s", os.path.join(self._folder, "cups-files.conf")], environment, "cupsd")
        wait_until(lambda: listens(environment["CUPS_SERVER"]), "the print server listens")

    def jobs(self):
        """The files of the jobs that were sent, in their order."""
        return sorted(glob.glob(os.path.join(self._folder, "spool", "d*")))

    def printed(self):
        """The text of the first job, once it is there and complete."""
        def look():
            if not self.jobs():
                return None
            result = subprocess.run(["pdftotext", "-layout", self.jobs()[0], "-"], check=False, capture_output=True,
                                    text=True)
            return result.stdout if result.returncode == 0 else None
        return wait_until(look, "the job is printed")
