# SPDX-License-Identifier: MIT
"""The annotations of a date on the built library and on the model, compared call by call.

    annotations.py --library build/release/libalmara.so [--seed N] [--sequences N] [--length N]
                   [--zone HOURS] [--tz NAME]
    annotations.py --library build/release/libalmara.so --from 1900-01-01 --to 2099-12-31
                   [--stride DAYS] [--language N] [--zone HOURS] [--solar-festivals]
    annotations.py --library build/release/libalmara.so --replay FILE

The first form asks at random: lunar dates, solar terms and festivals of ordinary days, of days near
a term or a feast, of years in a row as the Easter rule sees them, and of dates that do not exist.
The second form sweeps a range of days, the third runs the line again that was printed under a
difference.  ``--zone`` is the zone value in hours, ``unset`` for an engine that was never
initialised; ``--tz`` is the local zone behind the date services.  Ends with 1 when there was any
difference.
"""

import argparse
import itertools
import random
import sys
from datetime import date

from comparison import CHILD_FLAG, child_main, replayed, report
from library import ANNOTATION_CALLS

UNSET = "unset"
ZONES = ("8", "9", "0", "-5", "-11", "14", "1", "7", "-3", UNSET)
LOCAL_ZONES = ("UTC", "Africa/Casablanca", "Europe/Dublin", "Pacific/Apia", "America/New_York")
LANGUAGES = tuple(range(1, 11))
LANGUAGE_OF_ZONE = {"8": (1, 4), "9": (2, 7)}
OTHER_LANGUAGES = (3, 5, 6, 8, 9, 10, 0, 11, -1)
USA = 3
SWEPT_DAYS = 1000

LUNAR, TERM, SOLAR_FESTIVAL, LUNAR_FESTIVAL = ANNOTATION_CALLS
EXTREMES = (-2147483648, -2147481749, -1, 0, 1, 14, 26, 31, 2147483647, 2147481747)


class Generator:
    """Random annotation calls, and now and then one that changes the zone value or the counting."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.year = 2024

    def call(self):
        """The next call."""
        draw = self.random.random()
        if draw < 0.01:
            return ("InitCalendarLogicDt", self.random.choice(LANGUAGES))
        if draw < 0.015:
            return ("GetToday",)
        if draw < 0.02:
            return ("ForgetAnnotations",)
        if draw < 0.025:
            return ("SetCivilDays", self.random.choice((0, 1, 2, 3)))
        if draw < 0.25:
            return (LUNAR, self.date())
        if draw < 0.35:
            return (TERM, self.term_day() if self.random.random() < 0.7 else self.date())
        if draw < 0.55:
            return (SOLAR_FESTIVAL, USA, self.spring_day())
        if draw < 0.75:
            extreme = self.random.random() < 0.05
            day = self.extreme_date() if extreme else self.date(1500, 2400)
            return (SOLAR_FESTIVAL, self.language(), day)
        return (LUNAR_FESTIVAL, self.language(), self.date())

    def language(self):
        """A language, seldom none of the known ones."""
        draw = self.random.random()
        return self.random.choice((-1, 0, 11, 2147483647) if draw < 0.1 else LANGUAGES)

    def date(self, first_year=1, last_year=9999):
        """A day of the board's years, of any year, or one that does not exist."""
        draw = self.random.random()
        pick = self.random.randrange
        if draw < 0.02:
            return self.far_date()
        if draw < 0.7:
            year = pick(1900, 2100)
        elif draw < 0.8:
            year = pick(1790, 2120)
        else:
            year = pick(first_year, last_year + 1)
        if self.random.random() < 0.05:
            return (year, pick(-5, 20), pick(-40, 80), pick(7))
        return (year, pick(1, 13), pick(1, 32), pick(-1, 9))

    def term_day(self):
        """A day near a solar term."""
        pick = self.random.randrange
        month = pick(1, 13)
        return (pick(1798, 2102), month, self.random.choice((3, 18)) + pick(7), 0)

    def spring_day(self):
        """A day around Easter, often of the year that was asked about last."""
        if self.random.random() < 0.4:
            self.year = self.random.choice(
                (self.random.randrange(1, 40), self.random.randrange(1, 3000), 2024, 2025, 0, -7)
            )
        if self.random.random() < 0.02:
            return (self.year, 0, 0, 0)
        return (self.year, self.random.choice((3, 4)), self.random.randrange(1, 32), 0)

    def far_date(self):
        """A date at the edges of what the day count holds, or beyond them."""

        def far():
            return int(10 ** self.random.uniform(1, 9.33)) * self.random.choice((1, -1))

        day = [self.random.randrange(1, 3000), self.random.randrange(1, 13), 15]
        day[self.random.choice((0, 0, 0, 1, 2))] = far()
        return (*day, 0)

    def extreme_date(self):
        """A date far out of every range."""
        return tuple(self.random.choice(EXTREMES) for _ in range(4))


