// SPDX-License-Identifier: MIT
// A board as lines of pieces, each with its role; the terminal and the full screen turn the roles
// into colours.
#ifndef ALMARA_VIEWER_STYLED_TEXT_H_
#define ALMARA_VIEWER_STYLED_TEXT_H_

#include <optional>
#include <string>
#include <vector>

#include "civil_date.h"

namespace almara::viewer {

enum class Role {
  kPlain,
  kTitle,
  kHeading,
  kBreakHeading,
  kWeekNumber,
  kDay,
  kBreakDay,
  kToday,
  kMonthTitle,
  kFestival,
  kSolarTerm,
  kLunarDay,
  kHint,  // the last one
};

// Whether roles become colours: kAuto leaves it to NO_COLOR and the terminal.
enum class ColorMode { kAuto, kAlways, kNever };

struct Piece {
  std::string text;
  Role role = Role::kPlain;
  bool selected = false;
  std::optional<CivilDate> day = std::nullopt;  // the day that the piece shows
};

using Line = std::vector<Piece>;

// Terminal cells of a line.
int WidthOf(const Line& line);

void Append(Line& line, const Line& more);
void Append(std::vector<Line>& lines, const std::vector<Line>& more);

// The line in as many as its width needs, broken at blanks, and within a word that alone is too
// wide. All but the first begin with `indent` blanks.
std::vector<Line> Wrapped(const Line& line, int width, int indent);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_STYLED_TEXT_H_
