# SPDX-License-Identifier: MIT
"""Which rows and columns of a board are visible, and its week-number spans."""

from dataclasses import dataclass, field

from . import cell as kind
from .arithmetic import quotient, remainder, wrap32
from .options import DAY_STRIP, ROLLING_WEEKS
from .week_number import ISO_8601

MAX_VISIBLE_ROWS = 50
LAST_WEEK_OF_LONG_YEAR = 53


@dataclass
class Span:
    """A run of visible rows that share a place in the week-number column."""

    week: int = 0
    week_cells: int = 0
    second_week: int = 0
    second_week_cells: int = 0
    undated_cells: int = 0
    rows: int = 0


@dataclass
class Layout:
    """Indices of the visible rows and columns, and the spans over them."""

    rows: list = field(default_factory=list)
    columns: list = field(default_factory=list)
    spans: list = field(default_factory=list)

    @classmethod
    def of(cls, board):
        """The layout of a freshly built board."""
        columns = visible_columns(board.options, board.today_column)
        rows = visible_rows(board.rows, columns, board.options)
        shown = [board.rows[r].cells for r in rows]
        return cls(rows, columns, SpanBuilder(board.options, columns).spans_of(shown))


def column_range(options, today_column):
    """The columns that the mode shows, break days included."""
    count = options.max_columns
    if options.mode == ROLLING_WEEKS and today_column != -1:
        start = min(max(today_column - quotient(count, 2), 0), 6)
        if start + count >= 8:
            start = 7 - count
        return range(start, start + count)
    if options.mode == DAY_STRIP:
        return range(count)
    return range(7)


def visible_columns(options, today_column):
    """The columns of the range, without break days where these are not shown."""
    columns = column_range(options, today_column)
    if options.show_break_day_of_week:
        return list(columns)
    start = options.start_day_of_week
    return [c for c in columns if not options.is_break_day(remainder(wrap32(start + c), 7))]


def visible_rows(rows, columns, options):
    """The rows to show; without break days only those that have something to show."""
    if not columns:
        return []
    indices = range(min(len(rows), MAX_VISIBLE_ROWS))
    if options.show_break_day_of_week:
        return list(indices)
    idle = (kind.BLANK, kind.BREAK_DAY, kind.TODAY_ON_BREAK_DAY)
    return [r for r in indices if any(rows[r].cells[c].type not in idle for c in columns)]


class SpanBuilder:
    """Groups visible rows into spans, one row after the other."""

    def __init__(self, options, columns):
        self.options = options
        self.columns = columns
        self.spans = []
        self.open = Span(rows=1)

    def spans_of(self, rows):
        """The spans of the visible rows, each given as its seven cells."""
        for index, cells in enumerate(rows):
            self.count_cells(cells)
            last_week = cells[len(self.columns) - 1].week_number
            self.close_row(index, index == len(rows) - 1, last_week)
        return self.spans

    def count_cells(self, cells):
        """Count a row's visible cells into the open span."""
        span = self.open
        for column in self.columns:
            week = cells[column].week_number
            if week < 1:
                span.undated_cells += 1
            elif span.week == 0:
                span.week = week
                span.week_cells += 1
            else:
                if span.week != week and span.second_week == 0:
                    span.second_week = week
                if span.week == week:
                    span.week_cells += 1
                elif span.second_week == week:
                    span.second_week_cells += 1

    def emit(self):
        """Append the open span and start a new one.

        A single leading Sunday of the week before gives way to the week that fills the row.
        """
        span = self.open
        sunday_first_iso = (
            self.options.week_number_calc_type == ISO_8601 and self.options.start_day_of_week == 0
        )
        if (
            sunday_first_iso
            and span.week >= 1
            and span.second_week_cells >= 1
            and span.week_cells == 1
            and span.second_week >= 1
        ):
            span.week, span.second_week = span.second_week, 0
        self.spans.append(span)
        self.open = Span(rows=1)

    def merge(self):
        """Let the next row join the open span."""
        self.open.rows += 1

    def close_row(self, index, is_last, last_week):
        """Decide at the end of a row whether the open span ends with it."""
        span = self.open
        shown = len(self.columns)
        if span.week_cells == shown and (
            span.second_week == 0 and span.week > 0 or span.undated_cells > shown
        ):
            self.emit()
        elif span.week < 1:
            self.close_tail(index, is_last, last_week, numbered=False)
        elif span.second_week < 1 or last_week < 1:
            self.close_tail(index, is_last, last_week, numbered=True)
        else:
            self.close_two_weeks()

    def close_two_weeks(self):
        """A row of two weeks that ends with a day: week 1 gets a span of its own."""
        span = self.open
        if span.second_week == 1:
            if span.rows != 1:
                self.spans.append(
                    Span(
                        week=span.week,
                        week_cells=span.week_cells,
                        second_week_cells=span.second_week_cells,
                        undated_cells=span.undated_cells,
                        rows=1,
                    )
                )
                span.rows = 1
                span.second_week = 0
            span.week = 1
        self.emit()

    def close_tail(self, index, is_last, last_week, numbered):
        """A row without a second week, or one that ends undated."""
        span = self.open
        ends_long_year = span.second_week == LAST_WEEK_OF_LONG_YEAR
        if span.rows > 1:
            self.emit()
        elif is_last:
            if span.week == 0 and span.second_week == 0 and self.spans:
                self.spans[-1].rows += 1
            else:
                self.emit()
        elif index == 0 and numbered and last_week > 0:
            self.emit()
        elif ends_long_year:
            self.emit()
        elif not numbered or self.options.start_day_of_week != 1 or last_week < 1:
            self.merge()
        else:
            self.emit()
