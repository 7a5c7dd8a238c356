#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the benchmark programs and prints how their medians compare.

    report.py BUILD_DIRECTORY [--repetitions N]

Both sides of a ratio are measured in one run of one program, in random interleaving, on one core.
Exits 1 if a goal is missed.
"""

import argparse
import json
import os
import statistics
import subprocess
import sys

PROGRAMS = [
    "lunar/lunar_date_benchmark",
    "lunar/solar_term_benchmark",
    "logic/annotation_benchmark",
    "logic/kept_answer_benchmark",
    "board/board_build_benchmark",
    "api/page_turn_benchmark",
    "api/load_benchmark",
    "almanac/almanac_benchmark",
]
LANGUAGES = range(1, 11)
MODES = range(1, 5)
SIZES = [1000, 10000, 100000, 1000000]
ALMANAC_CALENDARS = range(5)  # one of a fixed offset, and the four published ones
ALMANAC_LIMIT = 100  # nanoseconds
LIBRARY_LIMIT = 200_000  # bytes
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Results:
    """The median of each benchmark's repetitions, in nanoseconds, by name."""

    def __init__(self):
        self.runs = {}
        self.counters = {}

    def add(self, benchmark):
        if benchmark["run_type"] != "iteration":
            return
        name = benchmark["name"]
        for suffix in ("/iterations:1", "/iterations:3", "/manual_time"):
            name = name.replace(suffix, "")
        clock = "real_time" if "manual_time" in benchmark["name"] else "cpu_time"
        time = benchmark[clock] * NANOSECONDS[benchmark["time_unit"]]
        self.runs.setdefault(name, []).append(time)
        if "bytes" in benchmark:
            self.counters[name] = benchmark["bytes"]

    def median(self, name):
        return statistics.median(self.runs[name])

    def ratio(self, numerator, denominator):
        return self.median(numerator) / self.median(denominator)


