// SPDX-License-Identifier: MIT
#include "board/visible_part.h"

#include <algorithm>

#include "date/int32.h"

namespace almara {

namespace {

struct ColumnRange {
  int begin;
  int end;
};

// A board of rolling weeks narrower than a week follows today: the range starts half its width
// before today, but stays within the board.
ColumnRange RangeAroundToday(int todayColumn, int columns) {
  const int begin =
      std::min(std::clamp(todayColumn - columns / 2, 0, kDaysOfWeek - 1), kDaysOfWeek - columns);
  return {begin, begin + columns};
}

ColumnRange RangeOfColumns(const CCalendarConfig& options, int todayColumn) {
  const EDispMonth arrangement = options.GetDispMonth();
  if (arrangement == eDispMonthRollingWeeks && todayColumn != -1) {
    return RangeAroundToday(todayColumn, options.GetMaxColumns());
  }
  return {0, arrangement == eDispMonthDayStrip ? options.GetMaxColumns() : kDaysOfWeek};
}

// The start day of week counts as it was set here, also outside 0 to 6.
bool IsBreakColumn(const CCalendarConfig& options, int column) {
  return options.IsBreakDayOfWeek(WrapAdd(options.GetStartDayOfWeek(), column) % kDaysOfWeek);
}

// Whether a visible cell of the row is more than a blank or a break day.
bool HasContent(const tagCalendarRow& row, const VisiblePart& visible) {
  for (int index = 0; index < visible.columnCount; ++index) {
    const ECalendarItem type = row.items[visible.ColumnAt(index)].GetType();
    if (type != eCalendarItemBlank && type != eCalendarItemBreakDay &&
        type != eCalendarItemTodayBreakDay) {
      return true;
    }
  }
  return false;
}

}  // namespace

VisiblePart ChooseVisiblePart(const CCalendarConfig& options, const BoardContent& content) {
  VisiblePart visible;
  const bool all = options.IsShowBreakDayOfWeek();
  const ColumnRange range = RangeOfColumns(options, content.todayColumn);
  for (int column = range.begin; column < range.end; ++column) {
    if (all || !IsBreakColumn(options, column)) {
      visible.columns[static_cast<std::size_t>(visible.columnCount++)] = column;
    }
  }
  const std::size_t rows = std::min<std::size_t>(content.rows.size(), kMaxVisibleRows);
  for (std::size_t row = 0; row < rows; ++row) {
    if (all || HasContent(content.rows[row], visible)) {
      visible.rows[static_cast<std::size_t>(visible.rowCount++)] = static_cast<int>(row);
    }
  }
  return visible;
}

}  // namespace almara
