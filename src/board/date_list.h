// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_DATE_LIST_H_
#define ALMARA_BOARD_DATE_LIST_H_

#include "board/board_request.h"
#include "board/day_counts.h"
#include "board/display_date_list.h"
#include "board/focus_day.h"

namespace almara {

// The days of a board in their order, without gaps: those that fill its first row, those before the
// focus date, the focus date, those after it and those that fill the last row. The first are
// kept-back days while month intervals are shown, the last never. A date that the system cannot
// convert is all zeroes.
DateList ListDates(const BoardRequest& request, const FocusDay& focus, const DayCounts& counts);

}  // namespace almara

#endif  // ALMARA_BOARD_DATE_LIST_H_
