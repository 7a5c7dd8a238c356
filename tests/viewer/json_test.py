# SPDX-License-Identifier: MIT
"""The board as JSON: keys that scripts rely on, and the engine's values behind them."""

import unittest

from harness import output, read_json

CELL_KEYS = {"year", "month", "day", "dayOfWeek", "weekNumber", "row", "column", "type"}
OPTION_KEYS = {"mode", "dispMonth", "maxRow", "passedWeeks", "startDayOfWeek", "startWeekNumber",
               "weekRule", "weekNumberCalcType", "hideBreakDay", "showBreakDayOfWeek",
               "showMonthInterval", "breakDays", "region", "language", "configKey"}


def picked(record, keys):
    return {key: record[key] for key in keys}


class BoardJson(unittest.TestCase):
    def test_keys_and_values(self):
        board = read_json("--language", "kor")
        self.assertEqual(set(board), {"options", "contentDate", "today", "todayInBoard", "rows",
                                      "columns", "headings", "weekNumberSpans", "cells"})
        self.assertEqual(set(board["options"]), OPTION_KEYS)
        today = {"year": 2024, "month": 3, "day": 12, "dayOfWeek": 2}
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
                self.assertEqual(set(cell), CELL_KEYS | {"lunar", "solarTerm", "festivals"})
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
        self.assertEqual(options, {
            "mode": "tail", "dispMonth": 2, "maxRow": 6, "passedWeeks": 2, "startDayOfWeek": 3,
            "startWeekNumber": 9, "weekRule": "start", "weekNumberCalcType": 2,
            "hideBreakDay": True, "showBreakDayOfWeek": False, "showMonthInterval": False,
            "breakDays": [5, 6], "region": "jpn", "language": 7,
            "configKey": "2-6-7-2-3-9-1-2-0-(0-0-0-0-1-1-0)-0"})
        self.assertEqual(read_json()["options"]["configKey"],
                         "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1")

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


if __name__ == "__main__":
    unittest.main()
