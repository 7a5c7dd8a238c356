# SPDX-License-Identifier: MIT
"""Festivals of the Gregorian and of the lunisolar calendar by language."""

from .date_services import SolarDate
from .festival_rules import FestivalRules
from .week_number import MONDAY, SATURDAY, SUNDAY, THURSDAY

NO_FESTIVAL = 0

CHS, KOR, USA, CHT, RUS, DEU, JPN, ENG, VIT, THA = range(1, 11)

THANKSGIVING = 1009
INDEPENDENCE_DAY = 4000
EASTER = 4003
GOOD_FRIDAY = 4004
LUNAR_EVE = 20009

COMMON_DAYS = {
    (1, 1): 1000,
    (3, 8): 1001,
    (4, 1): 1002,
    (4, 7): 1003,
    (4, 22): 1004,
    (5, 1): 1005,
    (5, 31): 1007,
    (10, 31): 1008,
    (12, 24): 1010,
    (12, 25): 1011,
    (12, 31): 1012,
}

# Fixed month and day by language; they come before the weekday rules of the same month.
FIXED_DAYS = {
    CHS: {
        (2, 14): 1014,
        (3, 12): 1013,
        (3, 15): 2000,
        (5, 4): 2001,
        (6, 1): 1006,
        (7, 1): 2002,
        (8, 1): 2003,
        (9, 10): 1017,
        (10, 1): 2004,
    },
    KOR: {
        (3, 1): 3000,
        (4, 5): 1013,
        (5, 5): 3001,
        (6, 6): 3002,
        (8, 15): 3003,
        (10, 3): 3004,
        (10, 9): 3005,
        (12, 25): 3006,
    },
    CHT: {
        (2, 14): 1014,
        (2, 28): 2005,
        (3, 12): 1013,
        (4, 4): 1006,
        (8, 8): 1016,
        (9, 28): 1017,
        (10, 10): 2006,
    },
    RUS: {(6, 1): 1006},
    DEU: {(6, 1): 1006, (9, 20): 1006},
    JPN: {
        (1, 1): 5000,
        (2, 11): 5002,
        (3, 3): 5003,
        (4, 29): 5004,
        (5, 3): 5005,
        (5, 4): 5006,
        (5, 5): 5007,
        (11, 3): 5011,
        (11, 23): 5012,
        (12, 23): 5013,
    },
    ENG: {(7, 14): 1006},
    VIT: {(1, 1): 1000, (4, 30): 6000, (5, 19): 6001, (6, 1): 1006, (9, 2): 6002},
}

# Month: (n-th, weekday, festival).
WEEKDAY_RULES = {
    CHS: {5: (2, SUNDAY, 1015), 6: (3, SUNDAY, 1016)},
    CHT: {5: (2, SUNDAY, 1015)},
    USA: {1: (3, MONDAY, 4001), 6: (1, SUNDAY, 1006), 9: (1, MONDAY, 4002)},
    JPN: {
        1: (2, MONDAY, 5001),
        7: (3, MONDAY, 5008),
        9: (3, MONDAY, 5009),
        10: (2, MONDAY, 5010),
    },
    THA: {1: (2, SATURDAY, 1006)},
}

CHINESE_LUNAR_DAYS = {
    (1, 1): 20000,
    (1, 15): 20001,
    (5, 5): 20002,
    (7, 7): 20003,
    (7, 15): 20004,
    (8, 15): 20005,
    (9, 9): 20006,
    (12, 8): 20007,
}
LUNAR_DAYS = {
    CHS: CHINESE_LUNAR_DAYS | {(12, 23): 20008},
    CHT: CHINESE_LUNAR_DAYS,
    KOR: {(4, 8): 20010, (8, 15): 20005, (1, 1): 20000},
    VIT: {
        (1, 1): 20000,
        (1, 15): 20001,
        (3, 10): 20012,
        (5, 5): 20002,
        (7, 15): 20004,
        (8, 15): 20005,
        (9, 9): 20006,
    },
}
LANGUAGES_WITH_EVE = (CHS, CHT, VIT)


class Festivals:
    """Festival codes of a date; ``lunar_date`` gives the lunar date of a day."""

    def __init__(self, dates, lunar_date):
        self.dates = dates
        self.lunar_date = lunar_date
        self.rules = FestivalRules(dates)

    def solar(self, language, date):
        """The festival of the language, else the common one, else 0."""
        if language == USA:
            found = self.solar_usa(date)
        else:
            found = self.solar_by_tables(language, date)
        return found or self.solar_common(date)

    def falls_on(self, date, rule):
        """Whether a weekday rule names the date's day."""
        n, weekday, _ = rule
        day = self.rules.nth_weekday(date.year, date.month, n, weekday)
        return day != -1 and day == date.day

    def solar_by_tables(self, language, date):
        """A fixed day of the language or a weekday rule of the month."""
        fixed = FIXED_DAYS.get(language, {}).get((date.month, date.day))
        if fixed:
            return fixed
        rule = WEEKDAY_RULES.get(language, {}).get(date.month)
        return rule[2] if rule and self.falls_on(date, rule) else NO_FESTIVAL

    def solar_usa(self, date):
        """Weekday rules in three months, Easter and Good Friday in the others.

        Easter is only known from the second question about a year in a row.
        """
        easter = self.rules.easter_if_asked_before(date.year) or (0, 0)
        good_friday = self.rules.good_friday(date.year)
        if (date.month, date.day) == (7, 4):
            return INDEPENDENCE_DAY
        rule = WEEKDAY_RULES[USA].get(date.month)
        if rule:
            return rule[2] if self.falls_on(date, rule) else NO_FESTIVAL
        if (date.month, date.day) == easter:
            return EASTER
        return GOOD_FRIDAY if (date.month, date.day) == good_friday else NO_FESTIVAL

    def solar_common(self, date):
        """The festivals that all languages share."""
        if date.month == 11 and self.falls_on(date, (4, THURSDAY, THANKSGIVING)):
            return THANKSGIVING
        return COMMON_DAYS.get((date.month, date.day), NO_FESTIVAL)

    def lunar(self, language, date):
        """The lunar festival of a day, 0 for none and in leap months."""
        if language not in LUNAR_DAYS:
            return NO_FESTIVAL
        lunar = self.lunar_date(date)
        if lunar.leap:
            return NO_FESTIVAL
        found = LUNAR_DAYS[language].get((lunar.month, lunar.day))
        if found:
            return found
        if lunar.month == 12 and language in LANGUAGES_WITH_EVE:
            next_day = self.lunar_date(SolarDate(*self.dates.shifted(*date.ymd, 1)))
            if (next_day.month, next_day.day) == (1, 1):
                return LUNAR_EVE
        return NO_FESTIVAL
