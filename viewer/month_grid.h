// SPDX-License-Identifier: MIT
// Months side by side, as many as the width has room for.
#ifndef ALMARA_VIEWER_MONTH_GRID_H_
#define ALMARA_VIEWER_MONTH_GRID_H_

#include <vector>

#include "board_painter.h"

namespace almara::viewer {

// Boards of whole months. Their titles name the year as well, but for the twelve months of one
// year, which stand under it. Festivals are marked if the settings have an annotator.
std::vector<Line> MonthGridLines(const std::vector<BoardSnapshot>& months, bool oneYear,
                                 const PaintSettings& settings);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_MONTH_GRID_H_