def swept_calls(task):
    """The calls of a sweep."""
    for ordinal in range(*task["days"]):
        day = date.fromordinal(ordinal)
        record = (day.year, day.month, day.day, 0)
        if not task["solar_festivals"]:
            yield (LUNAR, record)
            yield (TERM, record)
        for language in task["languages"]:
            yield (SOLAR_FESTIVAL, language, record)
            if not task["solar_festivals"]:
                yield (LUNAR_FESTIVAL, language, record)


def random_calls(task):
    """The calls of a random sequence."""
    generator = Generator(task["seed"])
    return (generator.call() for _ in range(task["length"]))


def first_calls(zone, seed):
    """The initialisation that settles a zone value."""
    if zone == UNSET:
        return []
    languages = LANGUAGE_OF_ZONE.get(zone, OTHER_LANGUAGES)
    return [("InitCalendarLogicDt", random.Random(seed).choice(languages))]


def run_calls(task, recorder):
    """Make the calls of a task: given ones, or the initialisation and those that follow."""
    calls = task.get("steps") or itertools.chain(
        first_calls(task["zone_hours"], task["seed"]),
        swept_calls(task) if "days" in task else random_calls(task),
    )
    for call in calls:
        recorder.begin(call)
        recorder.call(*call)


def local_zone(zone):
    """A value of TZ that lies a whole number of hours from universal time."""
    hours = int(zone)
    return f"<{hours:+03}>{-hours}"


def tasks(arguments):
    """Local zone, no today, and task of each sequence."""
    base = {"library": arguments.library, "length": arguments.length}
    zones = (arguments.zone,) if arguments.zone else ZONES
    for number in range(arguments.sequences):
        zone = zones[number % len(zones)]
        local = arguments.tz
        if local is None:
            local = LOCAL_ZONES[number % len(LOCAL_ZONES)] if zone in ("8", "9", UNSET) else None
        task = base | {"zone_hours": zone, "seed": f"{arguments.seed}/{number}"}
        yield local or local_zone(zone), None, task


def sweep_tasks(arguments):
    """The same of a sweep, cut into pieces of some hundred days."""
    zone = arguments.zone or "8"
    local = arguments.tz or (local_zone(zone) if zone != UNSET else "UTC")
    languages = (arguments.language,) if arguments.language is not None else LANGUAGES
    first = date.fromisoformat(getattr(arguments, "from")).toordinal()
    last = date.fromisoformat(arguments.to).toordinal()
    piece = SWEPT_DAYS * arguments.stride
    for start in range(first, last + 1, piece):
        yield local, None, {
            "library": arguments.library,
            "zone_hours": zone,
            "seed": f"{arguments.seed}/{start}",
            "days": (start, min(start + piece, last + 1), arguments.stride),
            "languages": languages,
            "solar_festivals": arguments.solar_festivals,
        }


def parse_arguments():
    """The command line."""
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--library", required=True, help="path of libalmara.so")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sequences", type=int, default=20)
    parser.add_argument("--length", type=int, default=1000, help="calls of a sequence")
    parser.add_argument("--zone", help="zone value in hours, or unset; default: a selection")
    parser.add_argument("--tz", help="value of TZ; default: follows the zone value")
    parser.add_argument("--from", metavar="DATE", help="first day of a sweep")
    parser.add_argument("--to", metavar="DATE", default="2099-12-31", help="last day of a sweep")
    parser.add_argument("--stride", type=int, default=1, help="days from one swept day to the next")
    parser.add_argument("--language", type=int, help="language of a sweep; default: all")
    parser.add_argument(
        "--solar-festivals", action="store_true", help="sweep the solar festivals alone"
    )
    parser.add_argument("--replay", help="file with the line of a difference")
    return parser.parse_args()


def main():
    """Run the tasks and report."""
    arguments = parse_arguments()
    if arguments.replay:
        return report(__file__, replayed(arguments.replay, arguments.library))
    swept = getattr(arguments, "from") is not None
    return report(__file__, (sweep_tasks if swept else tasks)(arguments))


if __name__ == "__main__":
    if sys.argv[1:] == [CHILD_FLAG]:
        child_main(run_calls)
    else:
        sys.exit(main())
