// SPDX-License-Identifier: MIT
//
// The system's cosine may differ by a bit between processors and versions of the C library. Here it
// is replaced by one that is off by up to two bits either way, and no day may move.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "annotation_checksums.h"

extern "C" double __real_cos(double angle);

namespace almara::test {
namespace {

bool g_disturbed = false;
std::uint64_t g_calls = 0;

// -2 to 2, spread evenly (SplitMix64).
std::int64_t NextOffset() {
  std::uint64_t bits = (g_calls += 0x9E3779B97F4A7C15U);
  bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
  bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
  return static_cast<std::int64_t>((bits ^ (bits >> 31U)) % 5) - 2;
}

double Disturbed(double value) {
  std::int64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  bits += NextOffset();
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

class CosineBits : public testing::TestWithParam<int> {
 protected:
  ~CosineBits() override { g_disturbed = false; }
};

TEST_P(CosineBits, NoLunarDateMoves) {
  const std::uint64_t undisturbed = ChecksumOfSharedLunarDates(GetParam());
  const std::uint64_t callsBefore = g_calls;
  g_disturbed = true;
  EXPECT_EQ(ChecksumOfSharedLunarDates(GetParam()), undisturbed);
  EXPECT_NE(g_calls, callsBefore);
}

TEST_P(CosineBits, NoTermMoves) {
  const std::uint64_t undisturbed = ChecksumOfTerms(GetParam());
  g_disturbed = true;
  EXPECT_EQ(ChecksumOfTerms(GetParam()), undisturbed);
}

INSTANTIATE_TEST_SUITE_P(Zones, CosineBits, testing::Range(kFirstZone, kLastZone + 1));

// The zones that the languages fix, with every day searched for on its own.
using CosineBitsDayByDay = CosineBits;

TEST_P(CosineBitsDayByDay, NoLunarDateMoves) {
  const std::uint64_t shared = ChecksumOfSharedLunarDates(GetParam());
  g_disturbed = true;
  EXPECT_EQ(ChecksumOfLunarDates(GetParam()), shared);
}

INSTANTIATE_TEST_SUITE_P(Zones, CosineBitsDayByDay, testing::Values(8, 9));

}  // namespace

// Every call of cos in this program lands here.
extern "C" double __wrap_cos(double angle) {
  const double value = __real_cos(angle);
  return g_disturbed ? Disturbed(value) : value;
}

}  // namespace almara::test
