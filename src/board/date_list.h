// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_DATE_LIST_H_
#define ALMARA_BOARD_DATE_LIST_H_

#include "board/board_request.h"
#include "board/day_counts.h"
#include "board/display_date_list.h"
#include "board/focus_day.h"

namespace almara {

// The days of a board in their order, without gaps: the leading padding, the days before the focus
// date, the focus date, the days after it and the trailing padding. Leading padding is kept back
// while month intervals are shown, trailing padding never. A date that the system cannot convert is
// all zeroes.
DateList ListDates(const BoardRequest& request, const FocusDay& focus, const DayCounts& counts);

}  // namespace almara

#endif  // ALMARA_BOARD_DATE_LIST_H_
