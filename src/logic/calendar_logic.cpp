// SPDX-License-Identifier: MIT
#include "logic/calendar_logic.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

#include "board/standard_output.h"
#include "date/calendar_platform_api.h"
#include "date/gregorian.h"
#include "date/int32.h"

using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

// The zone in which a language's calendar is reckoned, in hours east; kTimeZoneUnknown for a
// language that fixes none.
std::int32_t ZoneOfLanguage(ELanguage language) {
  switch (language) {
    case eLanguageChs:
    case eLanguageCht:
      return 8;
    case eLanguageKor:
    case eLanguageJpn:
      return 9;
    default:
      return kTimeZoneUnknown;
  }
}

// Sets the zone of lunar dates and solar terms, here and nowhere else: to the one given, or, while
// no zone is known, to the machine's.
void SetZone(std::int32_t hours) {
  if (hours != kTimeZoneUnknown) {
    g_mac_timezone = hours;
  } else if (g_mac_timezone == kTimeZoneUnknown) {
    g_mac_timezone = almara::MachineOffsetHours();
  }
}

// Whatever asks for today fixes the zone, if no language has done so before.
CCalendarSolarDate Today() {
  SetZone(kTimeZoneUnknown);
  return almara::Today();
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
  SetZone(ZoneOfLanguage(language));
  GotoToday();
}

// A board marks today, so that building one fixes the zone as asking for today does.
void CCalendarLogic::_Show(int year, int month, int day) {
  if (almara::IsBoardDate(year, month, day)) {
    SetZone(kTimeZoneUnknown);
  }
  _BuildCalendar(year, month, day);
}

void CCalendarLogic::Build() {
  const CCalendarSolarDate today = Today();
  if (m_focusYear == today.year && m_focusMonth == today.month && m_focusDay == today.day) {
    _Show(m_focusYear, m_focusMonth, m_focusDay);
  } else {
    GotoToday();
  }
}

void CCalendarLogic::GotoToday() {
  SetZone(kTimeZoneUnknown);
  _BuildCalendar(0, 0, 0);
}

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
  _Show(date.year, date.month, date.day);
}

void CCalendarLogic::GotoNextPage() {
  if (_PagesByMonth()) {
    _GotoNextMonth();
    return;
  }
  const CCalendarSolarDate date = DateByOffset(m_lastDateItem.GetDate(), 1);
  m_pageDirection = ePageDirectionForward;
  _Show(date.year, date.month, date.day);
}

void CCalendarLogic::_GotoPreviousMonth() {
  if (m_focusMonth == 1) {
    _Show(m_focusYear - 1, almara::kMonthsOfYear, 1);
  } else {
    _Show(m_focusYear, m_focusMonth - 1, 1);
  }
}

void CCalendarLogic::_GotoNextMonth() {
  if (m_focusMonth >= almara::kMonthsOfYear) {
    _Show(m_focusYear + 1, 1, 1);
  } else {
    _Show(m_focusYear, m_focusMonth + 1, 1);
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
  _Show(year, month, day);
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
  const int year = today.year + FloorDivide(monthsFromStart, almara::kMonthsOfYear);
  const int month = FloorModulo(monthsFromStart, almara::kMonthsOfYear) + 1;
  const int day = std::min(today.day, _GetMaxDaysOfSolarMonth(year, month));
  WriteTrace("", {year, month, day, 0});
  _Show(year, month, day);
}

void CCalendarLogic::_GotoPageOffset(const CCalendarSolarDate& today, int offset) {
  const int days = WrapMultiply(WrapMultiply(almara::kDaysOfWeek, GetMaxRows()), offset);
  const CCalendarSolarDate date = DateByOffset(today, days);
  m_pageDirection = ePageDirectionNone;
  WriteTrace("build-logic ", date);
  _Show(date.year, date.month, date.day);
}

CCalendarItem CCalendarLogic::GetContentItem(int row, int column) const {
  if (row < 0 || row >= m_visibleRowCount || column < 0 || column >= m_visibleColumnCount) {
    return {};
  }
  return _VisibleRow(row).items[_VisibleColumn(column)];
}

int CCalendarLogic::GetCalendarWeekByColumns(int column) const {
  if (column < 0 || column >= almara::kDaysOfWeek) {
    return 0;
  }
  if (GetDispMonth() == eDispMonthDayStrip) {
    return GetContentItem(0, column).GetDate().dayOfWeek;
  }
  const int boardColumn = static_cast<int>(_VisibleColumn(column));
  return WrapAdd(GetStartDayOfWeek(), boardColumn) % almara::kDaysOfWeek;
}

tagCalendarWeekSpan CCalendarLogic::GetWeekNumberItem(int index) const {
  if (index < 0 || index >= GetWeekNumberCount()) {
    return {};
  }
  return m_weekNumberSpans[static_cast<std::size_t>(index)];
}

CCalendarSolarDate CCalendarLogic::GetToday() const { return Today(); }
