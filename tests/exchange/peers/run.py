#!/usr/bin/python3
"""Exchanges tasks with programs that nobody here wrote, both ways, and prints what of each field was kept.

    /usr/bin/python3 tests/exchange/peers/run.py EXECUTABLE [PROGRAM ...]

EXECUTABLE is the program in its finished folder. Each of the other programs holds the tasks of tasks.py and writes
them, as its users would have it written, for the import; then it reads what the export has written. They run in a
system of their own (system.py), which needs root and is made at the first time. Fails when a field that the table in
docs/exchange-peers.md calls kept is lost, or a program that it names no longer does its part.

The files are left in the folder that AMBERTASK_ARTIFACTS names, if any, with what each program had when it wrote one.
Copies of them are in samples/, for test_samples.py.
"""
import contextlib
import json
import os
import subprocess
import sys
import tempfile

from comparison import READS, WRITES, Ambertask, compare, documented
from system import PeerSystem
from tasks import FIELDS

# The end of the name of what each program writes, and of what it reads; nothing where it can do one alone.
PROGRAMS = {
    "taskwarrior": ("csv", "json"),
    "gtg": ("ics", "ics"),
    "korganizer": ("ics", "ics"),
    "kalarm": ("ics", None),
    "orage": ("ics", "ics"),
    "endeavour": ("ics", "ics"),
    "osmo": ("ics", None),
    "todoman": (None, "ics"),
    "libical": (None, "ics"),
    "python3-vobject": (None, "ics"),
}
# These know done and not done alone.
WITHOUT_STARTED = ("gtg", "orage")


def script(system, program, direction, files, name):
    """What the script of a program answers."""
    result = system.work(program, direction, files, name)
    if result.returncode != 0:
        raise RuntimeError(f"{program} {direction}: {result.stdout}{result.stderr}")
    return json.loads(result.stdout)


def exchange(system, executable, program, direction, files):
    """One program one way: cells by field, and what was lost."""
    end = PROGRAMS[program][direction == READS]
    if not end:
        return None
    with Ambertask(executable) as ours:
        if direction == WRITES:
            name = f"{program}.{end}"
            given = script(system, program, "write", files, name)
            with open(os.path.join(files, program + ".json"), "w", encoding="utf-8") as text:
                json.dump(given, text, ensure_ascii=False, indent=1)
            ours.call("--import", os.path.join(files, name), "--yes")
            return compare(given, ours.rows(), given)
        ours.fill()
        name = f"for-{program}.{end}"
        path = os.path.join(files, name)
        if end == "json":
            with open(path, "w", encoding="utf-8") as text:
                text.write(ours.call("--list", "--json"))
        else:
            ours.call("--export", path)
        os.chmod(path, 0o644)
        given = ours.rows()
        if program in WITHOUT_STARTED:
            for row in given:
                row["state"] = "open" if row["state"] == "started" else row["state"]
        got = script(system, program, "read", files, name)
        if not got:
            raise RuntimeError(f"{program} has nothing of what it read")
        return compare(given, got, got)


def main():
    executable = os.path.abspath(sys.argv[1])
    names = sys.argv[2:] or list(PROGRAMS)
    system = PeerSystem()
    system.make()
    promised = documented()
    failed = False
    print("| Program | | " + " | ".join(FIELDS) + " |")
    print("|---|---|" + "---|" * len(FIELDS), flush=True)
    with contextlib.ExitStack() as stack:
        files = os.environ.get("AMBERTASK_ARTIFACTS")
        if files:
            os.makedirs(files, exist_ok=True)
        else:
            files = stack.enter_context(tempfile.TemporaryDirectory())
        # The user of the other system writes there, too.
        os.chmod(files, 0o777)
        for program in names:
            for direction in (WRITES, READS):
                try:
                    result = exchange(system, executable, program, direction, files)
                except (RuntimeError, ValueError, subprocess.TimeoutExpired) as error:
                    print(f"{program} {direction}: {error}", file=sys.stderr, flush=True)
                    failed = True
                    continue
                if not result:
                    continue
                cells, losses = result
                print(" | ".join(("| " + program, direction, *(cells[field] for field in FIELDS))) + " |", flush=True)
                for loss in losses:
                    print(f"{program} {direction}: {loss}", file=sys.stderr, flush=True)
                for field, cell in promised.get((program, direction), {}).items():
                    if cell != cells[field]:
                        print(f"{program} {direction}: {field} is {cells[field]}, the document says {cell}",
                              file=sys.stderr, flush=True)
                        failed = failed or cell == "kept"
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
