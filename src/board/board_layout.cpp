// SPDX-License-Identifier: MIT
//
// Which rows and columns of a built board are visible.
#include <algorithm>

#include "board/calendar_logic_build.h"
#include "date/int32.h"

using almara::WrapAdd;

namespace {

struct ColumnRange {
  int begin;
  int end;
};

// A rolling board narrower than a week follows today: the range starts half its width before today,
// but stays within the board.
ColumnRange RangeAroundToday(int todayColumn, int columns) {
  int begin = std::clamp(todayColumn - columns / 2, 0, almara::kDaysOfWeek - 1);
  if (begin + columns > almara::kDaysOfWeek) {
    begin = almara::kDaysOfWeek - columns;
  }
  return {begin, begin + columns};
}

}  // namespace

void CCalendarLogicBuild::_CalcRowColumnIndex() {
  m_visibleRowCount = 0;
  m_visibleRows.fill(0);
  m_visibleColumnCount = 0;
  m_visibleColumns.fill(0);
  _CalcVisibleColumns();
  _CalcVisibleRows();
}

void CCalendarLogicBuild::_CalcVisibleColumns() {
  ColumnRange range{0, almara::kDaysOfWeek};
  if (GetDispMonth() == eDispMonthRollingWeeks && m_todayColumn != -1) {
    range = RangeAroundToday(m_todayColumn, GetMaxColumns());
  } else if (GetDispMonth() == eDispMonthDayStrip) {
    range.end = GetMaxColumns();
  }
  for (int column = range.begin; column < range.end; ++column) {
    // The start day of week counts as it was set here, also outside 0 to 6; hosts rely on it.
    const int dayOfWeek = WrapAdd(GetStartDayOfWeek(), column) % almara::kDaysOfWeek;
    if (IsShowBreakDayOfWeek() || !IsBreakDayOfWeek(dayOfWeek)) {
      m_visibleColumns[static_cast<std::size_t>(m_visibleColumnCount++)] = column;
    }
  }
}

void CCalendarLogicBuild::_CalcVisibleRows() {
  if (m_visibleColumnCount == 0) {
    return;
  }
  const std::size_t rows = std::min<std::size_t>(m_rows.size(), kMaxVisibleRows);
  for (std::size_t row = 0; row < rows; ++row) {
    if (IsShowBreakDayOfWeek() || _HasContent(m_rows[row])) {
      m_visibleRows[static_cast<std::size_t>(m_visibleRowCount++)] = static_cast<int>(row);
    }
  }
}

// Whether a visible cell of the row is more than a blank or a break day.
bool CCalendarLogicBuild::_HasContent(const tagCalendarRow& row) const {
  const auto* const begin = m_visibleColumns.begin();
  return std::any_of(begin, begin + m_visibleColumnCount, [&row](int column) {
    const ECalendarItem type = row.items[static_cast<std::size_t>(column)].GetType();
    return type != eCalendarItemBlank && type != eCalendarItemBreakDay &&
           type != eCalendarItemTodayBreakDay;
  });
}
