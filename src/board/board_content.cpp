// SPDX-License-Identifier: MIT
//
// The content of a board: how many days it lists around the focus date, which dates these are, and
// the rows of cells cut from them.
#include <algorithm>
#include <cmath>
#include <limits>

#include "board/calendar_logic_build.h"
#include "date/calendar_platform_api.h"
#include "date/day_run.h"
#include "date/gregorian.h"
#include "date/int32.h"

using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

constexpr int kWeeksOfHalfYear = 30;
constexpr std::size_t kUsualListSize = 80;  // spares the lists of usual boards their growth

int DaysOfWeeks(int weeks) { return WrapMultiply(weeks, almara::kDaysOfWeek); }

// Column of the first day of the month of a date that stands in the given column.
int ColumnOfFirstDay(int day, int column) {
  const int first = 7 - (6 - column + day) % 7;  // 7 stands for column 0
  return first % 7;
}

// Normalises date, with its day of week, and returns the run of days that begins with it.
almara::DayRun DayRunFrom(CCalendarSolarDate& date) {
  const CCalendarSolarDate asked = date;
  almara::DayRun run(asked.year, asked.month, asked.day);
  run.DateAt(0, date);
  if (date.year != asked.year || date.month != asked.month || date.day != asked.day) {
    run = almara::DayRun(date.year, date.month, date.day);
  }
  return run;
}

}  // namespace

int CCalendarLogicBuild::_BuildContent(int year, int month, int day,
                                       std::vector<tagCalendarRow>& rows) {
  if (!almara::IsBoardDate(year, month, day)) {
    return 0;
  }
  rows.clear();
  m_focusYear = year;
  m_focusMonth = month;
  m_focusDay = day;

  CCalendarSolarDate focus{year, month, day, 0};
  const almara::DayRun run = DayRunFrom(focus);
  const int column = _GetColumnIndexByDayOfWeek(GetStartDayOfWeek(), focus.dayOfWeek);
  const DayCounts counts = _CountDays(focus, column);

  const int rowCount = _CountRows(focus, counts);

  std::vector<CCalendarSolarDateEx> source =
      _MakeSourceDateList(run, focus, counts, _CountListedDays(rowCount));
  std::vector<CCalendarSolarDateEx> display;
  display.reserve(kUsualListSize);
  _MakeDateListWithType(source, display, counts.before, counts.after);

  _FillRows(display, rowCount, almara::Today(), rows);
  return 1;
}

CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDays(const CCalendarSolarDate& focus,
                                                               int column) const {
  switch (GetDispMonth()) {
    case eDispMonthWholeMonth:
      return _CountDaysOfWholeMonth(focus, column);
    case eDispMonthDayStrip:
      return _CountDaysOfStrip();
    default:
      break;
  }
  if (m_pageDirection != ePageDirectionNone) {
    return _CountDaysOfPage(column);
  }
  switch (GetDispMonth()) {
    case eDispMonthRollingWeeks:
      return _CountDaysOfRollingWeeks(column);
    case eDispMonthRollingTail:
      return _CountDaysOfRollingTail(focus, column);
    default:
      return {};
  }
}

// The days behind the focus date are counted as if it were the 1st, so that the list always reaches
// past the month; the row count cuts what is too much.
CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDaysOfWholeMonth(
    const CCalendarSolarDate& focus, int column) const {
  const int daysOfMonth = _DaysOfSolarMonth(focus.year, focus.month);
  const int first = 7 - (6 - column + focus.day) % 7;
  DayCounts counts{};
  counts.before = focus.day - 1;
  counts.after = daysOfMonth - 1;
  counts.lead = ColumnOfFirstDay(focus.day, column);
  counts.trail = 7 - (first + focus.day + daysOfMonth - 1) % 7;
  return counts;
}

CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDaysOfStrip() const {
  const int columns = GetMaxColumns();
  DayCounts counts{};
  if (m_pageDirection == ePageDirectionNone) {
    counts.before = columns / 2 + columns % 2 - 1;  // left of the middle if the number is even
    counts.after = columns / 2;
  } else if (m_pageDirection == ePageDirectionForward) {
    counts.after = columns - 1;
  } else if (m_pageDirection == ePageDirectionBackward) {
    counts.before = columns - 1;
  }
  return counts;
}

CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDaysOfRollingWeeks(int column) const {
  const int weeksFromFocus = std::max(WrapSubtract(GetMaxRows(), GetPassedWeeks()), 1);
  DayCounts counts{};
  counts.before = WrapAdd(DaysOfWeeks(GetPassedWeeks()), column);
  counts.after = WrapSubtract(DaysOfWeeks(weeksFromFocus), column + 1);
  return counts;
}

CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDaysOfRollingTail(
    const CCalendarSolarDate& focus, int column) const {
  // The row of the focus date, the first row of the month being 1.
  const int focusRow =
      static_cast<int>(std::ceil(static_cast<float>(focus.day + 6 - column) / 7.0F));
  const int weeksFromFocus = std::max(WrapSubtract(WrapAdd(GetMaxRows(), 1), focusRow), 1);
  DayCounts counts{};
  counts.before = focus.day - 1;
  counts.after = WrapSubtract(DaysOfWeeks(weeksFromFocus), column + 1);
  counts.lead = ColumnOfFirstDay(focus.day, column);
  counts.hintRows = std::max(GetMaxRows(), focusRow);
  return counts;
}

// A board reached by paging: the focus week is its last or its first row.
CCalendarLogicBuild::DayCounts CCalendarLogicBuild::_CountDaysOfPage(int column) const {
  const int days = DaysOfWeeks(GetMaxRows());
  DayCounts counts{};
  if (m_pageDirection == ePageDirectionBackward) {
    counts.before = WrapSubtract(WrapAdd(column, days), 7);
    counts.after = 6 - column;
  } else if (m_pageDirection == ePageDirectionForward) {
    counts.after = WrapSubtract(days, column + 1);
    counts.lead = column % 7;
  }
  return counts;
}

int CCalendarLogicBuild::_CountRows(const CCalendarSolarDate& focus,
                                    const DayCounts& counts) const {
  switch (GetDispMonth()) {
    case eDispMonthRollingWeeks:
      return GetMaxRows();
    case eDispMonthRollingTail:
      return counts.hintRows;
    case eDispMonthWholeMonth: {
      const int days = _GetMaxDaysOfSolarMonth(focus.year, focus.month) + counts.lead;
      return static_cast<int>(std::ceil(days / 7.0));
    }
    case eDispMonthDayStrip:
      return 1;
    default:
      return 0;
  }
}

// Days that fill the rows. Only where the list is cut from its front again do the days behind them
// matter, so that these boards list all that were counted.
std::size_t CCalendarLogicBuild::_CountListedDays(int rowCount) const {
  const bool cutsFront =
      m_pageDirection == ePageDirectionBackward ||
      (m_pageDirection == ePageDirectionForward && GetDispMonth() != eDispMonthWholeMonth);
  if (rowCount > 0 && cutsFront) {
    return std::numeric_limits<std::size_t>::max();
  }
  return static_cast<std::size_t>(std::max(rowCount, 0)) * almara::kDaysOfWeek;
}

// Leading padding is hidden while month intervals are shown; trailing padding never is. Hosts rely
// on the difference. A date that the system cannot convert is listed as all zeroes.
std::vector<CCalendarSolarDateEx> CCalendarLogicBuild::_MakeSourceDateList(
    const almara::DayRun& run, const CCalendarSolarDate& focus, const DayCounts& counts,
    std::size_t listedDays) const {
  std::vector<CCalendarSolarDateEx> source;
  source.reserve(kUsualListSize);
  const auto dateAt = [&run](int offset) {
    CCalendarSolarDate date{};
    run.DateAt(offset, date);
    return date;
  };
  const auto isFull = [&source, listedDays] { return source.size() >= listedDays; };

  const int firstOffset = WrapSubtract(0, WrapAdd(counts.before, counts.lead));
  for (int i = 0; i < counts.lead && !isFull(); ++i) {
    const CCalendarSolarDate date = dateAt(WrapAdd(firstOffset, i));
    source.push_back(IsShowMonthInterval() ? CCalendarSolarDateEx::HiddenDay(date)
                                           : CCalendarSolarDateEx::RealDay(date));
  }
  for (int i = 0; i < counts.before && !isFull(); ++i) {
    source.push_back(CCalendarSolarDateEx::RealDay(dateAt(i - counts.before)));
  }
  source.push_back(CCalendarSolarDateEx::RealDay(focus));
  for (int k = 1; k <= counts.after && !isFull(); ++k) {
    source.push_back(CCalendarSolarDateEx::RealDay(dateAt(k)));
  }
  for (int k = 1; k <= counts.trail && !isFull(); ++k) {
    source.push_back(CCalendarSolarDateEx::RealDay(dateAt(WrapAdd(counts.after, k))));
  }
  return source;
}

