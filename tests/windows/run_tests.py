"""Runs the test programs that were built for Windows, under Wine.

    run_tests.py BUILD QT LIBRARIES [TEST...]

BUILD is the folder of the build for Windows. known.txt names what is left out and what is known to fail there, each
with its reason; anything else that fails, and a failure of that list that is gone, fails the run. BUILD/tests.md tells
of every test.
"""
import glob
import json
import os
import re
import subprocess
import sys
import xml.etree.ElementTree as xml
from concurrent.futures import ThreadPoolExecutor

from wine import Wine, windows_path

HERE = os.path.dirname(os.path.abspath(__file__))
FONTS = "/usr/share/fonts/truetype/dejavu"
# Files go through one process of Wine for all: ten times as long where other work takes the processors.
SECONDS = 900
VARIABLES = {"QT_QPA_PLATFORM": "offscreen", "QT_QPA_FONTDIR": windows_path(FONTS), "QT_HASH_SEED": "0",
             "QTEST_FUNCTION_TIMEOUT": "1800000"}


def known():
    """Reasons, by test or test::function."""
    reasons = {}
    with open(os.path.join(HERE, "known.txt"), encoding="utf-8") as file:
        for line in file:
            name, _, reason = line.partition(": ")
            if reason:
                reasons[name] = reason.strip()
    return reasons


def environment(qt, libraries):
    compiler = subprocess.run(["x86_64-w64-mingw32-g++-posix", "-print-file-name=libstdc++-6.dll"], check=True,
                              capture_output=True, text=True).stdout
    places = [os.path.join(qt, "bin"), os.path.join(libraries, "bin"), os.path.dirname(compiler),
              "/usr/x86_64-w64-mingw32/lib"]
    return {"WINEPATH": ";".join(map(windows_path, places)), "TZ": "Europe/London"}


def screens(build):
    """The file that describes the screen of a test, by test; most have none."""
    told = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True, capture_output=True,
                          text=True).stdout
    found = {}
    for test in json.loads(told)["tests"]:
        for entry in test.get("properties", []):
            if entry["name"] == "ENVIRONMENT":
                files = [value.partition("configfile=")[2] for value in entry["value"] if "configfile=" in value]
                found[test["name"]] = files[0] if files else None
    return found


def outcome(result):
    """Failed functions and how many there were; None when the file tells nothing."""
    try:
        with open(result, encoding="utf-8", errors="replace") as file:
            # Names of data may hold what XML must not.
            suite = xml.fromstring(re.sub("[^\t\n\x20-\ufffd]|&#x0*[01]?[0-9A-Fa-f];", "?", file.read()))
    except (OSError, xml.ParseError):
        return None
    cases = suite.findall("testcase")
    failed = {case.get("name").partition("(")[0]: (case.find("failure") if case.find("failure") is not None
                                                   else case.find("error")).get("message", "")
              for case in cases if case.find("failure") is not None or case.find("error") is not None}
    return failed, len(cases)


def run(wine, executable, variables, screen=None):
    """Failed functions with their messages, and a sentence for the table."""
    result = os.path.join(wine.folder, os.path.basename(executable) + ".xml")
    folder = os.path.dirname(executable)
    # A colon, as behind the letter of a drive, would end the name of the file.
    platform = ["-platform", "offscreen:configfile=" + os.path.relpath(screen, folder)] if screen else []
    try:
        # Wine takes its zone from the variable, which the C library of Windows would misread.
        status, _ = wine.run("cmd", "/c", "set TZ=&&" + windows_path(executable), *platform, "-o",
                             windows_path(result) + ",junitxml", seconds=SECONDS, environment=variables, cwd=folder)
    except subprocess.TimeoutExpired:
        return {"": "timeout"}, f"does not end within {SECONDS} s"
    told = outcome(result)
    if told is None:
        return {"": "crash"}, f"ends with status {status} and no result"
    failed, count = told
    if not failed and status != 0:
        return {"": "status"}, f"passes {count}, ends with status {status}"
    return failed, f"{count - len(failed)} of {count} pass"


def main():
    build, qt, libraries, *wanted = sys.argv[1:]
    reasons = known()
    executables = {os.path.splitext(os.path.basename(path))[0]: path
                   for path in sorted(glob.glob(os.path.join(os.path.abspath(build), "tests", "**", "tst_*.exe"),
                                                recursive=True))}
    executables = {name: path for name, path in executables.items()
                   if name not in reasons and (not wanted or name in wanted)}
    on_screen = screens(build)
    rows, faults = [], []
    with Wine(variables=VARIABLES) as wine:
        variables = environment(qt, libraries)
        workers = ThreadPoolExecutor(os.cpu_count())
        runs = {name: workers.submit(run, wine, executable, variables, on_screen.get(name))
                for name, executable in executables.items()}
        for name, ended in runs.items():
            failed, sentence = ended.result()
            expected = {key.partition("::")[2]: reason for key, reason in reasons.items()
                        if key.startswith(name + "::")}
            faults += [f"{name}::{function}: {message}" for function, message in failed.items()
                       if function not in expected]
            faults += [f"{name}::{function}: passes, although known.txt names it" for function in expected
                       if function not in failed]
            notes = "; ".join(f"`{function}`: {expected.get(function, message)}" for function, message in failed.items())
            rows.append(f"| {name} | {sentence} | {notes} |")
            print(f"{name}: {sentence}", flush=True)
            for function, message in failed.items():
                print(f"    {function}: {message}", flush=True)
    rows += [f"| {name} | left out | {reason} |" for name, reason in sorted(reasons.items()) if "::" not in name]
    if not wanted:
        with open(os.path.join(build, "tests.md"), "w", encoding="utf-8") as file:
            file.write("| Test | Under Wine | Why |\n|---|---|---|\n" + "\n".join(rows) + "\n")
    for fault in faults:
        print(fault, file=sys.stderr)
    sys.exit(1 if faults or not rows else 0)


if __name__ == "__main__":
    main()
