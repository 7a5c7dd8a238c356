// SPDX-License-Identifier: MIT
#include "date/decimal_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kValues[] = {0,    1,     9,     10,     99,      100,      999, 1000,
                                    9999, 10000, 12345, 99999,  1000000, -1,       -9,  -10,
                                    -99,  -100,  -9999, -10000, kMin,    kMin + 1, kMax};

std::string Printed(const char* format, int minDigits, std::int32_t value) {
  char text[64];
  return {text,
          static_cast<std::size_t>(std::snprintf(text, sizeof text, format, minDigits, value))};
}

TEST(DecimalText, IsWhatPrintfWrites) {
  for (const std::int32_t value : kValues) {
    for (int minDigits = 1; minDigits <= 11; ++minDigits) {
      char text[almara::kMaxDecimalLength];
      const std::string written(text, almara::AppendDecimal(text, value, minDigits));
      EXPECT_EQ(written, Printed("%.*d", minDigits, value));
    }
  }
}

TEST(DecimalText, DateIsWhatPrintfWrites) {
  for (const std::int32_t year : kValues) {
    for (const std::int32_t month : kValues) {
      for (const std::int32_t day : kValues) {
        char text[3 * almara::kMaxDecimalLength + 2];
        const std::string written(text, almara::AppendDate(text, year, month, day));
        EXPECT_EQ(written, Printed("%.*d", 4, year) + "-" + Printed("%.*d", 2, month) + "-" +
                               Printed("%.*d", 2, day));
      }
    }
  }
}

}  // namespace
