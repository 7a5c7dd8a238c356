# SPDX-License-Identifier: MIT
"""Week numbers of Gregorian dates."""

from datetime import date, timedelta

from .arithmetic import quotient
from .date_services import SECONDS_PER_DAY, local_midnight

ISO_8601 = 1
FROM_START_WEEK = 2
NO_WEEK = -1

SUNDAY, MONDAY, TUESDAY, WEDNESDAY, THURSDAY, FRIDAY, SATURDAY = range(7)


def is_leap(year):
    """Whether the Gregorian rule makes ``year`` a leap year."""
    return year % 4 == 0 and year % 100 != 0 or year % 400 == 0


def is_accepted(year, month, day):
    """Whether boards and week numbers accept the date; the month's length is not looked at."""
    return 1900 <= year <= 2099 and 1 <= month <= 12 and 1 <= day <= 31


def iso_week(year, month, day):
    """The ISO 8601 week number, -1 when not accepted; days past the month's end count on."""
    if not is_accepted(year, month, day):
        return NO_WEEK
    return (date(year, month, 1) + timedelta(day - 1)).isocalendar()[1]


def week_of_year(year, month, day, civil=False):
    """The week number with 1 January in week 1 and weeks from Monday, -1 when not accepted.

    The days are counted between two local midnights, unless they are civil.  Where the clocks move
    forward between them the count is one day short.
    """
    if not is_accepted(year, month, day):
        return NO_WEEK
    if civil:
        days = (date(year, month, 1) - date(year, 1, 1)).days + day - 1
    else:
        elapsed = local_midnight(year, month, day, -1) - local_midnight(year, 1, 1, -1)
        days = quotient(elapsed, SECONDS_PER_DAY)
    return quotient(days + date(year, 1, 1).weekday(), 7) + 1


class WeekNumbers:
    """Week numbers by convention, every answer kept under its question."""

    def __init__(self):
        self.answers = {}

    def number(self, year, month, day, calc_type, civil=False):
        """The week number of a date under a convention, or -1."""
        key = f"{year}-{month}-{day}-{calc_type}"
        if key not in self.answers:
            if calc_type == ISO_8601:
                self.answers[key] = iso_week(year, month, day)
            else:
                self.answers[key] = week_of_year(year, month, day, civil)
        return self.answers[key]
