# SPDX-License-Identifier: MIT
"""The calendar engine for Python: load() gives the library with every function ready to call.

Records travel by value, bools are bools, and GetConfigKey() returns a str. What the functions do
stands in <almara/almara.h>.
"""
import ctypes
import re


def _record(name, fields):
    return type(name, (ctypes.Structure,),
                {"_fields_": [(field, ctypes.c_int32) for field in fields.split()]})


CCalendarSolarDate = _record("CCalendarSolarDate", "year month day dayOfWeek")
CCalendarLunarDate = _record("CCalendarLunarDate", "year month day reserved leap")
tagCalendarCell = _record("tagCalendarCell", "year month day dayOfWeek weekNumber row column type")
tagWeekNumberSpan = _record("tagWeekNumberSpan", "weekNumber secondWeekNumber rows")

_FUNCTIONS = """
int32_t native_add(int32_t a, int32_t b);
CCalendarSolarDate CreateSolarDate(int32_t year, int32_t month, int32_t day, int32_t week);
void InitCalendarLogicDt(int32_t language);
void Build(void);
void GotoToday(void);
void GotoPreviousPage(void);
void GotoNextPage(void);
void GotoSpecifiedDate(int32_t year, int32_t month, int32_t day);
void GotoTodayOffset(int32_t offset);
int32_t GetContentRows(void);
int32_t GetContentColumns(void);
tagCalendarCell GetContentItem(int32_t row, int32_t column);
ECalendarWeek GetCalendarWeekByColumns(int32_t column);
int32_t GetWeekNumberCount(void);
tagWeekNumberSpan GetWeekNumberItemWithIndex(int32_t index);
CCalendarSolarDate GetContentDate(void);
CCalendarSolarDate GetToday(void);
bool IsTodayInBoard(void);
CCalendarLunarDate ConverterLunarWithDate(CCalendarSolarDate date);
ESolarKyureki24 Check24SekkiWithDate(CCalendarSolarDate date);
EFestivalSolar CheckFestivalSolarWithLang(ELanguage language, CCalendarSolarDate date);
EFestivalLunar CheckFestivalLunarWithLang(ELanguage language, CCalendarSolarDate date);
EDispMonth GetDispMonth(void);
void SetDispMonth(EDispMonth mode);
int32_t GetMaxRow(void);
void SetMaxRow(int32_t rows);
int32_t GetPassedWeeks(void);
void SetPassedWeeks(int32_t weeks);
ECalendarWeek GetStartDayOfWeek(void);
void SetStartDayOfWeek(ECalendarWeek day);
int32_t GetStartWeekNumber(void);
void SetStartWeekNumber(int32_t week);
bool GetHideBreakDay(void);
void SetHideBreakDay(bool hide);
bool GetShowMonthInterval(void);
void SetShowMonthInterval(bool show);
bool GetShowBreakDayOfWeek(void);
void SetShowBreakDayOfWeek(bool show);
EWeekNumberCalc GetWeekNumberCalcType(void);
void SetWeekNumberCalcType(EWeekNumberCalc type);
void SetBreakDayOfWeek(int32_t dayOfWeek, bool isBreak);
bool IsBreakDayOfWeek(int32_t dayOfWeek);
char* GetConfigKey(void);
"""

_free = ctypes.CDLL(None).free
_free.argtypes = [ctypes.c_void_p]


def _take_text(address, _function, _arguments):
    text = ctypes.string_at(address).decode() if address else None
    _free(address)
    return text


_TYPES = {"void": None, "int32_t": ctypes.c_int32, "bool": ctypes.c_bool,
          "char*": ctypes.c_void_p, "CCalendarSolarDate": CCalendarSolarDate,
          "CCalendarLunarDate": CCalendarLunarDate, "tagCalendarCell": tagCalendarCell,
          "tagWeekNumberSpan": tagWeekNumberSpan}


def _type(name):
    """The types whose name begins with E are integers that stand for a choice."""
    return ctypes.c_int32 if name.startswith("E") else _TYPES[name]


def load(path="libalmara.so.1"):
    library = ctypes.CDLL(path)
    for result, name, arguments in re.findall(r"(\S+) (\w+)\((.*)\);", _FUNCTIONS):
        function = getattr(library, name)
        function.restype = _type(result)
        function.argtypes = [_type(argument.split()[0]) for argument in arguments.split(", ")
                             if argument != "void"]
        if result == "char*":
            function.errcheck = _take_text
    return library
