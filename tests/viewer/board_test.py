# SPDX-License-Identifier: MIT
"""The bare board as text: arrangements, options, navigation, languages, colours and the dump."""

import fcntl
import os
import pty
import re
import struct
import subprocess
import termios
import unicodedata
import unittest

import cases
from harness import BOARD, environment, needs_terminal, output, read_json

PLAIN = ("--language", "eng", "--no-annotations")


def lines(*arguments, **settings):
    return output(*PLAIN, *arguments, **settings).splitlines()


def cells_wide(text):
    return sum(0 if unicodedata.category(c) == "Mn" else
               2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in text)


class Arrangements(unittest.TestCase):
    maxDiff = None

    def test_rolling_weeks_are_the_default(self):
        self.assertEqual(lines(), [
            "                                 March 2024",
            "   Wk   Mon       Tue       Wed       Thu       Fri       Sat       Sun",
            "   10 ╶  4         5         6         7         8         9·       10·",
            "   11 ╶ 11       [12]       13        14        15        16·       17·",
            "   12 ╶ 18        19        20        21        22        23·       24·",
            "   13 ╭ 25        26        27        28        29        30·       31·",
            "      ╰─ April ──────────────────────────────────────────────────────────────",
        ])
        self.assertEqual(lines("--mode", "rolling"), lines())

    def test_month_keeps_other_days_back(self):
        self.assertEqual(lines("--mode", "month"), [
            "                                 March 2024",
            "   Wk   Mon       Tue       Wed       Thu       Fri       Sat       Sun",
            "    9 ╶                                          1         2·        3·",
            "   10 ╶  4         5         6         7         8         9·       10·",
            "   11 ╶ 11       [12]       13        14        15        16·       17·",
            "   12 ╶ 18        19        20        21        22        23·       24·",
            "   13 ╶ 25        26        27        28        29        30·       31·",
        ])

    def test_a_month_ends_with_its_last_day(self):
        april = ("--mode", "month", "--date", "2024-04-10")
        self.assertEqual(lines(*april)[-1], "   18 ╶ 29        30")
        self.assertEqual(lines(*april, "--width", "20")[-1], "29 30")
        # With the weekend hidden, a row holds nothing but the title of the next month.
        hidden = lines("--mode", "month", "--date", "2024-03-10", "-S", "--hide-break-days")
        self.assertEqual(hidden[-1], "   13 ╶ 25        26        27        28        29")

    def test_month_without_intervals_shows_the_neighbours(self):
        board = lines("--mode", "month", "--no-month-interval")
        self.assertEqual(board[0].strip(), "March 2024")
        self.assertEqual(board[2],
                         "    9 ╶ 26        27        28        29         1         2·        3·")

    def test_tail_runs_on_from_the_first_of_the_month(self):
        board = lines("--mode", "tail", "--rows", "7")
        self.assertEqual(board[0].strip(), "March - April 2024")
        self.assertEqual(board[2],
                         "    9 ╶                                          1         2·        3·")
        self.assertEqual(board[7:], [
            "   14 ╭─ April ──────────────────────────────────────────────────────────────",
            "      ╰  1         2         3         4         5         6·        7·",
        ])

    def test_strip_is_one_row_around_the_day(self):
        self.assertEqual(lines("--mode", "strip"), [
            "                                 March 2024",
            "   Wk   Sat       Sun       Mon       Tue       Wed       Thu       Fri",
            "10/11 ╶  9·       10·       11       [12]       13        14        15",
        ])

    def test_a_title_in_the_middle_of_a_row(self):
        board = lines("--date", "2024-05-29")
        self.assertEqual(board[0].strip(), "May - June 2024")
        self.assertEqual(board[3:5], [
            "   22 ╭ 27        28        29        30        31       ─ June ─────────────",
            "      ╰──────────────────────────────────────────────────  1·        2·",
        ])

    def test_a_title_in_the_last_column_keeps_within_its_cell(self):
        row = lines("--date", "2024-08-28")[3]
        self.assertEqual(row, "   35 ╭ 26        27        28        29        30        31·      ─September")


