# SPDX-License-Identifier: MIT
"""The built library through ctypes, call by call comparable with the model."""

import ctypes
import os
import tempfile
from ctypes import c_int32, c_uint8

_libc = ctypes.CDLL(None)
_libc.free.argtypes = [ctypes.c_void_p]
_libc.fflush.argtypes = [ctypes.c_void_p]


def _int_record(name, *fields):
    members = [(field, c_int32) for field in fields]
    return type(name, (ctypes.Structure,), {"_fields_": members})


SolarDateRecord = _int_record("SolarDateRecord", "year", "month", "day", "day_of_week")
CellRecord = _int_record(
    "CellRecord",
    "year",
    "month",
    "day",
    "day_of_week",
    "week_number",
    "row",
    "column",
    "type",
)
SpanRecord = _int_record("SpanRecord", "week_number", "second_week_number", "rows")
LunarDateRecord = _int_record("LunarDateRecord", "year", "month", "day", "reserved", "leap")

INT = c_int32
FLAG = c_uint8
TEXT = ctypes.c_void_p

# Exported name: (result, arguments, name of the model's method).
BOARD_CALLS = {
    "native_add": (INT, (INT, INT), "native_add"),
    "CreateSolarDate": (SolarDateRecord, (INT,) * 4, "create_solar_date"),
    "InitCalendarLogicDt": (None, (INT,), "init_calendar_logic_dt"),
    "Build": (None, (), "build"),
    "GotoToday": (None, (), "goto_today"),
    "GotoPreviousPage": (None, (), "goto_previous_page"),
    "GotoNextPage": (None, (), "goto_next_page"),
    "GotoSpecifiedDate": (None, (INT,) * 3, "goto_specified_date"),
    "GotoTodayOffset": (None, (INT,), "goto_today_offset"),
    "GetContentRows": (INT, (), "get_content_rows"),
    "GetContentColumns": (INT, (), "get_content_columns"),
    "GetContentItem": (CellRecord, (INT, INT), "get_content_item"),
    "GetCalendarWeekByColumns": (INT, (INT,), "get_calendar_week_by_columns"),
    "GetWeekNumberCount": (INT, (), "get_week_number_count"),
    "GetWeekNumberItemWithIndex": (SpanRecord, (INT,), "get_week_number_item_with_index"),
    "GetContentDate": (SolarDateRecord, (), "get_content_date"),
    "GetToday": (SolarDateRecord, (), "get_today"),
    "IsTodayInBoard": (FLAG, (), "is_today_in_board"),
    "GetDispMonth": (INT, (), "get_disp_month"),
    "SetDispMonth": (None, (INT,), "set_disp_month"),
    "GetMaxRow": (INT, (), "get_max_row"),
    "SetMaxRow": (None, (INT,), "set_max_row"),
    "GetPassedWeeks": (INT, (), "get_passed_weeks"),
    "SetPassedWeeks": (None, (INT,), "set_passed_weeks"),
    "GetStartDayOfWeek": (INT, (), "get_start_day_of_week"),
    "SetStartDayOfWeek": (None, (INT,), "set_start_day_of_week"),
    "GetStartWeekNumber": (INT, (), "get_start_week_number"),
    "SetStartWeekNumber": (None, (INT,), "set_start_week_number"),
    "GetHideBreakDay": (FLAG, (), "get_hide_break_day"),
    "SetHideBreakDay": (None, (FLAG,), "set_hide_break_day"),
    "GetShowMonthInterval": (FLAG, (), "get_show_month_interval"),
    "SetShowMonthInterval": (None, (FLAG,), "set_show_month_interval"),
    "GetShowBreakDayOfWeek": (FLAG, (), "get_show_break_day_of_week"),
    "SetShowBreakDayOfWeek": (None, (FLAG,), "set_show_break_day_of_week"),
    "GetWeekNumberCalcType": (INT, (), "get_week_number_calc_type"),
    "SetWeekNumberCalcType": (None, (INT,), "set_week_number_calc_type"),
    "SetBreakDayOfWeek": (None, (INT, FLAG), "set_break_day_of_week"),
    "IsBreakDayOfWeek": (FLAG, (INT,), "is_break_day_of_week"),
    "GetConfigKey": (TEXT, (), "get_config_key"),
}
ANNOTATION_CALLS = {
    "ConverterLunarWithDate": (LunarDateRecord, (SolarDateRecord,), "converter_lunar_with_date"),
    "Check24SekkiWithDate": (INT, (SolarDateRecord,), "check24_sekki_with_date"),
    "CheckFestivalSolarWithLang": (
        INT,
        (INT, SolarDateRecord),
        "check_festival_solar_with_lang",
    ),
    "CheckFestivalLunarWithLang": (
        INT,
        (INT, SolarDateRecord),
        "check_festival_lunar_with_lang",
    ),
}
CALLS = BOARD_CALLS | ANNOTATION_CALLS


class Library:
    """The exported functions of a built library with plain Python arguments and results."""

    def __init__(self, path):
        self._handle = ctypes.CDLL(os.path.abspath(path))
        self._functions = {}

    def has(self, name):
        """Whether the library exports a function."""
        return hasattr(self._handle, name)

    def _function(self, name):
        if name not in self._functions:
            result, arguments, _ = CALLS[name]
            function = getattr(self._handle, name)
            function.restype = result
            function.argtypes = arguments
            self._functions[name] = function
        return self._functions[name]

    def call(self, name, *arguments):
        """Call a function; dates go in and records come out as tuples."""
        result_type, argument_types, _ = CALLS[name]
        passed = [
            SolarDateRecord(*value) if kind is SolarDateRecord else value
            for kind, value in zip(argument_types, arguments, strict=True)
        ]
        result = self._function(name)(*passed)
        if result_type is TEXT:
            text = ctypes.string_at(result).decode()
            _libc.free(result)
            return text
        if result_type is not None and issubclass(result_type, ctypes.Structure):
            return tuple(getattr(result, field) for field, _ in result_type._fields_)
        return result


class OutputCapture:
    """Sends the process's standard output to a temporary file and reads it back piece by piece."""

    def __init__(self):
        self._file = tempfile.TemporaryFile()
        self.original = os.dup(1)
        os.dup2(self._file.fileno(), 1)
        self._taken = 0

    def take(self):
        """The bytes written since the last call."""
        _libc.fflush(None)
        size = os.fstat(self._file.fileno()).st_size
        if size == self._taken:
            return b""
        text = os.pread(self._file.fileno(), size - self._taken, self._taken)
        self._taken = size
        return text
