# SPDX-License-Identifier: MIT
"""Week numbers of Gregorian dates, and the calendar helpers that belong to them."""

from datetime import date

from .arithmetic import quotient, remainder
from .date_services import SECONDS_PER_DAY, local_midnight

FROM_JANUARY_FIRST = 0
ISO_8601 = 1
FROM_START_WEEK = 2
NO_WEEK = -1

SUNDAY, MONDAY, TUESDAY, WEDNESDAY, THURSDAY, FRIDAY, SATURDAY = range(7)

DAYS_BEFORE_MONTH = (0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334)
MONTH_OFFSETS = (0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4)
# From 7 * week - 6 to the week's Monday, by the weekday of 1 January.  Laid out for weekdays 1 to
# 7 but indexed with 0 = Sunday, so that a year beginning on a Sunday gets that Sunday.
MONDAY_OFFSETS = (0, 0, -1, -2, -3, 3, 2, 1)
DAYS_AFTER_FEBRUARY = (31, 61, 92, 122, 153, 184, 214, 245, 275, 306)


def is_leap(year):
    """Whether the Gregorian rule makes ``year`` a leap year."""
    return year % 4 == 0 and year % 100 != 0 or year % 400 == 0


def is_accepted(year, month, day):
    """Whether boards and week numbers accept the date; the month's length is not looked at."""
    return 1900 <= year <= 2099 and 1 <= month <= 12 and 1 <= day <= 31


def iso_week(year, month, day):
    """The ISO 8601 week number, -1 outside the accepted range."""
    return _iso_week(year, month, day, late_start_correction=True)


def iso_week_uncorrected(year, month, day):
    """``iso_week`` without the final correction of years that begin on Friday to Sunday."""
    return _iso_week(year, month, day, late_start_correction=False)


def _iso_week(year, month, day, late_start_correction):
    if not is_accepted(year, month, day):
        return NO_WEEK
    century, year_of_century = divmod(year - 1, 100)
    january_first = (year_of_century + year_of_century // 4 + 5 * (century % 4)) % 7
    leap = is_leap(year)
    day_of_year = DAYS_BEFORE_MONTH[month - 1] + day + (1 if leap and month > 2 else 0)
    if january_first >= 4 and day_of_year <= 7 - january_first:
        if january_first == 4:
            return 53
        if january_first == 5 and (year - 1) % 4 == 0:
            return 53
        return 52
    weekday = (day_of_year + january_first - 1) % 7
    if (366 if leap else 365) - day_of_year < 3 - weekday:
        return 1
    week = (day_of_year + january_first + 6 - weekday) // 7
    return week - 1 if late_start_correction and january_first > 3 else week


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
    return quotient(days + (january_first_weekday(year) + 6) % 7, 7) + 1


def january_first_weekday(year):
    """The weekday of 1 January, 0 = Sunday."""
    before = year - 1
    total = year + quotient(before, 4) - quotient(before, 100) + quotient(before, 400)
    return remainder(total, 7)


def day_of_the_week(year, month, day):
    """The weekday of a date, 0 = Sunday."""
    y = year - 1 if month < 3 else year
    total = y + quotient(y, 4) - quotient(y, 100) + quotient(y, 400)
    return remainder(total + MONTH_OFFSETS[month - 1] + day, 7)


def days_in_year(year):
    """366 or 365."""
    return 366 if is_leap(year) else 365


def days_in_month(year, month):
    """The month's length; 31 for whatever is not a month."""
    if month in (4, 6, 9, 11):
        return 30
    if month == 2:
        return 29 if is_leap(year) else 28
    return 31


def weeks_in_year(year):
    """The ISO 8601 weeks of a year, 52 or 53."""
    weekday = january_first_weekday(year)
    if weekday == THURSDAY or weekday == WEDNESDAY and is_leap(year):
        return 53
    return 52


def month_and_day_of_year_day(year, day_in_year):
    """Month and day of a day of the year; days past the end land in month 13."""
    if day_in_year <= 31:
        return 1, day_in_year
    february = 29 if is_leap(year) else 28
    rest = day_in_year - 31
    if rest <= february:
        return 2, rest
    rest -= february
    passed = 0
    for month, limit in enumerate(DAYS_AFTER_FEBRUARY, start=3):
        if rest <= limit:
            return month, rest - passed
        passed = limit
    return 13, rest - passed


def monday_of_week(year, week):
    """Year, month and day of the Monday that opens a week."""
    weeks = weeks_in_year(year)
    while week > weeks:
        week -= weeks
        year += 1
        weeks = weeks_in_year(year)
    day = 7 * week + MONDAY_OFFSETS[january_first_weekday(year)] - 6
    if day > days_in_year(year):
        day -= days_in_year(year)
        year += 1
    elif day <= 0:
        year -= 1
        day += days_in_year(year)
    return (year, *month_and_day_of_year_day(year, day))


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
