// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_FOCUS_DAY_H_
#define ALMARA_BOARD_FOCUS_DAY_H_

#include "board/board_request.h"
#include "date/day_run.h"

namespace almara {

// The day around which a board is laid out.
struct FocusDay {
  DayRun run;               // the days counted from it
  CCalendarSolarDate date;  // normalised, with its day of week
  int column;               // of the board, 0 to 6
};

// The focus day of a request whose focus is a date that boards accept.
FocusDay FindFocusDay(const BoardRequest& request);

// The column of a day of the week, 0 to 6, on a board that starts with startDayOfWeek (outside 0 to
// 6: Monday); -1 for a day of the week outside 0 to 6.
int ColumnOfDayOfWeek(int startDayOfWeek, int dayOfWeek);

}  // namespace almara

#endif  // ALMARA_BOARD_FOCUS_DAY_H_
