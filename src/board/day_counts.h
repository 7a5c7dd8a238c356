// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_DAY_COUNTS_H_
#define ALMARA_BOARD_DAY_COUNTS_H_

#include "board/board_request.h"
#include "board/focus_day.h"

namespace almara {

// The size of a board, and how many days it lists on each side of its focus date. A count below 1
// is none.
struct DayCounts {
  int before = 0;  // days before the focus date
  int after = 0;   // days after it
  int lead = 0;    // days in front of those before, to fill the first row; may be kept back
  int trail = 0;   // days following those after, to fill the last row
  int rows = 0;    // rows of the board
};

DayCounts CountDays(const BoardRequest& request, const FocusDay& focus);

}  // namespace almara

#endif  // ALMARA_BOARD_DAY_COUNTS_H_
