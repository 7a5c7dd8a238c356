// SPDX-License-Identifier: MIT
// A board in as little room as there is: two cells a day, for narrow terminals and for several
// months side by side.
#ifndef ALMARA_VIEWER_COMPACT_BOARD_H_
#define ALMARA_VIEWER_COMPACT_BOARD_H_

#include <set>

#include "board_painter.h"

namespace almara::viewer {

struct CompactSettings {
  bool weekNumbers = false;
  int width = 0;           // what is over it is left out: the place before the first day, then that
                           // after the last
  bool breakMarks = true;  // whether break days have a mark beside their colour
  std::set<CivilDate> festivals;  // marked with an asterisk
};

// Cells of such a board with the places for marks at both ends.
int CompactWidth(int columns, bool weekNumbers);

// Without a title. Each row is one line.
PaintedBoard PaintCompact(const BoardSnapshot& board, const CompactSettings& compact,
                          const PaintSettings& settings);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_COMPACT_BOARD_H_
