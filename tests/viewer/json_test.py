# SPDX-License-Identifier: MIT
"""The board as JSON: keys that scripts rely on, and the engine's values behind them."""

import json
import pathlib
import unittest

try:
    import jsonschema
except ImportError:
    jsonschema = None

import cases
from harness import output, read_json

CELL_KEYS = {"year", "month", "day", "dayOfWeek", "weekNumber", "row", "column", "type"}
CELL_NAMES = {"date", "dayOfWeekName", "typeName"}
OPTION_KEYS = {"mode", "dispMonth", "maxRow", "passedWeeks", "startDayOfWeek", "startWeekNumber",
               "weekRule", "weekNumberCalcType", "hideBreakDay", "showBreakDayOfWeek",
               "showMonthInterval", "breakDays", "region", "language", "configKey", "lunarSource"}
OPTION_NAMES = {"startDayOfWeekName", "breakDayNames"}


def picked(record, keys):
    return {key: record[key] for key in keys}


class BoardJson(unittest.TestCase):
    def test_keys_and_values(self):
        board = read_json("--language", "kor")
        self.assertEqual(set(board), {"version", "headingNames", "options", "contentDate", "today", "todayInBoard", "rows",
                                      "columns", "headings", "weekNumberSpans", "cells"})
        self.assertEqual(set(board["options"]), OPTION_KEYS | OPTION_NAMES)
        today = {"date": "2024-03-12", "year": 2024, "month": 3, "day": 12, "dayOfWeek": 2,
                 "dayOfWeekName": "tue"}
        self.assertEqual(board["today"], today)
        self.assertEqual(board["contentDate"], {**today, "dayOfWeek": 0})
        self.assertIs(board["todayInBoard"], True)
        self.assertEqual((board["rows"], board["columns"]), (5, 7))
        self.assertEqual(board["headings"], [1, 2, 3, 4, 5, 6, 0])
        self.assertEqual(board["weekNumberSpans"][-1],
                         {"weekNumber": 13, "secondWeekNumber": 0, "rows": 2})
        self.assertEqual(sum(span["rows"] for span in board["weekNumberSpans"]), board["rows"])

    def test_cells(self):
        board = read_json()
        cells = board["cells"]
        self.assertEqual([len(row) for row in cells], [7] * 5)
        for row in cells:
            for cell in row:
                self.assertEqual(set(cell), CELL_KEYS | CELL_NAMES | {"lunar", "solarTerm", "festivals"})
        self.assertEqual(picked(cells[1][1], CELL_KEYS),
                         {"year": 2024, "month": 3, "day": 12, "dayOfWeek": 2, "weekNumber": 11,
                          "row": 1, "column": 1, "type": 4})
        self.assertEqual(picked(cells[4][0], CELL_KEYS),
                         {"year": 0, "month": 4, "day": 1, "dayOfWeek": 0, "weekNumber": -1,
                          "row": 4, "column": 0, "type": 7})
        self.assertEqual(picked(cells[4][6], CELL_KEYS),
                         {"year": 0, "month": 0, "day": 0, "dayOfWeek": 0, "weekNumber": -1,
                          "row": 4, "column": 6, "type": 2})

    def test_options_are_those_in_force(self):
        options = read_json(
            "--mode", "tail", "--rows", "6", "--passed-weeks", "2", "--first-day", "wed",
            "--week-rule", "start", "--start-week", "9", "--hide-break-days", "--break-days",
            "fri,sat", "--no-month-interval", "--language", "jpn")["options"]
        self.assertEqual(picked(options, OPTION_NAMES),
                         {"startDayOfWeekName": "wed", "breakDayNames": ["fri", "sat"]})
        self.assertEqual(picked(options, OPTION_KEYS), {
            "mode": "tail", "dispMonth": 2, "maxRow": 6, "passedWeeks": 2, "startDayOfWeek": 3,
            "startWeekNumber": 9, "weekRule": "start", "weekNumberCalcType": 2,
            "hideBreakDay": True, "showBreakDayOfWeek": False, "showMonthInterval": False,
            "breakDays": [5, 6], "region": "jpn", "language": 7, "lunarSource": "almanac",
            "configKey": "2-6-7-2-3-9-1-2-0-(0-0-0-0-1-1-0)-0"})
        self.assertEqual(read_json()["options"]["configKey"],
                         "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1")

    def test_names_and_dates_beside_the_numbers(self):
        board = read_json("--date", "2024-04-01", "--no-month-interval")
        self.assertEqual(board["headingNames"], ["mon", "tue", "wed", "thu", "fri", "sat", "sun"])
        self.assertEqual(picked(board["cells"][0][5], CELL_NAMES),
                         {"date": "2024-03-30", "dayOfWeekName": "sat", "typeName": "breakDay"})
        types = [cell["typeName"] for row in read_json("--mode", "tail")["cells"] for cell in row]
        self.assertEqual(types[:5], ["blank"] * 4 + ["day"])
        self.assertEqual(read_json("--rows", "6")["cells"][4][0]["typeName"], "monthTitle")
        self.assertIsNone(read_json("--rows", "6")["cells"][4][0]["date"])

    def test_month_interval_flag_is_the_viewers_own(self):
        # The engine answers the question for this flag with the hide-break-day flag.
        self.assertIs(read_json()["options"]["showMonthInterval"], True)
        hidden = read_json("--hide-break-days")["options"]
        self.assertIs(hidden["showMonthInterval"], True)

    def test_hidden_days_keep_their_date(self):
        first = read_json("--mode", "month")["cells"][0][0]
        self.assertEqual(picked(first, CELL_KEYS),
                         {"year": 2024, "month": 2, "day": 26, "dayOfWeek": 0, "weekNumber": 9,
                          "row": 0, "column": 0, "type": 2})

    def test_every_mode_and_navigation(self):
        for mode, rows in (("rolling", 5), ("tail", 5), ("month", 5), ("strip", 1)):
            board = read_json("--mode", mode, "--next", "--previous", "--date", "2024-05-20")
            self.assertEqual(board["options"]["mode"], mode)
            self.assertEqual(board["rows"], rows)
            self.assertEqual(len(board["cells"]), rows)

    def test_break_day_columns_hidden(self):
        board = read_json("--hide-break-days")
        self.assertEqual(board["columns"], 5)
        self.assertEqual([cell["column"] for cell in board["cells"][0]], [0, 1, 2, 3, 4])

    def test_ascii_where_the_locale_is_not_utf8(self):
        self.assertTrue(output("--json", "--language", "chs", LC_ALL="C").isascii())
        self.assertEqual(read_json("--language", "chs", LC_ALL="C"), read_json("--language", "chs"))


