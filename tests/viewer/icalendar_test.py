# SPDX-License-Identifier: MIT
"""--ics as another parser reads it, and what stands in it."""

import json
import subprocess
import sys
import unittest

import cases
from harness import output, read_json

# Prints the events of the file on the standard input: as read, and as read again from what the
# parser writes.
READER = """
import json, sys
from icalendar import Calendar

def events(calendar):
    return [{"uid": str(event["UID"]), "summary": str(event["SUMMARY"]),
             "begin": event.decoded("DTSTART").isoformat(), "end": event.decoded("DTEND").isoformat(),
             "transparent": str(event["TRANSP"]), "stamp": event.decoded("DTSTAMP").isoformat(),
             "description": str(event.get("DESCRIPTION", ""))}
            for event in calendar.walk("VEVENT")]

calendar = Calendar.from_ical(sys.stdin.buffer.read())
again = Calendar.from_ical(calendar.to_ical())
json.dump({"version": str(calendar["VERSION"]), "product": str(calendar["PRODID"]),
           "events": events(calendar), "again": events(again)}, sys.stdout)
"""


def python_with_parser():
    """The interpreter that has it: Debian's where another one runs the tests."""
    for python in (sys.executable, "/usr/bin/python3"):
        try:
            subprocess.run([python, "-c", "import icalendar"], check=True, stderr=subprocess.DEVNULL)
            return python
        except (OSError, subprocess.CalledProcessError):
            continue
    return None


PYTHON = python_with_parser()


def read_calendar(*arguments, **settings):
    result = subprocess.run([PYTHON, "-c", READER], input=output("--ics", *arguments, **settings),
                            stdout=subprocess.PIPE, encoding="utf-8", check=True)
    return json.loads(result.stdout)


def events_of(*arguments, **settings):
    return read_calendar(*arguments, **settings)["events"]


def named(events, summary):
    return [event["begin"] for event in events if event["summary"] == summary]


@unittest.skipIf(PYTHON is None, "python3-icalendar is not installed")
class ICalendar(unittest.TestCase):
    maxDiff = None

    def test_the_year_of_the_list(self):
        for region in ("chs", "kor", "jpn", "vit", "usa"):
            calendar = read_calendar("--language", region, "--year", "2033")
            self.assertEqual(calendar["version"], "2.0")
            self.assertEqual(calendar["again"], calendar["events"])
            year = read_json("--language", region, "--list", "--year", "2033")
            listed = [(day["date"], name["localName"]) for day in year["days"]
                      for name in (*day["festivals"], day["solarTerm"]) if name]
            self.assertEqual([(event["begin"], event["summary"]) for event in calendar["events"]],
                             listed)

    def test_an_event(self):
        term = next(event for event in events_of("--language", "chs") if event["summary"] == "立春")
        self.assertEqual(term, {
            "uid": "term-2-2024-chs@almara-board", "summary": "立春", "begin": "2024-02-04",
            "end": "2024-02-05", "transparent": "TRANSPARENT",
            "stamp": "2024-03-12T10:00:00+00:00", "description": "2024-02-04 16:27:07 UTC+8"})

    def test_years(self):
        events = events_of("--language", "chs", "2023", "--years", "3")
        self.assertEqual(named(events, "春节"), ["2023-01-22", "2024-02-10", "2025-01-29"])
        begins = [event["begin"] for event in events]
        self.assertEqual((begins[0], begins[-1]), ("2023-01-01", "2025-12-31"))
        self.assertEqual(begins, sorted(begins))

    def test_uids_are_those_of_another_file(self):
        uids = {event["uid"] for event in events_of("--birthday", "8-15=A", "--years", "2")}
        self.assertLess({event["uid"] for event in events_of("--birthday", "8-15=A", "2025")}, uids)
        self.assertTrue(uids.isdisjoint({event["uid"] for event in events_of("--language", "kor")}))

    def test_birthdays(self):
        name = "Tante \\ \"Mai\", 很长的名字很长的名字很长的名字很长的名字; =1"
        events = events_of("--language", "eng", "--years", "2", "--birthday", f"8-15={name}",
                           "--birthday", "2025-leap6-1=Kim")
        self.assertEqual(named(events, name), ["2024-09-17", "2025-10-06"])
        self.assertEqual(named(events, "Kim"), ["2025-07-25"])
        description = [event["description"] for event in events if event["summary"] == "Kim"]
        self.assertEqual(description, ["day 1 of leap month 6, 2025"])

    def test_days_that_are_not_certain(self):
        events = events_of("--language", "chs", "2089", "--birthday", "8-1=A")
        about = {event["summary"]: event["description"] for event in events}
        self.assertEqual(about["A"], "2089年八月初一 (不确定)")
        self.assertEqual(about["中秋节"], "2089年八月十五 (不确定)")
        spring = events_of("--language", "eng", "2084", "--years", "1")
        self.assertIn("2084-03-20 00:00:29 UTC+8 (+/- 80 s)",
                      {event["description"] for event in spring})

    def test_the_engine(self):
        self.assertEqual(named(events_of("--language", "chs", "2033"), "中秋节"), ["2033-09-08"])
        self.assertEqual(named(events_of("--language", "chs", "2033", "--lunar", "engine"), "中秋节"),
                         ["2033-10-07"])

    def test_the_locale_has_no_part_in_it(self):
        self.assertEqual(output("--ics", "--language", "chs", LC_ALL="C"),
                         output("--ics", "--language", "chs"))


if __name__ == "__main__":
    cases.main()
