// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_BOARD_DUMP_H_
#define ALMARA_BOARD_BOARD_DUMP_H_

#include <vector>

#include "board/cells.h"

namespace almara {

// Writes every row of a board to the standard output, visible or not.
void WriteBoard(const std::vector<tagCalendarRow>& rows);

}  // namespace almara

#endif  // ALMARA_BOARD_BOARD_DUMP_H_
