// SPDX-License-Identifier: MIT
#include "board/day_counts.h"

#include <algorithm>

#include "date/gregorian.h"
#include "date/int32.h"

namespace almara {

namespace {

int DaysOfWeeks(int weeks) { return WrapMultiply(weeks, kDaysOfWeek); }

// Rows that hold a number of cells from -1 on.
int RowsFor(int cells) { return (cells + kDaysOfWeek - 1) / kDaysOfWeek; }

// Column of the first day of the focus month.
int ColumnOfFirstDay(const FocusDay& focus) {
  return (focus.column - (focus.date.day - 1) % kDaysOfWeek + kDaysOfWeek) % kDaysOfWeek;
}

// The days after the focus date are counted as if it were the 1st, so that the list always reaches
// past the month; the row count cuts what is too much.
DayCounts CountDaysOfWholeMonth(const FocusDay& focus) {
  const auto [year, month, day, dayOfWeek] = focus.date;
  const int daysOfMonth = DaysOfMonth(year, month);
  DayCounts counts;
  counts.before = day - 1;
  counts.after = daysOfMonth - 1;
  counts.lead = ColumnOfFirstDay(focus);
  counts.trail = kDaysOfWeek - (counts.lead + day + daysOfMonth - 1) % kDaysOfWeek;
  counts.rows = RowsFor(DaysOfBoardMonth(year, month) + counts.lead);
  return counts;
}

DayCounts CountDaysOfStrip(int columns, PageDirection direction) {
  DayCounts counts;
  counts.rows = 1;
  switch (direction) {  // GCOVR_EXCL_BR_LINE: every direction has a case
    case PageDirection::kNone:
      counts.before = columns / 2 + columns % 2 - 1;  // left of the middle if the number is even
      counts.after = columns / 2;
      break;
    case PageDirection::kBackward:
      counts.before = columns - 1;
      break;
    case PageDirection::kForward:
      counts.after = columns - 1;
      break;
  }
  return counts;
}

DayCounts CountDaysOfRollingWeeks(const CCalendarConfig& options, int column) {
  const int weeksFromFocus =
      std::max(WrapSubtract(options.GetMaxRows(), options.GetPassedWeeks()), 1);
  DayCounts counts;
  counts.before = WrapAdd(DaysOfWeeks(options.GetPassedWeeks()), column);
  // MUTATE_EXCL: days listed after the last row are not shown.
  counts.after = WrapSubtract(DaysOfWeeks(weeksFromFocus), column + 1);
  counts.rows = options.GetMaxRows();
  return counts;
}

// A page of rolling weeks: the focus week is its last or its first row.
DayCounts CountDaysOfPage(int rows, int column, PageDirection direction) {
  DayCounts counts;
  if (direction == PageDirection::kBackward) {
    counts.before = WrapSubtract(WrapAdd(column, DaysOfWeeks(rows)), kDaysOfWeek);
    // MUTATE_EXCL: days listed after the last row are not shown.
    counts.after = kDaysOfWeek - 1 - column;
  } else {
    counts.after = WrapSubtract(DaysOfWeeks(rows), column + 1);
    counts.lead = column;
  }
  counts.rows = rows;
  return counts;
}

DayCounts CountDaysOfRollingTail(int rows, const FocusDay& focus) {
  const int lead = ColumnOfFirstDay(focus);
  const int focusRow = RowsFor(lead + focus.date.day);  // 1 is the first row of the month
  // MUTATE_EXCL: days listed after the last row are not shown.
  const int weeksFromFocus = std::max(WrapSubtract(WrapAdd(rows, 1), focusRow), 1);
  DayCounts counts;
  counts.before = focus.date.day - 1;
  // MUTATE_EXCL: days listed after the last row are not shown.
  counts.after = WrapSubtract(DaysOfWeeks(weeksFromFocus), focus.column + 1);
  counts.lead = lead;
  counts.rows = std::max(rows, focusRow);
  return counts;
}

}  // namespace

DayCounts CountDays(const BoardRequest& request, const FocusDay& focus) {
  const CCalendarConfig& options = request.options;
  const bool paged = request.direction != PageDirection::kNone;
  switch (options.GetDispMonth()) {
    case eDispMonthRollingWeeks:
      return paged ? CountDaysOfPage(options.GetMaxRows(), focus.column, request.direction)
                   : CountDaysOfRollingWeeks(options, focus.column);
    case eDispMonthRollingTail:
      // Under a page direction, whatever has set it, this arrangement has no rows: hosts see an
      // empty board until the direction is cleared.
      return paged ? DayCounts{} : CountDaysOfRollingTail(options.GetMaxRows(), focus);
    case eDispMonthWholeMonth:
      return CountDaysOfWholeMonth(focus);
    case eDispMonthDayStrip:
      return CountDaysOfStrip(options.GetMaxColumns(), request.direction);
    default:
      return {};
  }
}

}  // namespace almara
