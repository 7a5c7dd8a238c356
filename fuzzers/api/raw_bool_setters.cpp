// SPDX-License-Identifier: MIT
//
// Apart from the public header, whose prototypes say bool.
#include "api/raw_bool_setters.h"

extern "C" {
void SetHideBreakDay(std::uint8_t hide);
void SetShowMonthInterval(std::uint8_t show);
void SetShowBreakDayOfWeek(std::uint8_t show);
void SetPrintBoard(std::uint8_t print);
void SetCivilDays(std::uint8_t on);
void SetBreakDayOfWeek(std::int32_t dayOfWeek, std::uint8_t isBreak);
}

namespace almara::test {

void RawSetHideBreakDay(std::uint8_t hide) { SetHideBreakDay(hide); }
void RawSetShowMonthInterval(std::uint8_t show) { SetShowMonthInterval(show); }
void RawSetShowBreakDayOfWeek(std::uint8_t show) { SetShowBreakDayOfWeek(show); }
void RawSetPrintBoard(std::uint8_t print) { SetPrintBoard(print); }
void RawSetCivilDays(std::uint8_t on) { SetCivilDays(on); }
void RawSetBreakDayOfWeek(std::int32_t dayOfWeek, std::uint8_t isBreak) {
  SetBreakDayOfWeek(dayOfWeek, isBreak);
}

}  // namespace almara::test