def run_programs(build, repetitions):
    """Runs every program on one core and collects its results."""
    core = max(os.sched_getaffinity(0))
    results = Results()
    for program in PROGRAMS:
        print(f"running {program}", file=sys.stderr, flush=True)
        output = subprocess.run(
            ["taskset", "-c", str(core), os.path.join(build, "benchmarks", program),
             "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
             "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"],
            check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        for benchmark in json.loads(output)["benchmarks"]:
            results.add(benchmark)
    return results


def stripped_size(build):
    """Size of the shared library without symbols, in bytes."""
    stripped = os.path.join(build, "libalmara-stripped.so")
    subprocess.run(["strip", "-o", stripped, os.path.join(build, "libalmara.so")], check=True)
    return os.path.getsize(stripped)


def compare(results, build):
    """Yields (work, against, measured ratio, goal text, met) of every row of the table."""

    def faster(work, against, ratios, goal):
        worst = min(ratios)
        return work, against, f"{worst:.1f} times faster", f"at least {goal}", worst >= goal

    def slower(work, against, ratios, goal):
        worst = max(ratios)
        if goal is None:
            return work, against, f"{worst:.2f} times", "", True
        return work, against, f"{worst:.2f} times", f"at most {goal}", worst <= goal

    icu = "ICU's Chinese calendar"
    ephemeris = "the 24 crossings by the Swiss Ephemeris"
    yield faster("lunar date of every day of 2000 to 2050, in order", icu,
                 [results.ratio("LunarDatesIcu/in_order", "LunarDates/in_order")], 50)
    yield faster("the same in random order", icu,
                 [results.ratio("LunarDatesIcu/random_order", "LunarDates/random_order")], 40)
    yield faster("a year's table of 24 solar terms", ephemeris,
                 [results.ratio("SolarTermsSwissEphemeris", "SolarTermTable")], 20)
    yield faster("solar term of every day of a year", ephemeris,
                 [results.ratio("SolarTermsSwissEphemeris", "SolarTermsOfEveryDay")], 5)
    yield faster("all four look-ups of every day of a year, slowest language",
                 "their plainest form",
                 [results.ratio(f"AllLookups<yardstick::Engine>/{language}",
                                f"AllLookups<CCalendarLogic>/{language}")
                  for language in LANGUAGES], 40)
    yield slower("board build, costliest arrangement", "its time-service calls",
                 [results.ratio(f"BoardBuild/{mode}", f"BoardTimeServiceCalls/{mode}")
                  for mode in MODES], 2)
    # Not the strip of one row, which is little more than the question for today's date.
    yield faster("board of weeks or of a month in civil days, not printed", "itself in local time",
                 [results.ratio(f"UnprintedBoardBuild/local_time/{mode}",
                                f"UnprintedBoardBuild/civil/{mode}")
                  for mode in (1, 2, 3)], 5)
    yield faster("page turn, board and all look-ups", f"{icu} alone",
                 [results.ratio(f"PageTurnsIcu/{mode}/24", f"PageTurns/{mode}/24") for mode in (1, 3)], 5)
    yield slower("a look-up answered before", "one find in a std::map of that size",
                 [results.ratio(f"KeptAnswers/{order}/{size}", f"MapFind/{order}/{size}")
                  for order in ("in_order", "random_order") for size in SIZES], 1.25)
    for order, goal in (("in_order", 3), ("random_order", 3)):
        yield slower(f"a look-up with 10^6 answers kept, {order.replace('_', ' ')}",
                     "itself with 10^3",
                     [results.ratio(f"KeptAnswers/{order}/1000000", f"KeptAnswers/{order}/1000")],
                     goal)
    yield slower("the std::map's find with 10^6 keys, random order", "itself with 10^3",
                 [results.ratio("MapFind/random_order/1000000", "MapFind/random_order/1000")], None)
    yield slower("loading the library", "loading an empty one",
                 [results.ratio("Load/almara", "Load/empty")], None)
    for work, direction in (("lunar date by the almanac", "LunarDates"),
                            ("Gregorian date by the almanac", "SolarDates")):
        published = [f"Almanac{direction}/{calendar}" for calendar in ALMANAC_CALENDARS[1:]]
        yield faster(f"{work}, random days of 1900 to 2099", icu,
                     [results.ratio(f"Icu{direction}", name) for name in published], 500)
        for calendars, names in (("", published),
                                 (", calendar of another offset", [f"Almanac{direction}/0"])):
            time = max(results.median(name) for name in names)
            yield (f"the same{calendars}", "", f"{time:.0f} ns", f"at most {ALMANAC_LIMIT} ns",
                   time <= ALMANAC_LIMIT)
    yield slower("loading the library and asking the almanac both ways, for the first time",
                 "loading it", [results.ratio("LoadAndAskAlmanac", "Load/almara")], 1.1)
    size = stripped_size(build)
    yield ("stripped library", "", f"{size / 1000:.0f} kB", f"under {LIBRARY_LIMIT // 1000} kB",
           size < LIBRARY_LIMIT)
    for work, dates in (("memory kept for a date, all four look-ups answered", "every_day"),
                        ("the same, of dates a year apart", "one_a_year")):
        yield (work, "", f"{results.counters[f'BytesOfAnsweredDate/{dates}']:.0f} bytes", "", True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build")
    parser.add_argument("--repetitions", type=int, default=5)
    arguments = parser.parse_args()

    results = run_programs(arguments.build, arguments.repetitions)
    rows = list(compare(results, arguments.build))
    print("| work | against | measured | goal |")
    print("| --- | --- | --- | --- |")
    for work, against, measured, goal, met in rows:
        print(f"| {work} | {against} | {measured} | {goal}{'' if met else ' (MISSED)'} |")
    return 0 if all(row[-1] for row in rows) else 1


if __name__ == "__main__":
    sys.exit(main())
