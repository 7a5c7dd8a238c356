// SPDX-License-Identifier: MIT
// A board as lines of pieces, each with its role; the terminal and the full screen turn the roles
// into colours.
#pragma once

#include <string>
#include <vector>

namespace viewer {

enum class Role {
  Plain,
  Title,
  Heading,
  BreakHeading,
  WeekNumber,
  Day,
  BreakDay,
  Today,
  MonthTitle,
  Festival,
  SolarTerm,
  LunarDay,
  Hint,
};

struct Piece {
  std::string text;
  Role role = Role::Plain;
  bool selected = false;
};

using Line = std::vector<Piece>;

}  // namespace viewer