void CCalendarLogicBuild::_FillRows(const std::vector<CCalendarSolarDateEx>& display, int rowCount,
                                    const CCalendarSolarDate& today,
                                    std::vector<tagCalendarRow>& rows) {
  _ClearDateItems();
  int rowWeekNumber = 0;  // carries over to rows without a week number
  std::size_t index = 0;
  for (int r = 0; r < rowCount; ++r) {
    tagCalendarRow row{};
    for (int c = 0; c < almara::kDaysOfWeek; ++c, ++index) {
      CCalendarItem& item = row.items[static_cast<std::size_t>(c)];
      item.SetRow(r);
      item.SetColumn(c);
      if (index < display.size()) {
        _FillCell(display[index], today, item);
      }
      item.SetWeekNumber(_GetShownWeekNumber(item.GetDate(), today.year));
      if (item.GetWeekNumber() != -1) {
        rowWeekNumber = item.GetWeekNumber();
      }
    }
    row.weekNumber = rowWeekNumber;
    rows.push_back(row);
  }
}

void CCalendarLogicBuild::_FillCell(const CCalendarSolarDateEx& entry,
                                    const CCalendarSolarDate& today, CCalendarItem& item) {
  item.Copy(entry.ShownDate());
  if (entry.IsIntervalTitle()) {
    item.SetType(eCalendarItemMonthTitle);
    return;
  }
  if (entry.IsBlank()) {
    item.SetType(eCalendarItemBlank);
    item.Copy(CCalendarSolarDate{entry.hiddenYear, entry.hiddenMonth, entry.hiddenDay, 0});
    return;
  }
  const bool isBreakDay = IsBreakDayOfWeek(entry.dayOfWeek);
  const bool isToday =
      entry.year == today.year && entry.month == today.month && entry.day == today.day;
  if (isToday) {
    item.SetType(isBreakDay ? eCalendarItemTodayBreakDay : eCalendarItemToday);
    m_todayOnBoard = true;
    m_todayColumn = item.GetColumn();
  } else {
    item.SetType(isBreakDay ? eCalendarItemBreakDay : eCalendarItemDay);
  }
  if (m_firstDateItem.GetType() == eCalendarItemEmpty) {
    m_firstDateItem = item;
  }
  m_lastDateItem = item;
}

// Counts the week from the configured start week. With the counting of type 2, the weeks of the
// year after today's that lie far before the start week go on from the year before; hosts rely on
// that branch taking the last week of the cell's own year and adding no 1.
int CCalendarLogicBuild::_GetShownWeekNumber(const CCalendarSolarDate& date, int todayYear) {
  const EWeekNumberCalc type = GetWeekNumberCalcType();
  const int start = GetStartWeekNumber();
  const int week = m_weekNumber.GetWeekNumber(date.year, date.month, date.day, type);
  if (week >= start) {
    return WrapSubtract(WrapAdd(week, 1), start);
  }
  if (WrapSubtract(date.year, todayYear) == 1 && type == eWeekNumberCalcFromStartWeek &&
      WrapSubtract(start, kWeeksOfHalfYear) > week) {
    const int lastWeek = m_weekNumber.GetWeekNumber(date.year, 12, 31, type);
    return WrapSubtract(WrapAdd(lastWeek, week), start);
  }
  return week;
}
