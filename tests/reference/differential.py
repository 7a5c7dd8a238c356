# SPDX-License-Identifier: MIT
"""Random calls on the built library and on the model, compared call by call.

    differential.py --library build/release/libalmara.so [--seed N] [--sequences N] [--length N]
                    [--zone TZ] [--today 'YYYY-MM-DD HH:MM:SS'] [--replay FILE]

Every sequence runs in fresh processes.  After each navigation call everything that can be asked
about the board is asked, valid or not, and the text on the standard output is compared byte for
byte.  The first difference of a sequence is printed, and under it a line with the steps that
lead to it; that line, saved in a file, runs again with ``--replay``.  Ends with 1
when there was any difference.
"""

import argparse
import itertools
import random
import sys

from comparison import CHILD_FLAG, CLOCK_STEP, child_main, replayed, report, set_clock
from library import HEADERS

ZONES = (
    "UTC",
    "Asia/Shanghai",
    "America/New_York",
    "America/St_Johns",
    "Australia/Lord_Howe",
    "Pacific/Apia",
    "Europe/Dublin",
    "Africa/Casablanca",
    "America/Sao_Paulo",
    "Asia/Kathmandu",
)
TODAYS = (
    "2024-03-10 12:00:00",
    "2023-12-31 23:59:59",
    "2025-01-01 00:00:00",
    "2024-02-29 08:30:00",
    "2000-02-29 20:00:00",
    "2023-02-28 01:00:00",
    "1970-01-01 00:00:00",
    "1970-01-31 10:00:00",
    "2099-12-31 12:00:00",
    "2099-01-01 12:00:00",
    "2024-03-31 02:30:00",
    "2026-08-31 23:00:00",
    "2020-12-28 15:00:00",
    "2021-05-09 06:00:00",
    "2011-12-25 12:00:00",
    "2039-06-15 12:00:00",
)
ZONE_TODAYS = {
    "Pacific/Apia": ("2011-12-29 12:00:00", "2011-12-31 12:00:00", "2012-01-08 09:00:00"),
    "Africa/Casablanca": ("2024-03-20 12:00:00", "2025-03-01 00:30:00", "2019-06-03 12:00:00"),
    "Europe/Dublin": ("2024-01-01 00:30:00", "2023-10-29 01:30:00", "1970-06-15 12:00:00"),
    "America/New_York": ("2024-11-03 01:30:00", "2024-03-10 03:00:00"),
    "Australia/Lord_Howe": ("2024-04-07 01:45:00", "2024-10-06 02:30:00"),
    "America/St_Johns": ("2006-10-29 00:01:00", "1988-04-03 00:01:00"),
}

EDGE_INTS = (-2147483648, 2147483647, -2147483647, 1 << 30)
EDGE_DATES = (
    (1900, 1, 1),
    (1900, 1, 31),
    (1900, 12, 31),
    (1970, 1, 1),
    (2011, 12, 30),
    (2011, 12, 31),
    (2012, 12, 31),
    (2017, 1, 1),
    (2024, 2, 29),
    (2099, 12, 1),
    (2099, 12, 31),
    (2100, 1, 1),
    (1899, 12, 31),
    (2023, 2, 31),
    (2023, 4, 31),
    (2024, 2, 30),
    (2024, 2, 32),
    (2024, 0, 1),
    (2024, 13, 1),
    (2024, 1, 0),
    (0, 0, 0),
    (-1, -1, -1),
    (2147483647, 12, 31),
    (-2147483648, 1, 1),
    (2099, 12, -1),
)
MODES = (0, 1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 5)
ROWS = (0, 1, 2, 3, 4, 5, 6, 8, 60, -1, -2, -5)
PASSED_WEEKS = (0, 1, 2, 3, 4, -1, -2, -4)
START_WEEKS = (0, 1, 1, 2, -1, -2, -5, 10, 30, 53, 54, 55, 84, 90)
FLAGS = (0, 1, 2, 3, 255)
OFFSETS = (0, 1, -1, 2, -2, 11, 12, 13, -11, -12, -13, 25, -25, 700, -700, 1000, -1000, 24855)