class Options(unittest.TestCase):
    def test_today_is_marked_on_break_days_too(self):
        self.assertIn(" [16]· ", output(*PLAIN, today="2024-03-16 10:00:00"))

    def test_habits_of_cal(self):
        self.assertEqual(lines("-S")[1].split()[1:3], ["Sun", "Mon"])
        self.assertEqual(lines("-S"), lines("--first-day", "sun"))
        self.assertEqual(lines("-M"), lines())
        self.assertEqual(lines("-w"), lines())
        self.assertEqual(lines("-S", "-M"), lines())  # the last one counts
        self.assertEqual(lines("-Sw"), lines("-S"))

    def test_every_first_day(self):
        for index, day in enumerate(["sun", "mon", "tue", "wed", "thu", "fri", "sat"]):
            names = ["Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"]
            self.assertEqual(lines("--first-day", day)[1].split()[1:], names[index:] + names[:index])

    def test_week_numbers_can_be_left_out(self):
        board = lines("--no-week-numbers")
        self.assertNotIn("Wk", board[1])
        self.assertTrue(board[2].startswith("  4  "))

    def test_week_rules(self):
        in_2021 = ("--date", "2021-01-01", "--mode", "month")
        self.assertTrue(lines(*in_2021)[2].startswith("   53 "))
        self.assertTrue(lines(*in_2021, "--week-rule", "jan1")[2].startswith("    1 "))
        shifted = lines("--week-rule", "start", "--start-week", "11")
        self.assertTrue(shifted[3].startswith("    1 ╶ 11       [12]"))

    def test_weeks_of_the_first_day(self):
        def numbers(*arguments):
            board = lines("--week-rule", "first-day", "-S", *arguments)
            return [line[:7].split()[0] for line in board[2:]]

        self.assertEqual(numbers("jan", "2023"), ["1", "2", "3", "4", "5"])  # 1 January is a Sunday
        self.assertEqual(numbers("--date", "2024-04-29"), ["17", "18", "╰", "19", "20"])
        self.assertEqual(numbers("--date", "2026-12-28"), ["52", "53", "1", "2", "3"])
        self.assertEqual(numbers("dec", "2023", "--no-month-interval")[-1], "1")
        self.assertEqual(numbers("--mode", "strip"), ["10/11"])
        sunday = read_json("--week-rule", "first-day", "-S", "--day", "2024-03-17")
        self.assertEqual(sunday["weekNumber"], 12)
        options = read_json("--week-rule", "first-day")["options"]
        self.assertEqual((options["weekRule"], options["weekNumberCalcType"]), ("first-day", 0))

    def test_rows_and_passed_weeks(self):
        board = lines("--rows", "3", "--passed-weeks", "2", "--no-month-interval")
        self.assertEqual([line.split()[0] for line in board[2:]], ["9", "10", "11"])
        self.assertIn("[12]", board[4])
        one = lines("--rows", "1")
        self.assertEqual(len(one), 3)
        self.assertIn("[12]", one[2])  # a single row is the day's own week
        self.assertEqual(len(lines("--rows", "50", "--no-month-interval")), 52)

    def test_break_days(self):
        self.assertIn("15·", output(*PLAIN, "--break-days", "fri"))
        self.assertNotIn("·", output(*PLAIN, "--break-days", "none"))
        hidden = lines("--hide-break-days")
        self.assertEqual(hidden[1].split(), ["Wk", "Mon", "Tue", "Wed", "Thu", "Fri"])
        self.assertNotIn("·", "\n".join(hidden))

    def test_a_strip_hides_break_days_wherever_it_begins(self):
        strip = ("--mode", "strip", "--hide-break-days")
        self.assertEqual(lines(*strip), [
            "                       March 2024",
            "   Wk   Mon       Tue       Wed       Thu       Fri",
            "10/11 ╶ 11       [12]       13        14        15"])
        self.assertEqual(lines(*strip, "--date", "2024-03-15")[1].split()[1:],
                         ["Tue", "Wed", "Thu", "Fri", "Mon"])
        self.assertEqual(lines(*strip, "--date", "2024-03-15", "--next")[2].split()[2:],
                         ["19", "20", "21", "22", "25"])
        board = read_json(*strip)
        self.assertEqual(board["headings"], [1, 2, 3, 4, 5])
        self.assertEqual({cell["type"] for cell in board["cells"][0]}, {3, 4})
        self.assertIs(board["options"]["showBreakDayOfWeek"], False)

    def test_date_shows_the_board_as_if_it_were_today(self):
        for mode in ("rolling", "tail", "month", "strip"):
            for date in ("2024-03-14", "1987-06-20", "2051-11-30"):
                there = output(*PLAIN, "--mode", mode, "--date", date)
                as_today = output(*PLAIN, "--mode", mode, today=date + " 10:00:00")
                marks = r"[\[\] ·]+"
                self.assertEqual(re.sub(marks, " ", there).rstrip(),
                                 re.sub(marks, " ", as_today).rstrip(), (mode, date))

    def test_ends_of_the_calendar(self):
        for mode in ("rolling", "tail", "month", "strip"):
            for date in ("1900-01-01", "2099-12-31"):
                self.assertIn(date[:4], output(*PLAIN, "--mode", mode, "--date", date))


