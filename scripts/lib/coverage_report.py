#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints what gcovr measured: figures by room, and each line or branch that no test reaches.

Usage: coverage_report.py COVERAGE_JSON

Fails if docs/testing.md does not explain one of them: its section "What no test reaches" names the
file and the text of the line.
"""

import collections
import json
import pathlib
import sys

from explained import explained

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HEADING = "What no test reaches"


class Count:
    """How many there are and how many a test reached."""

    def __init__(self):
        self.all = 0
        self.reached = 0

    def add(self, reached):
        self.all += 1
        self.reached += bool(reached)

    def __str__(self):
        percent = 100 * self.reached / self.all if self.all else 100
        return f"{self.reached:5} of {self.all:5} ({percent:5.1f} %)"


def measure(files):
    """Counts of lines and branches by room, and the places that no test reaches."""
    lines, branches = collections.defaultdict(Count), collections.defaultdict(Count)
    missed = []
    for file in files:
        room = file["file"].split("/")[1]
        text = (ROOT / file["file"]).read_text().splitlines()
        for line in file["lines"]:
            if line["gcovr/noncode"]:
                continue
            ways = [branch["count"] for branch in line["branches"]]
            for table in (lines[room], lines["all"]):
                table.add(line["count"])
            for way in ways:
                for table in (branches[room], branches["all"]):
                    table.add(way)
            if not line["count"] or not all(ways):
                missed.append((file["file"], line["line_number"], text[line["line_number"] - 1].strip(),
                               "line" if not line["count"] else "branch"))
    return lines, branches, missed


def main():
    report = json.loads(pathlib.Path(sys.argv[1]).read_text())
    lines, branches, missed = measure(report["files"])
    if not lines:
        sys.exit("coverage: nothing was measured")
    for room in sorted(lines):
        print(f"{room:9} lines {lines[room]}   branches {branches[room]}")
    known = explained(HEADING)
    unknown = 0
    for path, number, text, kind in missed:
        told = (path, text) in known
        unknown += not told
        print(f"{path}:{number}: {kind} not reached{'' if told else ', not explained'}: {text}")
    print(f"coverage: {len(missed)} places that no test reaches, {unknown} not explained")
    return 1 if unknown else 0


if __name__ == "__main__":
    sys.exit(main())
