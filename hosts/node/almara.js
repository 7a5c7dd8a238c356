// SPDX-License-Identifier: MIT
//
// The calendar engine for Node.js: every function of <almara/almara.h>, ready to call. Records
// travel by value as plain objects, and GetConfigKey() returns a string.
'use strict';

const koffi = require('koffi');

const records = {
  CCalendarSolarDate: 'year month day dayOfWeek',
  CCalendarLunarDate: 'year month day reserved leap',
  tagCalendarCell: 'year month day dayOfWeek weekNumber row column type',
  tagWeekNumberSpan: 'weekNumber secondWeekNumber rows',
};

const functions = `
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
`;

for (const [name, fields] of Object.entries(records)) {
  koffi.struct(name, Object.fromEntries(fields.split(' ').map((field) => [field, 'int32_t'])));
}
for (const name of new Set(functions.match(/\bE[A-Z]\w+/g))) {
  koffi.alias(name, 'int32_t');
}

function load(path = 'libalmara.so.1') {
  const library = koffi.load(path);
  const calls = {};
  for (const [prototype, name] of functions.matchAll(/\S+ (\w+)\(.*\)/g)) {
    // The "!" releases the text that the caller owns.
    calls[name] = library.func(prototype.replace('char* ', 'str! '));
  }
  return calls;
}

module.exports = { load, records };
