// SPDX-License-Identifier: MIT
#include "date/decimal_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace almara {

char* AppendDecimal(char* out, std::int32_t value, int minDigits) {
  auto magnitude = static_cast<std::uint32_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0U - magnitude;
  }
  char digits[kMaxDecimalLength];
  const char* const end = std::to_chars(digits, digits + sizeof digits, magnitude).ptr;
  out = std::fill_n(out, std::max<std::ptrdiff_t>(minDigits - (end - digits), 0), '0');
  return std::copy(static_cast<const char*>(digits), end, out);
}

char* AppendDate(char* out, std::int32_t year, std::int32_t month, std::int32_t day) {
  out = AppendDecimal(out, year, 4);
  *out++ = '-';
  out = AppendDecimal(out, month, 2);
  *out++ = '-';
  return AppendDecimal(out, day, 2);
}

}  // namespace almara
