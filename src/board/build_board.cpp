// SPDX-License-Identifier: MIT
#include "board/build_board.h"

#include <utility>

#include "board/date_list.h"
#include "board/day_counts.h"
#include "board/display_date_list.h"
#include "board/focus_day.h"
#include "date/gregorian.h"

namespace almara {

BoardContent BuildContent(const BoardRequest& request, CCalendarWeekNumber& weekNumbers) {
  const FocusDay focus = FindFocusDay(request);
  const DayCounts counts = CountDays(request, focus);
  const DateList source = ListDates(request, focus, counts);
  const DateList display = MakeDisplayList(request, source, counts.before, counts.after);
  return FillCells(request, display, counts.rows, weekNumbers);
}

BuiltBoard BuildBoard(const BoardRequest& request, BoardContent before,
                      CCalendarWeekNumber& weekNumbers) {
  BuiltBoard board{std::move(before), {}, {}};
  if (IsBoardDate(request.focus.year, request.focus.month, request.focus.day)) {
    board.content.rows = std::vector<tagCalendarRow>();  // free before the new ones take memory
    board.content = BuildContent(request, weekNumbers);
  }
  board.visible = ChooseVisiblePart(request.options, board.content);
  board.spans = JoinWeeks(request.options, board.content.rows, board.visible);
  return board;
}

}  // namespace almara
