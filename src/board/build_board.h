// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_BUILD_BOARD_H_
#define ALMARA_BOARD_BUILD_BOARD_H_

#include <vector>

#include "board/board_request.h"
#include "board/calendar_week_number.h"
#include "board/cells.h"
#include "board/visible_part.h"
#include "board/week_spans.h"

namespace almara {

// A board as it is shown. As constructed, the empty board before the first build.
struct BuiltBoard {
  BoardContent content;
  VisiblePart visible;
  std::vector<tagCalendarWeekSpan> spans;
};

// The cells of a board around a focus that boards accept. weekNumbers keeps its answers for the
// next build.
BoardContent BuildContent(const BoardRequest& request, CCalendarWeekNumber& weekNumbers);

// The board of a request. For a focus that boards do not accept it has the content of the board
// before, laid out again by the request's options.
BuiltBoard BuildBoard(const BoardRequest& request, BoardContent before,
                      CCalendarWeekNumber& weekNumbers);

}  // namespace almara

#endif  // ALMARA_BOARD_BUILD_BOARD_H_
