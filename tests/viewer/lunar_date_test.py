# SPDX-License-Identifier: MIT
"""The Gregorian dates of lunar birthdays."""

import unittest

from harness import output, read_json


def dates(*arguments, **settings):
    return [day["date"] for day in read_json(*arguments, **settings)["days"]]


class LunarDate(unittest.TestCase):
    def test_text(self):
        self.assertEqual(output("--language", "eng", "--lunar-date", "8-15", "--years", "2"), """\
day 15 of month 8
  2024-09-17 Tue  in 189 days  day 15 of month 8, 2024
  2025-10-06 Mon  in 573 days  day 15 of month 8, 2025
""")
        self.assertEqual(output("--language", "chs", "--lunar-date", "1984-leap10-1", "--years", "1"), """\
1984年闰十月初一
  1984-11-23 周五  14354天前  1984年闰十月初一
  2024-11-01 周五  234天后    2024年十月初一  40周年
""")

    def test_ten_years_from_today(self):
        found = dates("--lunar-date", "1-1", today="2024-02-10 10:00:00")
        self.assertEqual(len(found), 10)
        self.assertEqual((found[0], found[-1]), ("2024-02-10", "2033-01-31"))
        self.assertEqual(dates("--lunar-date", "1-1", today="2024-02-11 10:00:00")[0], "2025-01-29")

    def test_from_a_year_on(self):
        self.assertEqual(dates("--lunar-date", "1-1", "--year", "1997", "--years", "1"), ["1997-02-07"])
        self.assertEqual(dates("--lunar-date", "1-1", "1997", "--years", "1"), ["1997-02-07"])

    def test_the_region_decides_the_calendar(self):
        arguments = ("--lunar-date", "1-1", "--year", "2007", "--years", "1", "--language")
        self.assertEqual(dates(*arguments, "vit"), ["2007-02-17"])
        self.assertEqual(dates(*arguments, "tha", zone="Asia/Ho_Chi_Minh"), ["2007-02-18"])

    def test_where_the_year_has_no_such_day(self):
        # In month 4 where there is no leap month 4, on day 29 of a short month.
        days = read_json("--lunar-date", "leap4-30", "--year", "2057", "--years", "3")["days"]
        self.assertEqual([(d["lunar"]["month"], d["lunar"]["day"], d["lunar"]["leap"]) for d in days],
                         [(4, 29, False), (4, 30, True), (4, 29, False)])

    def test_the_birth(self):
        report = read_json("--lunar-date", "2020-leap4-1")
        self.assertEqual(report["birthday"], {"year": 2020, "month": 4, "day": 1, "leap": True})
        self.assertEqual([day["years"] for day in report["days"]], [0, *range(4, 14)])
        # A birth after the first year that is asked for.
        self.assertEqual(dates("--lunar-date", "2030-1-1", "--years", "2"),
                         ["2030-02-03", "2031-01-23"])
        self.assertIsNone(read_json("--lunar-date", "8-15")["days"][0]["years"])

    def test_a_date_that_is_not_certain(self):
        days = read_json("--language", "chs", "--lunar-date", "8-15", "--year", "2088",
                         "--years", "2")["days"]
        self.assertEqual([day["certain"] for day in days], [True, False])
        self.assertIn("(Not certain)", output("--lunar-date", "8-15", "--year", "2089"))

    def test_to_the_end_of_the_calendar(self):
        self.assertEqual(dates("--lunar-date", "1-1", "--year", "2098"), ["2098-02-01", "2099-01-21"])
        self.assertEqual(dates("--lunar-date", "12-30", "--year", "2099"), ["2099-01-20"])


if __name__ == "__main__":
    unittest.main()
