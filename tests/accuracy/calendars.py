# SPDX-License-Identifier: MIT
"""Lunisolar calendars of the days from 1900 to 2099: by an ephemeris, by the library, by ICU.

Days are numbered from 0, 1900-01-01, in whatever zone is spoken of. Moments are days from
1900-01-01 0h universal time, so that a moment lies on the local day floor(moment + zone / 24).
A zone is a number of whole hours east of universal time.
"""
import bisect
import concurrent.futures
import ctypes
import ctypes.util
import itertools
import math
import multiprocessing
import os
import pathlib
import sys
import time
from datetime import date, timedelta
from typing import NamedTuple

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "reference"))
from library import Library  # noqa: E402 pylint: disable=wrong-import-position

FIRST_YEAR, LAST_YEAR = 1900, 2099
ORIGIN = date(FIRST_YEAR, 1, 1)
DAYS = (date(LAST_YEAR, 12, 31) - ORIGIN).days + 1
ZONES = range(-12, 15)
SECONDS_PER_DAY = 86400


class LunarDate(NamedTuple):
    """A date of a lunisolar calendar; ``year`` is the Gregorian one in which the lunar one began."""

    year: int
    month: int
    leap: int
    day: int


class Term(NamedTuple):
    """The moment at which the Sun reaches a longitude, a multiple of 15 degrees."""

    longitude: int
    moment: float


class CalendarError(Exception):
    """A calendar or an ephemeris that gives no answer."""


def day_number(year, month, day):
    """The number of a Gregorian day."""
    return (date(year, month, day) - ORIGIN).days


def day_of(number):
    """The Gregorian day of a number."""
    return ORIGIN + timedelta(days=number)


def local_day(moment, zone):
    """The number of the local day of a moment."""
    return math.floor(moment + zone / 24)


# The ephemeris

EPHEMERIS_FLAGS = 4  # SEFLG_MOSEPH, the built-in ephemeris
SUN, MOON = 0, 1
LUNATION = 29.530589
YEAR = 365.2422
SETTLED = 1e-7  # days, under a hundredth of a second


class Ephemeris:
    """New moons and solar terms, from a year before the first day to a year after the last."""

    FIRST_MOMENT, LAST_MOMENT = -500.0, DAYS + 500.0
    JULIAN_DATE_OF_ORIGIN = 2415020.5

    def __init__(self):
        self._swe = ctypes.CDLL(ctypes.util.find_library("swe"))
        self._swe.swe_deltat_ex.restype = ctypes.c_double
        self._swe.swe_deltat_ex.argtypes = [ctypes.c_double, ctypes.c_int32, ctypes.c_char_p]
        self._swe.swe_calc.argtypes = [ctypes.c_double, ctypes.c_int, ctypes.c_int32,
                                       ctypes.POINTER(ctypes.c_double), ctypes.c_char_p]
        self._position = (ctypes.c_double * 6)()
        self._error = ctypes.create_string_buffer(256)
        text = ctypes.create_string_buffer(256)
        self._swe.swe_version(text)
        self.version = text.value.decode()
        self.new_moons = self._new_moons()
        self.terms = self._terms()

    def longitude(self, body, moment):
        """The apparent ecliptic longitude in degrees."""
        universal = moment + self.JULIAN_DATE_OF_ORIGIN
        dynamical = universal + self._swe.swe_deltat_ex(universal, EPHEMERIS_FLAGS, self._error)
        if self._swe.swe_calc(dynamical, body, EPHEMERIS_FLAGS, self._position, self._error) < 0:
            raise CalendarError(self._error.value.decode())
        return self._position[0]

    @staticmethod
    def _settle(moment, period, excess):
        """The moment next to a guess at which the excess, which grows by 360 a period, is 0."""
        for _ in range(50):
            change = -math.remainder(excess(moment), 360) * period / 360
            moment += change
            if abs(change) < SETTLED:
                return moment
        raise CalendarError("the search in the ephemeris does not settle")

    def _new_moons(self):
        moments = []
        guess = self.FIRST_MOMENT
        while guess < self.LAST_MOMENT:
            moments.append(self._settle(guess, LUNATION, lambda moment: (
                self.longitude(MOON, moment) - self.longitude(SUN, moment))))
            guess = moments[-1] + LUNATION
        return moments

    def _terms(self):
        terms = []
        guess = self.FIRST_MOMENT
        longitude = 15 * int(self.longitude(SUN, guess) / 15)
        while guess < self.LAST_MOMENT:
            moment = self._settle(guess, YEAR, lambda moment, degrees=longitude: (
                self.longitude(SUN, moment) - degrees))
            terms.append(Term(longitude, moment))
            longitude = (longitude + 15) % 360
            guess = moment + YEAR / 24
        return terms

    def dates(self, zone):
        """The calendar of a zone by this ephemeris."""
        return dates_by_rule(self.new_moons, self.terms, zone)


# The rule

WINTER_SOLSTICE = 270


