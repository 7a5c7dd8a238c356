// SPDX-License-Identifier: MIT
#include "date/decimal_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>

namespace {

constexpr bool IsWithin(std::int32_t value, std::int32_t last) {
  return value >= 0 && value <= last;
}

// "00" to "99", one after the other.
constexpr std::array<char, 200> DigitPairs() {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = static_cast<char>('0' + (i % 2 == 0 ? i / 20 : i / 2 % 10));
  }
  return pairs;
}

char* AppendTwoDigits(char* out, std::int32_t value) {
  static constexpr std::array<char, 200> kPairs = DigitPairs();
  std::memcpy(out, &kPairs[2 * static_cast<std::size_t>(value)], 2);
  return out + 2;
}

}  // namespace

namespace almara {

char* AppendDecimal(char* out, std::int32_t value, int minDigits) {
  if (IsWithin(value, 9) && minDigits <= 1) {
    *out = static_cast<char>('0' + value);
    return out + 1;
  }
  auto magnitude = static_cast<std::uint32_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0U - magnitude;
  }
  char digits[kMaxDecimalLength];
  const char* const end = std::to_chars(digits, digits + sizeof digits, magnitude).ptr;
  for (auto length = end - digits; length < minDigits; ++length) {
    *out++ = '0';
  }
  return std::copy(static_cast<const char*>(digits), end, out);
}

char* AppendDate(char* out, std::int32_t year, std::int32_t month, std::int32_t day) {
  if (IsWithin(year, 9999) && IsWithin(month, 99) && IsWithin(day, 99)) {  // all that boards show
    out = AppendTwoDigits(AppendTwoDigits(out, year / 100), year % 100);
    *out++ = '-';
    out = AppendTwoDigits(out, month);
    *out++ = '-';
    return AppendTwoDigits(out, day);
  }
  out = AppendDecimal(out, year, 4);
  *out++ = '-';
  out = AppendDecimal(out, month, 2);
  *out++ = '-';
  return AppendDecimal(out, day, 2);
}

}  // namespace almara
