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

// Gives a cell the date and the kind of its entry, and notes the days among the cells.
void FillCell(const BoardRequest& request, const CCalendarSolarDateEx& entry, CCalendarItem& item,
              BoardContent& content) {
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
  if (isToday) {
    content.todayColumn = item.GetColumn();
  }
  if (content.first.GetType() == eCalendarItemEmpty) {
    content.first = item;
  }
  content.last = item;
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
        FillCell(request, display[index], item, content);
      }
      item.SetWeekNumber(ShownWeekNumber(request, item.GetDate(), weekNumbers));
      if (item.GetWeekNumber() != kNoWeek) {
        rowWeekNumber = item.GetWeekNumber();
      }
    }
    row.weekNumber = rowWeekNumber;
  }
  return content;
}

}  // namespace almara
