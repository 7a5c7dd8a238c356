# SPDX-License-Identifier: MIT
"""The same calls on the library and on the model, each in a fresh process of its own.

The engine is one per process and keeps everything it has answered.  The C library's date functions
remember the offset of their last conversion, too, and answer for a day that the local zone skipped
by it, so library and model must not share a process either.  Each child runs in a given zone; its
clock stands still at a given local time and can be set again while the child runs.
"""

import contextlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile
from itertools import zip_longest

from library import CALLS, Library, OutputCapture
from model import Engine

CHILD_FLAG = "--child"
LIBRARY, MODEL = SIDES = ("library", "model")

CLOCK_STEP = "set_clock"
CLOCK_FILE = "FAKETIME_TIMESTAMP_FILE"
FAKETIME_NAME = "libfaketime.so.1"
FAKETIME_DIRECTORIES = (
    "/usr/lib/*/faketime",
    "/usr/lib/faketime",
    "/usr/lib64/faketime",
    "/usr/local/lib/faketime",
)
MAX_DIFFERENT_LINES = 3


class LibrarySide:
    """The library in this process."""

    def __init__(self, path, capture):
        self.library = Library(path)
        self.capture = capture

    def call(self, name, *arguments):
        """Make a call; the result and the text that it wrote."""
        result = self.library.call(name, *arguments)
        return result, self.capture.take().decode("latin-1")


class ModelSide:
    """The model in this process."""

    def __init__(self):
        self.engine = Engine()

    def call(self, name, *arguments):
        """Make a call; the result and the text that it wrote."""
        result = getattr(self.engine, CALLS[name][2])(*arguments)
        return result, self.engine.take_output()


class Recorder:
    """Makes calls on one side and keeps what they gave, grouped by the step they belong to."""

    def __init__(self, side):
        self.side = side
        self.groups = []

    def begin(self, step):
        """Open the group of a step."""
        self.groups.append({"step": step, "calls": []})

    def call(self, name, *arguments):
        """Make a call within the open group and return its result."""
        result, text = self.side.call(name, *arguments)
        self.groups[-1]["calls"].append((name, arguments, result, text))
        return result


def set_clock(today):
    """Set the clock of this process to a local time, 'YYYY-MM-DD HH:MM:SS'."""
    pathlib.Path(os.environ[CLOCK_FILE]).write_text(f"{today}\n", encoding="ascii")


def child_main(run):
    """Do the task on standard input in this process with ``run(task, recorder)``."""
    task = json.load(sys.stdin)
    capture = OutputCapture()
    side = LibrarySide(task["library"], capture) if task["side"] == LIBRARY else ModelSide()
    recorder = Recorder(side)
    run(task, recorder)
    with os.fdopen(capture.original, "w", encoding="utf-8") as stream:
        json.dump(recorder.groups, stream)


def find_faketime():
    """The path of the library that fakes the clock, or None."""
    for pattern in FAKETIME_DIRECTORIES:
        found = sorted(pathlib.Path("/").glob(f"{pattern.lstrip('/')}/{FAKETIME_NAME}"))
        if found:
            return str(found[0])
    return None


@contextlib.contextmanager
def clock_environment(today):
    """The variables that let a child's clock stand at ``today``; none of them for None."""
    if today is None:
        yield {}
        return
    faketime = find_faketime()
    if faketime is None:
        sys.exit(f"{FAKETIME_NAME} not found; install it to run this comparison")
    with tempfile.NamedTemporaryFile("w", suffix=".clock") as clock:
        clock.write(f"{today}\n")
        clock.flush()
        yield {
            "LD_PRELOAD": faketime,
            CLOCK_FILE: clock.name,
            "FAKETIME_NO_CACHE": "1",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1",
        }


def run_side(script, task, side, zone, today):
    """Run ``script --child`` for one side; its groups, or the status with which it died."""
    with clock_environment(today) as clock:
        child = subprocess.run(
            [sys.executable, script, CHILD_FLAG],
            input=json.dumps(task | {"side": side}).encode(),
            stdout=subprocess.PIPE,
            env=dict(os.environ, TZ=zone) | clock,
            check=False,
        )
    return json.loads(child.stdout) if child.returncode == 0 else child.returncode


def compare(script, task, zone, today=None):
    """Run a task on both sides.

    The result holds the number of calls, the first difference or None, and the steps up to it.
    """
    got, expected = (run_side(script, task, side, zone, today) for side in SIDES)
    for side, groups in zip(SIDES, (got, expected)):
        if isinstance(groups, int):
            return {"calls": 0, "difference": f"the {side} ended with {groups}", "steps": None}
    calls = 0
    steps = []
    for got_group, expected_group in zip(got, expected, strict=True):
        steps.append(expected_group["step"])
        for left, right in zip_longest(got_group["calls"], expected_group["calls"]):
            calls += 1
            if left != right:
                return {"calls": calls, "difference": explain(left, right), "steps": steps}
    return {"calls": calls, "difference": None, "steps": None}


def replayed(file, library):
    """The tasks for report() of a file with a line that report() printed."""
    task = json.loads(pathlib.Path(file).read_text(encoding="utf-8")) | {"library": library}
    return [(task["zone"], task["today"], task)]


def report(script, tasks):
    """Compare each task of (zone, today or None, task), print the differences and count them.

    The last line printed of a task, saved in a file, runs it again with ``--replay``.
    """
    calls = count = differences = 0
    for zone, today, task in tasks:
        result = compare(script, task, zone, today)
        count += 1
        calls += result["calls"]
        if result["difference"] is not None:
            differences += 1
            again = task | {"zone": zone, "today": today, "steps": result["steps"]}
            print(f"{result['difference']}\n  {json.dumps(again)}", flush=True)
    print(f"{count} sequences, {calls} calls compared, {differences} with a difference")
    return 1 if differences else 0


def explain(got, expected):
    """Tell the difference between two recorded calls."""
    name, arguments, result, text = expected or got
    call = f"{name}({', '.join(map(str, arguments))})"
    if got is None or expected is None or got[:2] != expected[:2]:
        return f"{call}: not the same call on both sides"
    if got[2] != result:
        return f"{call}: expected {result}, got {got[2]}"
    return f"{call}: other text on the standard output\n{different_lines(got[3], text)}"


def different_lines(got, expected):
    """The first lines in which two texts differ."""
    lines = []
    pairs = zip_longest(got.split("\n"), expected.split("\n"))
    for number, (left, right) in enumerate(pairs, start=1):
        if left != right:
            place = f"    line {number}"
            lines.append(f"{place} expected {right!r}\n{place} got      {left!r}")
    return "\n".join(lines[:MAX_DIFFERENT_LINES])
