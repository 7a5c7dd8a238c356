# SPDX-License-Identifier: MIT
"""Date rules of movable feasts: n-th weekdays, Easter and Good Friday."""

from .arithmetic import quotient, remainder
from .date_list import checked_month_length
from .week_number import FRIDAY

UNSET = -1

# Last year and the two constants of the century rule.
CENTURY_CONSTANTS = (
    (1699, 22, 2),
    (1799, 23, 3),
    (1899, 23, 4),
    (2099, 24, 5),
    (2199, 24, 6),
    (2299, 25, 0),
)


def easter_by_centuries(year):
    """Easter Sunday of 1583 to 2299 as month and day, None outside."""
    if not 1583 <= year <= 2299:
        return None
    m, n = next((m, n) for last, m, n in CENTURY_CONSTANTS if year <= last)
    a = year % 19
    d = (19 * a + m) % 30
    e = (2 * (year % 4) + 4 * (year % 7) + 6 * d + n) % 7
    if d + e < 10:
        return 3, d + e + 22
    day = d + e - 9
    if day == 26:
        return 4, 19
    if day == 25 and d == 28 and e >= 6 and a >= 11:
        return 4, 18
    return 4, day


def easter_of_any_year(year):
    """Easter Sunday as month and day by truncating divisions throughout."""
    a = remainder(year, 19)
    b = quotient(year, 100)
    cy = remainder(year, 100)
    d = quotient(b, 4)
    e = remainder(b, 4)
    f = quotient(b + 8, 25)
    g = quotient(b - f + 1, 3)
    h = remainder(19 * a + b - d - g + 15, 30)
    i = quotient(cy, 4)
    k = remainder(cy, 4)
    weekday = remainder(32 + 2 * e + 2 * i - h - k, 7)
    m = quotient(a + 11 * h + 22 * weekday, 451)
    p = h + weekday - 7 * m + 114
    return quotient(p, 31), remainder(p, 31) + 1


class FestivalRules:
    """The date rules with the one-entry caches that are part of their behaviour."""

    def __init__(self, dates):
        self.dates = dates
        self.century_easter = None
        self.easter_year = UNSET
        self.easter = None
        self.good_friday_month = UNSET
        self.good_friday_day = UNSET

    def nth_weekday(self, year, month, n, weekday):
        """The day of the n-th weekday of a month, -1 when there is none.

        The scan runs one day past the month's end, and a hit there counts.
        """
        length = checked_month_length(year, month)
        if length < 0:
            return -1
        found = 0
        for offset in range(length + 1):
            date = self.dates.shifted(year, month, 1, offset)
            if date.day_of_week == weekday and date.ymd != (0, 0, 0):
                found += 1
                if found == n:
                    return date.day
        return -1

    def gauss_easter(self, year):
        """Easter by the century rule; the first year answers for every later one."""
        if self.century_easter is None:
            self.century_easter = easter_by_centuries(year)
        return self.century_easter

    def easter_if_asked_before(self, year):
        """Easter when the year is the one asked last, else None; either way it is now that one."""
        if self.easter_is_known(year):
            return self.easter
        self.learn_easter(year)
        return None

    def easter_is_known(self, year):
        """Whether the cache holds the Easter of a year."""
        return self.easter is not None and self.easter_year == year

    def learn_easter(self, year):
        """Put the Easter of a year into the cache."""
        self.easter_year = year
        self.easter = easter_of_any_year(year)

    def good_friday(self, year):
        """Good Friday as month and day.

        A year that equals the day found last gets the month found last and itself as the day: wrong,
        and possible in the years 1 to 31 only.
        """
        known = self.good_friday_day != UNSET and self.good_friday_month != UNSET
        if known and self.good_friday_day == year:
            return self.good_friday_month, year
        if not self.easter_is_known(year):
            self.learn_easter(year)
        offset = 0
        date = self.dates.shifted(year, *self.easter, offset)
        while date.day_of_week != FRIDAY:
            offset -= 1
            date = self.dates.shifted(year, *self.easter, offset)
        self.good_friday_month, self.good_friday_day = date.month, date.day
        return date.month, date.day
