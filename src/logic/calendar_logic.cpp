// SPDX-License-Identifier: MIT
#include "logic/calendar_logic.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <tuple>

#include "board/standard_output.h"
#include "date/calendar_platform_api.h"
#include "date/day_run.h"
#include "date/gregorian.h"
#include "date/int32.h"
#include "festival/calendar_festival_function.h"

using almara::DateByOffset;
using almara::DayCounting;
using almara::kDaysOfWeek;
using almara::kMonthsOfYear;
using almara::PageDirection;
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

// Sets the zone of lunar dates and solar terms: to the one given, or, while no zone is known, to
// the machine's. Nothing else sets it, and only ForgetAnnotations() takes it back.
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

bool IsSameDay(const CCalendarSolarDate& a, const CCalendarSolarDate& b) {
  return std::tie(a.year, a.month, a.day) == std::tie(b.year, b.month, b.day);
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

}  // namespace

CCalendarLogic::CCalendarLogic() : m_festival(this) {}

void CCalendarLogic::SetCivilDays(bool on) {
  const DayCounting counting = on ? DayCounting::kCivil : DayCounting::kLocalTime;
  if (counting == GetDayCounting()) {
    return;
  }
  SetDayCounting(counting);
  m_weekNumber.ForgetAnswers();
  m_mapFestivalSolarCache.Clear();
  m_mapFestivalLunarCache.Clear();
}

void CCalendarLogic::InitCalendarLogic(ELanguage language) {
  SetZone(ZoneOfLanguage(language));
  GotoToday();
}

void CCalendarLogic::Build() {
  const CCalendarSolarDate today = Today();
  if (IsSameDay(m_board.content.focus, today)) {
    _Show(today);
  } else {
    GotoToday();
  }
}

void CCalendarLogic::GotoToday() {
  SetZone(kTimeZoneUnknown);
  m_pageDirection = PageDirection::kNone;
  _BuildToday();
}

// Builds the board of a date under the page direction; all zeroes stand for today. A board marks
// today, so that building one fixes the zone as asking for today does.
void CCalendarLogic::_Show(const CCalendarSolarDate& date) {
  if (IsSameDay(date, {})) {
    GotoToday();
    return;
  }
  if (almara::IsBoardDate(date.year, date.month, date.day)) {
    SetZone(kTimeZoneUnknown);
  }
  _BuildCalendar(date.year, date.month, date.day, m_pageDirection);
}

// Writes the prefix and "year-month-day", fields unpadded, without a line end.
void CCalendarLogic::_WriteTrace(const char* prefix, const CCalendarSolarDate& date) const {
  if (!IsPrintBoard()) {
    return;
  }
  char text[64];
  const int length =
      std::snprintf(text, sizeof text, "%s%d-%d-%d", prefix, date.year, date.month, date.day);
  almara::WriteToStandardOutput({text, static_cast<std::size_t>(length)});
}

bool CCalendarLogic::_PagesByMonth() const {
  return GetDispMonth() == eDispMonthRollingTail || GetDispMonth() == eDispMonthWholeMonth;
}

void CCalendarLogic::GotoPreviousPage() {
  if (_PagesByMonth()) {
    _GotoPreviousMonth();
    return;
  }
  const CCalendarSolarDate date =
      DateByOffset(m_board.content.first.GetDate(), -1, GetDayCounting());
  m_pageDirection = PageDirection::kBackward;
  _Show(date);
}

void CCalendarLogic::GotoNextPage() {
  if (_PagesByMonth()) {
    _GotoNextMonth();
    return;
  }
  const CCalendarSolarDate date = DateByOffset(m_board.content.last.GetDate(), 1, GetDayCounting());
  m_pageDirection = PageDirection::kForward;
  _Show(date);
}

void CCalendarLogic::_GotoPreviousMonth() {
  const auto [year, month, day, dayOfWeek] = m_board.content.focus;
  _Show(month == 1 ? CCalendarSolarDate{year - 1, kMonthsOfYear, 1, 0}
                   : CCalendarSolarDate{year, month - 1, 1, 0});
}

void CCalendarLogic::_GotoNextMonth() {
  const auto [year, month, day, dayOfWeek] = m_board.content.focus;
  _Show(month == kMonthsOfYear ? CCalendarSolarDate{year + 1, 1, 1, 0}
                               : CCalendarSolarDate{year, month + 1, 1, 0});
}

void CCalendarLogic::GotoSpecifiedDate(int year, int month, int day) {
  const CCalendarSolarDate date{year, month, day, 0};
  if (GetDispMonth() != eDispMonthWholeMonth) {
    m_pageDirection = _DirectionTo(date);
  }
  _Show(date);
}

// Paging to a date that the board does not show: backward to an earlier one, forward to a later.
PageDirection CCalendarLogic::_DirectionTo(const CCalendarSolarDate& date) const {
  if (IsBefore(date, m_board.content.first.GetDate())) {
    return PageDirection::kBackward;
  }
  return IsBefore(m_board.content.last.GetDate(), date) ? PageDirection::kForward
                                                        : PageDirection::kNone;
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
  const int year = WrapAdd(today.year, FloorDivide(monthsFromStart, kMonthsOfYear));
  const int month = FloorModulo(monthsFromStart, kMonthsOfYear) + 1;
  const int day = std::min(today.day, almara::DaysOfBoardMonth(year, month));
  const CCalendarSolarDate date{year, month, day, 0};
  _WriteTrace("", date);
  _Show(date);
}

void CCalendarLogic::_GotoPageOffset(const CCalendarSolarDate& today, int offset) {
  const int days = WrapMultiply(WrapMultiply(kDaysOfWeek, GetMaxRows()), offset);
  const CCalendarSolarDate date = DateByOffset(today, days, GetDayCounting());
  m_pageDirection = PageDirection::kNone;
  _WriteTrace("build-logic ", date);
  _Show(date);
}

CCalendarItem CCalendarLogic::GetContentItem(int row, int column) const {
  if (row < 0 || row >= GetContentRows() || column < 0 || column >= GetContentColumns()) {
    return {};
  }
  const almara::VisiblePart& visible = m_board.visible;
  return m_board.content.rows[visible.RowAt(row)].items[visible.ColumnAt(column)];
}

int CCalendarLogic::GetCalendarWeekByColumns(int column) const {
  if (column < 0 || column >= kDaysOfWeek) {
    return 0;
  }
  if (GetDispMonth() == eDispMonthDayStrip) {
    return GetContentItem(0, column).GetDate().dayOfWeek;
  }
  const auto boardColumn = static_cast<int>(m_board.visible.ColumnAt(column));
  return WrapAdd(GetStartDayOfWeek(), boardColumn) % kDaysOfWeek;
}

tagCalendarWeekSpan CCalendarLogic::GetWeekNumberItem(int index) const {
  if (index < 0 || index >= GetWeekNumberCount()) {
    return {};
  }
  return m_board.spans[static_cast<std::size_t>(index)];
}

CCalendarSolarDate CCalendarLogic::GetToday() const { return Today(); }

void CCalendarLogic::ForgetAnnotations() {
  m_mapLunarDateCache.Clear();
  m_map24SekkiCache.Clear();
  m_mapFestivalSolarCache.Clear();
  m_mapFestivalLunarCache.Clear();
  m_weekNumber.ForgetAnswers();
  m_lunarMemo = {};
  almara::ForgetFeasts();
  g_mac_timezone = kTimeZoneUnknown;
}
