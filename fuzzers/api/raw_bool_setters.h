// SPDX-License-Identifier: MIT
#ifndef ALMARA_FUZZERS_API_RAW_BOOL_SETTERS_H_
#define ALMARA_FUZZERS_API_RAW_BOOL_SETTERS_H_

#include <cstdint>

// The exported setters with a bool argument, called as a foreign bridge may call them: with any
// byte in the place of the bool. Only its lowest bit counts.
namespace almara::test {

void RawSetHideBreakDay(std::uint8_t hide);
void RawSetShowMonthInterval(std::uint8_t show);
void RawSetShowBreakDayOfWeek(std::uint8_t show);
void RawSetPrintBoard(std::uint8_t print);
void RawSetCivilDays(std::uint8_t on);
void RawSetBreakDayOfWeek(std::int32_t dayOfWeek, std::uint8_t isBreak);

}  // namespace almara::test

#endif  // ALMARA_FUZZERS_API_RAW_BOOL_SETTERS_H_
