# SPDX-License-Identifier: MIT
"""Lunar days, solar terms and festivals: on the board, of one day and of a year."""

import unittest

from harness import output, read_json

EASTER = {2000: "04-23", 2008: "03-23", 2011: "04-24", 2019: "04-21", 2023: "04-09", 2024: "03-31",
          2025: "04-20", 2026: "04-05", 2038: "04-25"}


def names(day, key="name"):
    return [festival[key] for festival in day["festivals"]]


def iso(day):
    return f"{day['year']}-{day['month']:02}-{day['day']:02}"


class OnTheBoard(unittest.TestCase):
    maxDiff = None

    def board(self, language, date, **settings):
        return output("--language", language, "--mode", "month", "--date", date, **settings)

    def test_festival_before_term_before_lunar_day(self):
        self.assertEqual(self.board("chs", "2024-02-10").splitlines(), [
            "                                  2024年2月",
            "   周   周一      周二      周三      周四      周五      周六      周日",
            "    5 ╭                                1         2         3·        4·",
            "      ╰                               廿二      小年      廿四      立春",
            "    6 ╭  5         6         7         8         9        10·       11·",
            "      ╰ 廿六      廿七      廿八      廿九      除夕      春节      初二",
            "    7 ╭ 12        13        14        15        16        17·       18·",
            "      ╰ 初三      初四      情人节    初六      初七      初八      初九",
            "    8 ╭ 19        20        21        22        23        24·       25·",
            "      ╰ 雨水      十一      十二      十三      十四      元宵节    十六",
            "    9 ╭ 26        27        28        29",
            "      ╰ 十七      十八      十九      二十",
            "",
            " 2月 2日  小年      2月 9日  除夕      2月14日  情人节    2月24日  元宵节",
            " 2月 4日  立春      2月10日  春节      2月19日  雨水",
        ])

    def test_english(self):
        board = output("--language", "usa").splitlines()
        self.assertEqual(board[2:4], [
            "   10 ╭  4         5         6         7         8         9·       10·",
            "      ╰ L24       Awakening L26       L27       Women's   L29       Moon 2"])
        self.assertEqual(board[8:], [
            "   13 ╭ 25        26        27        28        29        30·       31·",
            "      │ L16       L17       L18       L19       Good Fri. L21       Easter",
            "      │─ April ──────────────────────────────────────────────────────────────",
            "      ╰",
            "",
            " Mar  5  Awakening of Insects    Mar 29  Good Friday",
            " Mar  8  Women's Day             Mar 31  Easter Sunday",
            " Mar 20  Spring Equinox"])

    def test_the_legend_gives_every_name_in_full(self):
        legend = self.board("chs", "2020-10-01").split("\n\n")[1]
        self.assertIn("10月 1日  中秋节, 国庆节", legend)
        self.assertIn("10月25日  重阳节", legend)
        self.assertIn("寒露", legend)

    def test_first_days_of_lunar_months(self):
        # In 2023 the second month was followed by a leap month that began on 22 March.
        for language, month, leap, day in [
                ("chs", "二月", "闰二月", "初二"), ("cht", "二月", "閏二月", "初二"),
                ("kor", "음 2월", "윤 2월", "음 2"), ("jpn", "旧2月", "閏2月", "旧2日"),
                ("vit", "Tháng 2", "Nhuận 2", "ÂL 2"), ("eng", "Moon 2", "Leap 2", "L2")]:
            zone = "Asia/Shanghai"
            self.assertIn(f" {month} ", self.board(language, "2023-02-20", zone=zone))
            march = self.board(language, "2023-03-22", zone=zone)
            self.assertRegex(march, f" {leap} +{day} ")

    def test_ascii_where_the_locale_is_not_utf8(self):
        board = self.board("chs", "2024-02-10", LC_ALL="C")
        self.assertTrue(board.isascii())
        self.assertIn("Lunar New Year's Day", board)
        self.assertIn("Lunar NY", board)

    def test_annotations_can_be_left_out(self):
        board = output("--no-annotations")
        self.assertNotIn("Equinox", board)
        self.assertNotIn("L24", board)

    def test_colors(self):
        board = output("--language", "usa", "--color=always")
        self.assertIn("\033[38;5;163m Women's\033[0m", board)
        self.assertIn("\033[38;5;29m Equinox\033[0m", board)
        self.assertIn("\033[2m L24\033[0m", board)

    def test_cells_in_json(self):
        cells = [cell for row in read_json("--language", "chs", "--date", "2024-02-10")["cells"]
                 for cell in row]
        by_date = {iso(cell): cell for cell in cells}
        new_year = by_date["2024-02-10"]
        self.assertEqual(new_year["lunar"], {"year": 2024, "month": 1, "day": 1, "leap": False})
        self.assertEqual(new_year["festivals"],
                         [{"kind": "lunar", "code": 20000, "name": "Lunar New Year's Day",
                           "localName": "春节"}])
        self.assertIsNone(new_year["solarTerm"])
        self.assertEqual(by_date["2024-02-19"]["solarTerm"],
                         {"code": 3, "name": "Rain Water", "localName": "雨水"})
        for cell in cells:
            if cell["type"] in (1, 2, 7):
                self.assertEqual((cell["lunar"], cell["solarTerm"], cell["festivals"]),
                                 (None, None, []))


