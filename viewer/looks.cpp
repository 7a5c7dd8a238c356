// SPDX-License-Identifier: MIT
#include "looks.h"

namespace almara::viewer {
namespace {

// Each colour has a contrast of at least 4.5 on black and on white, what WCAG 2 asks of texts.
constexpr int kRed = 131;      // af5f5f
constexpr int kMagenta = 163;  // d700af
constexpr int kGreen = 29;     // 00875f
constexpr int kBlue = 63;      // 5f5fff
constexpr int kBasicRed = 1;
constexpr int kBasicMagenta = 5;

}  // namespace

const Look& LookOf(Role role) {
  static constexpr Look kLooks[] = {
      // role, color, basicColor, bold, dim, reverse
      {Role::kPlain, kOwnColor, kOwnColor, false, false, false},
      {Role::kTitle, kOwnColor, kOwnColor, true, false, false},
      {Role::kHeading, kOwnColor, kOwnColor, true, false, false},
      {Role::kBreakHeading, kRed, kBasicRed, true, false, false},
      {Role::kWeekNumber, kOwnColor, kOwnColor, false, true, false},
      {Role::kDay, kOwnColor, kOwnColor, false, false, false},
      {Role::kBreakDay, kRed, kBasicRed, false, false, false},
      {Role::kToday, kOwnColor, kOwnColor, true, false, true},
      {Role::kMonthTitle, kBlue, kOwnColor, false, false, false},
      {Role::kFestival, kMagenta, kBasicMagenta, false, false, false},
      {Role::kSolarTerm, kGreen, kOwnColor, false, false, false},
      {Role::kLunarDay, kOwnColor, kOwnColor, false, true, false},
      {Role::kHint, kOwnColor, kOwnColor, false, true, false},
  };
  for (const Look& look : kLooks) {
    if (look.role == role) {
      return look;
    }
  }
  return kLooks[0];
}

int ColorOf(const Look& look, Palette palette) {
  switch (palette) {
    case Palette::k256:
      return look.color;
    case Palette::kBasic:
      return look.basicColor;
    case Palette::kNone:
      break;
  }
  return kOwnColor;
}

}  // namespace almara::viewer
