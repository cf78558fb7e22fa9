#!/usr/bin/python3
"""What the program takes while it is hidden in the notification area and nothing is due.

    idle.py [--smoke] BUILD_FOLDER
"""
import os
import signal
import subprocess
import tempfile
import time

import rig

SECONDS = 2 if rig.SMOKE else 300
TICK_SECONDS = 10
LOADED_SECONDS = 1 if rig.SMOKE else 15


def state(pid):
    """Wake-ups (voluntary context switches) and CPU seconds so far, of all threads."""
    wake_ups, cpu = 0, 0.0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/status", encoding="ascii", errors="replace") as lines:
            wake_ups += sum(int(line.split()[1]) for line in lines if line.startswith("voluntary_ctxt_switches"))
        with open(f"/proc/{pid}/task/{thread}/schedstat", encoding="ascii") as numbers:
            cpu += int(numbers.read().split()[0]) * 1e-9
    return wake_ups, cpu


def main():
    # A kernel that reclaims idle memory takes the data file out of its cache between two ticks, and a wait for the
    # disk counts as a wake-up, too.
    tempfile.tempdir = "/dev/shm"
    with rig.desk() as desk:
        rig.fill(os.path.join(desk.program, "data.dat"), 10 if rig.SMOKE else 10_000, minimize_on_start=1)
        with subprocess.Popen([os.path.join(desk.program, "Ambertask")], env=desk.environment,
                              stdin=subprocess.DEVNULL) as child:
            # Not timed: the program settles, the measuring begins in the middle between two ticks.
            time.sleep(LOADED_SECONDS)
            wake_ups, cpu = state(child.pid)
            time.sleep(SECONDS)
            wake_ups_then, cpu_then = state(child.pid)
            child.send_signal(signal.SIGTERM)
            if child.wait(20) != 0:
                raise RuntimeError("the program has not ended as it should")
        rig.result(f"Hidden for {SECONDS} s, wake-ups; ticks", wake_ups_then - wake_ups, "", SECONDS / TICK_SECONDS, 1)
        rig.result(f"Hidden for {SECONDS} s, CPU a second", (cpu_then - cpu) / SECONDS * 1000, "ms", target=0.1)


if __name__ == "__main__":
    main()
