// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_CELLS_H_
#define ALMARA_BOARD_CELLS_H_

#include <almara/almara_types.h>

#include <array>
#include <vector>

#include "board/board_request.h"
#include "board/calendar_item.h"
#include "board/calendar_week_number.h"
#include "board/display_date_list.h"
#include "date/gregorian.h"

// One row of the board.
struct tagCalendarRow {
  int weekNumber = 0;  // of the last cell that has one; a row without any repeats the row before
  std::array<CCalendarItem, almara::kDaysOfWeek> items;
};

namespace almara {

// The cells of a board, visible or not. As constructed, the content of no board.
struct BoardContent {
  std::vector<tagCalendarRow> rows;
  CCalendarSolarDate focus{};  // the date asked for, not normalised; its day of week is 0
  CCalendarItem first;         // first cell that shows a day
  CCalendarItem last;          // last such cell
  int todayColumn = -1;        // -1 if today is not on the board
};

// Cuts the list into rows of seven cells, each with its kind and week number. Cells past the end of
// the list are empty.
BoardContent FillCells(const BoardRequest& request, const DateList& display, int rowCount,
                       CCalendarWeekNumber& weekNumbers);

}  // namespace almara

#endif  // ALMARA_BOARD_CELLS_H_
