# SPDX-License-Identifier: MIT
"""The options of the month board and the text key that identifies them."""

ROLLING_WEEKS = 1
ROLLING_MONTH = 2
WHOLE_MONTH = 3
DAY_STRIP = 4

KEY_WEEKDAYS = (1, 2, 3, 4, 5, 6, 0)


class BoardOptions:
    """Everything that shapes a board; only the setter with a check is a method."""

    def __init__(self):
        self.mode = ROLLING_WEEKS
        self.max_rows = 5
        self.max_columns = 7
        self.passed_weeks = 1
        self.start_day_of_week = 1
        self.start_week_number = 1
        self.hide_break_day = False
        self.show_month_interval = True
        self.break_days = [1, 0, 0, 0, 0, 0, 1]
        self.show_break_day_of_week = True
        self.week_number_calc_type = 1

    def set_break_day(self, weekday, on):
        """Mark or clear a break day by the lowest bit of ``on``; a wrong weekday is ignored."""
        if 0 <= weekday <= 6:
            self.break_days[weekday] = on & 1

    def is_break_day(self, weekday):
        """Whether the weekday is marked; a wrong weekday is not."""
        return 0 <= weekday <= 6 and self.break_days[weekday] == 1

    def first_weekday(self):
        """The weekday of the first column, Monday when the option holds none."""
        return self.start_day_of_week if 0 <= self.start_day_of_week <= 6 else 1

    def key(self):
        """The text that identifies these options.

        The week-number rule stands between two flags and the weekdays run from Monday.
        """
        head = (
            self.mode,
            self.max_rows,
            self.max_columns,
            self.passed_weeks,
            self.start_day_of_week,
            self.start_week_number,
            int(self.hide_break_day),
            self.week_number_calc_type,
            int(self.show_month_interval),
        )
        breaks = "-".join(str(self.break_days[weekday]) for weekday in KEY_WEEKDAYS)
        shown = int(self.show_break_day_of_week)
        return f"{'-'.join(map(str, head))}-({breaks})-{shown}"
