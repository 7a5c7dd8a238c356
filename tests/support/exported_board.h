// SPDX-License-Identifier: MIT
//
// The board as a host reads it, by the exported functions.
#ifndef ALMARA_TESTS_SUPPORT_EXPORTED_BOARD_H_
#define ALMARA_TESTS_SUPPORT_EXPORTED_BOARD_H_

#include <almara/almara.h>

#include "support/board_invariants.h"

namespace almara::test {

inline ShownBoard ReadExportedBoard() {
  ShownBoard board;
  board.rows = GetContentRows();
  board.columns = GetContentColumns();
  for (std::int32_t row = 0; row < board.rows; ++row) {
    for (std::int32_t column = 0; column < board.columns; ++column) {
      board.cells.push_back(GetContentItem(row, column));
    }
  }
  for (std::int32_t i = 0; i < GetWeekNumberCount(); ++i) {
    board.spans.push_back(GetWeekNumberItemWithIndex(i));
  }
  for (std::int32_t column = 0; column < board.columns; ++column) {
    board.headings.push_back(GetCalendarWeekByColumns(column));
  }
  board.focus = GetContentDate();
  board.hasToday = IsTodayInBoard();
  return board;
}

// Asks for what is next to the board. Returns the sentence that does not hold, or nullptr.
inline const char* BrokenOutside(const ShownBoard& board) {
  const tagCalendarCell none{0, 0, 0, 0, -1, 0, 0, eCalendarItemEmpty};
  for (const tagCalendarCell& cell : {GetContentItem(board.rows, 0), GetContentItem(-1, 0),
                                      GetContentItem(0, board.columns), GetContentItem(0, -1)}) {
    if (!SameBytes(cell, none)) {
      return "outside the board there are empty cells";
    }
  }
  for (const std::int32_t index : {-1, GetWeekNumberCount()}) {
    if (!SameBytes(GetWeekNumberItemWithIndex(index), tagWeekNumberSpan{0, 0, 0})) {
      return "outside the spans there are empty ones";
    }
  }
  return GetCalendarWeekByColumns(-1) == 0 && GetCalendarWeekByColumns(kDaysInRow) == 0
             ? nullptr
             : "outside 0 to 6 a heading is 0";
}

}  // namespace almara::test

#endif  // ALMARA_TESTS_SUPPORT_EXPORTED_BOARD_H_
