# SPDX-License-Identifier: MIT
"""Today's date, date normalisation and day offsets on the C library's own time functions.

The calls go to the C library directly, not through Python's ``time`` module, which refuses some
values that the C functions accept.
"""

import ctypes
from datetime import date
from typing import NamedTuple

from .arithmetic import INT32_MAX, INT32_MIN, quotient, wrap32

ZONE_UNKNOWN = 10000
SECONDS_PER_DAY = 86400
DAYS_OF_400_YEARS = 146097
EPOCH = date(1970, 1, 1).toordinal()


class SolarDate(NamedTuple):
    """A Gregorian date; the day of week counts from 0 = Sunday."""

    year: int = 0
    month: int = 0
    day: int = 0
    day_of_week: int = 0

    @property
    def ymd(self):
        """Year, month and day without the day of week."""
        return self[:3]


class BrokenDownTime(ctypes.Structure):
    """The C library's ``struct tm``."""

    _fields_ = [
        ("tm_sec", ctypes.c_int),
        ("tm_min", ctypes.c_int),
        ("tm_hour", ctypes.c_int),
        ("tm_mday", ctypes.c_int),
        ("tm_mon", ctypes.c_int),
        ("tm_year", ctypes.c_int),
        ("tm_wday", ctypes.c_int),
        ("tm_yday", ctypes.c_int),
        ("tm_isdst", ctypes.c_int),
        ("tm_gmtoff", ctypes.c_long),
        ("tm_zone", ctypes.c_char_p),
    ]

    def solar_date(self):
        """The date part of the record."""
        return SolarDate(wrap32(self.tm_year + 1900), self.tm_mon + 1, self.tm_mday, self.tm_wday)


_libc = ctypes.CDLL(None)
_libc.time.argtypes = [ctypes.c_void_p]
_libc.time.restype = ctypes.c_long
_libc.mktime.argtypes = [ctypes.POINTER(BrokenDownTime)]
_libc.mktime.restype = ctypes.c_long
_libc.localtime.argtypes = [ctypes.POINTER(ctypes.c_long)]
_libc.localtime.restype = ctypes.POINTER(BrokenDownTime)


def system_clock():
    """Seconds since the epoch."""
    return _libc.time(None)


def local_midnight(year, month, day, daylight_saving=0):
    """Seconds of a possibly out-of-range date at 00:00, -1 when it cannot be represented."""
    record = BrokenDownTime(
        tm_mday=wrap32(day),
        tm_mon=wrap32(month - 1),
        tm_year=wrap32(year - 1900),
        tm_isdst=daylight_saving,
    )
    return _libc.mktime(ctypes.byref(record))


def broken_down(seconds):
    """The local broken-down time of an instant, or None."""
    record = _libc.localtime(ctypes.byref(ctypes.c_long(seconds)))
    return record.contents if record else None


def civil_date(seconds):
    """The date of an instant in UTC, or None; years of any size repeat those of 1 to 400."""
    cycles, days = divmod(seconds // SECONDS_PER_DAY + EPOCH - 1, DAYS_OF_400_YEARS)
    day = date.fromordinal(days + 1)
    year = day.year + 400 * cycles
    if not INT32_MIN <= year - 1900 <= INT32_MAX:
        return None
    return SolarDate(wrap32(year), day.month, day.day, day.isoweekday() % 7)


def civil_midnight(year, month, day):
    """``local_midnight`` as it is in UTC, without a clock."""
    carried, month_from_zero = divmod(wrap32(month - 1), 12)
    cycles, year_of_cycle = divmod(wrap32(year - 1900) + 1900 + carried - 1, 400)
    first = date(year_of_cycle + 1, month_from_zero + 1, 1).toordinal() + DAYS_OF_400_YEARS * cycles
    seconds = (first + wrap32(day) - 1 - EPOCH) * SECONDS_PER_DAY
    return -1 if civil_date(seconds) is None else seconds


class DateServices:
    """The date services together with the zone value that the astronomy uses.

    ``civil`` tells whether days are counted by the calendar alone; today never is.
    """

    def __init__(self, clock=system_clock):
        self.clock = clock
        self.zone_hours = ZONE_UNKNOWN
        self.civil = False

    def today(self):
        """Today's local date; the first call also settles a zone value that is still unknown."""
        record = broken_down(self.clock())
        if record is None:
            return SolarDate()
        date = record.solar_date()
        if self.zone_hours == ZONE_UNKNOWN:
            self.zone_hours = quotient(record.tm_gmtoff, 3600)
        return date

    def normalised(self, year, month, day):
        """The date with out-of-range fields carried over, and its day of week."""
        return self._counted(year, month, day, 0) or SolarDate(year, month, day)

    def shifted(self, year, month, day, offset_days):
        """The date ``offset_days`` later; all zero when the platform cannot tell."""
        return self._counted(year, month, day, offset_days) or SolarDate()

    def _counted(self, year, month, day, offset_days):
        """The date ``offset_days`` later, or None."""
        seconds = wrap32(offset_days * SECONDS_PER_DAY)
        if self.civil:
            return civil_date(civil_midnight(year, month, day) + seconds)
        record = broken_down(local_midnight(year, month, day) + seconds)
        return None if record is None else record.solar_date()
