# SPDX-License-Identifier: MIT
"""The command line: help, and one line and exit code 2 for what makes no sense."""

import subprocess
import unittest

from harness import BOARD, environment, output, run


class Usage(unittest.TestCase):
    def test_help_and_version(self):
        text = output("-h")
        self.assertEqual(text, output("--help"))
        for option in ("--mode", "--date", "--rows", "--passed-weeks", "--first-day", "--week-rule",
                       "--start-week", "-w", "-M", "-S", "--hide-break-days", "--break-days",
                       "--no-month-interval", "--language", "--next", "--previous", "--offset",
                       "--day", "--list", "--year", "--years", "--lunar", "--lunar-date", "--ics", "--birthday", "--no-annotations", "--json", "--color", "--tui",
                       "--dump", "-m", "-3", "-A", "-B", "-y", "--ascii", "--width", "--no-config"):
            self.assertIn(option, text)
        self.assertLessEqual(max(len(line) for line in text.splitlines()), 80)
        self.assertRegex(output("--version"), r"^almara-board \d+\.\d+\.\d+\n$")

    def test_bad_input(self):
        for arguments, line in [
                (("--date", "2024-02-31"), "--date: 2024-02-31 is not a day of the calendar"),
                (("--date", "1899-12-31"), "--date: 1899-12-31 is outside the years 1900 to 2099"),
                (("--date", "1899"), "--date: expected YYYY-MM-DD, not '1899'"),
                (("--rows", "x"), "--rows: expected a number from 1 to 50, not 'x'"),
                (("--rows", "0"), "--rows: expected a number from 1 to 50, not '0'"),
                (("--rows", "51"), "--rows: expected a number from 1 to 50, not '51'"),
                (("--rows", "5 "), "--rows: expected a number from 1 to 50, not '5 '"),
                (("--rows", "99999999999"),
                 "--rows: expected a number from 1 to 50, not '99999999999'"),
                (("--rows", "3", "--passed-weeks", "3"),
                 "--passed-weeks: must be less than the 3 rows"),
                (("--rows",), "--rows: a value is missing"),
                (("--next=2",), "--next: takes no value"),
                (("--offset", "9999"), "--offset: 9999 leads outside the years 1900 to 2099"),
                (("--mode", "month", "--offset", "-1491"),
                 "--offset: -1491 leads outside the years 1900 to 2099"),
                (("--mode", "month", "--date", "2099-12-31", "--next"),
                 "--next: the calendar ends with 2099"),
                (("--date", "1900-01-10", "--json", "--previous", "--next"),
                 "--previous: the calendar begins with 1900"),
                (("--start-week", "54"), "--start-week: expected a number from 1 to 53, not '54'"),
                (("--mode", "year"),
                 "--mode: expected one of rolling, tail, month, strip, not 'year'"),
                (("--color", "x"), "--color: expected one of auto, always, never, not 'x'"),
                (("--tui", "--json"), "--tui: cannot be combined with --json"),
                (("--json", "--dump"), "--dump: cannot be combined with --json"),
                (("--day", "2024-02-30"), "--day: 2024-02-30 is not a day of the calendar"),
                (("--year", "1899", "--list"),
                 "--year: expected a number from 1900 to 2099, not '1899'"),
                (("--year", "2025"), "--year: is for --list, --lunar-date and --ics"),
                (("--years", "2"), "--years: is not for a board"),
                (("--years", "201", "--lunar-date", "8-15"),
                 "--years: expected a number from 1 to 200, not '201'"),
                (("--lunar-date", "8-31"), "--lunar-date: expected a lunar date such as 8-15, "
                                           "leap4-1 or 1984-leap10-15, not '8-31'"),
                (("--lunar-date", "1899-8-15"), "--lunar-date: expected a lunar date such as 8-15, "
                                                "leap4-1 or 1984-leap10-15, not '1899-8-15'"),
                (("--lunar-date", "2024-leap2-15"),
                 "--lunar-date: the year 2024 has no such lunar day"),
                (("--lunar-date", "8-15", "--lunar", "engine"),
                 "--lunar: cannot be combined with --lunar-date"),
                (("--lunar-date", "8-15", "--list"), "--list: cannot be combined with --lunar-date"),
                (("--lunar-date", "8-15", "feb"), "feb: cannot be combined with --lunar-date"),
                (("--ics", "--json"), "--json: cannot be combined with --ics"),
                (("--ics", "--color", "always"), "--color: cannot be combined with --ics"),
                (("--ics", "--lunar-date", "8-15"), "--lunar-date: cannot be combined with --ics"),
                (("--ics", "--year", "2099", "--years", "2"),
                 "--years: 2 from 2099 on lead outside the years 1900 to 2099"),
                (("--birthday", "8-15=A"), "--birthday: is not for a board"),
                (("--ics", "--birthday", "8-15"),
                 "--birthday: expected a lunar date and a name, such as 8-15=Name, not '8-15'"),
                (("--ics", "--birthday", "8-15=A\nB"), "--birthday: the name is not a line of UTF-8"),
                (("--ics", "--birthday", "2024-leap2-15=A"),
                 "--birthday: the year 2024 has no such lunar day"),
                (("--ics", "--birthday", "13-1=A"), "--birthday: expected a lunar date such as 8-15, "
                                                    "leap4-1 or 1984-leap10-15, not '13-1'"),
                (("--ics", "--lunar", "engine", "--birthday", "8-15=A"),
                 "--birthday: cannot be combined with --lunar engine, which has no lunar birthdays"),
                (("--list", "--day", "2024-01-01"), "--day: cannot be combined with --list"),
                (("--tui", "--list"), "--list: cannot be combined with --tui"),
                (("--tui",), "--tui needs a terminal"),
                (("--mode", "month", "--rows", "3"), "--rows: is for --mode rolling and tail"),
                (("--mode", "strip", "--rows", "3"), "--rows: is for --mode rolling and tail"),
                (("2", "2024", "--rows", "3"), "--rows: is for --mode rolling and tail"),
                (("--mode", "month", "--passed-weeks", "0"),
                 "--passed-weeks: is for --mode rolling"),
                (("--list", "--next"), "--next: cannot be combined with --list"),
                (("--list", "-S"), "-S: cannot be combined with --list"),
                (("--day", "2024-01-01", "--rows", "3"), "--rows: cannot be combined with --day"),
                (("--date", "2024-01-01", "--offset", "1"),
                 "--offset: jumps from today, so it cannot be combined with a date"),
                (("feb", "--offset", "1"),
                 "--offset: jumps from today, so it cannot be combined with a date"),
                (("feb", "--date", "2024-01-01"),
                 "--date: cannot be combined with a month or a year"),
                (("-y", "feb"), "-y: shows a year, not a month"),
                (("2024", "-3"), "2024: cannot be combined with -3"),
                (("2024", "--tui"), "2024: cannot be combined with --tui"),
                (("feb", "--list"), "feb: cannot be combined with --list"),
                (("2024", "--json"), "--json: cannot be combined with 2024"),
                (("-3", "--json"), "--json: cannot be combined with -3"),
                (("-3", "--next"), "--next: cannot be combined with -3"),
                (("-A", "100"), "-A: expected a number from 0 to 99, not '100'"),
                (("--hide-break-days", "--break-days", "sun,mon,tue,wed,thu,fri,sat"),
                 "--hide-break-days: would hide every day"),
                (("--width", "19"), "--width: expected a number from 20 to 1000, not '19'"),
                (("--nope",), "unknown argument '--nope'; see almara-board --help"),
                (("1", "2", "2024", "5"), "unknown argument '5'; see almara-board --help"),
                (("2024", "5"), "'2024' is not a month; see almara-board --help"),
                (("5", "24"), "'24' is not a year from 1900 to 2099; see almara-board --help"),
                (("30", "2", "2024"), "day: expected a number from 1 to 29, not '30'"),
        ]:
            result = run(*arguments)
            self.assertEqual((result.returncode, result.stdout, result.stderr),
                             (2, "", f"almara-board: {line}\n"), arguments)
        for arguments in (("--language", "french"), ("--break-days", "sat,x"), ("--break-days", ""),
                          ("--first-day", "7"), ("--week-rule", "us"), ("--rows", "4\n5")):
            result = run(*arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""), arguments)
            self.assertRegex(result.stderr, r"\Aalmara-board: [^\n]+\n\Z", arguments)

    def test_a_clock_outside_the_calendar(self):
        for today in ("1899-12-31", "2100-01-01"):
            for arguments in ((), ("--json",), ("--list",), ("--mode", "month", "--next")):
                result = run(*arguments, today=f"{today} 10:00:00")
                self.assertEqual(
                    (result.returncode, result.stdout, result.stderr),
                    (1, "", f"almara-board: the clock says {today}, outside the years 1900 to "
                            "2099; give a date or a year\n"))
            for arguments in (("--date", "2024-02-10"), ("--day", "2024-02-10"),
                              ("--list", "--year", "2024")):
                self.assertIn("February", output(*arguments, today=f"{today} 10:00:00"))

    def test_control_characters_of_an_argument_do_not_come_back(self):
        result = run("--rows", "\x9b31m\x1b4")
        self.assertEqual(result.stderr,
                         "almara-board: --rows: expected a number from 1 to 50, not '?31m?4'\n")

    def test_arguments_that_are_no_month_and_no_year(self):
        for argument in ("1899", "2100", "0", "13", "ju", "x", "febx", "2024-13", "2024-02-30"):
            result = run(argument)
            self.assertEqual((result.returncode, result.stderr),
                             (2, f"almara-board: '{argument}' is neither a month nor a year from "
                                 "1900 to 2099; see almara-board --help\n"))

    def test_the_last_offset_inside_the_calendar(self):
        self.assertIn("January 1900", output("--mode", "month", "--offset", "-1490"))

    def test_what_cannot_be_written_is_an_error(self):
        for arguments in ([], ["--help"], ["--version"], ["--json"]):
            with open("/dev/full", "w") as full:
                result = subprocess.run([BOARD, *arguments], env=environment(), stdout=full,
                                        stderr=subprocess.PIPE, encoding="utf-8")
            self.assertEqual((result.returncode, result.stderr),
                             (1, "almara-board: could not write to the standard output\n"))


if __name__ == "__main__":
    unittest.main()
