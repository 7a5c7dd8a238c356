// SPDX-License-Identifier: MIT
// How each role looks on a terminal.
#ifndef ALMARA_VIEWER_LOOKS_H_
#define ALMARA_VIEWER_LOOKS_H_

#include "styled_text.h"

namespace almara::viewer {

// What the terminal can show and the user wants to see.
enum class Palette { kNone, kBasic, k256 };

constexpr int kOwnColor = -1;  // the terminal's own

struct Look {
  Role role;
  int color;       // of the 256; can be read on a black ground and on a white one
  int basicColor;  // of the basic eight, of which only red and magenta can be read on both
  bool bold;
  bool dim;
  bool reverse;
};

const Look& LookOf(Role role);

// kOwnColor without a palette.
int ColorOf(const Look& look, Palette palette);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_LOOKS_H_
