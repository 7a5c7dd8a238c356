# SPDX-License-Identifier: MIT
"""From a Gregorian date to a date of the lunisolar calendar."""

from dataclasses import dataclass
from typing import NamedTuple

from .arithmetic import truncate
from .longitudes import (
    day_count,
    day_count_fits,
    moon_longitude,
    normalised_angle,
    sun_longitude,
    year_and_month,
)

ONE_SECOND = 1.1574074074074073e-5
QUARTER = 90.0
PRINCIPAL_TERM = 30.0

# Searches settle within a few steps; those of days millions of years away may never do.
SEARCH_LIMIT = 5000

# 26 February to 27 March 2017 are the thirty days of the second month whatever the zone.
CORRECTED_DATES = {(2017, 2, 26 + i): i + 1 for i in range(3)}
CORRECTED_DATES.update({(2017, 3, 1 + i): i + 4 for i in range(27)})


class EndlessSearch(Exception):
    """A search for a solar point that does not settle."""


class LunarDate(NamedTuple):
    """A date of the lunisolar calendar; ``leap`` is 1 in a leap month."""

    year: int = 0
    month: int = 0
    day: int = 0
    reserved: int = 0
    leap: int = 0


class SolarPoint(NamedTuple):
    """The instant at which the Sun stood at a longitude."""

    time: float
    longitude: float


@dataclass
class LunarMonth:
    """A lunar month and the day count of its first day."""

    month: int
    leap: int
    start: int


class Instant:
    """A local time split into whole days and a fraction in universal time.

    The fraction is kept apart to save precision.
    """

    def __init__(self, count, zone_days):
        self.zone_days = zone_days
        self.whole = truncate(count)
        self.fraction = count - self.whole - zone_days

    def centuries(self):
        """Julian centuries from the epoch of the longitude series."""
        return (self.fraction + 0.5) / 36525 + (self.whole - 2451545) / 36525

    def go_back(self, days):
        """Move back by a correction and return the size of the step."""
        whole = truncate(days)
        fraction = days - whole
        self.whole -= whole
        self.fraction -= fraction
        if self.fraction < 0:
            self.fraction += 1.0
            self.whole -= 1
        return abs(whole + fraction)

    def local_time(self):
        """The day count in local time."""
        return self.zone_days + self.fraction + self.whole


class LunarConverter:
    """Places new moons and principal terms around a date and numbers the months by them."""

    def __init__(self, dates):
        self.dates = dates

    def instant(self, count):
        """A local day count in the zone of this moment."""
        return Instant(count, self.dates.zone_hours / 24.0)

    def last_solar_point(self, count, step):
        """The last time at which the Sun's longitude was a multiple of ``step``."""
        now = self.instant(count)
        target = step * truncate(sun_longitude(now.centuries()) / step)
        for _ in range(SEARCH_LIMIT):
            ahead = sun_longitude(now.centuries()) - target
            if ahead > 180:
                ahead -= 360
            elif ahead < -180:
                ahead += 360
            if now.go_back(ahead * 365.2 / 360) <= ONE_SECOND:
                return SolarPoint(now.local_time(), target)
        raise EndlessSearch

    def new_moon(self, count):
        """The new moon nearest before a time."""
        now = self.instant(count)
        for attempt in range(1, 32):
            t = now.centuries()
            sun = sun_longitude(t)
            moon = moon_longitude(t)
            ahead = moon - sun
            if attempt == 1 and ahead < 0:
                ahead = normalised_angle(ahead)
            elif 0 <= sun <= 20 and moon >= 300:
                ahead = 360 - normalised_angle(ahead)
            elif abs(ahead) > 40:
                ahead = normalised_angle(ahead)
            if now.go_back(ahead * 29.530589 / 360) <= ONE_SECOND:
                return now.local_time()
            if attempt == 15:
                now.whole = truncate(count - 26)
                now.fraction = 0.0
        return count + self.dates.zone_hours / 24.0

    def new_moons_around(self, first_point):
        """Five new moons, the first of them the last one not after the quarter point."""
        moons = [self.new_moon(first_point)]
        for _ in range(4):
            moon = self.new_moon(moons[-1] + 30)
            if abs(truncate(moons[-1]) - truncate(moon)) <= 26:
                moon = self.new_moon(moons[-1] + 35)
            moons.append(moon)
        if truncate(moons[1]) <= truncate(first_point):
            return moons[1:] + [self.new_moon(moons[4] + 35)]
        if truncate(moons[0]) > truncate(first_point):
            return [self.new_moon(moons[0] - 27)] + moons[:4]
        return moons

    def months_around(self, count):
        """The five lunar months from the one that holds the quarter point before a day."""
        points = [self.last_solar_point(count, QUARTER)]
        for _ in range(3):
            points.append(self.last_solar_point(points[-1].time + 32, PRINCIPAL_TERM))
        moons = self.new_moons_around(points[0].time)
        starts = [truncate(moon) for moon in moons]
        leap_wanted = starts[4] <= truncate(points[3].time)
        months = [LunarMonth(truncate(points[0].longitude / 30) + 2, 0, starts[0])]
        for k in range(1, 5):
            if leap_wanted and k >= 2:
                principal = truncate(points[k - 1].time)
                if principal <= starts[k - 1] or principal >= starts[k]:
                    months[k - 1] = LunarMonth(months[k - 2].month, 1, starts[k - 1])
                    leap_wanted = False
            following = months[k - 1].month + 1
            months.append(LunarMonth(1 if following == 13 else following, 0, starts[k]))
        return months

    def convert(self, date):
        """The lunar date of a Gregorian date.

        All zero where the day count leaves 32 bits or the search would not end.
        """
        if date.ymd in CORRECTED_DATES:
            return LunarDate(2017, 2, CORRECTED_DATES[date.ymd])
        if not day_count_fits(*date.ymd):
            return LunarDate()
        try:
            return self.convert_by_months(date)
        except EndlessSearch:
            return LunarDate()

    def convert_by_months(self, date):
        """The lunar date of a Gregorian date by the months around it."""
        count = day_count(*date.ymd)
        today = truncate(count)
        months = self.months_around(count)
        current = months[0]
        for month in months:
            if month.start <= today:
                current = month
            if month.start >= today:
                break
        year, gregorian_month = year_and_month(count)
        if current.month >= 10 and gregorian_month < current.month:
            year -= 1
        return LunarDate(year, current.month, today - current.start + 1, 0, current.leap)
