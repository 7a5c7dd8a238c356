# SPDX-License-Identifier: MIT
"""The exported calls, one method each, with ints, bools, tuples and strings as results."""

from .arithmetic import wrap32
from .date_services import SolarDate
from .logic import Logic


class Engine:
    """The engine as its user sees it.

    ``output`` collects what the engine writes to the standard output.  Flags are passed as ints,
    of which only the lowest bit counts.
    """

    def __init__(self, dates=None):
        self.output = []
        self.prints = True
        self.logic = Logic(lambda text: self.output.append(text) if self.prints else None, dates)
        self.options = self.logic.options

    def take_output(self):
        """The text written since the last call."""
        text = "".join(self.output)
        self.output.clear()
        return text

    # Values

    def native_add(self, a, b):
        return wrap32(a + b)

    def create_solar_date(self, year, month, day, week):
        return (year, month, day, week)

    # Navigation

    def init_calendar_logic_dt(self, language):
        self.logic.init(language)

    def build(self):
        self.logic.build()

    def goto_today(self):
        self.logic.goto_today()

    def goto_previous_page(self):
        self.logic.goto_previous_page()

    def goto_next_page(self):
        self.logic.goto_next_page()

    def goto_specified_date(self, year, month, day):
        self.logic.goto_date(year, month, day)

    def goto_today_offset(self, offset):
        self.logic.goto_today_offset(offset)

    def forget_annotations(self):
        self.logic.forget_annotations()

    def set_print_board(self, on):
        self.prints = bool(on & 1)

    def get_print_board(self):
        return self.prints

    # Queries

    def get_content_rows(self):
        return len(self.logic.board.layout.rows)

    def get_content_columns(self):
        return len(self.logic.board.layout.columns)

    def get_content_item(self, row, column):
        return self.logic.content_item(row, column).record()

    def get_calendar_week_by_columns(self, column):
        return self.logic.heading(column)

    def get_week_number_count(self):
        return len(self.logic.board.layout.spans)

    def get_week_number_item_with_index(self, index):
        span = self.logic.span(index)
        return (span.week, span.second_week, span.rows)

    def get_content_date(self):
        return tuple(self.logic.content_date())

    def get_today(self):
        return tuple(self.logic.dates.today())

    def is_today_in_board(self):
        return self.logic.board.today_on_board

    # Options, apart from those in INTS and FLAGS

    def get_show_month_interval(self):
        """Answers with the hide-break-day flag; the interval flag cannot be read back."""
        return self.options.hide_break_day

    def get_civil_days(self):
        return self.logic.dates.civil

    def set_civil_days(self, on):
        self.logic.set_civil_days(bool(on & 1))

    def set_break_day_of_week(self, day, is_break):
        self.options.set_break_day(day, is_break)

    def is_break_day_of_week(self, day):
        return self.options.is_break_day(day)

    def get_config_key(self):
        return self.options.key()

    # Annotations; the day of week of the date is dropped

    def converter_lunar_with_date(self, date):
        return tuple(self.logic.lunar_date(SolarDate(*date[:3])))

    def check24_sekki_with_date(self, date):
        return self.logic.solar_term(SolarDate(*date[:3]))

    def check_festival_solar_with_lang(self, language, date):
        return self.logic.solar_festival(language, SolarDate(*date[:3]))

    def check_festival_lunar_with_lang(self, language, date):
        return self.logic.lunar_festival(language, SolarDate(*date[:3]))


# The options by their names in getters and setters.
INTS = {
    "disp_month": "mode",
    "max_row": "max_rows",
    "passed_weeks": "passed_weeks",
    "start_day_of_week": "start_day_of_week",
    "start_week_number": "start_week_number",
    "week_number_calc_type": "week_number_calc_type",
}
FLAGS = ("hide_break_day", "show_month_interval", "show_break_day_of_week")


def _add_option(name, option, stored):
    """Give the engine the getter, where it has none of its own, and the setter of an option."""
    if not hasattr(Engine, f"get_{name}"):
        setattr(Engine, f"get_{name}", lambda self: getattr(self.options, option))
    setattr(Engine, f"set_{name}", lambda self, value: setattr(self.options, option, stored(value)))


for _name, _option in INTS.items():
    _add_option(_name, _option, int)
for _name in FLAGS:
    _add_option(_name, _name, lambda value: bool(value & 1))
