#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the library's lunar dates and solar terms of 1900 to 2099 with an ephemeris and ICU.

    report.py LIBRARY

Prints the report, in Markdown, to the standard output; progress goes to the standard error output.
"""
import math
import sys

from almanac import almanacs
from calendars import DAYS, FIRST_YEAR, HOSTS, LAST_YEAR, OTHER_HOSTS, ZONES
from calendars import Ephemeris, Icu, ask_library, day_number, day_of
from zones import DAY, FIXED_DAYS, MONTH, Zone, count_days, deviations, errors

LANGUAGES = {7: " (Vit in its own country)", 8: " (Chs, Cht)", 9: " (Kor, Jpn)"}
CLOSE = 60  # seconds
DAYS_OF_2033 = range(day_number(2033, 7, 26), day_number(2034, 2, 20) + 1)
ICU_ZONE_BEFORE_1912 = 8  # of its Korean calendar


# Text


def zone_text(zone):
    """A zone by its number of hours."""
    return f"UTC{zone:+d}"


def span_text(days):
    """The first and the last of some days in a row."""
    return f"{day_of(days[0])} to {day_of(days[-1])}"


def clock_text(moment):
    """Date and time of day of a local moment."""
    day = math.floor(moment)
    seconds = int((moment - day) * 86400)
    return f"{day_of(day)} {seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"


def local_clock(moment, zone):
    """The same of a moment in universal time."""
    return clock_text(moment + zone / 24)


def lunar_text(lunar):
    """A lunar date in words."""
    return f"{lunar.year}, {'leap ' if lunar.leap else ''}month {lunar.month}, day {lunar.day}"


def day_text(day):
    """A day, or that there is none."""
    return "none" if day is None else str(day_of(day))


def print_table(title, headings, rows):
    """A table with columns of even width."""
    cells = [[str(cell) for cell in row] for row in (headings, *rows)]
    widths = [max(3, *map(len, column)) for column in zip(*cells, strict=True)]
    cells.insert(1, ["-" * width for width in widths])
    print(f"## {title}\n")
    for row in cells:
        print("|", " | ".join(map(str.ljust, row, widths)), "|")
    print()


# How much and how far


def in_short(zones):
    """The figures of a look."""
    print_table(
        "In short", ("zone", "lunar dates off", "these", "solar terms on another day"),
        [(zone_text(z.zone) + LANGUAGES[z.zone], f"{count_days(z.off(z.engine))} of {DAYS}",
          ", ".join(span_text(span.days) for span in z.off(z.engine)),
          f"{len(z.terms_off)} of {len(z.terms)}") for z in zones])


def elsewhere(others):
    """The range of the figures in the other zones."""
    def row(name, count):
        found = sorted((count(z), z.zone) for z in others)
        return (name, *(f"{number} in {zone_text(zone)}"
                        for number, zone in (found[0], found[len(found) // 2], found[-1])))

    print_table(f"In the other {len(others)} zones from UTC-12 to UTC+14",
                ("number of", "fewest", "in the middle", "most"),
                [row("lunar dates off", lambda z: count_days(z.off(z.engine))),
                 row("solar terms on another day", lambda z: len(z.terms_off))])


def summary(zones):
    """All counts."""
    def icu_days(zone, dates):
        """On how many dates that differ between engine and ICU one is off the ephemeris."""
        spans = deviations(zone.engine, zone.icu)
        return sum(len(span.days) for span in spans if not span.agree(dates, zone.true_dates))

    def row(name, count, of_icu=False):
        return (name, *("-" if of_icu and z.icu is None else count(z) for z in zones))

    print_table("Summary", ("number of", *(zone_text(z.zone) for z in zones)), [
        row("days compared", lambda z: len(z.engine)),
        row("lunar dates off the ephemeris", lambda z: count_days(z.off(z.engine))),
        row("lunar festivals off the ephemeris", lambda z: len(z.festivals_off())),
        row("lunar dates that differ from ICU",
            lambda z: count_days(deviations(z.engine, z.icu)), of_icu=True),
        row("- the engine off the ephemeris there", lambda z: icu_days(z, z.engine), of_icu=True),
        row("- ICU off the ephemeris there", lambda z: icu_days(z, z.icu),
            of_icu=True),
        row("solar terms compared", lambda z: len(z.terms)),
        row("solar terms on another day than by the ephemeris", lambda z: len(z.terms_off))])


def instants(zone):
    """How far the engine's moments are off."""
    ephemeris = zone.ephemeris
    principal = [term.moment for term in ephemeris.terms if term.longitude % 30 == 0]

    def row(name, pairs):
        count, median, worst, moment = errors(pairs)
        return name, count, f"{median:.0f}", f"{worst:.0f}", clock_text(moment)

    print_table(
        "Error of the instants in seconds, above 0 where the engine's is later",
        ("instants", "number", "median", "worst", "at the true instant (UTC)"),
        [row("new moons", zip(ephemeris.new_moons, zone.new_moons)),
         row("principal terms that number the months",
             zip(principal, (term.moment for term in zone.principal_terms))),
         row("the 24 solar terms", [(p.term.moment, p.engine_moment) for p in zone.terms])])


