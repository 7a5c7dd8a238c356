// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_WEEK_SPANS_H_
#define ALMARA_BOARD_WEEK_SPANS_H_

#include <cstdint>
#include <vector>

#include "board/calendar_config.h"
#include "board/cells.h"
#include "board/visible_part.h"

// Consecutive visible rows that share one box in the week-number column.
struct tagCalendarWeekSpan {
  std::int32_t weekNumber;        // shown for the span, 0 when it has none
  std::int32_t firstWeekCells;    // visible cells of that week
  std::int32_t secondWeekNumber;  // a different week met in the span, or 0
  std::int32_t secondWeekCells;   // visible cells of the second week
  std::int32_t cellsWithoutWeek;  // visible cells whose week number is below 1
  std::int32_t rows;              // visible rows of the span, at least 1
};

namespace almara {

// Joins the visible rows into spans, from the top, so that each week has one box, also where a
// month interval has cut it in two. After each row the first case that holds tells what becomes of
// the span. In the examples a dot is a cell without a week, and a bar begins the next row or span.
//
//   1  Two weeks, and the row ends with a week: closed.
//        9 9 10 10 10 10 10                  9 and 10
//      Where the second is week 1, one row is given to the new year, and two rows are divided.
//        52 52 1 1 1 1 1                     1 and 1
//        53 53 53 . . . . | . . . 1 1 1 1    53 | 1
//   2  The board's last row, without a week and alone in its span: added to the span above, if any.
//        9 9 9 9 9 9 9 | . . . . . . .       9, two rows
//   3  The span's first row, not the board's last: goes on in the next row.
//        9 9 9 9 . . . | . . . . 9 9 9       9, two rows
//        . . . . . . . | 9 9 9 9 9 9 9       9, two rows
//      But it is closed where nothing of its weeks can follow: if all its cells are of one week, if
//      its second week is 53, or if it shows a week, ends with one, and either is the board's first
//      row or begins on Monday.
//        9 9 9 9 9 9 9                       9
//        52 52 53 53 . . . | . . . . 1 1 1   52 and 53 | 1
//        . . . . 9 9 9 | 10 10 10 10 10 10 10    9 | 10
//   4  Any other: closed.
//        9 9 . . . . . | . . . . . . . | . . 9 9 9 9 9    9, two rows | 9
//
// A row ends with a week if the cell in board column n - 1 has one, n being the number of visible
// columns. Under ISO weeks on a board from Sunday, a closed span with a single cell of its first
// week and a second week shows the second week alone:
//        9 10 10 10 10 10 10                 10
std::vector<tagCalendarWeekSpan> JoinWeeks(const CCalendarConfig& options,
                                           const std::vector<tagCalendarRow>& rows,
                                           const VisiblePart& visible);

}  // namespace almara

#endif  // ALMARA_BOARD_WEEK_SPANS_H_
