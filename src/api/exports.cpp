// SPDX-License-Identifier: MIT
//
// The exported functions: each hands its arguments to the engine, or gives its fallback while there
// is none. Nothing is decided here.
#include <almara/almara.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "api/engine.h"
#include "date/int32.h"

using almara::Ask;
using almara::Tell;

const char* GetLibraryVersion() { return ALMARA_VERSION_STRING; }

std::int32_t native_add(std::int32_t a, std::int32_t b) { return almara::WrapAdd(a, b); }

CCalendarSolarDate CreateSolarDate(std::int32_t year, std::int32_t month, std::int32_t day,
                                   std::int32_t week) {
  return {year, month, day, week};
}

void InitCalendarLogicDt(std::int32_t language) {
  Tell(&CCalendarLogic::InitCalendarLogic, language);
}

void Build() { Tell(&CCalendarLogic::Build); }

void GotoToday() { Tell(&CCalendarLogic::GotoToday); }

void GotoPreviousPage() { Tell(&CCalendarLogic::GotoPreviousPage); }

void GotoNextPage() { Tell(&CCalendarLogic::GotoNextPage); }

void GotoSpecifiedDate(std::int32_t year, std::int32_t month, std::int32_t day) {
  Tell(&CCalendarLogic::GotoSpecifiedDate, year, month, day);
}

void GotoTodayOffset(std::int32_t offset) { Tell(&CCalendarLogic::GotoTodayOffsetMonth, offset); }

std::int32_t GetContentRows() { return Ask(&CCalendarLogic::GetContentRows, 0); }

std::int32_t GetContentColumns() { return Ask(&CCalendarLogic::GetContentColumns, 0); }

// The engine exists once loading has succeeded; there is no fallback for a cell.
tagCalendarCell GetContentItem(std::int32_t row, std::int32_t column) {
  const CCalendarItem item = g_pCalendarLogic->GetContentItem(row, column);
  const CCalendarSolarDate& date = item.GetDate();
  return {date.year,     date.month,       date.day,      date.dayOfWeek, item.GetWeekNumber(),
          item.GetRow(), item.GetColumn(), item.GetType()};
}

ECalendarWeek GetCalendarWeekByColumns(std::int32_t column) {
  return Ask(&CCalendarLogic::GetCalendarWeekByColumns, eCalendarWeekMonday, column);
}

std::int32_t GetWeekNumberCount() { return Ask(&CCalendarLogic::GetWeekNumberCount, 0); }

tagWeekNumberSpan GetWeekNumberItemWithIndex(std::int32_t index) {
  const auto span = Ask(&CCalendarLogic::GetWeekNumberItem, tagCalendarWeekSpan{}, index);
  return {span.weekNumber, span.secondWeekNumber, span.rows};
}

CCalendarSolarDate GetContentDate() {
  return Ask(&CCalendarLogic::GetContentDate, CCalendarSolarDate{});
}

CCalendarSolarDate GetToday() { return Ask(&CCalendarLogic::GetToday, CCalendarSolarDate{}); }

bool IsTodayInBoard() { return Ask(&CCalendarLogic::IsTodayInBoard, false); }

EDispMonth GetDispMonth() { return Ask(&CCalendarLogic::GetDispMonth, eDispMonthRollingWeeks); }

void SetDispMonth(EDispMonth mode) { Tell(&CCalendarLogic::SetDispMonth, mode); }

std::int32_t GetMaxRow() { return Ask(&CCalendarLogic::GetMaxRows, 0); }

void SetMaxRow(std::int32_t rows) { Tell(&CCalendarLogic::SetMaxRows, rows); }

std::int32_t GetPassedWeeks() { return Ask(&CCalendarLogic::GetPassedWeeks, 0); }

void SetPassedWeeks(std::int32_t weeks) { Tell(&CCalendarLogic::SetPassedWeeks, weeks); }

ECalendarWeek GetStartDayOfWeek() {
  return Ask(&CCalendarLogic::GetStartDayOfWeek, eCalendarWeekMonday);
}

void SetStartDayOfWeek(ECalendarWeek day) { Tell(&CCalendarLogic::SetStartDayOfWeek, day); }

std::int32_t GetStartWeekNumber() { return Ask(&CCalendarLogic::GetStartWeekNumber, 0); }

void SetStartWeekNumber(std::int32_t week) { Tell(&CCalendarLogic::SetStartWeekNumber, week); }

bool GetHideBreakDay() { return Ask(&CCalendarLogic::IsHideBreakDay, false); }

// Answers with the hide-break-day flag: this pairing is part of the interface.
bool GetShowMonthInterval() { return Ask(&CCalendarLogic::IsHideBreakDay, false); }

bool GetShowBreakDayOfWeek() { return Ask(&CCalendarLogic::IsShowBreakDayOfWeek, false); }

EWeekNumberCalc GetWeekNumberCalcType() {
  return Ask(&CCalendarLogic::GetWeekNumberCalcType, eWeekNumberCalcIso8601);
}

void SetWeekNumberCalcType(EWeekNumberCalc type) {
  Tell(&CCalendarLogic::SetWeekNumberCalcType, type);
}

bool GetCivilDays() { return Ask(&CCalendarLogic::IsCivilDays, false); }

bool IsBreakDayOfWeek(std::int32_t dayOfWeek) {
  return Ask(&CCalendarLogic::IsBreakDayOfWeek, false, dayOfWeek);
}

char* GetConfigKey() try {
  if (g_pCalendarLogic == nullptr) {
    return nullptr;
  }
  const std::string key = g_pCalendarLogic->GetConfigKey();
  // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): hosts release the text with free().
  auto* copy = static_cast<char*>(std::malloc(key.size() + 1));
  if (copy != nullptr) {
    std::memcpy(copy, key.c_str(), key.size() + 1);
  }
  return copy;
} catch (const std::bad_alloc&) {  // GCOVR_EXCL_BR_LINE: nothing else is thrown
  return nullptr;
}

// NOLINTNEXTLINE(cppcoreguidelines-no-malloc): what GetConfigKey() allocated.
void ReleaseText(char* text) { std::free(text); }

bool GetPrintBoard() { return Ask(&CCalendarLogic::IsPrintBoard, false); }