class Navigation(unittest.TestCase):
    def title(self, *arguments):
        return lines("--mode", "month", *arguments)[0].strip()

    def test_steps_add_up_in_their_order(self):
        self.assertEqual(self.title("--next"), "April 2024")
        self.assertEqual(self.title("--next", "--next", "--previous"), "April 2024")
        self.assertEqual(self.title("--previous", "--previous", "--previous"), "December 2023")
        self.assertEqual(self.title("--next", "--offset", "-3"), "December 2023")  # from today
        self.assertEqual(self.title("--offset", "-3", "--next"), "January 2024")
        self.assertEqual(self.title("--date", "2031-07-15", "--next"), "August 2031")

    def test_offset_counts_pages_of_weeks_elsewhere(self):
        self.assertIn(" 16 ", lines("--offset", "1")[3])  # 35 days from 12 March
        self.assertEqual(lines("--rows", "4", "--offset", "-1")[0].strip(), "February 2024")

    def test_pages_follow_each_other(self):
        self.assertEqual(lines("--next")[2],
                         "   14 ╶  1         2         3         4         5         6·        7·")
        self.assertEqual(lines("--next", "--previous")[-1].split()[2:],
                         ["25", "26", "27", "28", "29", "30·", "31·"])


class Languages(unittest.TestCase):
    def head(self, language, **settings):
        return output("--language", language, "--mode", "month", **settings).splitlines()[:2]

    def test_words_of_each_language(self):
        for language, title, day in [
                ("chs", "2024年3月", "周二"), ("cht", "2024年3月", "週二"),
                ("kor", "2024년 3월", "화"), ("jpn", "2024年3月", "火"),
                ("vit", "Tháng 3 năm 2024", "T3"), ("usa", "March 2024", "Tue"),
                ("rus", "Март 2024", "Вт"), ("deu", "März 2024", "Di"),
                ("tha", "มีนาคม 2024", "อ."), ("eng", "March 2024", "Tue")]:
            head = self.head(language)
            self.assertEqual(head[0].strip(), title)
            self.assertEqual(head[1].split()[2], day)

    def test_ranges_of_months(self):
        for language, same_year, two_years in [
                ("eng", "March - April 2024", "December 2023 - January 2024"),
                ("chs", "2024年3月 - 4月", "2023年12月 - 2024年1月"),
                ("kor", "2024년 3월 - 4월", "2023년 12월 - 2024년 1월"),
                ("vit", "Tháng 3 - Tháng 4 năm 2024",
                 "Tháng 12 năm 2023 - Tháng 1 năm 2024")]:
            rows = ("--language", language, "--rows", "8")
            self.assertEqual(output(*rows).splitlines()[0].strip(), same_year)
            january = output(*rows, today="2023-12-30 10:00:00", zone="UTC")
            self.assertEqual(january.splitlines()[0].strip(), two_years)

    def test_default_from_the_locale(self):
        for variables, title in [
                ({"LC_ALL": None, "LANG": "zh_CN.UTF-8"}, "2024年3月"),
                ({"LC_ALL": None, "LC_TIME": "ko_KR.UTF-8", "LANG": "C.UTF-8"}, "2024년 3월"),
                ({"LC_ALL": "ja_JP.UTF-8", "LANG": "C.UTF-8"}, "2024年3月"),
                ({"LC_ALL": "C.UTF-8", "LANG": "vi_VN.UTF-8"}, "March 2024")]:
            self.assertEqual(output(**variables).splitlines()[0].strip(), title)

    def test_wide_characters_take_two_cells(self):
        for language in ("chs", "cht", "kor", "jpn"):
            board = output("--language", language, "--rows", "8", "--no-annotations").splitlines()
            heading, row = board[1], board[3]
            columns = [cells_wide(heading[:match.start()])
                       for match in re.finditer(r"\S+", heading)][1:]
            days = [cells_wide(row[:match.start()]) for match in re.finditer(r"\d+", row)][1:]
            self.assertEqual(columns, days, language)

    def test_no_line_is_wider_than_80_cells(self):
        for language in ("chs", "cht", "deu", "eng", "jpn", "kor", "rus", "tha", "usa", "vit"):
            for day in ("2024-01-01", "2024-05-01", "2024-12-24"):
                for option in ("--week-numbers", "--no-week-numbers", "--hide-break-days"):
                    board = output("--language", language, "--date", day, "--rows", "8", option)
                    self.assertLessEqual(max(map(cells_wide, board.splitlines())), 80)

    def test_ascii_where_the_locale_is_not_utf8(self):
        for language in ("chs", "kor", "vit", "eng"):
            board = output("--language", language, LC_ALL="C")
            self.assertTrue(board.isascii())
            self.assertIn("March 2024", board)
            self.assertIn("[12]", board)
            self.assertIn("- April ---", board)


