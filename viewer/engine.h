// SPDX-License-Identifier: MIT
// The board side of the engine, as a host drives it.
#pragma once

#include <vector>

#include "board.h"
#include "board_options.h"
#include "civil_date.h"

namespace viewer {

// One step of navigation, as --next, --previous and --offset name them.
struct Step {
  enum class Kind { Next, Previous, Offset };
  Kind kind = Kind::Next;
  int offset = 0;  // for Kind::Offset
};

// Hands the options to the engine and builds today's board. Comes before everything else: it also
// fixes the time zone of the lunar dates and solar terms.
void startEngine(const BoardOptions& options);

// Hands over options that were changed later. The board stays until one of the functions below.
void applyOptions(const BoardOptions& options);

// Builds the board of a date as if that day were today, whatever was shown before.
void showDate(const BoardOptions& options, CivilDate date);

// Pages or jumps. At the first and the last page the board stays.
void takeStep(const Step& step);

// Where a jump from today leads: pages of rows * 7 days, or months in the whole-month arrangement.
// False if that is outside the years of the calendar.
bool offsetStaysInRange(const BoardOptions& options, CivilDate today, int offset);

Board readBoard();
CivilDate readToday();

}  // namespace viewer