def without_room(schema):
    """The schema with every key that it does not name forbidden."""
    if isinstance(schema, dict):
        closed = {key: without_room(value) for key, value in schema.items()}
        return {**closed, "additionalProperties": False} if "properties" in schema else closed
    return [without_room(value) for value in schema] if isinstance(schema, list) else schema


@unittest.skipIf(jsonschema is None, "python3-jsonschema is not installed")
class Schema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        path = pathlib.Path(__file__).parents[2] / "docs/almara-board.schema.json"
        schema = json.loads(path.read_text(encoding="utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        cls.schema = without_room(schema)

    def check(self, kind, *arguments, **settings):
        schema = {**self.schema, "oneOf": [{"$ref": f"#/$defs/{kind}"}]}
        jsonschema.Draft202012Validator(schema).validate(read_json(*arguments, **settings))

    def test_boards(self):
        for region in ("chs", "cht", "deu", "eng", "jpn", "kor", "rus", "tha", "usa", "vit"):
            for mode in ("rolling", "tail", "month", "strip"):
                self.check("board", "--language", region, "--mode", mode)
        for arguments in (("--hide-break-days",), ("--no-month-interval",), ("--break-days", "none"),
                          ("--mode", "strip", "--hide-break-days"), ("1", "1900"), ("12", "2099"),
                          ("--week-rule", "start", "--start-week", "53")):
            self.check("board", *arguments)
        self.check("board", "2", "2024", today="2100-01-01 10:00:00")

    def test_days_and_years(self):
        for region in ("chs", "kor", "usa", "vit"):
            self.check("day", "--language", region, "--day", "2024-02-10")
            self.check("year", "--language", region, "--list", "2024")
        self.check("day", "--day", "2024-02-04", "--lunar", "engine")
        self.check("day", "--day", "2084-03-20", "--language", "chs")
        self.check("anniversaries", "--lunar-date", "8-15")
        self.check("anniversaries", "--lunar-date", "1984-leap10-1")

    def test_something_else_is_refused(self):
        with self.assertRaises(jsonschema.ValidationError):
            self.check("day")


if __name__ == "__main__":
    cases.main()
