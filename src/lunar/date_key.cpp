// SPDX-License-Identifier: MIT
#include "lunar/date_key.h"

#include "date/decimal_text.h"

std::string DateKey(CCalendarSolarDate date) {
  char text[3 * almara::kMaxDecimalLength + 2];
  return {text, almara::AppendDate(text, date.year, date.month, date.day)};
}
