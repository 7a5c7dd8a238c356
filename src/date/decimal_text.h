// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DECIMAL_TEXT_H_
#define ALMARA_DATE_DECIMAL_TEXT_H_

#include <cstdint>

namespace almara {

// Longest text that AppendDecimal writes for up to 11 digits.
// MUTATE_EXCL: more room does no harm.
constexpr int kMaxDecimalLength = 12;

// Writes value in decimal with at least minDigits digits, zeroes in front, and a sign if it is
// negative, as printf's "%.4d" does for 4. Returns the end of the text. out must have room for
// kMaxDecimalLength characters; minDigits is 1 to 11.
char* AppendDecimal(char* out, std::int32_t value, int minDigits);

// Writes "year-month-day" with at least four, two and two digits. out must have room for
// 3 * kMaxDecimalLength + 2 characters.
char* AppendDate(char* out, std::int32_t year, std::int32_t month, std::int32_t day);

}  // namespace almara

#endif  // ALMARA_DATE_DECIMAL_TEXT_H_
