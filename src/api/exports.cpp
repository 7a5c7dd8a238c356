// SPDX-License-Identifier: MIT
//
// The exported functions: each hands its arguments to the engine, or gives its fallback while there
// is none. Nothing is decided here.
#include <almara/almara.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "api/engine.h"
#include "date/int32.h"

std::int32_t native_add(std::int32_t a, std::int32_t b) { return almara::WrapAdd(a, b); }

CCalendarSolarDate CreateSolarDate(std::int32_t year, std::int32_t month, std::int32_t day,
                                   std::int32_t week) {
  return {year, month, day, week};
}

void InitCalendarLogicDt(std::int32_t language) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->InitCalendarLogic(language);
  }
}

void Build() {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->Build();
  }
}

void GotoToday() {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->GotoToday();
  }
}

void GotoPreviousPage() {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->GotoPreviousPage();
  }
}

void GotoNextPage() {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->GotoNextPage();
  }
}

void GotoSpecifiedDate(std::int32_t year, std::int32_t month, std::int32_t day) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->GotoSpecifiedDate(year, month, day);
  }
}

void GotoTodayOffset(std::int32_t offset) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->GotoTodayOffsetMonth(offset);
  }
}

std::int32_t GetContentRows() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetContentRows() : 0;
}

std::int32_t GetContentColumns() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetContentColumns() : 0;
}

// The engine exists once loading has succeeded; there is no fallback for a cell.
tagCalendarCell GetContentItem(std::int32_t row, std::int32_t column) {
  const CCalendarItem item = g_pCalendarLogic->GetContentItem(row, column);
  const CCalendarSolarDate& date = item.GetDate();
  return {date.year,     date.month,       date.day,      date.dayOfWeek, item.GetWeekNumber(),
          item.GetRow(), item.GetColumn(), item.GetType()};
}

ECalendarWeek GetCalendarWeekByColumns(std::int32_t column) {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetCalendarWeekByColumns(column)
                                     : eCalendarWeekMonday;
}

std::int32_t GetWeekNumberCount() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetWeekNumberCount() : 0;
}

tagWeekNumberSpan GetWeekNumberItemWithIndex(std::int32_t index) {
  if (g_pCalendarLogic == nullptr) {
    return {};
  }
  const tagCalendarWeekSpan span = g_pCalendarLogic->GetWeekNumberItem(index);
  return {span.weekNumber, span.secondWeekNumber, span.rows};
}

CCalendarSolarDate GetContentDate() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetContentDate() : CCalendarSolarDate{};
}

CCalendarSolarDate GetToday() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetToday() : CCalendarSolarDate{};
}

bool IsTodayInBoard() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->IsTodayInBoard() : false;
}

EDispMonth GetDispMonth() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetDispMonth() : eDispMonthRollingWeeks;
}

void SetDispMonth(EDispMonth mode) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetDispMonth(mode);
  }
}

std::int32_t GetMaxRow() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetMaxRows() : 0;
}

void SetMaxRow(std::int32_t rows) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetMaxRows(rows);
  }
}

std::int32_t GetPassedWeeks() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetPassedWeeks() : 0;
}

void SetPassedWeeks(std::int32_t weeks) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetPassedWeeks(weeks);
  }
}

ECalendarWeek GetStartDayOfWeek() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetStartDayOfWeek() : eCalendarWeekMonday;
}

void SetStartDayOfWeek(ECalendarWeek day) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetStartDayOfWeek(day);
  }
}

std::int32_t GetStartWeekNumber() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetStartWeekNumber() : 0;
}

void SetStartWeekNumber(std::int32_t week) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetStartWeekNumber(week);
  }
}

bool GetHideBreakDay() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->IsHideBreakDay() : false;
}

// Answers with the hide-break-day flag; hosts rely on this pairing.
bool GetShowMonthInterval() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->IsHideBreakDay() : false;
}

bool GetShowBreakDayOfWeek() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->IsShowBreakDayOfWeek() : false;
}

EWeekNumberCalc GetWeekNumberCalcType() {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->GetWeekNumberCalcType()
                                     : eWeekNumberCalcIso8601;
}

void SetWeekNumberCalcType(EWeekNumberCalc type) {
  if (g_pCalendarLogic != nullptr) {
    g_pCalendarLogic->SetWeekNumberCalcType(type);
  }
}

bool IsBreakDayOfWeek(std::int32_t dayOfWeek) {
  return g_pCalendarLogic != nullptr ? g_pCalendarLogic->IsBreakDayOfWeek(dayOfWeek) : false;
}

char* GetConfigKey() {
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
}
