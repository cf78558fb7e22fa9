#!/usr/bin/python3
"""From exec to the first painted main window, against an empty window that wears the same skin.

    start.py [--smoke] BUILD_FOLDER
"""
import os
import statistics
import subprocess

import rig

TASKS = (10, 100) if rig.SMOKE else (10, 10_000)
STARTS = 1 if rig.SMOKE else 25


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


def main():
    with rig.desk() as desk:
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


main()