class WhoseLunarDates(unittest.TestCase):
    """Of the published calendars, unless the engine's are asked for."""

    # The autumn of 2033, where the engine has a leap month 7 that the published calendar has not,
    # and new years that two regions keep on two days.
    def lunar(self, *arguments, **settings):
        return read_json("--language", *arguments, **settings)["lunar"]

    def test_the_almanac(self):
        month8 = {"year": 2033, "month": 8, "day": 1, "leap": False}
        for region in ("chs", "cht", "kor", "jpn", "vit", "eng", "usa", "deu", "rus", "tha"):
            self.assertEqual(self.lunar(region, "--day", "2033-08-25"), month8, region)

    def test_the_engine(self):
        self.assertEqual(self.lunar("chs", "--day", "2033-08-25", "--lunar", "engine"),
                         {"year": 2033, "month": 7, "day": 1, "leap": True})

    def test_each_region_has_its_own(self):
        for region, new_year in (("vit", "2007-02-17"), ("chs", "2007-02-18"), ("eng", "2007-02-18"),
                                 ("kor", "1997-02-08"), ("jpn", "1997-02-08"), ("cht", "1997-02-07")):
            lunar = self.lunar(region, "--day", new_year)
            self.assertEqual((lunar["month"], lunar["day"]), (1, 1), region)
        for region, festival in (("vit", "2007-02-17"), ("kor", "1997-02-08"), ("cht", "1997-02-07")):
            self.assertIn("Lunar New Year's Day",
                          names(read_json("--language", region, "--day", festival)))

    def test_the_machines_zone_has_no_part_in_it(self):
        for region in ("eng", "vit", "chs"):
            boards = {self.board_of(region, zone)
                      for zone in ("UTC", "America/Los_Angeles", "Pacific/Kiritimati")}
            self.assertEqual(len(boards), 1)
        self.assertNotEqual(self.board_of("eng", "UTC", "--lunar", "engine"),
                            self.board_of("eng", "Pacific/Kiritimati", "--lunar", "engine"))

    def board_of(self, region, zone, *arguments):
        return output("--language", region, "--mode", "month", "--date", "2024-03-20", *arguments,
                      zone=zone)


class Easter(unittest.TestCase):
    def test_found_although_the_engine_needs_a_question_before(self):
        for year, day in EASTER.items():
            date = f"{year}-{day}"
            report = read_json("--language", "usa", "--day", date)
            self.assertEqual(names(report), ["Easter Sunday"])
        # The first day of the first board is Easter Sunday.
        board = read_json("--language", "usa", "-S", "--rows", "1", today="2025-04-20 10:00:00")
        self.assertEqual(names(board["cells"][0][0]), ["Easter Sunday"])

    def test_the_year_has_it_once(self):
        for year in (2008, 2024, 2038):
            days = read_json("--language", "usa", "--list", "--year", str(year))["days"]
            self.assertEqual([iso(d) for d in days if "Easter Sunday" in names(d)],
                             [f"{year}-{EASTER[year]}"])