# What is off the ephemeris, and why


def cause(span, zone):
    """Why the engine's dates of a span are off."""
    if span.first in FIXED_DAYS and span.last in FIXED_DAYS:
        return "fixed dates"
    if span.kind == DAY:
        true, engine = zone.deciding_new_moon(span)
        return (f"new moon at {local_clock(true, zone.zone)}, "
                f"reckoned at {local_clock(engine, zone.zone)}")
    if span.kind == MONTH:
        if span.agree(zone.rule_dates, zone.true_dates):
            return "leap month, by numbering each quarter of the year apart"
        return "leap month, by a principal term on the other side of midnight"
    return "number of the year"


def lunar_deviations(title, zones):
    """Each span of days."""
    print_table(title, ("zone", "days", "number", "the first one", "by the ephemeris", "cause"),
                [(zone_text(z.zone), span_text(span.days), len(span.days),
                  lunar_text(z.engine[span.first]), lunar_text(z.true_dates[span.first]),
                  cause(span, z)) for z in zones for span in z.off(z.engine)])


def festival_deviations(zones):
    """Each festival."""
    print_table("Lunar festivals off the ephemeris",
                ("zone", "EFestivalLunar", "day", "by the ephemeris"),
                [(zone_text(z.zone), f"{code}: month {month}, day {day}", day_text(engine_day),
                  day_text(true_day))
                 for z in zones for code, (month, day), engine_day, true_day in z.festivals_off()])


def term_deviations(zones):
    """Each solar term."""
    print_table("Solar terms on another day than by the ephemeris",
                ("zone", "ESolarKyureki24", "true instant", "reckoned at"),
                [(zone_text(z.zone), f"{pair.sekki}: {pair.term.longitude} degrees",
                  local_clock(pair.term.moment, z.zone), local_clock(pair.engine_moment, z.zone))
                 for z in zones for pair in z.terms_off])


def months_of_2033(zones):
    """The months around the end of 2033, whose leap month the engine places by its own rule."""
    rows = []
    for day in DAYS_OF_2033:
        months = [("leap " if dates[day].leap else "") + str(dates[day].month)
                  for z in zones for dates in (z.engine, z.true_dates)]
        if not rows or rows[-1][1:] != months:
            rows.append([day_of(day), *months])
    headings = [f"{zone_text(z.zone)} {whose}" for z in zones for whose in ("engine", "ephemeris")]
    print_table("The months around the end of 2033", ("from", *headings), rows)


def fixed_dates(engine, ephemeris):
    """Where the dates hold that the engine has fixed for every zone."""
    rows = []
    for zone in ZONES:
        true_dates = ephemeris.dates(zone)
        off = sum(true_dates[day] != engine[day] for day in FIXED_DAYS)
        if rows and rows[-1][2] == off:
            rows[-1][1] = zone
        else:
            rows.append([zone, zone, off])
    print_table(f"The fixed dates from {span_text(FIXED_DAYS)}",
                ("zones", "fixed dates off the ephemeris"),
                [(f"{zone_text(first)} to {zone_text(last)}", off) for first, last, off in rows])


def close_new_moons(zones):
    """New moons so near midnight that seconds decide on which day the month begins."""
    rows = []
    for z in zones:
        for true, engine in zip(z.ephemeris.new_moons, z.new_moons, strict=True):
            local, reckoned = true + z.zone / 24, engine + z.zone / 24
            if abs(local - round(local)) * 86400 <= CLOSE and 0 <= local < DAYS:
                same = math.floor(local) == math.floor(reckoned)
                rows.append((zone_text(z.zone), clock_text(local), clock_text(reckoned),
                             "yes" if same else "no"))
    print_table(f"New moons within {CLOSE} seconds of midnight",
                ("zone", "new moon", "reckoned at", "same day"), rows)


# The engine beside itself in other zones, and beside ICU


def neighbours(zones):
    """How many dates differ between two zones."""
    print_table("Days on which the engine's lunar dates differ between two zones",
                ("zones", "days", "of"),
                [(f"{zone_text(a.zone)} and {zone_text(b.zone)}",
                  count_days(deviations(a.engine, b.engine)), DAYS)
                 for k, a in enumerate(zones) for b in zones[k + 1:]])


