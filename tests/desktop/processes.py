"""Starting and ending processes so that none outlives the test, also when the test itself is killed."""
import ctypes
import os
import signal
import socket
import subprocess

from polling import wait_until

PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36

_libc = ctypes.CDLL(None, use_errno=True)


def adopt_orphans():
    """What the program starts detached becomes a child of this process, so that it can be found and ended."""
    if _libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl")


def _begin():
    """In the new process: it dies with its parent, and hears signals, whatever the tests were started under."""
    _libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL, 0, 0, 0)
    for number in (signal.SIGHUP, signal.SIGINT):
        signal.signal(number, signal.SIG_DFL)


def listens(path):
    """Whether a server takes connections on that socket; its file is there a moment earlier."""
    with socket.socket(socket.AF_UNIX) as probe:
        try:
            probe.connect(path)
            return True
        except OSError:
            return False


def _processes():
    """State and parent of every process of the machine, by id."""
    found = {}
    for entry in os.listdir("/proc"):
        if entry.isdigit():
            try:
                with open(f"/proc/{entry}/stat", "rb") as stat:
                    fields = stat.read().rpartition(b")")[2].split()
            except OSError:
                continue
            found[int(entry)] = (fields[0], int(fields[1]))
    return found


def descendants(root):
    """The ids of the living processes below `root`."""
    tree = _processes()
    found, pending = [], [root]
    while pending:
        parent = pending.pop()
        for child in [pid for pid, (state, above) in tree.items() if above == parent and state != b"Z"]:
            found.append(child)
            pending.append(child)
    return found


def _belongs(pid, text):
    """Whether the living process was started with `text` in its environment, or can no longer say so.

    A process that is just ending has given its memory back, and with it its environment, but is no zombie yet:
    whoever does not wait for it finds it a moment later still there.
    """
    try:
        with open(f"/proc/{pid}/environ", "rb") as environment:
            words = environment.read()
    except OSError:
        return False
    return not words or text.encode() in words


def _reap_orphans(known):
    """Collects ended processes that came to this one from others. `known` ids belong to a Popen."""
    for pid, (state, parent) in _processes().items():
        if state == b"Z" and parent == os.getpid() and pid not in known:
            try:
                os.waitpid(pid, os.WNOHANG)
            except ChildProcessError:
                pass


class Children:
    """The processes of one desk. Ends them in the reverse order of their start."""

    def __init__(self, root, log_folder):
        self._root = root
        self._log_folder = log_folder
        self._started = []

    def start(self, arguments, environment, name, **options):
        """Starts a program. Its output goes to `name`.out and `name`.err in the log folder."""
        with open(os.path.join(self._log_folder, name + ".out"), "ab") as out, \
                open(os.path.join(self._log_folder, name + ".err"), "ab") as err:
            options.setdefault("stdout", out)
            child = subprocess.Popen(arguments, env=environment, stdin=subprocess.DEVNULL, stderr=err,
                                     preexec_fn=_begin, **options)
        self._started.append(child)
        return child

    def end(self, child):
        """Asks the process to end, then forces it. Harmless for one that has ended."""
        if child.poll() is None:
            child.terminate()
            try:
                child.wait(3)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()

    def end_all(self):
        for child in reversed(self._started):
            self.end(child)
        known = {child.pid for child in self._started}
        self._started = []

        def nothing_left():
            # What a process of the desk started in turn is known by the desk's folder in its environment.
            left = [pid for pid in descendants(os.getpid()) if _belongs(pid, self._root)]
            for pid in left:
                try:
                    os.kill(pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
            _reap_orphans(known)
            return not left

        wait_until(nothing_left, "the processes of the desk end")