def dates_by_rule(new_moons, terms, zone):
    """The calendar that follows from new moons and solar terms.

    A month begins on the day of a new moon. The month of the winter solstice is the 11th; where 13
    months begin from one to the next, the first of them without a principal term is leap.
    """
    starts = [local_day(moment, zone) for moment in new_moons]
    principal = {}
    for term in terms:
        if term.longitude % 30 == 0:
            month = bisect.bisect_right(starts, local_day(term.moment, zone)) - 1
            principal.setdefault(month, []).append(term.longitude)
    solstices = [k for k in range(len(starts)) if WINTER_SOLSTICE in principal.get(k, ())]
    names = {}
    for first, following in itertools.pairwise(solstices + [len(starts)]):
        names |= _names_of_solstice_year(first, following, principal)
    dates = []
    year = FIRST_YEAR - 1
    for month, (start, end) in enumerate(itertools.pairwise(starts)):
        if month not in names:
            continue
        number, leap = names[month]
        if (number, leap) == (1, 0):
            year = day_of(start).year
        dates += [LunarDate(year, number, leap, day - start + 1)
                  for day in range(max(start, 0), min(end, DAYS))]
    return dates


def _names_of_solstice_year(first, following, principal):
    """Number and leap flag of the months from one with the solstice up to the next."""
    leap = None
    if following - first == 13:
        leap = next((k for k in range(first, following) if k not in principal), None)
    names = {}
    number = 11
    for month in range(first, following):
        if month not in (first, leap):
            number = number % 12 + 1
        names[month] = (number, int(month == leap))
    return names


# The library


class Host(NamedTuple):
    """What a host of the library says, and the zone that its lunar dates are in by that."""

    language: int  # ELanguage
    zone: int


LANGUAGE_ENG, LANGUAGE_VIT = 8, 9
HOSTS = (Host(LANGUAGE_VIT, 7), Host(1, 8), Host(2, 9))  # Vit, Chs, Kor
OTHER_HOSTS = tuple(Host(LANGUAGE_ENG, zone) for zone in ZONES if zone not in (7, 8, 9))


class Answers(NamedTuple):
    """What the library answers for every day."""

    dates: list  # of LunarDate
    terms: list  # of (day, ESolarKyureki24)
    festivals: dict  # EFestivalLunar by day


def _answers(path, host):
    """Asks the library in this process, which is a fresh one."""
    os.environ["TZ"] = f"LOCAL{-host.zone}"  # counts hours west
    time.tzset()
    os.dup2(os.open(os.devnull, os.O_WRONLY), 1)  # boards are printed
    library = Library(path)
    library.call("InitCalendarLogicDt", host.language)
    dates, terms, festivals = [], [], {}
    for day in range(DAYS):
        record = (*day_of(day).timetuple()[:3], 0)
        year, month, of_month, _, leap = library.call("ConverterLunarWithDate", record)
        dates.append(LunarDate(year, month, leap, of_month))
        term = library.call("Check24SekkiWithDate", record)
        if term >= 0:
            terms.append((day, term))
        festival = library.call("CheckFestivalLunarWithLang", host.language, record)
        if festival:
            festivals[day] = festival
    return Answers(dates, terms, festivals)


def ask_library(path, hosts):
    """The answers for each host, from a process of its own."""
    with concurrent.futures.ProcessPoolExecutor(
            2, multiprocessing.get_context("spawn"), max_tasks_per_child=1) as pool:
        yield from pool.map(_answers, itertools.repeat(path), hosts)


# ICU

ICU_FIELDS = {"month": 2, "day": 5, "year": 19, "leap": 22}
# By zone: the locale, and the Gregorian year in which its year 1 began. The Chinese calendar
# reckons in UTC+8 for all times, the Korean one in UTC+9 from 1912 on and in UTC+8 before.
ICU_CALENDARS = {8: (b"zh_CN@calendar=chinese", -2636), 9: (b"ko_KR@calendar=dangi", -2332)}


class Icu:
    """ICU's lunisolar calendars."""

    def __init__(self):
        name = ctypes.util.find_library("icui18n")
        self._suffix = "_" + name.rsplit(".", maxsplit=1)[1]
        self._i18n = ctypes.CDLL(name)
        self._function("ucal_open").restype = ctypes.c_void_p
        self._status = ctypes.c_int(0)
        version = (ctypes.c_uint8 * 4)()
        self._function("u_getVersion")(version)
        self.version = f"{version[0]}.{version[1]}"

    def _function(self, name):
        return getattr(self._i18n, name + self._suffix)

    def dates(self, zone):
        """The calendar of a zone, or None where ICU has none."""
        if zone not in ICU_CALENDARS:
            return None
        locale, year_of_year_1 = ICU_CALENDARS[zone]
        status = ctypes.byref(self._status)
        gmt = "GMT".encode("utf-16-le")
        calendar = ctypes.c_void_p(self._function("ucal_open")(gmt, 3, locale, 0, status))
        set_time, get = self._function("ucal_setMillis"), self._function("ucal_get")
        year, month, leap, day = (ICU_FIELDS[name] for name in LunarDate._fields)
        dates = []
        for number in range(DAYS):
            noon = (number + ORIGIN.toordinal() - date(1970, 1, 1).toordinal() + 0.5) * 86400000
            set_time(calendar, ctypes.c_double(noon), status)
            dates.append(LunarDate(get(calendar, year, status) + year_of_year_1 - 1,
                                   get(calendar, month, status) + 1,
                                   get(calendar, leap, status), get(calendar, day, status)))
        self._function("ucal_close")(calendar)
        if self._status.value > 0:
            raise CalendarError(f"ICU answers with error {self._status.value}")
        return dates
