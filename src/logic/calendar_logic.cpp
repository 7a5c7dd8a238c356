// SPDX-License-Identifier: MIT
#include "logic/calendar_logic.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

#include "board/standard_output.h"
#include "date/calendar_platform_api.h"
#include "date/int32.h"

using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

constexpr int kMonthsOfYear = 12;

CCalendarSolarDate Today() {
  CCalendarSolarDate today{};
  CalendarPlatformApi::GetTodayDate(today.year, today.month, today.day, today.dayOfWeek);
  return today;
}

CCalendarSolarDate DateByOffset(const CCalendarSolarDate& date, int offset) {
  CCalendarSolarDate result{};
  CalendarPlatformApi::GetNewDateByOffsetDays(date.year, date.month, date.day, offset, result.year,
                                              result.month, result.day, result.dayOfWeek);
  return result;
}

bool IsBefore(const CCalendarSolarDate& a, const CCalendarSolarDate& b) {
  return std::tie(a.year, a.month, a.day) < std::tie(b.year, b.month, b.day);
}

// Quotient rounded down and the remainder that belongs to it, 0 to divisor - 1.
int FloorDivide(int value, int divisor) { return value / divisor - (value % divisor < 0 ? 1 : 0); }
int FloorModulo(int value, int divisor) {
  const int remainder = value % divisor;
  return remainder < 0 ? remainder + divisor : remainder;
}

// Writes the prefix and "year-month-day", fields unpadded, without a line end.
void WriteTrace(const char* prefix, const CCalendarSolarDate& date) {
  char text[64];
  const int length =
      std::snprintf(text, sizeof text, "%s%d-%d-%d", prefix, date.year, date.month, date.day);
  WriteToStandardOutput({text, static_cast<std::size_t>(length)});
}

}  // namespace

void CCalendarLogic::InitCalendarLogic(ELanguage language) {
  switch (language) {
    case eLanguageChs:
    case eLanguageCht:
      g_mac_timezone = 8;
      break;
    case eLanguageKor:
    case eLanguageJpn:
      g_mac_timezone = 9;
      break;
    default:
      break;
  }
  _BuildCalendar(0, 0, 0);
}

void CCalendarLogic::Build() {
  const CCalendarSolarDate today = Today();
  if (m_focusYear == today.year && m_focusMonth == today.month && m_focusDay == today.day) {
    _BuildCalendar(m_focusYear, m_focusMonth, m_focusDay);
  } else {
    _BuildCalendar(0, 0, 0);
  }
}

void CCalendarLogic::GotoToday() { _BuildCalendar(0, 0, 0); }

bool CCalendarLogic::_PagesByMonth() const {
  return GetDispMonth() == eDispMonthRollingTail || GetDispMonth() == eDispMonthWholeMonth;
}

void CCalendarLogic::GotoPreviousPage() {
  if (_PagesByMonth()) {
    _GotoPreviousMonth();
    return;
  }
  const CCalendarSolarDate date = DateByOffset(m_firstDateItem.GetDate(), -1);
  m_pageDirection = ePageDirectionBackward;
  _BuildCalendar(date.year, date.month, date.day);
}

void CCalendarLogic::GotoNextPage() {
  if (_PagesByMonth()) {
    _GotoNextMonth();
    return;
  }
  const CCalendarSolarDate date = DateByOffset(m_lastDateItem.GetDate(), 1);
  m_pageDirection = ePageDirectionForward;
  _BuildCalendar(date.year, date.month, date.day);
}

void CCalendarLogic::_GotoPreviousMonth() {
  if (m_focusMonth == 1) {
    _BuildCalendar(m_focusYear - 1, kMonthsOfYear, 1);
  } else {
    _BuildCalendar(m_focusYear, m_focusMonth - 1, 1);
  }
}

void CCalendarLogic::_GotoNextMonth() {
  if (m_focusMonth >= kMonthsOfYear) {
    _BuildCalendar(m_focusYear + 1, 1, 1);
  } else {
    _BuildCalendar(m_focusYear, m_focusMonth + 1, 1);
  }
}

void CCalendarLogic::GotoSpecifiedDate(int year, int month, int day) {
  if (GetDispMonth() != eDispMonthWholeMonth) {
    const CCalendarSolarDate date{year, month, day, 0};
    if (IsBefore(date, m_firstDateItem.GetDate())) {
      m_pageDirection = ePageDirectionBackward;
    } else if (IsBefore(m_lastDateItem.GetDate(), date)) {
      m_pageDirection = ePageDirectionForward;
    } else {
      m_pageDirection = ePageDirectionNone;
    }
  }
  _BuildCalendar(year, month, day);
}

void CCalendarLogic::GotoTodayOffsetMonth(int offset) {
  const CCalendarSolarDate today = Today();
  if (GetDispMonth() == eDispMonthWholeMonth) {
    _GotoMonthOffset(today, offset);
  } else {
    _GotoPageOffset(today, offset);
  }
}

// A month outside 1900 to 2099 has no length here, so its day is -1 and the build rejects it.
void CCalendarLogic::_GotoMonthOffset(const CCalendarSolarDate& today, int offset) {
  const int monthsFromStart = WrapSubtract(WrapAdd(today.month, offset), 1);
  const int year = today.year + FloorDivide(monthsFromStart, kMonthsOfYear);
  const int month = FloorModulo(monthsFromStart, kMonthsOfYear) + 1;
  const int day = std::min(today.day, _GetMaxDaysOfSolarMonth(year, month));
  WriteTrace("", {year, month, day, 0});
  _BuildCalendar(year, month, day);
}

void CCalendarLogic::_GotoPageOffset(const CCalendarSolarDate& today, int offset) {
  const int days = WrapMultiply(WrapMultiply(kDaysOfWeek, GetMaxRows()), offset);
  const CCalendarSolarDate date = DateByOffset(today, days);
  m_pageDirection = ePageDirectionNone;
  WriteTrace("build-logic ", date);
  _BuildCalendar(date.year, date.month, date.day);
}

CCalendarItem CCalendarLogic::GetContentItem(int row, int column) const {
  if (row < 0 || row >= m_visibleRowCount || column < 0 || column >= m_visibleColumnCount) {
    return {};
  }
  return _VisibleRow(row).items[_VisibleColumn(column)];
}

int CCalendarLogic::GetCalendarWeekByColumns(int column) const {
  if (column < 0 || column >= kDaysOfWeek) {
    return 0;
  }
  if (GetDispMonth() == eDispMonthDayStrip) {
    return GetContentItem(0, column).GetDate().dayOfWeek;
  }
  const int boardColumn = static_cast<int>(_VisibleColumn(column));
  return WrapAdd(GetStartDayOfWeek(), boardColumn) % kDaysOfWeek;
}

tagCalendarWeekSpan CCalendarLogic::GetWeekNumberItem(int index) const {
  if (index < 0 || index >= GetWeekNumberCount()) {
    return {};
  }
  return m_weekNumberSpans[static_cast<std::size_t>(index)];
}

CCalendarSolarDate CCalendarLogic::GetToday() const { return Today(); }