def new_years(zones):
    """Lunar new year's days that differ."""
    days = [{lunar.year: day_of(day) for day, lunar in enumerate(z.engine)
             if lunar[1:] == (1, 0, 1)} for z in zones]
    rows = [[by_year.get(year, "none") for by_year in days]
            for year in range(FIRST_YEAR, LAST_YEAR + 1)]
    print_table("Lunar new year's days that differ between the zones",
                [zone_text(z.zone) for z in zones], [row for row in rows if len(set(row)) > 1])


def side_of(span, zone, dates_of_icu_zone):
    """Whose dates of a span are those of the ephemeris."""
    icu = zone.icu
    if not span.agree(zone.engine, zone.true_dates):
        return "ICU" if span.agree(icu, zone.true_dates) else "neither"
    if (zone.zone != ICU_ZONE_BEFORE_1912 and day_of(span.first).year < 1912
            and span.agree(icu, dates_of_icu_zone)):
        return "the engine; ICU reckons in UTC+8 here"
    return "the engine"


def icu_deviations(zones):
    """Each span of days on which engine and ICU differ."""
    rows = []
    for z in zones:
        if z.icu:
            dates_of_icu_zone = z.ephemeris.dates(ICU_ZONE_BEFORE_1912)
            icu = z.icu
            rows += [(zone_text(z.zone), span_text(span.days), len(span.days),
                      lunar_text(z.engine[span.first]), lunar_text(icu[span.first]),
                      side_of(span, z, dates_of_icu_zone))
                     for span in deviations(z.engine, icu)]
    print_table("Lunar dates that differ from ICU",
                ("zone", "days", "number", "the first one", "in ICU", "the ephemeris sides with"),
                rows)


# The almanac


def almanac_in_short(found):
    """The figures of the almanac's calendars."""
    def off_text(days):
        return f"{len(days)} of {DAYS}" + (f": {span_text(days)}" if days else "")

    print_table("The almanac: off the ephemeris",
                ("calendar", "lunar dates off", "solar terms on another day",
                 "new moons off by at most", "terms off by at most"),
                [(each.calendar.name, off_text(each.days_off),
                  f"{len(each.terms_off)} of {len(each.terms)}",
                  *(f"{seconds:.1f} s" for seconds in each.errors())) for each in found])


def uncertain_days(found):
    """The almanac's instants that are too near midnight to be certain of the day."""
    def row(each, instant):
        away = min(instant.second, 86400 - instant.second)
        return (each.calendar.name, instant.text, instant.name, f"{away} s",
                f"{instant.uncertainty} s")

    print_table("The almanac: days that are not certain",
                ("calendar", "instant", "of", "from midnight", "uncertain by"),
                [row(each, instant) for each in found for instant in each.uncertain])


def progress(step):
    """Tells what comes next."""
    print(f"  {step}", file=sys.stderr, flush=True)


def main():
    """Compares and prints."""
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    progress("computing new moons and solar terms from the ephemeris")
    ephemeris = Ephemeris()
    progress("asking ICU for every day")
    icu = Icu()
    icu_dates = {host.zone: icu.dates(host.zone) for host in HOSTS}
    progress(f"asking the library for every day, in {len(HOSTS) + len(OTHER_HOSTS)} zones")
    answers = ask_library(sys.argv[1], HOSTS + OTHER_HOSTS)
    every = [Zone(host, answer, ephemeris, icu_dates.get(host.zone))
             for host, answer in zip(HOSTS + OTHER_HOSTS, answers)]
    zones, others = every[:len(HOSTS)], every[len(HOSTS):]
    progress("comparing")
    print(f"# Accuracy of lunar dates and solar terms, {FIRST_YEAR} to {LAST_YEAR}\n\n"
          f"Compared with Swiss Ephemeris {ephemeris.version} (its built-in ephemeris) and ICU "
          f"{icu.version}.\n")
    in_short(zones)
    elsewhere(others)
    summary(zones)
    instants(zones[1])
    lunar_deviations("Lunar dates off the ephemeris", zones)
    months_of_2033(zones)
    festival_deviations(zones)
    fixed_dates(zones[1].engine, ephemeris)
    close_new_moons(zones)
    term_deviations(zones)
    neighbours(zones)
    new_years(zones)
    icu_deviations(zones)
    lunar_deviations("Lunar dates off the ephemeris in the other zones", others)
    found = almanacs(sys.argv[1], ephemeris)
    almanac_in_short(found)
    uncertain_days(found)


if __name__ == "__main__":
    main()
