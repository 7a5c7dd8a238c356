// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_VISIBLE_PART_H_
#define ALMARA_BOARD_VISIBLE_PART_H_

#include <array>
#include <cstddef>
#include <vector>

#include "board/calendar_config.h"
#include "board/cells.h"
#include "date/gregorian.h"

namespace almara {

constexpr int kMaxVisibleRows = 50;

// The rows and columns of a board that are visible, as ascending indices of the board. Entries from
// the count on are 0.
struct VisiblePart {
  int rowCount = 0;
  std::array<int, kMaxVisibleRows> rows{};
  int columnCount = 0;
  std::array<int, kDaysOfWeek> columns{};

  // The board row and the board column at a visible index within its count.
  std::size_t RowAt(int index) const {
    return static_cast<std::size_t>(rows[static_cast<std::size_t>(index)]);
  }
  std::size_t ColumnAt(int index) const {
    return static_cast<std::size_t>(columns[static_cast<std::size_t>(index)]);
  }
};

VisiblePart ChooseVisiblePart(const CCalendarConfig& options, const BoardContent& content);

}  // namespace almara

#endif  // ALMARA_BOARD_VISIBLE_PART_H_
