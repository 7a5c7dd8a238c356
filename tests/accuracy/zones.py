# SPDX-License-Identifier: MIT
"""One zone's calendars beside each other, and the moments by which the engine decides."""
import math
from functools import cached_property
from typing import NamedTuple

from calendars import DAYS, FIRST_YEAR, LAST_YEAR, CalendarError, Term, dates_by_rule, day_number
from calendars import local_day
from model import solar_terms
from model.date_services import DateServices
from model.lunar import PRINCIPAL_TERM, LunarConverter

DAY, MONTH, ONLY_YEAR = "day", "month", "year"
NEW_YEARS_EVE = 20009
# The thirty dates that the engine has fixed for every zone.
FIXED_DAYS = range(day_number(2017, 2, 26), day_number(2017, 3, 27) + 1)


class Span(NamedTuple):
    """Days in a row, ``last`` included, on which two calendars differ in the same manner."""

    first: int
    last: int
    kind: str  # what differs: DAY, or if not MONTH, or if not ONLY_YEAR

    @property
    def days(self):
        """The days themselves."""
        return range(self.first, self.last + 1)

    def agree(self, a, b):
        """Whether two calendars are the same on these days."""
        return a[self.first : self.last + 1] == b[self.first : self.last + 1]


def deviations(a, b):
    """The spans of days on which two calendars differ."""
    spans = []
    for day, (left, right) in enumerate(zip(a, b, strict=True)):
        if left == right:
            continue
        same_month = (left.month, left.leap) == (right.month, right.leap)
        kind = DAY if left.day != right.day else ONLY_YEAR if same_month else MONTH
        if spans and spans[-1].last == day - 1 and spans[-1].kind == kind:
            spans[-1] = spans[-1]._replace(last=day)
        else:
            spans.append(Span(day, day, kind))
    return spans


def count_days(spans):
    """The number of days in all."""
    return sum(len(span.days) for span in spans)


class EngineMoments:
    """The engine's moments next to true ones, in a zone. The library exports none of them; these
    are the reference model's, whose answers are the engine's."""

    DAY_COUNT_OF_ORIGIN = 2415020.0

    def __init__(self, zone):
        self._zone = zone
        dates = DateServices()
        dates.zone_hours = zone
        self._converter = LunarConverter(dates)

    def _count(self, moment):
        return moment + self.DAY_COUNT_OF_ORIGIN + self._zone / 24

    def _moment(self, count):
        return count - self.DAY_COUNT_OF_ORIGIN - self._zone / 24

    def new_moon(self, moment):
        """The new moon of the lunar dates.

        The search goes backward; from some starts around the spring equinox it misses the new moon
        next before, and the lunar dates then search again from later on. So does this.
        """
        for days_after in range(1, 16):
            found = self._moment(self._converter.new_moon(self._count(moment) + days_after))
            if abs(found - moment) < 1:
                return found
        raise CalendarError("the engine has no new moon next to a true one")

    def principal_term(self, term):
        """The principal term by which the lunar dates number months."""
        point = self._converter.last_solar_point(self._count(term.moment) + 1, PRINCIPAL_TERM)
        if round(point.longitude) % 360 != term.longitude:
            raise CalendarError("the engine has no principal term next to a true one")
        return Term(term.longitude, self._moment(point.time))

    @staticmethod
    def solar_term(year, longitude):
        """The solar term of a year that Check24SekkiWithDate() goes by."""
        days = solar_terms.days_of_longitude(float(year), float(longitude))
        return day_number(year, 1, 1) - 1 + days - solar_terms.delta_t(year) / 86400


class TermPair(NamedTuple):
    """A solar term by the ephemeris, and the day that the library has for it."""

    term: Term
    sekki: int  # ESolarKyureki24
    year: int
    day: int

    @property
    def engine_moment(self):
        """When it is for the engine."""
        return EngineMoments.solar_term(self.year, self.term.longitude)


class Zone:
    """The calendars of one zone."""

    def __init__(self, host, answers, ephemeris, icu=None):
        self.zone = host.zone
        self.answers = answers
        self.ephemeris = ephemeris
        self.moments = EngineMoments(self.zone)
        self.true_dates = ephemeris.dates(self.zone)
        self.engine = answers.dates
        self.icu = icu
        self.terms = self._pair_terms()

    def off(self, dates):
        """The spans on which a calendar of this zone is off the ephemeris."""
        return deviations(dates, self.true_dates)

    @cached_property
    def new_moons(self):
        """The engine's, one for each of the ephemeris."""
        return [self.moments.new_moon(moment) for moment in self.ephemeris.new_moons]

    @cached_property
    def principal_terms(self):
        """The engine's, one for each of the ephemeris."""
        return [self.moments.principal_term(term) for term in self.ephemeris.terms
                if term.longitude % 30 == 0]

    @cached_property
    def rule_dates(self):
        """The calendar by the rule from the engine's own moments."""
        return dates_by_rule(self.new_moons, self.principal_terms, self.zone)

    def _pair_terms(self):
        true_terms = [term for term in self.ephemeris.terms
                      if local_day(term.moment, self.zone) >= 0]
        count = (LAST_YEAR - FIRST_YEAR + 1) * 24
        pairs = []
        for number, (day, sekki) in enumerate(self.answers.terms):
            term = true_terms[number]
            if term.longitude != (285 + 15 * sekki) % 360 or sekki != number % 24:
                raise CalendarError("the engine's solar terms are not those of the ephemeris")
            pairs.append(TermPair(term, sekki, FIRST_YEAR + number // 24, day))
        if len(pairs) != count:
            raise CalendarError(f"the engine has {len(pairs)} solar terms instead of {count}")
        return pairs

    @property
    def terms_off(self):
        """The solar terms on another day than by the ephemeris."""
        return [pair for pair in self.terms if local_day(pair.term.moment, self.zone) != pair.day]

    def deciding_new_moon(self, span):
        """On which of two days a month begins: the new moon next to the midnight between them, by
        the ephemeris and by the engine."""
        midnight = span.first + 1 - self.zone / 24
        moment = min(self.ephemeris.new_moons, key=lambda moon: abs(moon - midnight))
        return moment, self.moments.new_moon(moment)

    def festivals_off(self):
        """Festivals on another day than by the ephemeris: code, month and day, the engine's day
        and the true one, None where there is none that year. New year's eves are left out, since
        they depend on new year's days."""
        codes = {}
        for day, code in self.answers.festivals.items():
            if code != NEW_YEARS_EVE:
                codes[self.engine[day].month, self.engine[day].day] = code
        engine_days = {(self.engine[day].year, code): day
                       for day, code in self.answers.festivals.items() if code != NEW_YEARS_EVE}
        true_days = {}
        for day, lunar in enumerate(self.true_dates):
            code = codes.get((lunar.month, lunar.day))
            if code is not None and not lunar.leap:
                true_days[lunar.year, code] = day
        names = {code: name for name, code in codes.items()}
        return [(key[1], names[key[1]], engine_days.get(key), true_days.get(key))
                for key in sorted(engine_days.keys() | true_days.keys())
                if engine_days.get(key) != true_days.get(key)]


def errors(pairs):
    """Number, median size and worst of errors in seconds, and the true moment of the worst.

    A pair is the true moment and the engine's; an error is above 0 where the engine's is later.
    """
    found = sorted(((engine - true) * 86400, true) for true, engine in pairs if 0 <= true < DAYS)
    found.sort(key=lambda error: abs(error[0]))
    seconds, moment = found[-1]
    return len(found), math.fabs(found[len(found) // 2][0]), seconds, moment
