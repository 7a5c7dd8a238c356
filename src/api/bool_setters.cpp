// SPDX-License-Identifier: MIT
//
// The exported setters with a bool argument. The public header declares it bool; here it is the
// byte that the calling convention passes for a bool, because a foreign caller may hand over any
// value and reading a bool that is neither 0 nor 1 would be undefined. This file therefore must not
// include the public header's prototypes.
#include <cstdint>

#include "api/engine.h"

#define ALMARA_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

// Only the lowest bit counts: 2 has said false.
bool LowestBit(std::uint8_t flag) { return (flag & 1U) != 0; }

}  // namespace

ALMARA_EXPORT void SetHideBreakDay(std::uint8_t hide) {
  almara::Tell(&CCalendarLogic::SetHideBreakDay, LowestBit(hide));
}

ALMARA_EXPORT void SetShowMonthInterval(std::uint8_t show) {
  almara::Tell(&CCalendarLogic::SetShowMonthInterval, LowestBit(show));
}

ALMARA_EXPORT void SetShowBreakDayOfWeek(std::uint8_t show) {
  almara::Tell(&CCalendarLogic::SetShowBreakDayOfWeek, LowestBit(show));
}

ALMARA_EXPORT void SetPrintBoard(std::uint8_t print) {
  almara::Tell(&CCalendarLogic::SetPrintBoard, LowestBit(print));
}

ALMARA_EXPORT void SetCivilDays(std::uint8_t on) {
  almara::Tell(&CCalendarLogic::SetCivilDays, LowestBit(on));
}

ALMARA_EXPORT void SetBreakDayOfWeek(std::int32_t dayOfWeek, std::uint8_t isBreak) {
  almara::Tell(&CCalendarLogic::SetBreakDayOfWeek, dayOfWeek, LowestBit(isBreak));
}
