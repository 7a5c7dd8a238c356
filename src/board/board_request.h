// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_BOARD_REQUEST_H_
#define ALMARA_BOARD_BOARD_REQUEST_H_

#include <almara/almara_types.h>

#include "board/calendar_config.h"

namespace almara {

// Where the focus date stands on a board that is reached by paging.
enum class PageDirection {
  kNone,      // a plain build
  kBackward,  // the focus date ends the board
  kForward,   // the focus date opens the board
};

// All that a board depends on, but for the zone of the system where the options count days in local
// time.
struct BoardRequest {
  const CCalendarConfig& options;
  CCalendarSolarDate focus{};  // as it was asked for, not normalised
  CCalendarSolarDate today{};
  PageDirection direction = PageDirection::kNone;
};

}  // namespace almara

#endif  // ALMARA_BOARD_BOARD_REQUEST_H_
