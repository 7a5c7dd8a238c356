# SPDX-License-Identifier: MIT
"""Self-checks of the reference model on known answers."""

import os
import unittest
from datetime import date, timedelta

from model import Engine
from model import cell as kind
from model import date_list, festival_rules, longitudes, solar_terms, week_number
from model.arithmetic import padded, quotient, remainder, truncate, wrap32
from model.board import Extent
from model.cell import Cell
from model.date_list import Entry
from model.date_services import DateServices, SolarDate, local_midnight
from model.layout import SpanBuilder, column_range
from model.options import BoardOptions

NOON = 12 * 3600


def use_zone(zone):
    """Make ``zone`` the local zone; the C library looks at the variable on every call."""
    os.environ["TZ"] = zone


def engine_on(year, month, day):
    """A fresh engine whose clock stands at noon of a day."""
    return Engine(DateServices(lambda: local_midnight(year, month, day, -1) + NOON))


def engine_with_zone(hours):
    """A fresh engine with a settled zone value for annotations."""
    engine = engine_on(2024, 3, 10)
    engine.logic.dates.zone_hours = hours
    return engine


def cells(engine):
    """The visible cells, row by row."""
    rows, columns = engine.get_content_rows(), engine.get_content_columns()
    return [[engine.get_content_item(r, c) for c in range(columns)] for r in range(rows)]


class UtcTestCase(unittest.TestCase):
    """A test in universal time."""

    def setUp(self):
        use_zone("UTC")


class ArithmeticTest(unittest.TestCase):
    def test_truncation_is_toward_zero(self):
        self.assertEqual((quotient(-7, 2), remainder(-7, 2)), (-3, -1))
        self.assertEqual((truncate(-1.9), truncate(1.9)), (-1, 1))

    def test_doubles_that_do_not_fit_become_the_smallest_int(self):
        self.assertEqual(truncate(2147483648.0), -2147483648)
        self.assertEqual(truncate(2147483647.9), 2147483647)
        self.assertEqual(truncate(-2147483648.9), -2147483648)
        self.assertEqual(truncate(float("nan")), -2147483648)

    def test_ints_wrap(self):
        self.assertEqual(wrap32(2147483648), -2147483648)

    def test_padding_does_not_count_the_sign(self):
        self.assertEqual((padded(-1, 4), padded(987, 4)), ("-0001", "0987"))


