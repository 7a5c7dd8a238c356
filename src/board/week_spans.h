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

// Joins the visible rows into spans. A row whose cells all belong to one week is a span of its own;
// rows that a month interval has cut in two are put together again, so that each week has one box.
std::vector<tagCalendarWeekSpan> JoinWeeks(const CCalendarConfig& options,
                                           const std::vector<tagCalendarRow>& rows,
                                           const VisiblePart& visible);

}  // namespace almara

#endif  // ALMARA_BOARD_WEEK_SPANS_H_
