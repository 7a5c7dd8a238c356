#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""published_tables_test.py LIBRARY NODE NPM FOLDER

The almanac of China and Korea against calendars that others published. npm fetches them into
FOLDER as published/package-lock.json names them. Exits 77 where it cannot.
"""
import functools
import hashlib
import pathlib
import shutil
import subprocess
import sys
import unittest
from datetime import date, timedelta

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "reference"))
from library import Library  # noqa: E402 pylint: disable=wrong-import-position

SKIPPED = 77
CHINA, KOREA = 1, 2  # EAlmanacCalendar


def install(npm, folder):
    """Puts the packages into the folder, unless they are there. False where npm reaches none."""
    wanted = hashlib.sha256((HERE / "published" / "package-lock.json").read_bytes()).hexdigest()
    stamp = folder / "installed"
    shutil.copytree(HERE / "published", folder, dirs_exist_ok=True)
    if stamp.exists() and stamp.read_text(encoding="utf-8") == wanted:
        return True
    # No script of a package needs to run.
    done = subprocess.run([npm, "ci", "--ignore-scripts", "--no-audit", "--no-fund",
                           "--prefer-offline", "--fetch-retries=1",
                           "--fetch-retry-mintimeout=1000"],
                          cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False)
    if done.returncode != 0:
        print(f"{done.stdout}\nskipped: almanac.published_tables (npm cannot fetch the tables)")
        return False
    stamp.write_text(wanted, encoding="utf-8")
    return True


@functools.cache
def table(name):
    """[(date, (year, month, leap, day), term)] of every day of a package's calendar."""
    output = subprocess.run([NODE, "tables.js", name], cwd=FOLDER, stdout=subprocess.PIPE,
                            text=True, check=True).stdout
    days = []
    for line in output.splitlines():
        day, *fields = line.split()
        *lunar, term = map(int, fields)
        days.append((date.fromisoformat(day), tuple(lunar), term))
    return days


def lunar_date(calendar, day):
    year, month, lunar_day, _, leap = ALMANAC.call("AlmanacLunarDate", calendar, fields_of(day))
    return year, month, leap, lunar_day


def fields_of(day):
    return day.year, day.month, day.day, 0


class PublishedTablesTest(unittest.TestCase):
    def test_lunar_dates_of_china(self):
        """The package's table begins month 7 of 2097 on the 7th, the ephemeris has the new moon on
        the 8th of August at 00:01:26."""
        different = [day for day, published, _ in table("china")
                     if lunar_date(CHINA, day) != published]
        self.assertEqual(different, [date(2097, 8, 7) + timedelta(n) for n in range(30)])

    def test_solar_terms_of_china(self):
        """The package reckons in UTC+8 before 1929 too, when China had Beijing's own time, and
        disagrees on the equinox of 2084, which comes half a minute after midnight."""
        different = {}
        for day, _, published in table("china"):
            term = ALMANAC.call("AlmanacTermOfDate", CHINA, fields_of(day))
            if term != published:
                different[str(day)] = (term, published)
        self.assertEqual(different, {
            "1909-01-20": (1, -1), "1909-01-21": (-1, 1),
            "1911-05-06": (8, -1), "1911-05-07": (-1, 8),
            "1912-01-06": (0, -1), "1912-01-07": (-1, 0),
            "1912-10-08": (18, -1), "1912-10-09": (-1, 18),
            "1917-12-07": (22, -1), "1917-12-08": (-1, 22),
            "1927-09-08": (16, -1), "1927-09-09": (-1, 16),
            "1928-06-21": (11, -1), "1928-06-22": (-1, 11),
            "2084-03-19": (-1, 5), "2084-03-20": (5, -1),
        })

    def test_terms_before_1929_agree_in_utc_8(self):
        calendar = ALMANAC.call("AlmanacCalendarAtOffset", 480)
        for day, _, published in table("china"):
            if day.year < 1929:
                self.assertEqual(ALMANAC.call("AlmanacTermOfDate", calendar, fields_of(day)),
                                 published, day)

    def test_lunar_dates_of_korea(self):
        different = [day for day, published, _ in table("korea")
                     if lunar_date(KOREA, day) != published]
        self.assertEqual(different, [])


if __name__ == "__main__":
    LIBRARY, NODE, NPM = sys.argv[1:4]
    FOLDER = pathlib.Path(sys.argv[4])
    del sys.argv[1:]
    if not install(NPM, FOLDER):
        sys.exit(SKIPPED)
    ALMANAC = Library(LIBRARY)
    unittest.main()
