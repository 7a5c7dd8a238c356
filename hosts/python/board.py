#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows the month of a date (today, if none is given) with week numbers, and what that date is in
the lunisolar calendar: a complete host of the calendar engine in Python."""
import re
import sys

import almara

MONTHS = ("January February March April May June July August September October November "
          "December").split()
DAYS = "Sun Mon Tue Wed Thu Fri Sat".split()


def cell_text(cell):
    """ 9, 10. for a break day, [11] for today."""
    return {almara.eCalendarItemDay: f" {cell.day:2}",
            almara.eCalendarItemToday: f"[{cell.day:2}]",
            almara.eCalendarItemBreakDay: f" {cell.day:2}.",
            almara.eCalendarItemTodayBreakDay: f"[{cell.day:2}]."}.get(cell.type, "")


def print_board(engine):
    columns = range(engine.GetContentColumns())
    date = engine.GetContentDate()
    title = f"{MONTHS[date.month - 1]} {date.year}"
    print(" " * ((7 + 10 * len(columns) - len(title)) // 2) + title)
    headings = (DAYS[engine.GetCalendarWeekByColumns(column)] for column in columns)
    print("   Wk  " + "".join(f" {day:9}" for day in headings))
    row = 0
    for index in range(engine.GetWeekNumberCount()):
        span = engine.GetWeekNumberItemWithIndex(index)
        for row in range(row, row + span.rows):
            cells = (engine.GetContentItem(row, column) for column in columns)
            print(f"{span.weekNumber:5}  " + "".join(f"{cell_text(cell):10}" for cell in cells))
        row += 1


def print_annotations(engine):
    date = engine.GetContentDate()
    lunar = engine.ConverterLunarWithDate(date)
    leap = " in a leap month" if lunar.leap else ""
    region, english = almara.eLanguageChs, almara.eLanguageEng
    names = [
        engine.AlmaraSolarTermName(engine.Check24SekkiWithDate(date), english),
        engine.AlmaraFestivalName(engine.CheckFestivalSolarWithLang(region, date), english),
        engine.AlmaraFestivalName(engine.CheckFestivalLunarWithLang(region, date), english)]
    # A date without a term or a festival has a code that has no name: None.
    print(f"{date.year}-{date.month:02}-{date.day:02}: "
          f"lunar {lunar.year}-{lunar.month}-{lunar.day}{leap}"
          + "".join(f", {name}" for name in names if name))


def main(arguments):
    date = re.fullmatch(r"(\d+)-(\d+)-(\d+)", arguments[0]) if arguments else None
    if arguments and not date:
        sys.exit("usage: board.py [YYYY-MM-DD]")
    engine = almara.load()
    engine.SetPrintBoard(False)  # the engine would write every board to descriptor 1, too
    engine.SetCivilDays(True)
    engine.SetDispMonth(almara.eDispMonthWholeMonth)
    engine.SetShowMonthInterval(False)
    engine.InitCalendarLogicDt(almara.eLanguageChs)
    if date:
        engine.GotoSpecifiedDate(*map(int, date.groups()))
    print_board(engine)
    print_annotations(engine)
    print("options", engine.GetConfigKey())


if __name__ == "__main__":
    main(sys.argv[1:])
