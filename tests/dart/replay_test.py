#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The calls with which the example application opens its first board, made from here in the same
order, give the board that it would draw on 10 February 2024.

The order is read from the Dart sources, so that neither can change alone.
"""
import re
import unittest
from pathlib import Path

import almara

ROOT = Path(__file__).resolve().parents[2]
MAIN = (ROOT / "example/lib/main.dart").read_text()
ENGINE = (ROOT / "lib/src/engine.dart").read_text()
BOARD = (ROOT / "lib/src/board.dart").read_text()
CONSTANTS = dict(re.findall(r"const int (\w+) = (-?\d+);",
                            (ROOT / "lib/src/almara_bindings.dart").read_text()))

# Week number, then each day with its note; [today], a break day with its dot.
DRAWN = """\
5 | 29 19 | 30 20 | 31 21 | 1 22 | 2 小年 | 3. 24 | 4. 立春
6 | 5 26 | 6 27 | 7 28 | 8 29 | 9 除夕 | [10]. 春节 | 11. 2
7 | 12 3 | 13 4 | 14 情人节 | 15 6 | 16 7 | 17. 8 | 18. 9
8 | 19 雨水 | 20 11 | 21 12 | 22 13 | 23 14 | 24. 元宵节 | 25. 16
9 | 26 17 | 27 18 | 28 19 | 29 20 | 1 21 | 2. 22 | 3. 23"""


def body_of(member, text):
    """The text of a method, or of a setter named with " =" after it, up to its end."""
    head = rf"set {member[:-2]}\(" if member.endswith(" =") else rf"(?<!set )\b{member}\("
    found = re.search(rf"^ *[\w<>?, ]*{head}[^\n]*\{{\n(.*?)^ *\}}\n(?=\n|\}}|$|  \w)", text,
                      re.MULTILINE | re.DOTALL)
    return found[1]


def calls_in(text):
    return re.findall(r"(?:_c|engine)\.([A-Z]\w+)\(", text)


class Recorder:
    """The library; names each function that is called, a repeated one once."""

    def __init__(self):
        self.library = almara.load()
        self.calls = []

    def __getattr__(self, name):
        def call(*arguments):
            if self.calls[-1:] != [name]:
                self.calls.append(name)
            return getattr(self.library, name)(*arguments)
        return call


def read_board(engine):
    columns = engine.GetContentColumns()
    rows = engine.GetContentRows()
    spans = engine.GetWeekNumberCount()
    engine.GetContentDate()
    engine.IsTodayInBoard()
    for column in range(columns):
        engine.GetCalendarWeekByColumns(column)
    cells = [[engine.GetContentItem(row, column) for column in range(columns)]
             for row in range(rows)]
    weeks = [engine.GetWeekNumberItemWithIndex(index) for index in range(spans)]
    assert all(week.rows == 1 for week in weeks)
    return [(week.weekNumber, row) for week, row in zip(weeks, cells, strict=True)]


def note(engine, language, cell):
    date = engine.CreateSolarDate(cell.year, cell.month, cell.day, 0)
    lunar = engine.ConverterLunarWithDate(date)
    term = engine.Check24SekkiWithDate(date)
    solar = engine.CheckFestivalSolarWithLang(language, date)
    festival = engine.CheckFestivalLunarWithLang(language, date)
    names = engine.library
    return (names.AlmaraFestivalName(festival, language) or names.AlmaraFestivalName(solar, language)
            or names.AlmaraSolarTermName(term, language)
            or (f"Moon {lunar.month}" if lunar.day == 1 else str(lunar.day)))


def drawn(cell, text):
    kind = {value: name for name, value in CONSTANTS.items() if name.startswith("eCalendarItem")}[
        str(cell.type)].removeprefix("eCalendarItem")
    day = f"[{cell.day}]" if kind.startswith("Today") else str(cell.day)
    return f"{day}{'.' if kind.endswith('BreakDay') else ''} {text}"


class ReplayTest(unittest.TestCase):
    def setUp(self):
        self.engine = Recorder()

    def test_first_board(self):
        engine, region = self.engine, re.search(r"Region _region = Region\.(\w+);", MAIN)[1]
        language = int(CONSTANTS[f"eLanguage{region.capitalize()}"])
        engine.SetPrintBoard(False)
        engine.SetCivilDays(True)
        engine.SetDispMonth(int(CONSTANTS["eDispMonthWholeMonth"]))
        engine.SetShowMonthInterval(False)
        engine.ForgetAnnotations()
        engine.InitCalendarLogicDt(language)
        board = read_board(engine)
        before = len(engine.calls)
        lines = [" | ".join([str(week), *(drawn(cell, note(engine, language, cell))
                                          for cell in row)]) for week, row in board]
        self.assertEqual("\n".join(lines), DRAWN)

        opened = re.findall(r"\.\.(\w+ =)|\bengine\.(start|today)\b", body_of("initState", MAIN))
        self.assertEqual(["".join(each) for each in opened],
                         ["printsBoards =", "countsCivilDays =", "arrangement =",
                          "showsMonthIntervals =", "start", "today"])
        self.assertEqual(engine.calls[:before],
                         [*calls_in(body_of("printsBoards =", ENGINE)),
                          *calls_in(body_of("countsCivilDays =", ENGINE)),
                          *calls_in(body_of("arrangement =", ENGINE)),
                          *calls_in(body_of("showsMonthIntervals =", ENGINE)),
                          *calls_in(body_of("start", ENGINE)),
                          *calls_in(body_of("readBoard", BOARD))])
        annotations = ["CreateSolarDate", *calls_in(body_of("annotate", ENGINE))]
        self.assertEqual(engine.calls[before:], annotations * sum(len(row) for _, row in board))


if __name__ == "__main__":
    unittest.main()
