# SPDX-License-Identifier: MIT
"""A month, several months side by side, and a year, as the arguments name them."""

import unittest

from harness import output


def lines(*arguments, **settings):
    return output("--language", "eng", *arguments, **settings).splitlines()


class OneMonth(unittest.TestCase):
    def test_ways_to_name_a_month(self):
        february = output("--mode", "month", "--date", "2024-02-01")
        for arguments in (("2", "2024"), ("feb", "2024"), ("February", "2024"), ("2",), ("FEB",),
                          ("2024-02",), ("2024-2",), ("-m", "2"), ("-m", "feb"),
                          ("-m", "feb", "2024"), ("10", "2", "2024"), ("2024-02-10",)):
            self.assertEqual(output(*arguments), february, arguments)

    def test_a_month_in_the_language_of_the_region(self):
        for language, name in (("chs", "二月"), ("chs", "2月"), ("rus", "февраля"), ("kor", "2월"), ("vit", "Th2")):
            self.assertEqual(output("--language", language, name),
                             output("--language", language, "2"))

    def test_this_year_and_this_month(self):
        self.assertEqual(lines("nov", "--no-annotations")[0].strip(), "November 2024")
        self.assertIn("[12]", output("mar"))
        self.assertNotIn("[12]", output("mar", "2025"))

    def test_another_arrangement_and_pages_from_there(self):
        self.assertEqual(output("2", "2024", "--mode", "tail"),
                         output("--mode", "tail", "--date", "2024-02-01"))
        self.assertEqual(output("2", "2024", "--next"), output("3", "2024"))

    def test_monday_as_another_program_asks_for_it(self):
        self.assertIn("   Wk   Mon ", output("-S", "-m"))
        self.assertIn("   Mo Tu We ", output("-S", "-m", "2024"))


class SeveralMonths(unittest.TestCase):
    maxDiff = None

    def test_three_months(self):
        self.assertEqual(lines("-3"), [
            "     February 2024               March 2024                April 2024",
            "   Mo Tu We Th Fr Sa Su      Mo Tu We Th Fr Sa Su      Mo Tu We Th Fr Sa Su",
            " 5           1  2  3  4    9              1  2  3   14  1* 2  3  4  5  6  7*",
            " 6  5  6  7  8  9 10 11   10  4  5  6  7  8* 9 10   15  8  9 10 11 12 13 14",
            " 7 12 13 14 15 16 17 18   11 11[12]13 14 15 16 17   16 15 16 17 18 19 20 21",
            " 8 19 20 21 22 23 24 25   12 18 19 20 21 22 23 24   17 22*23 24 25 26 27 28",
            " 9 26 27 28 29            13 25 26 27 28 29 30 31   18 29 30",
            "",
            " Feb  4  Start of Spring         Apr  1  April Fools' Day",
            " Feb 19  Rain Water              Apr  4  Clear and Bright",
            " Mar  5  Awakening of Insects    Apr  7  World Health Day",
            " Mar  8  Women's Day             Apr 19  Grain Rain",
            " Mar 20  Spring Equinox          Apr 22  Earth Day"])

    def test_months_before_and_after(self):
        self.assertEqual(lines("-B", "1", "-A", "1"), lines("-3"))
        self.assertEqual(lines("-A2", "dec", "2024")[0].split(),
                         ["December", "2024", "January", "2025", "February", "2025"])
        self.assertEqual(lines("-B1", "--date", "2024-01-20")[0].split(),
                         ["December", "2023", "January", "2024"])
        self.assertEqual(lines("-A0")[0].strip(), "March 2024")

    def test_ends_of_the_calendar(self):
        self.assertEqual(lines("-3", "1", "1900")[0].split(), ["January", "1900", "February", "1900"])
        self.assertEqual(lines("-3", "12", "2099")[0].split(),
                         ["November", "2099", "December", "2099"])

    def test_without_annotations_there_is_no_mark_and_no_legend(self):
        text = output("-3", "--no-annotations")
        self.assertNotIn("*", text)
        self.assertNotIn("\n\n", text)

    def test_columns_of_break_days(self):
        head = lines("-3", "--hide-break-days", "--break-days", "fri", "-S")[1].split()
        self.assertEqual(head, ["Su", "Mo", "Tu", "We", "Th", "Sa"] * 3)


class Year(unittest.TestCase):
    def test_twelve_months(self):
        year = lines("2024")
        self.assertEqual(year[0].strip(), "2024")
        self.assertEqual([name for line in year for name in line.split()
                          if len(name) > 2 and name.isalpha()],
                         ["January", "February", "March", "April", "May", "June", "July", "August",
                          "September", "October", "November", "December"])
        self.assertIn("11 11[12]13 14 15 16 17", "\n".join(year))
        self.assertIn(" 23 24*25*26 ", "\n".join(year))  # Christmas

    def test_this_year(self):
        self.assertEqual(output("-y"), output("2024"))
        self.assertEqual(output("-y", "2025"), output("2025"))

    def test_every_day_once(self):
        for arguments in (("2024",), ("1900", "-S"), ("2099", "--width", "20")):
            days = [int(word) for line in lines(*arguments, "--no-week-numbers", "--no-annotations")
                    for word in line.replace("[", " ").replace("]", " ").split()
                    if word.isdigit() and len(word) < 3]
            self.assertEqual(sum(days), sum(
                length * (length + 1) // 2 for length in
                (31, 29 if arguments[0] == "2024" else 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)))

    def test_months_side_by_side_by_the_width(self):
        for width, beside in (("20", 1), ("60", 2), ("80", 3), ("110", 4), ("160", 6)):
            self.assertEqual(len(lines("2024", "--width", width)[2].split()), beside)

    def test_today_in_color(self):
        self.assertIn("\033[1;7m[\033[0m\033[1;7m12\033[0m\033[1;7m]\033[0m",
                      output("-y", "--color=always"))


if __name__ == "__main__":
    unittest.main()
