// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_BOARD_H_
#define ALMARA_TESTS_SUPPORT_BOARD_H_

#include <cstddef>
#include <string>
#include <vector>

#include "logic/calendar_logic.h"

namespace almara::test {

// An engine that shows its inside and can build without writing the board.
class Board : public CCalendarLogic {
 public:
  using CCalendarLogicBuild::m_firstDateItem;
  using CCalendarLogicBuild::m_focusDay;
  using CCalendarLogicBuild::m_focusMonth;
  using CCalendarLogicBuild::m_focusYear;
  using CCalendarLogicBuild::m_lastDateItem;
  using CCalendarLogicBuild::m_pageDirection;
  using CCalendarLogicBuild::m_rows;
  using CCalendarLogicBuild::m_todayColumn;
  using CCalendarLogicBuild::m_todayOnBoard;
  using CCalendarLogicBuild::m_visibleColumnCount;
  using CCalendarLogicBuild::m_visibleColumns;
  using CCalendarLogicBuild::m_visibleRowCount;
  using CCalendarLogicBuild::m_visibleRows;
  using CCalendarLogicBuild::m_weekNumberSpans;

  // A whole build without the text on the standard output. Returns what _BuildContent() does.
  int BuildQuietly(int year, int month, int day) {
    const int result = _BuildContent(year, month, day, m_rows);
    _CalcRowColumnIndex();
    _CalcRowSpanByWeekNumber();
    return result;
  }

  // A row as the dump writes it, without its line end: "11: (3)2024-03-11 (3)2024-03-12 ...".
  std::string RowText(std::size_t row) const {
    std::string text = std::to_string(m_rows[row].weekNumber) + ":";
    for (const CCalendarItem& item : m_rows[row].items) {
      text += " " + item.GetDay();
    }
    return text;
  }

  std::vector<std::string> RowTexts() const {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
      texts.push_back(RowText(row));
    }
    return texts;
  }

  const CCalendarItem& Cell(std::size_t row, std::size_t column) const {
    return m_rows[row].items[column];
  }

  std::vector<int> VisibleColumns() const {
    return {m_visibleColumns.begin(), m_visibleColumns.begin() + m_visibleColumnCount};
  }

  std::vector<int> VisibleRows() const {
    return {m_visibleRows.begin(), m_visibleRows.begin() + m_visibleRowCount};
  }
};

}  // namespace almara::test

namespace almara_test = almara::test;

#endif  // ALMARA_TESTS_SUPPORT_BOARD_H_
