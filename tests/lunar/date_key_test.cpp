// SPDX-License-Identifier: MIT
#include "lunar/date_key.h"

#include <gtest/gtest.h>

#include <limits>

using almara::DateKey;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

TEST(DateKey, PadsYearToFourAndTheOthersToTwoDigits) {
  EXPECT_EQ(DateKey({2024, 2, 10, 0}), "2024-02-10");
  EXPECT_EQ(DateKey({987, 3, 5, 0}), "0987-03-05");
  EXPECT_EQ(DateKey({0, 0, 0, 0}), "0000-00-00");
}

TEST(DateKey, KeepsTheSignInFrontOfThePadding) {
  EXPECT_EQ(DateKey({-1, 1, 1, 0}), "-0001-01-01");
  EXPECT_EQ(DateKey({-12345, -3, -45, 0}), "-12345--03--45");
}

TEST(DateKey, LeavesTheDayOfTheWeekOut) {
  EXPECT_EQ(DateKey({2024, 2, 10, 6}), DateKey({2024, 2, 10, 0}));
}

TEST(DateKey, HoldsEveryInt) {
  EXPECT_EQ(DateKey({kMin, kMin, kMin, 0}), "-2147483648--2147483648--2147483648");
  EXPECT_EQ(DateKey({kMax, kMax, kMax, 0}), "2147483647-2147483647-2147483647");
}

}  // namespace