class OneDay(unittest.TestCase):
    def test_english(self):
        self.assertEqual(output("--language", "usa", "--day", "2024-03-31"), """\
Sunday, 31 March 2024
  When             in 19 days
  Week             13
  Day of the year  91 of 366
  Lunar date       day 22 of month 2, 2024
  New moon         2024-03-10 17:00:26 UTC+8
  Solar term       -
  Festivals        Easter Sunday
""")

    def test_chinese(self):
        self.assertEqual(output("--language", "cht", "--day", "2023-04-05"), """\
2023年4月5日 星期三
  距今天      342天前
  週數        14
  年內第幾天  95 / 365
  農曆        2023年閏二月十五
  朔          2023-03-22 01:23:08 UTC+8
  節氣        清明, 09:13:03 UTC+8
  節日        -
""")

    def test_other_languages(self):
        self.assertIn("2023년 윤2월 15일", output("--language", "kor", "--day", "2023-04-05"))
        self.assertIn("설날", output("--language", "kor", "--day", "2024-02-10"))
        self.assertIn("2023年閏2月15日", output("--language", "jpn", "--day", "2023-04-05"))
        self.assertIn("ngày 1 tháng 1 năm 2024",
                      output("--language", "vit", "--day", "2024-02-10", zone="Asia/Ho_Chi_Minh"))

    def test_from_today(self):
        for day, text in [("2024-03-12", "today"), ("2024-03-13", "tomorrow"),
                          ("2024-03-11", "yesterday"), ("2024-03-14", "in 2 days"),
                          ("1900-01-01", "45361 days ago")]:
            self.assertIn(f"  {text}\n", output("--day", day))

    def test_json(self):
        report = read_json("--language", "chs", "--day", "2024-02-04")
        answers = {"lunar": {"year": 2023, "month": 12, "day": 25, "leap": False},
                   "solarTerm": {"code": 2, "name": "Start of Spring", "localName": "立春"},
                   "festivals": []}
        self.assertEqual(report, {
            "version": 1, "region": "chs", "language": 1,
            "date": {"date": "2024-02-04", "year": 2024, "month": 2, "day": 4, "dayOfWeek": 0,
                     "dayOfWeekName": "sun"},
            "today": {"date": "2024-03-12", "year": 2024, "month": 3, "day": 12, "dayOfWeek": 2,
                      "dayOfWeekName": "tue"},
            "daysFromToday": -37, "weekNumber": 5, "dayOfYear": 35, "daysInYear": 366,
            **answers,
            "lunarSource": "almanac",
            "newMoon": {"date": "2024-01-11", "year": 2024, "month": 1, "day": 11, "dayOfWeek": 4,
                        "dayOfWeekName": "thu", "hour": 19, "minute": 57, "second": 24,
                        "offset": 28800, "uncertainty": 8, "certain": True},
            "solarTermInstant": {"date": "2024-02-04", "year": 2024, "month": 2, "day": 4,
                                 "dayOfWeek": 0, "dayOfWeekName": "sun", "hour": 16, "minute": 27,
                                 "second": 7, "offset": 28800, "uncertainty": 5, "certain": True},
            "lunarCertain": True, "solarTermCertain": True,
            "otherSource": {"source": "engine", "differs": False, **answers}})

    def test_days_that_are_not_certain(self):
        moon = "Not certain      New moon 2089-09-04 23:59:05 UTC+8 (+/- 92 s)"
        term = "Not certain      Spring Equinox 2084-03-20 00:00:29 UTC+8 (+/- 80 s)"
        for day, line in (("2089-09-03", None), ("2089-09-04", moon), ("2089-09-05", moon),
                          ("2089-10-03", moon), ("2089-10-04", None), ("2084-03-18", None),
                          ("2084-03-19", term), ("2084-03-20", term), ("2084-03-21", None)):
            report = output("--language", "eng", "--day", day)
            self.assertEqual(line is not None, "Not certain" in report, day)
            self.assertIn(line or "", report)
        # The month that ends on 2057-09-28 may end a day earlier.
        self.assertIn("2057-09-29 00:00:36", output("--language", "chs", "--day", "2057-09-28"))
        report = read_json("--language", "chs", "--day", "2084-03-20")
        self.assertIs(report["lunarCertain"], True)
        self.assertIs(report["solarTermCertain"], False)
        self.assertIs(report["solarTermInstant"]["certain"], False)

    def test_what_the_other_source_says(self):
        self.assertIn("\n  引擎        农历: 2033年闰七月十五, 节日: -\n",
                      output("--language", "chs", "--day", "2033-09-08"))
        self.assertNotIn("引擎", output("--language", "chs", "--day", "2024-02-10"))
        engine = output("--language", "chs", "--day", "2033-08-25", "--lunar", "engine")
        self.assertIn("\n  历书        农历: 2033年八月初一\n", engine)
        self.assertNotIn("朔", engine)
        report = read_json("--language", "chs", "--day", "2033-08-25", "--lunar", "engine")
        self.assertEqual(report["lunarSource"], "engine")
        self.assertEqual(report["otherSource"], {
            "source": "almanac", "differs": True, "solarTerm": None, "festivals": [],
            "lunar": {"year": 2033, "month": 8, "day": 1, "leap": False}})
        for key in ("newMoon", "solarTermInstant", "lunarCertain", "solarTermCertain"):
            self.assertIsNone(report[key])

    def test_week_number_of_a_hidden_day(self):
        report = read_json("--day", "2024-03-16", "--hide-break-days", "--week-rule", "jan1")
        self.assertEqual(report["weekNumber"], 11)

    def test_ends_of_the_calendar(self):
        self.assertEqual(read_json("--day", "1900-01-01")["weekNumber"], 1)
        self.assertEqual(read_json("--day", "2099-12-31")["weekNumber"], 53)


