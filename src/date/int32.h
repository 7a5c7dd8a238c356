// SPDX-License-Identifier: MIT
//
// 32-bit arithmetic that is defined for every operand.
#ifndef ALMARA_DATE_INT32_H_
#define ALMARA_DATE_INT32_H_

#include <cstdint>
#include <limits>

namespace almara {

// a + b, a - b and a * b modulo 2^32, so that counts which a host chose never overflow.
constexpr std::int32_t WrapAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

constexpr std::int32_t WrapSubtract(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

constexpr std::int32_t WrapMultiply(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

// The integer part of value, truncated toward zero (-1.7 gives -1). A value whose integer part does
// not fit, and a NaN, give -2147483648.
constexpr std::int32_t TruncateToInt32(double value) {
  constexpr double kLimit = 2147483648.0;
  return value > -kLimit - 1.0 && value < kLimit ? static_cast<std::int32_t>(value)
                                                 : std::numeric_limits<std::int32_t>::min();
}

}  // namespace almara

#endif  // ALMARA_DATE_INT32_H_