class Colors(unittest.TestCase):
    def colored(self, *arguments, **settings):
        return "\033[" in output(*arguments, **settings)

    def on_terminal(self, *arguments, columns=80, **settings):
        """The output on a pseudo-terminal."""
        main, end = pty.openpty()
        fcntl.ioctl(end, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        process = subprocess.Popen([BOARD, *arguments], env=environment(**settings), stdout=end,
                                   stdin=subprocess.DEVNULL)
        os.close(end)
        text = b""
        while True:
            try:
                chunk = os.read(main, 65536)
            except OSError:  # the other end is closed
                break
            if not chunk:
                break
            text += chunk
        os.close(main)
        self.assertEqual(process.wait(), 0)
        return text.decode().replace("\r\n", "\n")

    @needs_terminal
    def test_option_over_no_color_over_terminal(self):
        self.assertFalse(self.colored())
        self.assertTrue(self.colored("--color", "always"))
        self.assertTrue(self.colored("--color=always", NO_COLOR="1"))
        self.assertFalse(self.colored("--color=never"))
        self.assertIn("\033[", self.on_terminal())
        self.assertIn("\033[", self.on_terminal(NO_COLOR=""))  # empty counts as not set
        self.assertNotIn("\033[", self.on_terminal(NO_COLOR="1"))
        self.assertIn("\033[", self.on_terminal("--color=always", NO_COLOR="1"))
        self.assertNotIn("\033[", self.on_terminal("--color=never"))
        self.assertNotIn("\033[", self.on_terminal(TERM="dumb"))

    def test_kinds_of_cells_have_their_own_color(self):
        board = output("--color=always")
        self.assertIn("\033[1;7m[12]\033[0m", board)
        self.assertIn("\033[38;5;131m 16·\033[0m", board)
        self.assertIn("\033[38;5;63m─ April ─", board)
        self.assertEqual(re.sub(r"\033\[[0-9;]*m", "", board), output())

    def test_basic_colors_are_those_that_can_be_read_on_black_and_on_white(self):
        board = output("--color=always", "--rows", "50", TERM="xterm")
        codes = {code for codes in re.findall(r"\033\[([0-9;]*)m", board)
                 for code in codes.split(";")}
        self.assertEqual(codes, {"0", "1", "2", "7", "31", "35"})

    @needs_terminal
    def test_the_board_takes_the_width_of_the_terminal(self):
        for columns in (20, 33, 80, 200):
            self.assertEqual(self.on_terminal("--color=never", columns=columns),
                             output("--width", str(columns)))


class Widths(unittest.TestCase):
    REGIONS = ("chs", "cht", "deu", "eng", "jpn", "kor", "rus", "tha", "usa", "vit")

    def test_nothing_is_wider_than_the_terminal(self):
        for language in self.REGIONS:
            for width in (20, 23, 31, 49):
                for arguments in (("--rows", "8"), ("-w", "--rows", "8"), ("-3",), ("2024",),
                                  ("--day", "2024-02-10"), ("--list",), ("--hide-break-days",),
                                  ("--date", "2023-12-20", "--rows", "8")):
                    text = output("--language", language, "--width", str(width), *arguments)
                    widest = max(text.splitlines(), key=cells_wide)
                    self.assertLessEqual(cells_wide(widest), width, (language, arguments))

    def test_weekdays_stay_apart(self):
        for language in self.REGIONS:
            for width in (20, 28, 35, 42, 80):
                head = output("--language", language, "--width", str(width)).splitlines()[1].split()
                self.assertEqual(len(set(head[-7:])), 7, head)

    def test_twenty_columns(self):
        self.assertEqual(lines("--width", "20", "--rows", "6"), [
            " March - April 2024",
            "Mo Tu We Th Fr Sa Su",
            " 4  5  6  7  8  9·10",
            "11[12]13 14 15 16·17",
            "18 19 20 21 22 23·24",
            "25 26 27 28 29 30·31",
            "─ April ────────────",
            " 1  2  3  4  5  6· 7"])

    def test_week_numbers_on_narrow_terminals(self):
        self.assertEqual(lines("--width", "31")[3], "11  11 [12] 13  14  15  16· 17·")
        self.assertEqual(lines("--width", "30")[3], " 11 [12] 13  14  15  16· 17·")
        # Asked for, they stay as long as the days have two cells each.
        self.assertEqual(lines("--width", "30", "-w")[3], "11 11[12]13 14 15 16·17·")
        self.assertEqual(lines("--width", "23", "-w")[3], "11 11[12]13 14 15 16·17")
        self.assertEqual(lines("--width", "22", "-w")[3], " 11[12]13 14 15 16·17·")

    def test_columns_grow_to_the_longest_text(self):
        wide = output("--language", "usa", "--width", "300")
        self.assertIn("  Awakening of Insects  ", wide.split("\n\n")[0])
        self.assertEqual(wide.splitlines()[1].index("Tue") - wide.splitlines()[1].index("Mon"),
                         len("Awakening of Insects") + 2)
        self.assertEqual(output(*PLAIN, "--width", "300"), output(*PLAIN))

    def test_texts_keep_the_number_that_they_carry(self):
        for language, month, day in [("eng", "M10", "L2"), ("kor", "10월", "음 2"),
                                     ("jpn", "10月", "旧2日"), ("vit", "1/10", "ÂL 2"),
                                     ("chs", "十月", "初二")]:
            board = output("--language", language, "--date", "2024-11-01", "--width", "49",
                           zone="Asia/Shanghai")
            self.assertRegex(board, f" {month} +{day} ")

    def test_lines_in_ascii_with_the_texts_of_the_region(self):
        board = output("--language", "chs", "--ascii")
        self.assertIn("   10 /  4 ", board)
        self.assertIn("- 4月 ---", board)
        self.assertFalse(set("╭│╰─·…") & set(output("--language", "chs", "--ascii", "--rows", "9")))


class Zones(unittest.TestCase):
    """Zones where a count of 86,400 seconds a day goes astray: winter as summer time, and a standard
    time that was set back."""

    def test_boards_are_those_of_utc(self):
        for zone, day in (("Europe/Dublin", "2024-01-15"), ("Europe/Moscow", "2014-10-20"),
                          ("Asia/Almaty", "2024-03-12")):
            today = f"{day} 10:00:00"
            for arguments in (("--mode", "month"), ("--mode", "rolling", "--rows", "8"),
                              ("--mode", "tail"), ("--mode", "strip"), ("--next",), ("-3",),
                              ("--week-rule", "jan1", "--rows", "9"), ("--offset", "3"),
                              (day[:4],), ("--list",),
                              # Of this region the engine's own answer does not go by the zone either.
                              ("--language", "chs", "--day", f"{day[:7]}-31")):
                self.assertEqual(output(*arguments, today=today, zone=zone),
                                 output(*arguments, today=today, zone="UTC"), (zone, arguments))


class Dump(unittest.TestCase):
    DUMP = re.compile(r"weeknumber = \d+\t\(\d\)\d{4}-\d\d-\d\d")

    def test_the_engine_is_silent(self):
        for arguments in ((), ("--next",), ("--offset", "1"), ("--json",)):
            text = output(*arguments)
            self.assertNotIn("weeknumber =", text)
            self.assertNotIn("build-logic", text)
            self.assertNotEqual(text[0], "\n")

    def test_dump_shows_what_the_engine_writes(self):
        text = output("--dump", "--offset", "1")
        dump, board = text.rsplit("\n\n\n\n\n", 1)
        self.assertEqual(len(self.DUMP.findall(dump)), 10)  # two builds of five rows
        self.assertIn("build-logic 2024-4-16\n\n\n\n\n", dump)
        self.assertEqual(board, output("--offset", "1"))


if __name__ == "__main__":
    cases.main()
