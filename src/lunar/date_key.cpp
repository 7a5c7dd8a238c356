// SPDX-License-Identifier: MIT
#include "lunar/date_key.h"

#include "date/decimal_text.h"

namespace almara {

std::string DateKey(CCalendarSolarDate date) {
  char text[3 * kMaxDecimalLength + 2];
  return {text, AppendDate(text, date.year, date.month, date.day)};
}

}  // namespace almara
