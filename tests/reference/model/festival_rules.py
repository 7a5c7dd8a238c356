# SPDX-License-Identifier: MIT
"""Date rules of movable feasts: n-th weekdays, Easter and Good Friday."""

from .arithmetic import quotient, remainder
from .date_list import checked_month_length
from .week_number import FRIDAY

UNSET = -1


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
