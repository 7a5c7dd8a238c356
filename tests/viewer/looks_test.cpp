// SPDX-License-Identifier: MIT
#include "looks.h"

#include <gtest/gtest.h>

#include <cmath>

namespace almara::viewer {
namespace {

// Of one channel of a colour of the 6x6x6 cube, its part of the relative luminance (WCAG 2).
double Linear(int step) {
  constexpr double kLevels[] = {0, 95, 135, 175, 215, 255};
  const double value = kLevels[step] / 255;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(int color) {
  const int place = color - 16;
  return 0.2126 * Linear(place / 36) + 0.7152 * Linear(place / 6 % 6) + 0.0722 * Linear(place % 6);
}

TEST(Looks, EveryColorCanBeReadOnBlackAndOnWhite) {
  constexpr double kContrastOfText = 4.5;
  int colors = 0;
  for (int role = 0; role <= static_cast<int>(Role::kHint); ++role) {
    const int color = LookOf(static_cast<Role>(role)).color;
    if (color != kOwnColor) {
      ++colors;
      EXPECT_GE((Luminance(color) + 0.05) / 0.05, kContrastOfText) << color;
      EXPECT_GE(1.05 / (Luminance(color) + 0.05), kContrastOfText) << color;
    }
  }
  EXPECT_GT(colors, 0);
}

}  // namespace
}  // namespace almara::viewer
