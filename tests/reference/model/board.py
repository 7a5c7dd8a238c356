# SPDX-License-Identifier: MIT
"""The month board: rows of seven cells around a focus date."""

from dataclasses import dataclass, field
from typing import NamedTuple

from . import cell as kind
from .arithmetic import ceiling_of_weeks, quotient, remainder, wrap32
from .cell import Cell
from .date_list import (
    BACKWARD,
    FORWARD,
    NO_DIRECTION,
    Entry,
    checked_month_length,
    display_list,
    month_length,
)
from .layout import Layout
from .options import DAY_STRIP, ROLLING_MONTH, ROLLING_WEEKS, WHOLE_MONTH
from .week_number import FROM_START_WEEK, NO_WEEK, WeekNumbers, is_accepted

FILL_BREAKS = "\n" * 5


@dataclass
class Row:
    """A board row: the week number of its last dated cell, and seven cells."""

    week_number: int = 0
    cells: list = field(default_factory=list)


class Extent(NamedTuple):
    """How many days a board lists around the focus date, and in how many rows at least."""

    before: int = 0
    after: int = 0
    lead: int = 0
    trail: int = 0
    hint_rows: int = 0


class Board:
    """The board and everything that a build leaves behind."""

    def __init__(self, options, dates, output):
        self.options = options
        self.dates = dates
        self.output = output
        self.direction = NO_DIRECTION
        self.first_date = Cell()
        self.last_date = Cell()
        self.rows = []
        self.layout = Layout()
        self.focus = (0, 0, 0)
        self.today_on_board = False
        self.today_column = -1
        self.week_numbers = WeekNumbers()

    def build(self, year, month, day):
        """Build the board of a date, today's for 0, 0, 0, and dump it.

        A date that is not accepted leaves the rows as they are; they are laid out and dumped again.
        """
        if (year, month, day) == (0, 0, 0):
            self.direction = NO_DIRECTION
            year, month, day = self.dates.today().ymd
        self.build_content(year, month, day)
        self.layout = Layout.of(self)
        self.dump()

    def build_content(self, year, month, day):
        """Fill the rows; tells whether the date was accepted."""
        if not is_accepted(year, month, day):
            return False
        self.focus = (year, month, day)
        focus = self.dates.normalised(year, month, day)
        extent = self.extent(focus)
        source = self.source_list(focus, extent)
        entries = display_list(
            source, self.options, self.focus, self.direction, extent.before, extent.after
        )
        self.fill(entries, self.row_count(focus, extent))
        return True

    def focus_column(self, weekday):
        """The column of a weekday, -1 for what is none."""
        if not 0 <= weekday <= 6:
            return -1
        return (weekday - self.options.first_weekday()) % 7

    def extent(self, focus):
        """The days to list around the focus date for the mode and the page direction."""
        mode = self.options.mode
        rows = self.options.max_rows
        column = self.focus_column(focus.day_of_week)
        if mode == WHOLE_MONTH:
            length = month_length(focus.year, focus.month)
            first = 7 - remainder(6 - column + focus.day, 7)
            trail = 7 - remainder(first + focus.day + length - 1, 7)
            return Extent(focus.day - 1, length - 1, first % 7, trail, 0)
        if mode == DAY_STRIP:
            return self.strip_extent()
        if self.direction == NO_DIRECTION:
            if mode == ROLLING_WEEKS:
                passed = self.options.passed_weeks
                return Extent(passed * 7 + column, max(rows - passed, 1) * 7 - column - 1)
            if mode == ROLLING_MONTH:
                days = focus.day + 6 - column
                focus_row = ceiling_of_weeks(days)
                after = max(rows + 1 - focus_row, 1) * 7 - column - 1
                lead = (7 - remainder(days, 7)) % 7
                return Extent(focus.day - 1, after, lead, 0, max(rows, focus_row))
            return Extent()
        if self.direction == BACKWARD:
            return Extent(before=column + rows * 7 - 7, after=6 - column)
        if self.direction == FORWARD:
            return Extent(after=rows * 7 - column - 1, lead=remainder(column, 7))
        return Extent()

    def strip_extent(self):
        """The days around the focus date of the one-row strip."""
        columns = self.options.max_columns
        if self.direction == NO_DIRECTION:
            half = quotient(columns, 2)
            return Extent(before=half + remainder(columns, 2) - 1, after=half)
        if self.direction == FORWARD:
            return Extent(after=columns - 1)
        if self.direction == BACKWARD:
            return Extent(before=columns - 1)
        return Extent()

    def source_list(self, focus, extent):
        """The unbroken run of dates around the focus date."""

        def date(offset):
            return self.dates.shifted(*focus.ymd, offset)

        entries = []
        start = extent.before + extent.lead
        for i in range(extent.lead):
            if self.options.show_month_interval:
                entries.append(Entry(hidden=date(i - start)))
            else:
                entries.append(Entry(date(i - start)))
        entries += [Entry(date(i - extent.before)) for i in range(extent.before)]
        entries.append(Entry(focus))
        entries += [Entry(date(k)) for k in range(1, extent.after + 1)]
        entries += [Entry(date(extent.after + k)) for k in range(1, extent.trail + 1)]
        return entries

    def row_count(self, focus, extent):
        """The number of board rows."""
        mode = self.options.mode
        if mode == WHOLE_MONTH:
            return ceiling_of_weeks(checked_month_length(focus.year, focus.month) + extent.lead)
        if mode == ROLLING_WEEKS:
            return self.options.max_rows
        if mode == ROLLING_MONTH:
            return extent.hint_rows
        return 1 if mode == DAY_STRIP else 0

    def fill(self, entries, row_count):
        """Cut the list into rows of typed and numbered cells."""
        today = self.dates.today()
        self.first_date = Cell()
        self.last_date = Cell()
        self.rows = []
        self.today_on_board = False
        self.today_column = -1
        row_week = 0
        for r in range(row_count):
            cells = []
            for c in range(7):
                item = Cell(row=r, column=c)
                if 7 * r + c < len(entries):
                    self.fill_cell(item, entries[7 * r + c], today)
                if item.type not in (kind.EMPTY, kind.BLANK, kind.MONTH_TITLE):
                    if self.first_date.type == kind.EMPTY:
                        self.first_date = item
                    self.last_date = item
                item.week_number = self.shown_week(item, today)
                if item.week_number != NO_WEEK:
                    row_week = item.week_number
                cells.append(item)
            self.rows.append(Row(row_week, cells))

    def fill_cell(self, item, entry, today):
        """Give a cell its date and kind."""
        item.put(entry.shown)
        if item.year == 0 and item.day == 1:
            item.type = kind.MONTH_TITLE
        elif item.ymd == (0, 0, 0):
            item.type = kind.BLANK
            item.year, item.month, item.day = entry.hidden.ymd
        else:
            on_break = self.options.is_break_day(item.day_of_week)
            if item.ymd == today.ymd:
                item.type = kind.TODAY_ON_BREAK_DAY if on_break else kind.TODAY
                self.today_on_board = True
                self.today_column = item.column
            else:
                item.type = kind.BREAK_DAY if on_break else kind.DAY

    def shown_week(self, item, today):
        """The week number of a cell, counted so that the start week reads 1."""
        calc_type = self.options.week_number_calc_type
        start = self.options.start_week_number
        week = self.week_numbers.number(*item.ymd, calc_type, self.dates.civil)
        if week >= start:
            return wrap32(week + 1 - start)
        next_year = wrap32(item.year - today.year) == 1
        if next_year and calc_type == FROM_START_WEEK and wrap32(start - 30) > week:
            last = self.week_numbers.number(item.year, 12, 31, calc_type, self.dates.civil)
            return wrap32(last + week - start)
        return week

    def dump(self):
        """Write the board to the output."""
        self.output(FILL_BREAKS)
        for row in self.rows:
            cells = "".join(f"\t{item.text()}" for item in row.cells)
            self.output(f"weeknumber = {row.week_number}{cells}\n")
        self.output(FILL_BREAKS)
