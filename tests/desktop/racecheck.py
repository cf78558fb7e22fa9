"""What valgrind's helgrind says of code that two threads may reach.

The checker cannot see Qt's locks, which are no pthread locks: of the libraries' own threads it reports a
thousand races that are none. Here a report counts when code of the project runs in a thread beside the first one, on
either side of the race.
"""
import re

CHECKER = ["valgrind", "--tool=helgrind", "--error-limit=no", "--num-callers=40", "--fullpath-after="]
FRAME = re.compile(r"\s+(?:at|by) 0x[0-9A-F]+: (.*) \((?:in )?([^()]*)\)$")
STACK = re.compile(r".*\bby thread #(\d+)\b|Thread #(\d+)\b.*(?:lock|mutex|cond|rwlock|unlock)", re.IGNORECASE)
# Qt hands the events of every thread to the application object, whose guard is ours. It touches nothing but
# the exception that it catches, and tells of that by a signal across threads.
CROSSING = re.compile(r"^Application::notify\(")


def under_checker(log):
    """The words that stand before a program whose threads are to be watched; `log` gets the reports."""
    return CHECKER + ["--log-file=" + log]


def has_ended(log):
    """Whether the checker has seen the program to its end."""
    return "ERROR SUMMARY:" in log


def count(log):
    """How many different reports there are, of libraries or not."""
    return int(re.search(r"ERROR SUMMARY: \d+ errors from (\d+) contexts", log).group(1))


def foreign_frames(report, is_ours):
    """Functions of ours in a thread beside the first, from the stacks of what the report says two threads did."""
    found = []
    thread = None
    for line in report.splitlines():
        begin, frame = STACK.match(line), FRAME.match(line)
        if begin:
            thread = int(begin.group(1) or begin.group(2))
        elif not frame and not line.startswith(("Locks held", " at ")):
            thread = None
        elif frame and thread not in (None, 1) and is_ours(frame.group(2)) and not CROSSING.match(frame.group(1)):
            found.append(frame.group(1))
    return found


def races_of_ours(log, is_ours):
    """The reports that count. `is_ours` tells from the second half of a frame, the path of a binary or the place in
    a source file, whether the project wrote it."""
    text = re.sub(r"^==\d+== ?", "", log, flags=re.MULTILINE)
    return [report.strip() for report in re.split(r"^-{60,}$", text, flags=re.MULTILINE)
            if foreign_frames(report, is_ours)]
