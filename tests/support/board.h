// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_SUPPORT_BOARD_H_
#define ALMARA_TESTS_SUPPORT_BOARD_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "board/build_board.h"
#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"

namespace almara::test {

// An engine that shows its inside and can build without writing the board.
class Board : public CCalendarLogic {
 public:
  using CCalendarLogic::m_pageDirection;

  const BuiltBoard& Built() const { return m_board; }
  const std::vector<tagCalendarRow>& Rows() const { return m_board.content.rows; }

  // A whole build without the text on the standard output.
  void BuildQuietly(int year, int month, int day, PageDirection direction = PageDirection::kNone) {
    m_board = BuildBoard({*this, {year, month, day, 0}, Today(), direction},
                         std::move(m_board.content), m_weekNumber);
  }

  // A row as the dump writes it, without its line end: "11: (3)2024-03-11 (3)2024-03-12 ...".
  std::string RowText(std::size_t row) const {
    std::string text = std::to_string(Rows()[row].weekNumber) + ":";
    for (const CCalendarItem& item : Rows()[row].items) {
      text += " " + item.GetDay();
    }
    return text;
  }

  std::vector<std::string> RowTexts() const {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < Rows().size(); ++row) {
      texts.push_back(RowText(row));
    }
    return texts;
  }

  const CCalendarItem& Cell(std::size_t row, std::size_t column) const {
    return Rows()[row].items[column];
  }

  std::vector<int> VisibleColumns() const {
    const VisiblePart& visible = m_board.visible;
    return {visible.columns.begin(), visible.columns.begin() + visible.columnCount};
  }

  std::vector<int> VisibleRows() const {
    const VisiblePart& visible = m_board.visible;
    return {visible.rows.begin(), visible.rows.begin() + visible.rowCount};
  }
};

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_BOARD_H_