class DateServicesTest(UtcTestCase):
    def test_out_of_range_fields_carry_over(self):
        dates = DateServices()
        self.assertEqual(dates.normalised(2024, 2, 30), (2024, 3, 1, 5))
        self.assertEqual(dates.normalised(2023, 13, 1), (2024, 1, 1, 1))
        self.assertEqual(dates.normalised(2024, 3, 0).ymd, (2024, 2, 29))

    def test_offsets(self):
        dates = DateServices()
        self.assertEqual(dates.shifted(2024, 1, 1, -1), (2023, 12, 31, 0))
        self.assertEqual(dates.shifted(2024, 1, 1, 366).ymd, (2025, 1, 1))

    def test_offsets_wrap_as_seconds(self):
        dates = DateServices()
        days = (24856 * 86400 - (1 << 32)) / 86400
        expected = date(2024, 1, 1) + timedelta(days=int(days // 1))
        self.assertEqual(
            dates.shifted(2024, 1, 1, 24856).ymd, (expected.year, expected.month, expected.day)
        )

    def test_set_zone_stays(self):
        use_zone("Etc/GMT-1")
        dates = DateServices()
        dates.zone_hours = 9
        dates.today()
        self.assertEqual(dates.zone_hours, 9)

    def test_unset_zone_is_truncated_toward_zero(self):
        for zone, hours in (("<-0330>3:30", -3), ("<+0530>-5:30", 5)):
            use_zone(zone)
            dates = DateServices()
            self.assertEqual(dates.zone_hours, 10000)
            dates.today()
            self.assertEqual(dates.zone_hours, hours)


class CellTest(unittest.TestCase):
    def test_default_cell(self):
        self.assertEqual(Cell().text(), "(1)0000-00-00")
        self.assertEqual(Cell().record(), (0, 0, 0, 0, -1, 0, 0, 1))

    def test_taking_over_a_date_keeps_the_rest(self):
        item = Cell(type=kind.TODAY, row=2, column=3, week_number=9)
        item.put(SolarDate(2024, 3, 5, 2))
        self.assertEqual(item.record(), (2024, 3, 5, 2, 9, 2, 3, 4))

    def test_texts(self):
        self.assertEqual(Cell(0, 3, 1, type=kind.MONTH_TITLE).text(), "(7)0000-03-01")
        self.assertEqual(Cell(-1, 3, -2, type=kind.DAY).text(), "(3)-0001-03--02")


class OptionsTest(unittest.TestCase):
    def test_max_columns_are_checked(self):
        options = BoardOptions()
        for columns, expected in ((0, 7), (8, 7), (-3, 7), (1, 1), (9, 1), (7, 7)):
            options.set_max_columns(columns)
            self.assertEqual(options.max_columns, expected)

    def test_break_days_are_checked(self):
        options = BoardOptions()
        for weekday in (7, -1):
            options.set_break_day(weekday, 1)
            self.assertFalse(options.is_break_day(weekday))
        self.assertEqual(options.break_days, [1, 0, 0, 0, 0, 0, 1])

    def test_key(self):
        options = BoardOptions()
        self.assertEqual(options.key(), "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1")
        options.start_week_number = 10
        self.assertEqual(options.key(), "1-5-7-1-1-10-0-1-1-(0-0-0-0-0-1-1)-1")
        options.set_break_day(0, 0)
        self.assertEqual(options.key(), "1-5-7-1-1-10-0-1-1-(0-0-0-0-0-1-0)-1")


class WeekNumberTest(UtcTestCase):
    def test_iso_agrees_with_the_standard_library(self):
        day = date(1900, 1, 1)
        while day.year < 2100:
            week = week_number.iso_week(day.year, day.month, day.day)
            self.assertEqual(week, day.isocalendar()[1])
            day += timedelta(days=1)

    def test_iso_turns_of_the_year(self):
        cases = {(2021, 1, 1): 53, (2022, 1, 1): 52, (2023, 1, 1): 52, (2025, 12, 29): 1}
        for day, week in cases.items():
            self.assertEqual(week_number.iso_week(*day), week)
        self.assertEqual(week_number.iso_week(2024, 12, 31), 1)
        self.assertEqual(week_number.week_of_year(2024, 12, 31), 53)

    def test_uncorrected_iso_is_one_above_in_late_years(self):
        self.assertEqual(week_number.iso_week_uncorrected(2021, 1, 4), 2)
        self.assertEqual(week_number.iso_week_uncorrected(2021, 1, 3), 53)
        self.assertEqual(week_number.iso_week_uncorrected(2024, 1, 8), 2)

    def test_week_of_year(self):
        self.assertEqual(week_number.week_of_year(2023, 1, 1), 1)
        self.assertEqual(week_number.week_of_year(2023, 1, 2), 2)
        self.assertEqual(week_number.week_of_year(2012, 12, 31), 54)

    def test_accepted_range(self):
        rejected = [(1899, 12, 31), (2100, 1, 1), (2024, 0, 1), (2024, 13, 1), (2024, 1, 0)]
        for day in rejected + [(2024, 1, 32)]:
            self.assertEqual(week_number.iso_week(*day), -1)
            self.assertEqual(week_number.week_of_year(*day), -1)
        for day in ((1900, 1, 1), (2099, 12, 31)):
            self.assertGreater(week_number.iso_week(*day), 0)

    def test_summer_time_shortens_the_count(self):
        self.assertEqual(week_number.week_of_year(2024, 4, 1), 14)
        use_zone("Europe/Berlin")
        self.assertEqual(week_number.week_of_year(2024, 4, 1), 13)

    def test_thirtieth_of_february(self):
        for year, same in ((2023, (2023, 3, 2)), (2024, (2024, 3, 1))):
            self.assertEqual(week_number.iso_week(year, 2, 30), week_number.iso_week(*same))
            self.assertEqual(week_number.week_of_year(year, 2, 30), week_number.week_of_year(*same))

    def test_answers_are_kept_by_date_and_convention(self):
        numbers = week_number.WeekNumbers()
        numbers.number(2024, 3, 9, 1)
        numbers.number(2024, 3, 9, 0)
        numbers.number(2024, 13, 9, 1)
        self.assertEqual(list(numbers.answers), ["2024-3-9-1", "2024-3-9-0", "2024-13-9-1"])
        self.assertEqual(numbers.answers["2024-13-9-1"], -1)
        numbers.answers["2024-3-9-1"] = 99
        self.assertEqual(numbers.number(2024, 3, 9, 1), 99)

    def test_helpers(self):
        self.assertEqual(week_number.days_in_month(2000, 2), 29)
        self.assertEqual(week_number.days_in_month(1900, 2), 28)
        self.assertEqual(week_number.days_in_month(2023, 12), 31)
        self.assertEqual(week_number.days_in_month(2023, 0), 31)
        self.assertEqual(week_number.month_and_day_of_year_day(2023, 365), (12, 31))
        self.assertEqual(week_number.month_and_day_of_year_day(2023, 366), (13, 1))
        self.assertEqual(week_number.month_and_day_of_year_day(2024, 60), (2, 29))
        self.assertEqual(week_number.month_and_day_of_year_day(2024, 0), (1, 0))
        self.assertEqual(week_number.monday_of_week(2024, 53), (2024, 12, 30))
        self.assertEqual(week_number.monday_of_week(2023, 1), (2023, 1, 1))
        self.assertEqual(week_number.day_of_the_week(2024, 3, 10), 0)
        self.assertEqual(week_number.weeks_in_year(2020), 53)


class DateListTest(UtcTestCase):
    def setUp(self):
        super().setUp()
        self.options = BoardOptions()
        self.dates = DateServices()

    def run_of(self, start, length):
        return [Entry(self.dates.shifted(*start, i)) for i in range(length)]

    def display(self, source, direction=0, focus=(0, 0, 0), before=0, after=0):
        return date_list.display_list(source, self.options, focus, direction, before, after)

    def test_run_within_a_month_stays(self):
        source = self.run_of((2024, 3, 4), 21)
        self.assertEqual(self.display(source), source)

    def test_no_bands_without_intervals_or_in_the_strip(self):
        source = self.run_of((2024, 2, 26), 14)
        self.options.show_month_interval = False
        self.assertEqual(self.display(source), source)
        self.options.show_month_interval = True
        self.options.mode = 4
        self.assertEqual(self.display(source), source)

    def test_band_keeps_the_column(self):
        source = self.run_of((2024, 2, 26), 14)
        display = self.display(source)
        self.assertEqual(len(display), 21)
        self.assertEqual(display[4].shown, (0, 3, 1, 0))
        self.assertEqual(display[5], Entry())
        self.assertEqual(display[11].shown.ymd, (2024, 3, 1))

    def test_first_entry_gets_no_band(self):
        source = self.run_of((2024, 3, 1), 14)
        self.assertEqual(self.display(source), source)

    def test_hidden_days_in_front_are_no_reason_for_a_band(self):
        shown = self.run_of((2024, 3, 1), 14)
        hidden = [Entry(hidden=SolarDate(2024, 2, 29, 4))]
        self.assertEqual(self.display(hidden * 4 + shown), hidden * 4 + shown)
        self.assertEqual(len(self.display(hidden * 7 + shown)), 28)

    def test_paging_drops_whole_rows_only(self):
        source = self.run_of((2024, 2, 26), 14)
        dropped = self.display(source, 1, (2024, 3, 10), before=13)
        self.assertEqual(len(dropped), 14)
        self.assertEqual(dropped[-1].shown.ymd, (2024, 3, 10))
        kept = self.display(source, 1, (2024, 3, 10), before=14)
        self.assertEqual(len(kept), 21)

    def test_more_surplus_than_entries(self):
        source = self.run_of((2024, 2, 26), 5)
        self.assertEqual(self.display(source, 1, (2024, 2, 26), before=-14), [])
        self.assertEqual(self.display(source, 1, (2024, 2, 26), before=0, after=-17), [])

    def test_month_lengths(self):
        cases = {(2000, 2): 29, (1900, 2): 28, (2024, 2): 29}
        cases |= {(2100, 1): -1, (1899, 5): -1, (2023, 13): -1}
        for month, length in cases.items():
            self.assertEqual(date_list.checked_month_length(*month), length)


class BoardTest(UtcTestCase):
    def test_default_board(self):
        engine = engine_on(2024, 3, 13)
        engine.init_calendar_logic_dt(3)
        board = cells(engine)
        self.assertEqual((len(board), len(board[0])), (5, 7))
        self.assertEqual(board[0][0], (2024, 3, 4, 1, 10, 0, 0, kind.DAY))
        self.assertEqual(board[1][2], (2024, 3, 13, 3, 11, 1, 2, kind.TODAY))
        self.assertEqual(board[0][6], (2024, 3, 10, 0, 10, 0, 6, kind.BREAK_DAY))
        self.assertEqual(board[4][0], (0, 4, 1, 0, -1, 4, 0, kind.MONTH_TITLE))
        self.assertTrue(engine.is_today_in_board())
        engine.set_show_month_interval(0)
        engine.build()
        self.assertEqual(cells(engine)[4][6][:3], (2024, 4, 7))

    def test_rejected_date_keeps_the_board(self):
        engine = engine_on(2024, 3, 13)
        engine.build()
        before = cells(engine)
        dump = engine.take_output()
        for day in ((1899, 12, 31), (2024, 2, 32)):
            self.assertFalse(engine.logic.board.build_content(*day))
            engine.goto_specified_date(*day)
            self.assertEqual(cells(engine), before)
            self.assertEqual(engine.take_output(), dump)

    def test_overlong_day_is_normalised_but_kept_as_asked(self):
        engine = engine_on(2024, 3, 13)
        engine.goto_specified_date(2023, 2, 31)
        self.assertEqual(engine.get_content_date(), (2023, 2, 31, 0))
        self.assertIn((2023, 3, 3), [item[:3] for row in cells(engine) for item in row])

    def test_strip(self):
        for columns, extent in ((7, Extent(3, 3)), (6, Extent(2, 3))):
            engine = engine_on(2024, 3, 13)
            engine.options.mode = 4
            engine.options.set_max_columns(columns)
            self.assertEqual(engine.logic.board.extent(SolarDate(2024, 3, 13, 3)), extent)

    def test_whole_month_hides_the_days_in_front(self):
        engine = engine_on(2024, 3, 13)
        engine.set_disp_month(3)
        engine.build()
        self.assertEqual(cells(engine)[0][3], (2024, 2, 29, 0, 9, 0, 3, kind.BLANK))
        self.assertEqual(cells(engine)[0][4], (2024, 3, 1, 5, 9, 0, 4, kind.DAY))
        engine.goto_specified_date(2024, 4, 10)
        self.assertEqual(cells(engine)[0][0][:3], (2024, 4, 1))

    def test_rolling_month_after_paging_has_no_rows(self):
        engine = engine_on(2024, 3, 13)
        engine.build()
        engine.goto_next_page()
        engine.set_disp_month(2)
        engine.goto_next_page()
        self.assertEqual(engine.get_content_rows(), 0)
        self.assertEqual(engine.take_output()[-10:], "\n" * 10)

    def test_row_week_is_that_of_its_last_dated_cell(self):
        engine = engine_on(2024, 3, 13)
        engine.set_start_day_of_week(0)
        engine.set_start_week_number(10)
        engine.build()
        for row in engine.logic.board.rows:
            weeks = [item.week_number for item in row.cells if item.week_number != -1]
            if weeks:
                self.assertEqual(row.week_number, weeks[-1])


class LayoutTest(UtcTestCase):
    def columns(self, count, today_column, mode=1):
        options = BoardOptions()
        options.mode = mode
        options.set_max_columns(count)
        return list(column_range(options, today_column))

    def test_column_ranges(self):
        for today_column in range(7):
            self.assertEqual(self.columns(7, today_column), list(range(7)))
        self.assertEqual(self.columns(3, 5), [4, 5, 6])
        self.assertEqual(self.columns(3, 0), [0, 1, 2])
        self.assertEqual(self.columns(3, -1), list(range(7)))
        self.assertEqual(self.columns(3, 5, mode=4), [0, 1, 2])

    def test_break_days_hidden(self):
        engine = engine_on(2024, 3, 13)
        engine.set_show_break_day_of_week(0)
        engine.build()
        self.assertEqual(engine.logic.board.layout.columns, [0, 1, 2, 3, 4])

    def test_many_rows(self):
        engine = engine_on(2024, 3, 13)
        engine.set_max_row(60)
        engine.build()
        self.assertEqual(engine.get_content_rows(), 50)
        self.assertEqual(len(engine.logic.board.rows), 60)

    def test_blank_rows_need_break_days(self):
        engine = engine_on(2024, 6, 20)
        engine.goto_specified_date(2024, 6, 26)
        engine.set_break_day_of_week(1, 1)
        engine.build()
        self.assertEqual(engine.get_content_rows(), 5)
        engine.set_show_break_day_of_week(0)
        engine.build()
        blank = (kind.BLANK, kind.BREAK_DAY, kind.TODAY_ON_BREAK_DAY)
        for row in cells(engine):
            self.assertTrue(any(item[7] not in blank for item in row))

    def test_full_rows_make_a_span_each(self):
        builder = SpanBuilder(BoardOptions(), list(range(7)))
        rows = [[Cell(week_number=week) for _ in range(7)] for week in (9, 10, 11)]
        spans = [(span.week, span.second_week, span.rows) for span in builder.spans_of(rows)]
        self.assertEqual(spans, [(9, 0, 1), (10, 0, 1), (11, 0, 1)])


class LogicTest(UtcTestCase):
    def test_month_paging(self):
        engine = engine_on(2024, 3, 13)
        engine.set_disp_month(3)
        engine.goto_specified_date(2024, 1, 15)
        engine.goto_previous_page()
        self.assertEqual(engine.get_content_date(), (2023, 12, 1, 0))
        engine.goto_specified_date(2024, 12, 15)
        engine.goto_next_page()
        self.assertEqual(engine.get_content_date(), (2025, 1, 1, 0))

    def test_day_paging(self):
        engine = engine_on(2024, 3, 13)
        engine.build()
        engine.goto_previous_page()
        self.assertEqual(engine.get_content_date(), (2024, 3, 3, 0))
        self.assertEqual(engine.logic.board.direction, 1)

    def test_direction_toward_a_date(self):
        engine = engine_on(2024, 3, 13)
        engine.set_show_month_interval(0)
        for day, direction in (((2024, 3, 20), 0), ((2024, 2, 10), 1), ((2024, 4, 8), 2)):
            engine.goto_today()
            engine.goto_specified_date(*day)
            self.assertEqual(engine.logic.board.direction, direction)

    def test_month_offsets(self):
        engine = engine_on(2024, 3, 31)
        engine.set_disp_month(3)
        cases = {-1: "2024-2-29", 11: "2025-2-28", -3: "2023-12-31", -15: "2022-12-31"}
        cases[2030] = "2193-5--1"
        for offset, text in cases.items():
            engine.take_output()
            engine.goto_today_offset(offset)
            self.assertEqual(engine.take_output().partition("\n")[0], text)

    def test_page_offsets(self):
        engine = engine_on(2024, 3, 10)
        engine.goto_today_offset(1)
        self.assertTrue(engine.take_output().startswith("build-logic 2024-4-14\n"))
        self.assertEqual(engine.get_content_date(), (2024, 4, 14, 0))

    def test_queries_outside(self):
        engine = engine_on(2024, 3, 10)
        engine.build()
        self.assertEqual(engine.get_content_item(5, 0), Cell().record())
        self.assertEqual(engine.get_content_item(0, -1), Cell().record())
        for index in (-1, engine.get_week_number_count()):
            self.assertEqual(engine.get_week_number_item_with_index(index), (0, 0, 0))

    def test_headings(self):
        engine = engine_on(2024, 3, 13)
        engine.set_disp_month(4)
        self.assertEqual(engine.get_calendar_week_by_columns(0), 0)
        engine.build()
        self.assertEqual(engine.get_calendar_week_by_columns(0), 0)
        self.assertEqual(engine.get_calendar_week_by_columns(3), 3)
        self.assertEqual(engine.get_calendar_week_by_columns(7), 0)
        engine.set_disp_month(1)
        engine.set_show_break_day_of_week(0)
        engine.build()
        headings = [engine.get_calendar_week_by_columns(c) for c in range(-1, 8)]
        self.assertEqual(headings, [0, 1, 2, 3, 4, 5, 1, 1, 0])

    def test_zone_by_language(self):
        engine = engine_on(2024, 3, 10)
        for language, zone in ((3, 0), (7, 9), (3, 9), (1, 8), (2, 9), (4, 8), (0, 8), (11, 8)):
            engine.init_calendar_logic_dt(language)
            self.assertEqual(engine.logic.dates.zone_hours, zone)

    def test_build_returns_to_today(self):
        engine = engine_on(2024, 3, 10)
        engine.build()
        board = cells(engine)
        engine.goto_next_page()
        engine.build()
        self.assertEqual(cells(engine), board)


class EngineTest(UtcTestCase):
    def test_plain_values(self):
        engine = engine_on(2024, 3, 10)
        self.assertEqual(engine.native_add(2147483647, 1), -2147483648)
        self.assertEqual(engine.create_solar_date(2024, 2, 30, 9), (2024, 2, 30, 9))

    def test_interval_flag_cannot_be_read_back(self):
        engine = engine_on(2024, 3, 10)
        engine.set_show_month_interval(0)
        engine.set_hide_break_day(1)
        self.assertTrue(engine.get_show_month_interval())
        engine.set_show_month_interval(1)
        engine.set_hide_break_day(2)
        self.assertFalse(engine.get_show_month_interval())

    def test_fresh_engine(self):
        engine = engine_on(2024, 3, 10)
        self.assertEqual((engine.get_content_rows(), engine.get_content_columns()), (0, 0))
        self.assertEqual(engine.get_content_date(), (0, 0, 0, 0))
        self.assertFalse(engine.is_today_in_board())
        self.assertEqual(engine.get_today(), (2024, 3, 10, 0))


class LongitudesTest(unittest.TestCase):
    def test_day_counts(self):
        self.assertEqual(longitudes.day_count(2000, 1, 1), 2451544.0)
        self.assertEqual(longitudes.date_and_time(2451544.0), (2000, 1, 1, 0, 0, 0))
        day = date(1900, 3, 1)
        while day.year < 2100:
            count = longitudes.day_count(day.year, day.month, day.day)
            expected = (day.year, day.month, day.day)
            self.assertEqual(longitudes.date_and_time(count)[:3], expected)
            day += timedelta(days=13)

    def test_angles(self):
        for angle, expected in ((-360, 360), (-720, 360), (360, 0), (-10, 350), (725, 5)):
            self.assertEqual(longitudes.normalised_angle(float(angle)), expected)

    def test_known_longitudes(self):
        # 2024-03-20 03:06 UT: the Sun stood at the spring equinox.
        t = (longitudes.day_count(2024, 3, 20, 3, 6) + 0.5 - 2451545) / 36525
        self.assertAlmostEqual((longitudes.sun_longitude(t) + 180) % 360, 180, delta=0.02)
        # 2024-02-09 22:59 UT: new moon.
        t = (longitudes.day_count(2024, 2, 9, 22, 59) + 0.5 - 2451545) / 36525
        ahead = longitudes.moon_longitude(t) - longitudes.sun_longitude(t)
        self.assertAlmostEqual(ahead, 0, delta=0.05)


class LunarTest(UtcTestCase):
    def test_corrected_dates_hold_in_every_zone(self):
        for zone in (-5, 0, 8, 9):
            engine = engine_with_zone(zone)
            day = date(2017, 2, 26)
            for lunar_day in range(1, 31):
                record = engine.converter_lunar_with_date((day.year, day.month, day.day, 0))
                self.assertEqual(record, (2017, 2, lunar_day, 0, 0))
                day += timedelta(days=1)

    def test_new_years_of_china(self):
        engine = engine_with_zone(8)
        days = {
            1985: (2, 20),
            2000: (2, 5),
            2012: (1, 23),
            2020: (1, 25),
            2023: (1, 22),
            2024: (2, 10),
            2025: (1, 29),
            2026: (2, 17),
        }
        for year, (month, day) in days.items():
            record = engine.converter_lunar_with_date((year, month, day, 0))
            self.assertEqual(record, (year, 1, 1, 0, 0))

    def test_day_before_new_year_belongs_to_the_old_year(self):
        engine = engine_with_zone(8)
        self.assertEqual(engine.converter_lunar_with_date((2024, 2, 9, 0)), (2023, 12, 30, 0, 0))
        self.assertEqual(engine.converter_lunar_with_date((2024, 1, 1, 0))[:2], (2023, 11))

    def test_leap_months(self):
        engine = engine_with_zone(8)
        self.assertEqual(engine.converter_lunar_with_date((2020, 5, 23, 0)), (2020, 4, 1, 0, 1))
        self.assertEqual(engine.converter_lunar_with_date((2023, 3, 22, 0)), (2023, 2, 1, 0, 1))
        self.assertEqual(engine.converter_lunar_with_date((2023, 4, 20, 0)), (2023, 3, 1, 0, 0))

    def test_day_of_week_is_dropped(self):
        engine = engine_with_zone(8)
        first = engine.converter_lunar_with_date((2024, 2, 10, 5))
        self.assertEqual(engine.converter_lunar_with_date((2024, 2, 10, 0)), first)
        self.assertEqual(list(engine.logic.lunar_dates), ["2024-02-10"])

    def test_days_without_an_answer(self):
        engine = engine_with_zone(8)
        for year in (2147483647, -2147483648, 5900000, 5000000):
            self.assertEqual(engine.converter_lunar_with_date((year, 3, 15, 0)), (0,) * 5)

    def test_answers_keep_the_zone_of_the_first_question(self):
        engine = engine_with_zone(8)
        record = engine.converter_lunar_with_date((2030, 2, 3, 0))
        engine.logic.dates.zone_hours = -11
        self.assertEqual(engine.converter_lunar_with_date((2030, 2, 3, 0)), record)


class SolarTermsTest(UtcTestCase):
    def table(self, year, zone):
        return engine_with_zone(zone).logic.solar_terms.of_year(year)

    def test_known_terms(self):
        cases = {
            (2024, 8, 0): (1, 6, 5),
            (2024, 8, 5): (3, 20, 11),
            (2024, 8, 11): (6, 21, 5),
            (2024, 8, 17): (9, 22, 21),
            (2024, 8, 23): (12, 21, 17),
            (2023, 8, 5): (3, 21, 5),
            (2023, 8, 23): (12, 22, 11),
            (2024, 9, 15): (8, 22, 24),
            (2024, 0, 11): (6, 20, 21),
        }
        for (year, zone, index), (month, day, hour) in cases.items():
            entry = self.table(year, zone)[index]
            self.assertEqual((entry.month, entry.day, entry.hour), (month, day, hour))
            self.assertEqual((entry.year, entry.term), (year, index))
            self.assertEqual(entry.longitude, (285 + 15 * index) % 360)

    def test_years(self):
        for year in (1799, 2100):
            self.assertIsNone(self.table(year, 8))
        for year in (1800, 2099):
            self.assertEqual(len(self.table(year, 8)), 24)

    def test_lookup(self):
        engine = engine_with_zone(8)
        cases = {(3, 20): 5, (3, 21): -1, (1, 6): 0, (12, 21): 23, (6, 21): 11, (13, 40): -1}
        for (month, day), expected in cases.items():
            self.assertEqual(engine.check24_sekki_with_date((2024, month, day, 4)), expected)
        engine = engine_with_zone(0)
        self.assertEqual(engine.check24_sekki_with_date((2024, 6, 21, 0)), -1)
        self.assertEqual(engine.check24_sekki_with_date((2024, 6, 20, 0)), 11)
        self.assertEqual(engine.check24_sekki_with_date((1799, 1, 6, 0)), -1)
        self.assertEqual(engine.check24_sekki_with_date((2100, 1, 5, 0)), -1)

    def test_day_arithmetic(self):
        self.assertEqual(solar_terms.day_number(2000, 1, 1), 2451544.0)
        self.assertEqual(solar_terms.day_number(1900, 1, 1), 2415020.0)
        self.assertAlmostEqual(solar_terms.delta_t(2024), 72.96)
        self.assertEqual(solar_terms.delta_t(1990), 58)
        cases = {
            (2024, 60): 229,
            (2023, 60): 301,
            (1900, 60): 301,
            (1500, 60): 229,
            (2023, 365): 1231,
            (2023, 366): 1232,
            (2023, 367): 1233,
            (2023, 0): 100,
        }
        for (year, day), expected in cases.items():
            self.assertEqual(solar_terms.days_to_month_day(year, day), expected)
        self.assertEqual(solar_terms.year_days(2024, 3, 1), 61)
        self.assertEqual(solar_terms.month_days(2100, 2), 28)
        self.assertEqual(solar_terms.month_days(2000, 2), 29)


class FestivalRulesTest(UtcTestCase):
    def setUp(self):
        super().setUp()
        self.rules = festival_rules.FestivalRules(DateServices())

    def test_nth_weekdays(self):
        self.assertEqual(self.rules.nth_weekday(2023, 11, 4, 4), 23)
        self.assertEqual(self.rules.nth_weekday(2024, 1, 2, 6), 13)
        for year, month in ((1899, 5), (2100, 5), (2024, 0), (2024, 13)):
            self.assertEqual(self.rules.nth_weekday(year, month, 1, 1), -1)

    def test_fifth_weekday_may_be_the_next_first(self):
        # 1 April 2024 is a Monday; March has four of them.
        self.assertEqual(self.rules.nth_weekday(2024, 3, 5, 1), 1)
        self.assertEqual(self.rules.nth_weekday(2024, 2, 5, 1), -1)

    def test_easter_algorithms_agree(self):
        for year in range(1583, 2300):
            self.assertEqual(
                festival_rules.easter_by_centuries(year), festival_rules.easter_of_any_year(year)
            )
        for year in (1582, 2300):
            self.assertIsNone(festival_rules.easter_by_centuries(year))

    def test_first_question_finds_no_easter(self):
        self.assertIsNone(self.rules.easter_if_asked_before(2024))
        self.assertEqual(self.rules.easter_if_asked_before(2024), (3, 31))
        self.assertIsNone(self.rules.easter_if_asked_before(2025))

    def test_century_rule_sticks_to_its_first_year(self):
        self.assertIsNone(self.rules.gauss_easter(1500))
        self.assertEqual(self.rules.gauss_easter(2024), (3, 31))
        self.assertEqual(self.rules.gauss_easter(2025), (3, 31))

    def test_good_friday(self):
        self.assertEqual(self.rules.good_friday(2024), (3, 29))
        self.assertEqual(self.rules.good_friday(2025), (4, 18))
        self.assertEqual(self.rules.easter_if_asked_before(2025), (4, 20))
        self.assertEqual(self.rules.good_friday(18), (4, 18))


class SolarFestivalsTest(UtcTestCase):
    def setUp(self):
        super().setUp()
        self.engine = engine_with_zone(8)

    def solar(self, language, year, month, day):
        return self.engine.check_festival_solar_with_lang(language, (year, month, day, 0))

    def test_language_before_common(self):
        self.assertEqual(self.solar(2, 2024, 12, 25), 3006)
        self.assertEqual(self.solar(0, 2024, 12, 25), 1011)
        self.assertEqual(self.solar(11, 2024, 12, 25), 1011)
        self.assertEqual(self.solar(7, 2023, 11, 23), 5012)
        self.assertEqual(self.solar(3, 2023, 11, 23), 1009)
        self.assertEqual(self.solar(1, 2024, 5, 1), 1005)
        self.assertEqual(self.solar(1, 2024, 5, 4), 2001)
        self.assertEqual(self.solar(10, 2024, 1, 13), 1006)
        self.assertEqual(self.solar(10, 2024, 1, 1), 1000)

    def test_easter_needs_an_earlier_question_of_its_year(self):
        self.solar(3, 2023, 2, 1)
        self.assertEqual(self.solar(3, 2024, 3, 29), 4004)
        self.assertEqual(self.solar(3, 2024, 3, 31), 4003)
        self.solar(3, 2023, 2, 2)
        self.assertEqual(self.solar(3, 2025, 4, 20), 0)
        self.assertEqual(self.solar(3, 2025, 4, 20), 0, "the first answer is kept")

    def test_weekday_rules_end_with_the_board_years(self):
        thursdays = [self.solar(8, 2100, 11, day) for day in range(1, 31)]
        self.assertEqual(set(thursdays), {0})
        self.assertEqual(self.solar(8, 2100, 12, 25), 1011)

    def test_answers_are_kept_by_language(self):
        self.solar(1, 2024, 1, 1)
        self.solar(8, 2024, 1, 1)
        self.solar(8, 987, 3, 5)
        keys = ["(1)-(2024-01-01)", "(8)-(2024-01-01)", "(8)-(0987-03-05)"]
        self.assertEqual(list(self.engine.logic.solar_festivals), keys)


class LunarFestivalsTest(UtcTestCase):
    def setUp(self):
        super().setUp()
        self.engine = engine_with_zone(8)

    def lunar(self, language, year, month, day):
        return self.engine.check_festival_lunar_with_lang(language, (year, month, day, 0))

    def test_eve_is_the_last_day_of_the_year(self):
        # The twelfth month ended with day 30 in 2024 and with day 29 in 2025.
        self.assertEqual(self.lunar(1, 2024, 2, 8), 0)
        self.assertEqual(self.lunar(1, 2024, 2, 9), 20009)
        self.assertEqual(self.lunar(1, 2025, 1, 28), 20009)
        self.assertEqual(self.lunar(2, 2024, 2, 9), 0)

    def test_days_by_language(self):
        self.assertEqual(self.lunar(2, 2024, 2, 24), 0)
        self.assertEqual(self.lunar(1, 2024, 2, 24), 20001)
        self.assertEqual(self.lunar(2, 2024, 5, 15), 20010)
        self.assertEqual(self.lunar(9, 2024, 4, 18), 20012)
        self.assertEqual(self.lunar(1, 2024, 4, 18), 0)
        self.assertEqual(self.lunar(1, 2024, 2, 2), 20008)
        self.assertEqual(self.lunar(4, 2024, 2, 2), 0)
        self.assertEqual(self.lunar(1, 2017, 3, 27), 0)

    def test_no_festival_in_a_leap_month(self):
        # 22 June 2009 is day 30 of the fifth month; the leap fifth month follows.
        record = self.engine.converter_lunar_with_date((2009, 6, 27, 0))
        self.assertEqual(record, (2009, 5, 5, 0, 1))
        self.assertEqual(self.lunar(1, 2009, 6, 27), 0)
        self.assertEqual(self.lunar(1, 2009, 5, 28), 20002)

    def test_languages_without_lunar_festivals(self):
        for language in (0, 3, 5, 6, 7, 8, 10, 11):
            self.assertEqual(self.lunar(language, 2024, 2, 10), 0)

    def test_questions_fill_the_lunar_memo(self):
        self.lunar(1, 2024, 2, 9)
        self.assertEqual(list(self.engine.logic.lunar_dates), ["2024-02-09", "2024-02-10"])


if __name__ == "__main__":
    unittest.main()
