# SPDX-License-Identifier: MIT
"""The almanac beside calendars reckoned here from the ephemeris, day by day and term by term.

The times in force and the uncertainty are stated once more, apart from the library's.
"""
import math
from datetime import date
from functools import cached_property
from typing import NamedTuple

from calendars import DAYS, FIRST_YEAR, LAST_YEAR, SECONDS_PER_DAY, LunarDate, day_number, day_of
from calendars import dates_by_rule, local_day
from library import Library

BEIJING = 7 * 3600 + 45 * 60 + 40  # 116 degrees 25 minutes east
HOUR = 3600
TERMS = range(24)
YEARS = range(FIRST_YEAR, LAST_YEAR + 1)


class Calendar(NamedTuple):
    """A published calendar: the times in force, as (last day or None, seconds east)."""

    name: str
    code: int  # EAlmanacCalendar
    times: tuple


CALENDARS = (
    Calendar("China", 1, ((date(1928, 12, 31), BEIJING), (None, 8 * HOUR))),
    Calendar("Korea", 2, ((date(1911, 12, 31), BEIJING), (None, 9 * HOUR))),
    Calendar("Vietnam", 3, ((date(1928, 12, 31), BEIJING), (date(1967, 12, 31), 8 * HOUR),
                            (None, 7 * HOUR))),
    Calendar("Japan", 4, ((None, 9 * HOUR),)),
)
# What China and Korea printed otherwise: the day on which the month begins by reckoning.
PRINTED_NEXT_DAY = day_number(1906, 4, 23)

ERROR_OF_NEW_MOONS, ERROR_OF_TERMS = 6, 3  # of the table, in seconds
LAST_YEAR_MEASURED = 2022


def uncertainty(year, error):
    """Seconds by which an instant of a year may be wrong."""
    years = max(0, year - LAST_YEAR_MEASURED)
    standard_error = 365.25 * years * math.sqrt(years * 0.058 / 3 * (1 + years / 2500)) / 1000
    return error + 1 + math.ceil(3 * standard_error)


def second_text(second):
    """A time of day."""
    return f"{second // 3600:02}:{second // 60 % 60:02}:{second % 60:02}"


class Instant(NamedTuple):
    """A new moon or a term, as the library tells it."""

    day: int
    second: int  # of the day
    uncertainty: int
    certain: bool
    name: str

    @property
    def text(self):
        """Date and time of day."""
        return f"{day_of(self.day)} {second_text(self.second)}"


class Almanac:
    """A calendar of the library and the same one by the ephemeris."""

    def __init__(self, library, calendar, ephemeris):
        self.calendar = calendar
        self._library = library
        self._moons = [self._local(moment) for moment in ephemeris.new_moons]
        self._terms = [term._replace(moment=self._local(term.moment)) for term in ephemeris.terms]

    def _local(self, moment):
        for last, seconds in self.calendar.times:
            local = moment + seconds / SECONDS_PER_DAY
            if last is None or day_of(math.floor(local)) <= last:
                return local
        raise ValueError(moment)

    @cached_property
    def days_off(self):
        """The days whose lunar dates are not those by the ephemeris."""
        true_dates = dates_by_rule(self._moons, self._terms, 0)
        return [day for day in range(DAYS) if self._date(day) != true_dates[day]]

    def _date(self, day):
        year, month, lunar_day, _, leap = self._library.call(
            "AlmanacLunarDate", self.calendar.code, (*day_of(day).timetuple()[:3], 0))
        return LunarDate(year, month, leap, lunar_day)

    @cached_property
    def terms(self):
        """The terms by the library."""
        return [self._instant(f"term {term}", "AlmanacTermInstant", year, term)
                for year in YEARS for term in TERMS]

    @cached_property
    def new_moons(self):
        """The new moons by the library."""
        found = (self._instant("new moon", "AlmanacNewMoonOfYear", year, index)
                 for year in YEARS for index in range(13))
        return [instant for instant in found if instant is not None]

    def _instant(self, name, function, *arguments):
        year, month, day, _, hour, minute, second, _, uncertain_by, certain = self._library.call(
            function, self.calendar.code, *arguments)
        if year == 0:
            return None
        return Instant(day_number(year, month, day), (hour * 60 + minute) * 60 + second,
                       uncertain_by, bool(certain), name)

    @cached_property
    def terms_off(self):
        """The terms on another day than by the ephemeris."""
        true_days = [day for day in (local_day(term.moment, 0) for term in self._terms)
                     if 0 <= day < DAYS]
        return [term for term, day in zip(self.terms, true_days, strict=True) if term.day != day]

    @cached_property
    def uncertain(self):
        """The instants whose days are not certain, in order."""
        return sorted(instant for instant in self.new_moons + self.terms if not instant.certain)

    def uncertain_by_formula(self):
        """The same, by the formula."""
        found = []
        for instants, error in ((self.new_moons, ERROR_OF_NEW_MOONS), (self.terms, ERROR_OF_TERMS)):
            for instant in instants:
                seconds = uncertainty(day_of(instant.day).year, error)
                if not seconds <= instant.second < SECONDS_PER_DAY - seconds:
                    found.append(instant)
        return sorted(found)

    def renumbering(self):
        """The uncertain instants that would give a month another number on the other day."""
        names = self._month_names(self._moons, self._terms)
        found = []
        for instant in self.uncertain:
            after = instant.second < SECONDS_PER_DAY / 2
            shift = (-1 if after else 1) * 2 * instant.uncertainty / SECONDS_PER_DAY
            moment = instant.day + instant.second / SECONDS_PER_DAY

            def moved(other, moment=moment, shift=shift):
                return other + shift if abs(other - moment) * SECONDS_PER_DAY < 10 else other

            moons = [moved(moon) for moon in self._moons]
            terms = [term._replace(moment=moved(term.moment)) for term in self._terms]
            if self._month_names(moons, terms) != names:
                found.append(instant)
        return found

    @staticmethod
    def _month_names(moons, terms):
        return [(lunar.year, lunar.month, lunar.leap)
                for lunar in dates_by_rule(moons, terms, 0) if lunar.day == 15]

    def errors(self):
        """The largest difference from the ephemeris, in seconds: of new moons, of terms."""
        def largest(instants, moments):
            local = [moment for moment in moments if 0 <= moment < DAYS]
            return max(abs((instant.day - moment) * SECONDS_PER_DAY + instant.second)
                       for instant, moment in zip(instants, local, strict=True))

        return (largest(self.new_moons, self._moons),
                largest(self.terms, [term.moment for term in self._terms]))


def almanacs(path, ephemeris):
    """One for each published calendar."""
    library = Library(path)
    return [Almanac(library, calendar, ephemeris) for calendar in CALENDARS]
