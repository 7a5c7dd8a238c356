# SPDX-License-Identifier: MIT
"""The engine's facade: navigation, queries on the built board, and the annotation memos."""

from .arithmetic import date_text, remainder, wrap32
from .board import Board
from .cell import Cell
from .date_list import BACKWARD, FORWARD, NO_DIRECTION, checked_month_length
from .date_services import ZONE_UNKNOWN, DateServices, SolarDate
from .festivals import Festivals
from .layout import Span
from .lunar import LunarConverter
from .options import DAY_STRIP, ROLLING_MONTH, WHOLE_MONTH, BoardOptions
from .solar_terms import SolarTerms

LANGUAGE_ZONES = {1: 8, 2: 9, 4: 8, 7: 9}
MONTH_PAGING_MODES = (ROLLING_MONTH, WHOLE_MONTH)


class Logic:
    """One engine with its options, board and memos."""

    def __init__(self, output, dates=None):
        self.dates = dates or DateServices()
        self.options = BoardOptions()
        self.board = Board(self.options, self.dates, output)
        self.output = output
        self.converter = LunarConverter(self.dates)
        self.solar_terms = SolarTerms(self.dates)
        self.festivals = Festivals(self.dates, self.lunar_date)
        self.lunar_dates = {}
        self.terms = {}
        self.solar_festivals = {}
        self.lunar_festivals = {}

    def forget_annotations(self):
        """Start afresh with every answer about dates and with the zone."""
        self.converter = LunarConverter(self.dates)
        self.solar_terms = SolarTerms(self.dates)
        self.festivals = Festivals(self.dates, self.lunar_date)
        for memo in (self.lunar_dates, self.terms, self.solar_festivals, self.lunar_festivals):
            memo.clear()
        self.board.week_numbers.answers.clear()
        self.dates.zone_hours = ZONE_UNKNOWN

    def set_civil_days(self, on):
        """Change how days are counted and forget what may depend on it."""
        if on != self.dates.civil:
            self.dates.civil = on
            self.board.week_numbers.answers.clear()
            self.solar_festivals.clear()
            self.lunar_festivals.clear()

    # Navigation

    def init(self, language):
        """Settle the zone of a language that has one, and show today's board."""
        if language in LANGUAGE_ZONES:
            self.dates.zone_hours = LANGUAGE_ZONES[language]
        self.board.build(0, 0, 0)

    def build(self):
        """Show today's board; the page direction survives when it was shown already."""
        today = self.dates.today().ymd
        self.board.build(*(self.board.focus if self.board.focus == today else (0, 0, 0)))

    def goto_today(self):
        """Show today's board."""
        self.board.build(0, 0, 0)

    def goto_previous_page(self):
        """Page backward by a month or to the day before the first date shown."""
        if self.options.mode in MONTH_PAGING_MODES:
            year, month, _ = self.board.focus
            if month == 1:
                self.board.build(year - 1, 12, 1)
            else:
                self.board.build(year, month - 1, 1)
        else:
            date = self.dates.shifted(*self.board.first_date.ymd, -1)
            self.board.direction = BACKWARD
            self.board.build(*date.ymd)

    def goto_next_page(self):
        """Page forward by a month or to the day after the last date shown."""
        if self.options.mode in MONTH_PAGING_MODES:
            year, month, _ = self.board.focus
            if month > 11:
                self.board.build(year + 1, 1, 1)
            else:
                self.board.build(year, month + 1, 1)
        else:
            date = self.dates.shifted(*self.board.last_date.ymd, 1)
            self.board.direction = FORWARD
            self.board.build(*date.ymd)

    def goto_date(self, year, month, day):
        """Show the board of a date, paging toward it when it is not on the board."""
        if self.options.mode != WHOLE_MONTH:
            date = (year, month, day)
            if date < self.board.first_date.ymd:
                self.board.direction = BACKWARD
            elif date > self.board.last_date.ymd:
                self.board.direction = FORWARD
            else:
                self.board.direction = NO_DIRECTION
        self.board.build(year, month, day)

    def goto_today_offset(self, offset):
        """Show the board some pages, or months in the whole-month mode, away from today."""
        today = self.dates.today()
        if self.options.mode != WHOLE_MONTH:
            days = wrap32(7 * self.options.max_rows * offset)
            year, month, day = self.dates.shifted(*today.ymd, days).ymd
            self.board.direction = NO_DIRECTION
            self.output(f"build-logic {year}-{month}-{day}")
        else:
            months = wrap32(wrap32(today.month + offset) - 1)
            year = wrap32(today.year + months // 12)
            month = months % 12 + 1
            day = min(today.day, checked_month_length(year, month))
            self.output(f"{year}-{month}-{day}")
        self.board.build(year, month, day)

    # Queries

    def content_item(self, row, column):
        """The cell at a visible row and column, a default cell outside."""
        layout = self.board.layout
        if 0 <= row < len(layout.rows) and 0 <= column < len(layout.columns):
            return self.board.rows[layout.rows[row]].cells[layout.columns[column]]
        return Cell()

    def heading(self, column):
        """The day of week over a visible column."""
        layout = self.board.layout
        visible = 0 <= column < len(layout.columns)
        if self.options.mode == DAY_STRIP:
            if layout.rows and visible:
                return self.content_item(0, column).day_of_week
            return 0
        if not 0 <= column <= 6:
            return 0
        board_column = layout.columns[column] if visible else 0
        return remainder(wrap32(self.options.start_day_of_week + board_column), 7)

    def span(self, index):
        """A week-number span, zero outside."""
        spans = self.board.layout.spans
        return spans[index] if 0 <= index < len(spans) else Span()

    def content_date(self):
        """The date that the board was last built for, as it was asked for."""
        return SolarDate(*self.board.focus)

    # Annotations

    def lunar_date(self, date):
        """The lunar date of a day, computed once."""
        return remembered(self.lunar_dates, date_key(date), self.converter.convert, date)

    def solar_term(self, date):
        """The solar term that falls on a day, computed once."""
        return remembered(self.terms, date_key(date), self.solar_terms.check, *date.ymd)

    def solar_festival(self, language, date):
        """The solar festival of a day, computed once for each language."""
        key = festival_key(language, date)
        return remembered(self.solar_festivals, key, self.festivals.solar, language, date)

    def lunar_festival(self, language, date):
        """The lunar festival of a day, computed once for each language."""
        key = festival_key(language, date)
        return remembered(self.lunar_festivals, key, self.festivals.lunar, language, date)


def date_key(date):
    """The memo key of a date."""
    return date_text(*date.ymd)


def festival_key(language, date):
    """The memo key of a date in a language."""
    return f"({language})-({date_key(date)})"


def remembered(memo, key, compute, *arguments):
    """The answer under ``key``, computed and stored when it is not there yet."""
    if key not in memo:
        memo[key] = compute(*arguments)
    return memo[key]
