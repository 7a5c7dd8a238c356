// SPDX-License-Identifier: MIT
#include "board/cells.h"

#include <algorithm>
#include <cstddef>

#include "date/int32.h"

namespace almara {

namespace {

constexpr int kWeeksOfHalfYear = 30;
constexpr int kUsualRows = 8;  // spares usual boards their growth
constexpr int kNoWeek = -1;

ECalendarItem KindOfDay(bool isToday, bool isBreakDay) {
  if (isToday) {
    return isBreakDay ? eCalendarItemTodayBreakDay : eCalendarItemToday;
  }
  return isBreakDay ? eCalendarItemBreakDay : eCalendarItemDay;
}

bool ShowsDay(const CCalendarItem& item) {
  return item.GetType() >= eCalendarItemDay && item.GetType() <= eCalendarItemTodayBreakDay;
}

bool ShowsToday(const CCalendarItem& item) {
  return item.GetType() == eCalendarItemToday || item.GetType() == eCalendarItemTodayBreakDay;
}

// Gives a cell the date and the kind of its entry.
void FillCell(const BoardRequest& request, const CCalendarSolarDateEx& entry, CCalendarItem& item) {
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
  const CCalendarSolarDate& today = request.today;
  const bool isToday =
      entry.year == today.year && entry.month == today.month && entry.day == today.day;
  item.SetType(KindOfDay(isToday, request.options.IsBreakDayOfWeek(entry.dayOfWeek)));
}

// Notes the days of the next row. The cells noted have no week number yet.
void NoteDays(const tagCalendarRow& row, BoardContent& content) {
  const CCalendarItem* last = nullptr;
  for (const CCalendarItem& item : row.items) {
    if (!ShowsDay(item)) {
      continue;
    }
    last = &item;
    if (content.first.GetType() == eCalendarItemEmpty) {
      content.first = item;
    }
    if (ShowsToday(item)) {
      content.todayColumn = item.GetColumn();
    }
  }
  if (last != nullptr) {
    content.last = *last;
  }
}

// Counts the week from the configured start week. With the counting of type 2, the weeks of the
// year after today's that lie far before the start week go on from the year before; that branch
// takes the last week of the cell's own year and adds no 1.
int ShownWeekNumber(const BoardRequest& request, const CCalendarSolarDate& date,
                    CCalendarWeekNumber& weekNumbers) {
  const EWeekNumberCalc type = request.options.GetWeekNumberCalcType();
  const int start = request.options.GetStartWeekNumber();
  const DayCounting counting = request.options.GetDayCounting();
  const int week = weekNumbers.GetWeekNumber(date.year, date.month, date.day, type, counting);
  if (week >= start) {
    return WrapSubtract(WrapAdd(week, 1), start);
  }
  if (WrapSubtract(date.year, request.today.year) == 1 && type == eWeekNumberCalcFromStartWeek &&
      WrapSubtract(start, kWeeksOfHalfYear) > week) {
    const int lastWeek = weekNumbers.GetWeekNumber(date.year, 12, 31, type, counting);
    return WrapSubtract(WrapAdd(lastWeek, week), start);
  }
  return week;
}

// Whether two neighbouring cells show days of one week of one month. Weeks begin on Monday.
bool IsSameWeek(const CCalendarItem& before, const CCalendarItem& item) {
  const CCalendarSolarDate& dayBefore = before.GetDate();
  const CCalendarSolarDate& day = item.GetDate();
  return ShowsDay(before) && ShowsDay(item) && day.dayOfWeek != eCalendarWeekMonday &&
         day.year == dayBefore.year && day.month == dayBefore.month && day.day == dayBefore.day + 1;
}

// Numbers the cells of a row. Only where days are counted in seconds can the number change within a
// week of a month.
void NumberCells(const BoardRequest& request, tagCalendarRow& row,
                 CCalendarWeekNumber& weekNumbers) {
  const bool sharesNumbers = request.options.GetWeekNumberCalcType() == eWeekNumberCalcIso8601 ||
                             request.options.GetDayCounting() == DayCounting::kCivil;
  const CCalendarItem* before = nullptr;
  for (CCalendarItem& item : row.items) {
    item.SetWeekNumber(sharesNumbers && before != nullptr && IsSameWeek(*before, item)
                           ? before->GetWeekNumber()
                           : ShownWeekNumber(request, item.GetDate(), weekNumbers));
    before = &item;
  }
}

}  // namespace

BoardContent FillCells(const BoardRequest& request, const DateList& display, int rowCount,
                       CCalendarWeekNumber& weekNumbers) {
  BoardContent content;
  content.rows.reserve(static_cast<std::size_t>(std::clamp(rowCount, 0, kUsualRows)));
  content.focus = {request.focus.year, request.focus.month, request.focus.day, 0};
  int rowWeekNumber = 0;  // carries over to rows without a week number
  std::size_t index = 0;
  for (int r = 0; r < rowCount; ++r) {
    tagCalendarRow& row = content.rows.emplace_back();
    for (int c = 0; c < kDaysOfWeek; ++c, ++index) {
      CCalendarItem& item = row.items[static_cast<std::size_t>(c)];
      item.SetRow(r);
      item.SetColumn(c);
      if (index < display.size()) {
        FillCell(request, display[index], item);
      }
    }
    NoteDays(row, content);
    NumberCells(request, row, weekNumbers);
    for (const CCalendarItem& item : row.items) {
      if (item.GetWeekNumber() != kNoWeek) {
        rowWeekNumber = item.GetWeekNumber();
      }
    }
    row.weekNumber = rowWeekNumber;
  }
  return content;
}

}  // namespace almara
