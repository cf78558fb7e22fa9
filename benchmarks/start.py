#!/usr/bin/python3
"""From exec to the first painted main window, against an empty window that wears the same skin.

    start.py [--smoke] BUILD_FOLDER
"""
import os
import shutil
import sqlite3
import statistics
import struct
import subprocess
import time
import zlib

import rig

TASKS = (10, 100) if rig.SMOKE else (10, 32_767)
STARTS = 1 if rig.SMOKE else 25
PICTURES = 2 if rig.SMOKE else 60
PICTURE_EDGE = 100 if rig.SMOKE else 1500


class Start:
    """What a start took: CPU time in ms, proportional and peak resident memory in MB, needless libraries."""

    def __init__(self, command, environment):
        read_end, write_end = os.pipe()
        variables = {**environment, "LD_PRELOAD": os.path.join(rig.BUILD, "benchmarks", "bench_first_paint.so"),
                     "AMBERTASK_FIRST_PAINT": str(write_end)}
        with subprocess.Popen(command, env=variables, pass_fds=(write_end,), stdin=subprocess.DEVNULL) as child:
            os.close(write_end)
            with os.fdopen(read_end) as told:
                words = told.readline().split()
            if child.wait(60) != 0 or len(words) != 4:
                raise RuntimeError(f"{command[0]} has painted no window")
        self.cpu = float(words[0]) * 1000
        self.memory = int(words[1]) * 1024 / 1e6
        self.peak = int(words[2]) * 1024 / 1e6
        self.needless = int(words[3])


def median(starts, what):
    return statistics.median(getattr(start, what) for start in starts)


def bare_scan(data_file):
    scan = [os.path.join(rig.BUILD, "benchmarks", "limit_bare_scan"), data_file]
    return float(subprocess.run(scan, check=True, capture_output=True).stdout)


def add_pictures(program_folder):
    """As many categories, each with a picture of its own."""
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
    head = struct.pack(">IIBBBBB", PICTURE_EDGE, PICTURE_EDGE, 8, 2, 0, 0, 0)
    connection = sqlite3.connect(os.path.join(program_folder, "data.dat"))
    with connection:
        for number in range(PICTURES):
            line = b"\0" + bytes((number, 100, 200)) * PICTURE_EDGE
            picture = (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head)
                       + chunk(b"IDAT", zlib.compress(line * PICTURE_EDGE, 1)) + chunk(b"IEND", b""))
            name = f"icon{number}.gif"
            with open(os.path.join(program_folder, "custom icons", name), "wb") as file:
                file.write(picture)
            connection.execute("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                               "values(?,'',0,1,?)", (f"Category {number}", name))
    connection.close()


def read_pictures_once(program, environment):
    """The program reads them after its first painting, and keeps renditions for the next start."""
    renditions = os.path.join(environment["HOME"], ".cache", "ambertask", "pictures")
    child = subprocess.Popen(program, env=environment, stdin=subprocess.DEVNULL)
    end = time.monotonic() + 120
    while not os.path.isdir(renditions) or len(os.listdir(renditions)) < PICTURES:
        if time.monotonic() > end or child.poll() is not None:
            raise RuntimeError("the pictures have not been read")
        time.sleep(0.1)
    child.terminate()
    child.wait(60)


def measure_pictures(desk):
    """A start with pictures of the user's own, beside one of the same program without."""
    data_file = os.path.join(desk.program, "data.dat")
    bare = os.path.join(desk.program, "without pictures")
    full = os.path.join(desk.program, "with pictures")
    program = [os.path.join(desk.program, "Ambertask")]
    rig.fill(data_file, 10)
    shutil.copy(data_file, bare)
    add_pictures(desk.program)
    read_pictures_once(program, desk.environment)
    shutil.copy(data_file, full)
    taken = {bare: [], full: []}
    for turn in range(STARTS + 1):
        for source, starts in taken.items():
            shutil.copy(source, data_file)
            start = Start(program, desk.environment)
            if turn > 0:
                starts.append(start)
    rig.result(f"Start with {PICTURES} pictures of categories; with none", median(taken[full], "cpu"), "ms",
               median(taken[bare], "cpu"), 1.2)


def measure_late(desk):
    """A start that shows late tasks, which are in a font and a colour of their own."""
    data_file = os.path.join(desk.program, "data.dat")
    program = [os.path.join(desk.program, "Ambertask")]
    taken = {None: [], "2001-01-01 00:00:00": []}
    for turn in range(STARTS + 1):
        for due, starts in taken.items():
            rig.fill(data_file, 10, due)
            start = Start(program, desk.environment)
            if turn > 0:
                starts.append(start)
    calm, late = taken.values()
    rig.result("Start with 10 late tasks; with none of them late", median(late, "cpu"), "ms", median(calm, "cpu"), 1.05)


def measure_starts(desk):
    """From exec to the first painting, with few and with many tasks."""
    data_file = os.path.join(desk.program, "data.dat")
    program = [os.path.join(desk.program, "Ambertask")]
    empty = [os.path.join(rig.BUILD, "benchmarks", "limit_empty_window"),
             os.path.join(desk.program, "Skins", "Aqua.skf")]
    started = {"empty": [], **{tasks: [] for tasks in TASKS}}
    scan = None
    for turn in range(STARTS + 1):
        taken = {"empty": Start(empty, desk.environment)}
        for tasks in TASKS:
            rig.fill(data_file, tasks)
            taken[tasks] = Start(program, desk.environment)
        if turn == 0:
            # The first turn warms up and is not counted.
            scan = bare_scan(data_file)
            continue
        for name, start in taken.items():
            started[name].append(start)
    few, many = TASKS
    rig.result(f"Start to the first painted window, {few} tasks; empty window, same skin",
               median(started[few], "cpu"), "ms", median(started["empty"], "cpu"), 1.5)
    rig.result("Memory then, proportional; empty window", median(started[few], "memory"), "MB",
               median(started["empty"], "memory"), 1.3)
    rig.result("Memory then, peak resident; empty window", median(started[few], "peak"), "MB",
               median(started["empty"], "peak"))
    rig.result("Libraries loaded then for sound, printing, help, network", median(started[few], "needless"), "",
               target=0)
    rig.result(f"Start with {many} tasks, what is added; bare scan of them",
               median(started[many], "cpu") - median(started[few], "cpu"), "ms", scan, 1)


def main():
    with rig.desk() as desk:
        measure_starts(desk)
    with rig.desk() as desk:
        measure_late(desk)
        measure_pictures(desk)


main()
