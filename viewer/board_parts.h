// SPDX-License-Identifier: MIT
// What every drawing of a board has in common.
#ifndef ALMARA_VIEWER_BOARD_PARTS_H_
#define ALMARA_VIEWER_BOARD_PARTS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "board_snapshot.h"
#include "glyphs.h"
#include "texts.h"

namespace almara::viewer {

// The months that the board shows, in the longest form that the width has room for. In the
// whole-month arrangement the board's own month.
std::string TitleText(const BoardSnapshot& board, const Texts& texts, int width);

// The column after those from `column` on that belong to one month interval; `column` itself if
// there is none.
std::size_t IntervalEnd(const std::vector<tagCalendarCell>& row, std::size_t column);

// A month interval that begins with the cell: a rule over the width, with the longest form of the
// month's name that fits.
std::string IntervalText(const Texts& texts, const Glyphs& glyphs, const tagCalendarCell& first,
                         int width);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BOARD_PARTS_H_
