# SPDX-License-Identifier: MIT
"""Festivals of the Gregorian and of the lunisolar calendar by language."""

import re
import sys
from pathlib import Path

from .date_services import SolarDate
from .festival_rules import FestivalRules
from .week_number import MONDAY, SATURDAY, SUNDAY, THURSDAY

sys.path.insert(0, str(Path(__file__).resolve().parents[3] / "scripts" / "lib"))
import interface  # noqa: E402

NO_FESTIVAL = 0

CHS, KOR, USA, CHT, RUS, DEU, JPN, ENG, VIT, THA = range(1, 11)

HEADERS = interface.read(*interface.ENGINE_HEADERS)


def codes(typedef):
    """The codes of a typedef by their names without it."""
    return {each.name[len(typedef) :]: each.value for each in HEADERS.constants_of(typedef)}


SOLAR, LUNAR = codes("EFestivalSolar"), codes("EFestivalLunar")


def days(text, names):
    """The festivals by month and day of a text such as "1-1 NewYearsDay, 3-8 WomensDay"."""
    found = re.findall(r"(\d+)-(\d+) (\w+)", text)
    return {(int(month), int(day)): names[name] for month, day, name in found}


COMMON_DAYS = days(
    "1-1 NewYearsDay, 3-8 WomensDay, 4-1 AprilFoolsDay, 4-7 HealthDay, 4-22 EarthDay, "
    "5-1 LabourDay, 5-31 NoTobaccoDay, 10-31 Halloween, 12-24 ChristmasEve, 12-25 ChristmasDay, "
    "12-31 NewYearsEve",
    SOLAR,
)

# Fixed month and day by language; they come before the weekday rules of the same month.
FIXED_DAYS = {
    CHS: (
        "2-14 ValentinesDay, 3-12 ArborDay, 3-15 ConsumerRightsDay, 5-4 YouthDay, "
        "6-1 ChildrensDay, 7-1 PartyFoundationDay, 8-1 ArmyDay, 9-10 TeachersDay, "
        "10-1 NationalDayChs"
    ),
    KOR: (
        "3-1 IndependenceMovementDay, 4-5 ArborDay, 5-5 ChildrensDayKor, 6-6 MemorialDayKor, "
        "8-15 LiberationDayKor, 10-3 NationalFoundationDayKor, 10-9 HangulDay, 12-25 ChristmasKor"
    ),
    CHT: (
        "2-14 ValentinesDay, 2-28 PeaceMemorialDay, 3-12 ArborDay, 4-4 ChildrensDay, "
        "8-8 FathersDay, 9-28 TeachersDay, 10-10 NationalDayCht"
    ),
    RUS: "6-1 ChildrensDay",
    DEU: "6-1 ChildrensDay, 9-20 ChildrensDay",
    JPN: (
        "1-1 Ganjitsu, 2-11 FoundationDayJpn, 3-3 Hinamatsuri, 4-29 ShowaDay, "
        "5-3 ConstitutionDayJpn, 5-4 GreeneryDay, 5-5 ChildrensDayJpn, 11-3 CultureDay, "
        "11-23 LabourThanksgivingDay, 12-23 EmperorsBirthday"
    ),
    ENG: "7-14 ChildrensDay",
    VIT: (
        "1-1 NewYearsDay, 4-30 ReunificationDay, 5-19 HoChiMinhsBirthday, 6-1 ChildrensDay, "
        "9-2 NationalDayVit"
    ),
}
FIXED_DAYS = {language: days(text, SOLAR) for language, text in FIXED_DAYS.items()}

# Month: (n-th, weekday, festival).
WEEKDAY_RULES = {
    CHS: {5: (2, SUNDAY, SOLAR["MothersDay"]), 6: (3, SUNDAY, SOLAR["FathersDay"])},
    CHT: {5: (2, SUNDAY, SOLAR["MothersDay"])},
    USA: {
        1: (3, MONDAY, SOLAR["MartinLutherKingDay"]),
        6: (1, SUNDAY, SOLAR["ChildrensDay"]),
        9: (1, MONDAY, SOLAR["LaborDayUsa"]),
    },
    JPN: {
        1: (2, MONDAY, SOLAR["ComingOfAgeDay"]),
        7: (3, MONDAY, SOLAR["MarineDay"]),
        9: (3, MONDAY, SOLAR["RespectForTheAgedDay"]),
        10: (2, MONDAY, SOLAR["SportsDay"]),
    },
    THA: {1: (2, SATURDAY, SOLAR["ChildrensDay"])},
}

LUNAR_DAYS = {
    CHS: (
        "1-1 NewYearsDay, 1-15 LanternFestival, 5-5 DragonBoat, 7-7 DoubleSeventh, "
        "7-15 GhostFestival, 8-15 MidAutumn, 9-9 DoubleNinth, 12-8 Laba, 12-23 LittleNewYear"
    ),
    CHT: (
        "1-1 NewYearsDay, 1-15 LanternFestival, 5-5 DragonBoat, 7-7 DoubleSeventh, "
        "7-15 GhostFestival, 8-15 MidAutumn, 9-9 DoubleNinth, 12-8 Laba"
    ),
    KOR: "1-1 NewYearsDay, 4-8 BuddhasBirthday, 8-15 MidAutumn",
    VIT: (
        "1-1 NewYearsDay, 1-15 LanternFestival, 3-10 HungKings, 5-5 DragonBoat, "
        "7-15 GhostFestival, 8-15 MidAutumn, 9-9 DoubleNinth"
    ),
}
LUNAR_DAYS = {language: days(text, LUNAR) for language, text in LUNAR_DAYS.items()}
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
            return SOLAR["IndependenceDay"]
        rule = WEEKDAY_RULES[USA].get(date.month)
        if rule:
            return rule[2] if self.falls_on(date, rule) else NO_FESTIVAL
        if (date.month, date.day) == easter:
            return SOLAR["Easter"]
        return SOLAR["GoodFriday"] if (date.month, date.day) == good_friday else NO_FESTIVAL

    def solar_common(self, date):
        """The festivals that all languages share."""
        if date.month == 11 and self.falls_on(date, (4, THURSDAY, None)):
            return SOLAR["Thanksgiving"]
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
                return LUNAR["NewYearsEve"]
        return NO_FESTIVAL
