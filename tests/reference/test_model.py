# SPDX-License-Identifier: MIT
"""The reference model against published facts.

The differential tests compare the model with the library, call by call; what is held here is what
neither of them says: the world's own dates.
"""

import os
import unittest
from datetime import date, timedelta

from model import Engine, festival_rules, longitudes, week_number
from model.date_services import DateServices, local_midnight


def engine_with_zone(hours):
    """A fresh engine with a settled zone value for annotations."""
    os.environ["TZ"] = "UTC"
    engine = Engine(DateServices(lambda: local_midnight(2024, 3, 10)))
    engine.logic.dates.zone_hours = hours
    return engine


class WeekNumberTest(unittest.TestCase):
    def test_iso_weeks_of_every_day(self):
        day = date(1900, 1, 1)
        while day.year < 2100:
            week = week_number.iso_week(day.year, day.month, day.day)
            self.assertEqual(week, day.isocalendar()[1], day)
            day += timedelta(days=1)


class LongitudesTest(unittest.TestCase):
    def at(self, *moment):
        """Centuries of a moment in universal time."""
        return (longitudes.day_count(*moment) + 0.5 - 2451545) / 36525

    def test_day_counts_are_julian_dates(self):
        self.assertEqual(longitudes.day_count(2000, 1, 1) + 0.5, 2451544.5)
        self.assertEqual(longitudes.date_and_time(2451544.0), (2000, 1, 1, 0, 0, 0))

    def test_spring_equinox_of_2024(self):
        sun = longitudes.sun_longitude(self.at(2024, 3, 20, 3, 6))
        self.assertAlmostEqual((sun + 180) % 360, 180, delta=0.02)

    def test_new_moon_of_february_2024(self):
        t = self.at(2024, 2, 9, 22, 59)
        ahead = longitudes.moon_longitude(t) - longitudes.sun_longitude(t)
        self.assertAlmostEqual(ahead, 0, delta=0.05)


class LunarTest(unittest.TestCase):
    def test_new_years_of_china(self):
        engine = engine_with_zone(8)
        for day in ((1985, 2, 20), (2000, 2, 5), (2012, 1, 23), (2020, 1, 25), (2023, 1, 22),
                    (2024, 2, 10), (2025, 1, 29), (2026, 2, 17)):
            record = engine.converter_lunar_with_date((*day, 0))
            self.assertEqual(record, (day[0], 1, 1, 0, 0))

    def test_leap_months_of_china(self):
        engine = engine_with_zone(8)
        for day, expected in (((2020, 5, 23, 0), (2020, 4, 1, 0, 1)),
                              ((2023, 3, 22, 0), (2023, 2, 1, 0, 1)),
                              ((2023, 4, 20, 0), (2023, 3, 1, 0, 0))):
            self.assertEqual(engine.converter_lunar_with_date(day), expected)

    def test_solar_terms(self):
        """Published dates; hours are rounded."""
        for year, zone, term, expected in (
            (2024, 8, 0, (1, 6, 5)), (2024, 8, 5, (3, 20, 11)), (2024, 8, 11, (6, 21, 5)),
            (2024, 8, 17, (9, 22, 21)), (2024, 8, 23, (12, 21, 17)), (2023, 8, 5, (3, 21, 5)),
            (2024, 0, 11, (6, 20, 21)),
        ):
            entry = engine_with_zone(zone).logic.solar_terms.of_year(year)[term]
            self.assertEqual((entry.month, entry.day, entry.hour), expected)


class FestivalRulesTest(unittest.TestCase):
    def test_easter(self):
        for year, expected in ((1818, (3, 22)), (1943, (4, 25)), (2000, (4, 23)), (2008, (3, 23)),
                               (2024, (3, 31)), (2025, (4, 20)), (2038, (4, 25))):
            self.assertEqual(festival_rules.easter_of_any_year(year), expected)

    def test_two_methods_for_easter_agree(self):
        for year in range(1583, 2300):
            self.assertEqual(
                festival_rules.easter_by_centuries(year), festival_rules.easter_of_any_year(year)
            )

    def test_nth_weekdays(self):
        os.environ["TZ"] = "UTC"
        rules = festival_rules.FestivalRules(DateServices())
        self.assertEqual(rules.nth_weekday(2023, 11, 4, 4), 23)  # Thanksgiving Day
        self.assertEqual(rules.nth_weekday(2024, 5, 2, 0), 12)  # Mother's Day


if __name__ == "__main__":
    unittest.main()