class OneYear(unittest.TestCase):
    def test_text(self):
        text = output("--language", "jpn", "--list", "--year", "2024")
        self.assertTrue(text.startswith(
            "2024年1月\n   1 月    71日前   元日\n   6 土    66日前   小寒\n"))
        self.assertEqual(text.count("\n\n"), 11)  # twelve months
        self.assertIn("\n  23 月    286日後  天皇誕生日\n", text)
        english = output("--list", "--language", "eng", today="2024-03-19 10:00:00")
        self.assertIn("\n  20 Wed   tomorrow     Spring Equinox\n", english)

    def test_this_year_by_default(self):
        self.assertEqual(output("--list"), output("--list", "--year", "2024"))
        self.assertEqual(output("--list", "2025"), output("--list", "--year", "2025"))

    def test_the_engines_list_ends_with_what_is_published(self):
        engine = ("--language", "chs", "--lunar", "engine", "--list")
        self.assertTrue(output(*engine, "2033").endswith(
            "\n\n历书\n  9月 8日  中秋节    10月 1日  重阳节\n"))
        self.assertNotIn("历书", output(*engine, "2026"))

    def test_json(self):
        year = read_json("--language", "chs", "--list", "--year", "2025")
        self.assertEqual((year["region"], year["language"], year["year"]), ("chs", 1, 2025))
        terms = [day["solarTerm"]["code"] for day in year["days"] if day["solarTerm"]]
        self.assertEqual(terms, list(range(24)))
        by_date = {iso(day): day for day in year["days"]}
        self.assertEqual(names(by_date["2025-01-29"], "localName"), ["春节"])
        self.assertEqual(names(by_date["2025-10-06"], "localName"), ["中秋节"])
        for day in year["days"]:
            self.assertTrue(day["solarTerm"] or day["festivals"])
            self.assertEqual(set(day), {"date", "dayOfWeekName", "year", "month", "day", "dayOfWeek", "daysFromToday", "lunar",
                                        "solarTerm", "festivals"})
        self.assertEqual(by_date["2025-01-29"]["daysFromToday"], 323)


if __name__ == "__main__":
    unittest.main()
