# SPDX-License-Identifier: MIT
"""From the run of dates around the focus date to the list of cells that a board shows."""

from typing import NamedTuple

from .date_services import SolarDate
from .options import DAY_STRIP, WHOLE_MONTH
from .week_number import is_leap

DAYS_OF_MONTH = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)

NO_DIRECTION = 0
BACKWARD = 1
FORWARD = 2


class Entry(NamedTuple):
    """A list entry: the date shown, or the date kept but hidden."""

    shown: SolarDate = SolarDate()
    hidden: SolarDate = SolarDate()

    @property
    def is_blank(self):
        """Whether no date is shown."""
        return self.shown.ymd == (0, 0, 0)


def month_length(year, month):
    """The length of a month by the leap rule alone."""
    return 29 if month == 2 and is_leap(year) else DAYS_OF_MONTH[month - 1]


def checked_month_length(year, month):
    """The length of a month, -1 outside the years 1900 to 2099."""
    if not (1900 <= year <= 2099 and 1 <= month <= 12):
        return -1
    return month_length(year, month)


def month_band(month):
    """The seven entries of an interval in front of a month."""
    return [Entry(SolarDate(0, month, 1))] + [Entry()] * 6


def with_month_intervals(source, options):
    """Copy the source, a band in front of every 1st of a month that begins within it."""
    if not options.show_month_interval or options.mode == DAY_STRIP:
        return list(source)
    display = []
    day_seen = False
    for index, entry in enumerate(source):
        if index > 0 and entry.shown.day == 1 and (len(display) >= 7 or day_seen):
            display += month_band(entry.shown.month)
        display.append(entry)
        day_seen = day_seen or not entry.is_blank
    return display


def without_first(entries, count):
    """The entries behind the first ``count``."""
    return entries[count:]


def without_last(entries, count):
    """The entries in front of the last ``count``."""
    return entries[: max(len(entries) - count, 0)]


def display_list(source, options, focus, direction, before, after):
    """The list of cells of a board.

    ``focus`` is the date as it was asked for, ``before`` and ``after`` the days wanted around it.
    A paged board loses the whole rows that month intervals pushed past the wanted range.
    """
    display = with_month_intervals(source, options)
    added = len(display) - len(source)
    if added <= 0:
        return display
    if options.mode == WHOLE_MONTH:
        if direction == BACKWARD:
            return without_first(display, added)
        if direction == FORWARD:
            return without_last(display, added)
        return display
    if direction not in (BACKWARD, FORWARD):
        return display
    place = next((i for i, entry in enumerate(display) if entry.shown.ymd == focus), None)
    tail = 0 if place is None else len(display) - 1 - place
    surplus = (place or 0) - before
    if surplus > 0 and surplus % 7 == 0:
        display = without_first(display, surplus)
    surplus = tail - after
    if surplus > 0 and surplus % 7 == 0:
        display = without_last(display, surplus)
    return display
