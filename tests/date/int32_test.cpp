// SPDX-License-Identifier: MIT
#include "date/int32.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

using almara::TruncateToInt32;
using almara::WrapAdd;
using almara::WrapMultiply;
using almara::WrapSubtract;

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

TEST(Int32, AddWrapsAtBothEnds) {
  EXPECT_EQ(WrapAdd(2, 3), 5);
  EXPECT_EQ(WrapAdd(kMax, 0), kMax);
  EXPECT_EQ(WrapAdd(kMax, 1), kMin);
  EXPECT_EQ(WrapAdd(kMin, -1), kMax);
  EXPECT_EQ(WrapAdd(kMin, kMin), 0);
}

TEST(Int32, SubtractWrapsAtBothEnds) {
  EXPECT_EQ(WrapSubtract(2, 3), -1);
  EXPECT_EQ(WrapSubtract(kMin, 1), kMax);
  EXPECT_EQ(WrapSubtract(kMax, -1), kMin);
  EXPECT_EQ(WrapSubtract(0, kMin), kMin);
}

TEST(Int32, MultiplyKeepsTheLow32Bits) {
  EXPECT_EQ(WrapMultiply(-7, 6), -42);
  EXPECT_EQ(WrapMultiply(24855, 86400), 2147472000);
  EXPECT_EQ(WrapMultiply(24856, 86400), -2147408896);
  EXPECT_EQ(WrapMultiply(kMin, -1), kMin);
  EXPECT_EQ(WrapMultiply(65536, 65536), 0);
}

TEST(Int32, TruncationIsTowardZero) {
  EXPECT_EQ(TruncateToInt32(1.999), 1);
  EXPECT_EQ(TruncateToInt32(-1.999), -1);
  EXPECT_EQ(TruncateToInt32(-0.5), 0);
  EXPECT_EQ(TruncateToInt32(-2147483647.9), -2147483647);
}

TEST(Int32, TruncationThatDoesNotFitGivesTheLeastValue) {
  EXPECT_EQ(TruncateToInt32(2147483647.9), kMax);
  EXPECT_EQ(TruncateToInt32(2147483648.0), kMin);
  EXPECT_EQ(TruncateToInt32(-2147483648.9), kMin);
  EXPECT_EQ(TruncateToInt32(-2147483649.0), kMin);
  EXPECT_EQ(TruncateToInt32(1e300), kMin);
  EXPECT_EQ(TruncateToInt32(std::numeric_limits<double>::infinity()), kMin);
  EXPECT_EQ(TruncateToInt32(std::nan("")), kMin);
}

}  // namespace
