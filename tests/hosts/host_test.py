#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A sample host, given as the command line, against the viewer: the same month, line by line, and the
same annotations of the date."""
import json
import os
import subprocess
import sys
import unittest

import cases

HOST = sys.argv[1:]
VIEWER = os.environ.get("ALMARA_BOARD")
BOARD_OPTIONS = ("--mode", "month", "--no-month-interval", "--no-annotations", "--color", "never")
A_SATURDAY = {"LD_PRELOAD": os.environ["ALMARA_LIBFAKETIME"], "FAKETIME": "2026-11-21 12:00:00",
              "FAKETIME_DONT_FAKE_MONOTONIC": "1"}

# For each date, what the annotation functions say of it: a common day, a new year, a leap month, a
# solar term, a festival of the solar calendar, a short title over a long month, a month of four
# weeks, and both ends of the years that have a board.
ANNOTATIONS = {
    "2024-02-09": "lunar 2023-12-30, Lunar New Year's Eve",
    "2024-02-10": "lunar 2024-1-1, Lunar New Year's Day",
    "2023-03-22": "lunar 2023-2-1 in a leap month",
    "2024-06-21": "lunar 2024-5-16, Summer Solstice",
    "2024-10-01": "lunar 2024-8-29, National Day",
    "1900-01-01": "lunar 1899-12-1, New Year's Day",
    "1985-05-19": "lunar 1985-3-30",
    "2027-02-01": "lunar 2026-12-25",
    "2099-12-31": "lunar 2099-11-20, New Year's Eve",
}


def output_of(*command, **environment):
    return subprocess.run(command, env={**os.environ, **environment}, check=True,
                          stdout=subprocess.PIPE, text=True).stdout


def board_of_host(date=None, **environment):
    """The lines of the board, of the annotations, and of the options."""
    lines = output_of(*HOST, *([date] if date else []), **environment).splitlines()
    return [line.rstrip() for line in lines[:-2]], lines[-2], lines[-1]


def board_of_viewer(*options, **environment):
    """The lines of the board; the viewer puts a bracket after each week number."""
    lines = output_of(VIEWER, *BOARD_OPTIONS, *options, **environment).splitlines()
    return lines[:2] + [f"{line[:6]} {line[7:]}" for line in lines[2:]]


def annotations_of_viewer(date):
    day = json.loads(output_of(VIEWER, "--day", date, "--language", "chs", "--json"))
    lunar = day["lunar"]
    named = [*([day["solarTerm"]] if day["solarTerm"] else []),
             *sorted(day["festivals"], key=lambda festival: festival["code"])]
    leap = " in a leap month" if lunar["leap"] else ""
    return (f"lunar {lunar['year']}-{lunar['month']}-{lunar['day']}{leap}"
            + "".join(f", {each['name']}" for each in named))


class HostTest(unittest.TestCase):
    def test_boards_and_annotations(self):
        for date, expected in ANNOTATIONS.items():
            with self.subTest(date):
                board, annotations, _ = board_of_host(date)
                self.assertEqual(annotations, f"{date}: {expected}")
                self.assertGreaterEqual(len(board), 6)
                if VIEWER:
                    self.assertEqual(board, board_of_viewer("--date", date))
                    self.assertEqual(annotations, f"{date}: {annotations_of_viewer(date)}")

    @unittest.skipUnless(VIEWER, "this build leaves the viewer out")
    def test_today_and_options(self):
        board, _, options = board_of_host(**A_SATURDAY)
        self.assertIn("[21].", "".join(board))
        self.assertEqual(board, board_of_viewer(**A_SATURDAY))
        viewer = json.loads(output_of(VIEWER, *BOARD_OPTIONS, "--json"))
        self.assertEqual(options, "options " + viewer["options"]["configKey"])

    def test_usage(self):
        result = subprocess.run([*HOST, "tomorrow"], check=False, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True)
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(result.stdout, "")
        self.assertIn("[YYYY-MM-DD]", result.stderr)


if __name__ == "__main__":
    cases.main(sys.argv[:1])