class Generator:
    """Random steps; each a call name with its arguments."""

    def __init__(self, seed, today):
        self.random = random.Random(seed)
        self.today = tuple(int(part) for part in today[:10].split("-"))
        self.wild = self.random.random() < 0.3
        self.civil = self.random.random() < 0.3
        self.pending = []
        self.year_turn = self.random.random() < 0.2
        if self.year_turn:
            self.pending = [
                ("SetWeekNumberCalcType", 2),
                ("SetStartWeekNumber", self.random.randrange(28, 92)),
            ]

    def pick(self, values):
        """One of some values."""
        return self.random.choice(values)

    def step(self):
        """The next step."""
        if self.pending:
            return self.pending.pop()
        draw = self.random.random()
        if draw < 0.40:
            return self.option()
        if draw < 0.52:
            return ("GotoSpecifiedDate", *self.date())
        if draw < 0.62:
            return ("GotoTodayOffset", self.offset())
        if draw < 0.80:
            return self.pages()
        if draw < 0.88:
            return ("Build",)
        if draw < 0.93:
            return ("GotoToday",)
        if draw < 0.96:
            return ("InitCalendarLogicDt", self.pick((0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -1)))
        if draw < 0.98:
            return (CLOCK_STEP, self.clock())
        return self.plain_value()

    def pages(self):
        """A page step, now and then the first of a row of them."""
        step = (self.pick(("GotoPreviousPage", "GotoNextPage")),)
        if self.random.random() < 0.3:
            self.pending = [step] * self.random.randrange(1, 8)
        return step

    def option(self):
        """An option setter."""
        values = {
            "SetDispMonth": MODES,
            "SetMaxRow": ROWS if self.wild else ROWS[1:8],
            "SetPassedWeeks": PASSED_WEEKS if self.wild else PASSED_WEEKS[:5],
            "SetStartDayOfWeek": range(-2, 9) if self.wild else range(7),
            "SetStartWeekNumber": START_WEEKS,
            "SetWeekNumberCalcType": (0, 1, 1, 2, 2, 3, 4, -1),
            "SetShowMonthInterval": FLAGS,
            "SetShowBreakDayOfWeek": FLAGS,
            "SetHideBreakDay": FLAGS,
            "SetPrintBoard": FLAGS,
        }
        if self.civil:
            values["SetCivilDays"] = FLAGS
        name = self.pick((*values, "SetDispMonth", "SetBreakDayOfWeek", "SetBreakDayOfWeek"))
        if name == "SetBreakDayOfWeek":
            pattern = self.random.randrange(128)
            days = range(7) if self.random.random() < 0.5 else (self.random.randrange(-2, 9),)
            steps = [(name, day, pattern >> (day % 7) & 1) for day in days]
            self.pending = steps[1:]
            return steps[0]
        if name in ("SetStartWeekNumber", "SetStartDayOfWeek") and self.random.random() < 0.02:
            return (name, self.pick(EDGE_INTS[1:3]))
        return (name, self.pick(values[name]))

    def date(self):
        """A date near today, anywhere, at a month's ends, or one of the awkward ones."""
        draw = self.random.random()
        if draw < 0.25:
            return self.pick(EDGE_DATES)
        year = self.random.randrange(1900, 2100)
        month = self.random.randrange(1, 13)
        day = self.random.randrange(1, 32)
        if draw < 0.55:
            year = self.today[0] + self.random.randrange(-1, 2)
        if draw < 0.45:
            month = self.today[1]
        elif self.year_turn:
            year = self.today[0] + 1
        if self.random.random() < 0.2:
            day = self.pick((1, 28, 29, 30, 31))
        return year, month, day

    def offset(self):
        """A page or month offset; some wrap 32 bits on the way to seconds."""
        draw = self.random.random()
        if draw < 0.5:
            return self.random.randrange(-30, 31)
        if draw < 0.8:
            return self.pick(OFFSETS)
        if draw < 0.9:
            return self.random.randrange(-2400, 2400)
        if draw < 0.93:
            return self.pick(EDGE_INTS)
        return self.random.randrange(-(1 << 31), 1 << 31)

    def clock(self):
        """Another time of the day, today or near it."""
        year, month, _ = self.today
        day = self.random.randrange(1, 29)
        hour, minute = self.random.randrange(24), self.random.randrange(60)
        return f"{year:04}-{month:02}-{day:02} {hour:02}:{minute:02}:00"

    def plain_value(self):
        """A call that has nothing to do with the board."""
        values = [self.random.randrange(-(1 << 31), 1 << 31) for _ in range(4)]
        if self.random.random() < 0.3:
            return ("ForgetAnnotations",)
        if self.random.random() < 0.5:
            return ("native_add", *values[:2])
        return ("CreateSolarDate", *values)


