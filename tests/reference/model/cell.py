# SPDX-License-Identifier: MIT
"""One cell of the month board."""

from dataclasses import astuple, dataclass

from .arithmetic import date_text

EMPTY = 1
BLANK = 2
DAY = 3
TODAY = 4
BREAK_DAY = 5
TODAY_ON_BREAK_DAY = 6
MONTH_TITLE = 7


@dataclass
class Cell:
    """A date with its week number, place and kind; a fresh cell is empty."""

    year: int = 0
    month: int = 0
    day: int = 0
    day_of_week: int = 0
    week_number: int = -1
    row: int = 0
    column: int = 0
    type: int = EMPTY

    @property
    def ymd(self):
        """Year, month and day."""
        return self.year, self.month, self.day

    def put(self, date):
        """Take over a date and keep the rest."""
        self.year, self.month, self.day, self.day_of_week = date

    def text(self):
        """The cell as the dump shows it: (3)2024-03-05."""
        return f"({self.type}){date_text(*self.ymd)}"

    def record(self):
        """The cell's values in the order of the exported record."""
        return astuple(self)
