# SPDX-License-Identifier: MIT
"""The dates of the 24 solar terms of a year, and the lookup of a single day.

The Sun's longitude here is a series of its own, with a correction that the lunar side does not
apply; the two are kept apart.
"""

from math import cos, floor

from .arithmetic import remainder, truncate
from .longitudes import DEGREE

NO_TERM = -1
DAYS_OF_MONTH = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)

# Amplitude, rate and phase; the amplitudes of terms 0 and 4 grow with time.
SERIES = (
    (36000.7695, 0.0, 0.0), (280.4659, 0.0, 0.0), (1.9147, 35999.05, 267.52),
    (0.02, 71998.1, 265.1), (-0.0048, 35999.0, 268.0), (0.002, 32964.0, 158.0),
    (0.0018, 19.0, 159.0), (0.0018, 445267.0, 208.0), (0.0015, 45038.0, 254.0),
    (0.0013, 22519.0, 352.0), (0.0007, 65929.0, 45.0), (0.0007, 3035.0, 110.0),
    (0.0007, 9038.0, 64.0), (0.0006, 33718.0, 316.0), (0.0005, 155.0, 118.0),
    (0.0005, 2281.0, 221.0), (0.0004, 29930.0, 48.0), (0.0004, 31557.0, 161.0),
)
GROWING_TERMS = (0, 4)


def is_leap(year):
    """The Julian leap rule up to 1582, the Gregorian one after."""
    year = truncate(year)
    if year > 1582 and remainder(year, 100) == 0:
        return remainder(year, 400) == 0
    return remainder(year, 4) == 0


def month_lengths(year):
    """The lengths of the twelve months of a year."""
    february = 29 if is_leap(year) else 28
    return (31, february) + DAYS_OF_MONTH[2:]


def days_to_month_day(year, day_of_year):
    """Month times 100 plus day of a day of the year; the year has no end in December."""
    lengths = month_lengths(year)
    for month in range(12, 1, -1):
        first = 1 + sum(lengths[: month - 1])
        if first <= day_of_year:
            return float(month * 100 + (day_of_year - first + 1))
    return float(100 + day_of_year)


def day_number(year, month, day):
    """The day number of a date: the Julian day number of its noon minus 1."""
    number = floor((year - 1) * 365.25 + 0.1) + 1721422.0
    number += sum(month_lengths(year)[: truncate(month) - 1])
    number += day
    if number >= 2299160.0:
        number -= 10
    if year - 1 >= 1600:
        x = year - 1 - 1600 + 0.1
        number = number - floor(x / 100) + floor(x / 400)
    return number


def delta_t(year):
    """Dynamical time minus universal time in seconds."""
    return (year - 1990) * 0.44 + 58


def mean_series(t):
    """The sum of the series in degrees within one turn, ``t`` days from the epoch."""
    centuries = t / 36525
    total = 0.0
    for i in range(len(SERIES) - 1, -1, -1):
        amplitude, rate, phase = SERIES[i]
        if i in GROWING_TERMS:
            amplitude *= centuries
        total += amplitude * cos((centuries * rate + phase) * DEGREE)
    return total - floor(total / 360) * 360


def apparent_longitude(t):
    """The Sun's apparent longitude within [0, 360), ``t`` days from the epoch."""
    longitude = mean_series(t) + 0.0048 * cos((t * 1934 / 36525 + 145) * DEGREE) - 0.0057
    while longitude < 0:
        longitude += 360
    while longitude >= 360:
        longitude -= 360
    return longitude


def days_of_longitude(year, longitude):
    """The day of the year, with its fraction, at which the Sun first reaches a longitude."""
    start = day_number(year, 1, 0) - 2451544.5
    at_start = apparent_longitude(start)
    wrap = -360.0 if at_start > longitude else 0.0
    k = float(floor((longitude - at_start - wrap) * 0.9))
    previous = at_start
    while True:
        now = apparent_longitude(start + k)
        before = previous + wrap if now < previous else previous
        if now >= longitude > before:
            break
        previous = now
        k += 1.0
    slope = now - before
    k += (longitude - now) / slope
    return k + (longitude - apparent_longitude(start + k)) / slope


class SolarTerms:
    """Solar terms in the zone of the date services."""

    def __init__(self, dates):
        self.dates = dates
        self._tables = {}

    def of_year(self, year):
        """Month and day of the 24 terms of a year, None outside 1800 to 2099.

        The tables are kept for speed alone; they depend on nothing but the year and the zone.
        """
        if not 1800 <= year <= 2099:
            return None
        key = (year, self.dates.zone_hours)
        if key not in self._tables:
            self._tables[key] = [self._term(float(year), i) for i in range(24)]
        return self._tables[key]

    def _term(self, year, index):
        longitude = 285.0 + 15.0 * index
        if longitude >= 360:
            longitude -= 360
        zone = self.dates.zone_hours / 24.0
        value = zone + days_of_longitude(year, longitude) - delta_t(year) / 86400
        month_day = days_to_month_day(year, floor(value))
        return floor(month_day / 100), remainder(truncate(month_day), 100)

    def check(self, year, month, day):
        """The term that falls on a local civil date, or -1."""
        for term, found in enumerate(self.of_year(year) or ()):
            if found == (month, day):
                return term
        return NO_TERM