def functions_of(section):
    return [each for each in HEADERS.functions.values() if each.section == section]


NAVIGATION = [each.name for each in functions_of("Building and navigating")]
BOARD_COUNTS = ("GetContentRows", "GetContentColumns", "GetWeekNumberCount")
BOARD_GETTERS = [
    each.name
    for each in functions_of("Reading the board")
    if not each.parameters and each.name not in BOARD_COUNTS
]
OPTION_GETTERS = [
    each.name
    for each in functions_of("Options") + functions_of("Kept answers and output")
    if not each.parameters and each.result != "void"
]


def option_queries():
    """Everything that can be asked about the options."""
    yield from ((name,) for name in OPTION_GETTERS)
    yield from (("IsBreakDayOfWeek", day) for day in range(-2, 9))


def board_queries(rows, columns, spans):
    """Everything that can be asked about the board, a little past its ends."""
    for row, column in itertools.product(range(-1, rows + 2), range(-1, columns + 2)):
        yield ("GetContentItem", row, column)
    for index in EDGE_INTS:
        yield ("GetContentItem", index, 0)
        yield ("GetContentItem", 0, index)
        yield ("GetWeekNumberItemWithIndex", index)
        yield ("GetCalendarWeekByColumns", index)
    yield from (("GetCalendarWeekByColumns", column) for column in range(-2, 9))
    yield from (("GetWeekNumberItemWithIndex", index) for index in range(-1, spans + 2))
    yield from ((name,) for name in BOARD_GETTERS)


def run_steps(task, recorder):
    """Make the steps of a task, given or random, with all the questions after each."""
    generator = Generator(task["seed"], task["today"])
    given = task.get("steps")
    for number in range(len(given) if given else task["length"]):
        step = given[number] if given else generator.step()
        recorder.begin(step)
        if step[0] == CLOCK_STEP:
            set_clock(step[1])
            continue
        recorder.call(*step)
        if step[0] not in NAVIGATION:
            for query in option_queries():
                recorder.call(*query)
        if step[0] in NAVIGATION or number % 4 == 0:
            counts = [recorder.call(name) for name in BOARD_COUNTS]
            for query in board_queries(*counts):
                recorder.call(*query)


def circumstances(arguments):
    """Pairs of zone and today, over and over."""
    zones = (arguments.zone,) if arguments.zone else ZONES
    for zone in zones:
        if arguments.today:
            yield zone, arguments.today
        else:
            yield from ((zone, today) for today in TODAYS + ZONE_TODAYS.get(zone, ()))


def parse_arguments():
    """The command line."""
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--library", required=True, help="path of libalmara.so")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sequences", type=int, help="default: each zone and today once")
    parser.add_argument("--length", type=int, default=60, help="steps of a sequence")
    parser.add_argument("--zone", help="value of TZ; default: a selection")
    parser.add_argument("--today", help="local time at which the clock stands")
    parser.add_argument("--replay", help="file with the line of a difference")
    return parser.parse_args()


def tasks(arguments):
    """Zone, today and task of each sequence."""
    if arguments.replay:
        yield from replayed(arguments.replay, arguments.library)
        return
    pairs = list(circumstances(arguments))
    random.Random(arguments.seed).shuffle(pairs)
    count = arguments.sequences or len(pairs)
    for number, (zone, today) in enumerate(itertools.islice(itertools.cycle(pairs), count)):
        yield zone, today, {
            "library": arguments.library,
            "seed": f"{arguments.seed}/{number}",
            "today": today,
            "length": arguments.length,
        }


if __name__ == "__main__":
    if sys.argv[1:] == [CHILD_FLAG]:
        child_main(run_steps)
    else:
        sys.exit(report(__file__, tasks(parse_arguments())))
