// SPDX-License-Identifier: MIT
#include "lunar/lunar_memo.h"

#include <gtest/gtest.h>

#include "gregorian_days.h"
#include "lunar/julian_date.h"
#include "lunar/lunar_date.h"
#include "lunar/sekki_lookup.h"

namespace almara::test {
namespace {

TEST(LunarMemo, DaysOfAQuarterShareIt) {
  LunarMemo memo;
  const LunarQuarter* const quarter = memo.QuarterOf(DayCount(2024, 4, 1), 8);
  for (double day = DayCount(2024, 3, 21); day <= DayCount(2024, 6, 20); ++day) {
    EXPECT_EQ(memo.QuarterOf(day, 8), quarter) << day;
  }
  EXPECT_NE(memo.QuarterOf(DayCount(2024, 7, 1), 8), quarter);
}

// Both sides of the years and zones within which the days of a quarter share it: the quarter found
// for one day is that of another in them only.
TEST(LunarMemo, SharesAQuarterWithinItsYearsAndZonesOnly) {
  const struct {
    int zone;
    int year;
    int month;
    bool shares;
  } cases[] = {
      {8, 1800, 4, true},   {8, 1799, 7, false},   {8, 2099, 7, true},  {8, 2100, 4, false},
      {-12, 2024, 4, true}, {-13, 2024, 4, false}, {14, 2024, 4, true}, {15, 2024, 4, false},
  };
  for (const auto& tested : cases) {
    LunarMemo memo;
    const double day = DayCount(tested.year, tested.month, 20);
    memo.QuarterOf(DayCount(tested.year, tested.month, 1), tested.zone);
    const LunarQuarter* const one = memo.QuarterOf(day, tested.zone);
    const double oneEnds = one->terms.back().time;
    const LunarQuarter* const next = memo.QuarterOf(day + 91, tested.zone);
    EXPECT_NE(next->terms.back().time, oneEnds);
    EXPECT_EQ(next != one, tested.shares) << tested.year << " zone " << tested.zone;
  }
}

TEST(LunarMemo, DaysOfAYearShareItsTerms) {
  LunarMemo memo;
  const SekkiDays* const year = &memo.SekkiDaysOf(2024, 8);
  EXPECT_EQ(&memo.SekkiDaysOf(2024, 8), year);
  EXPECT_NE(&memo.SekkiDaysOf(2023, 8), year);
}

// New moon 2024-02-09 22:59 UT, summer solstice 2024-06-20 20:51 UT.
TEST(LunarMemo, AnotherZoneForgets) {
  LunarMemo memo;
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Text(LunarDateOf({2024, 2, 10, 0}, 8, memo)), "2024-1-1");
    EXPECT_EQ(SekkiOf({2024, 6, 21, 0}, 8, memo), eSekkiSummerSolstice);
    EXPECT_EQ(Text(LunarDateOf({2024, 2, 10, 0}, 0, memo)), "2024-1-2");
    EXPECT_EQ(SekkiOf({2024, 6, 21, 0}, 0, memo), eSekkiNone);
  }
  // The zone of a new memo is not taken for known.
  LunarMemo other;
  EXPECT_EQ(SekkiOf({2024, 6, 20, 0}, 0, other), eSekkiSummerSolstice);
  EXPECT_EQ(SekkiOf({2024, 6, 20, 0}, 8, other), eSekkiNone);
}

TEST(LunarMemo, OutsideItsZonesDatesAreThoseWorkedOutAlone) {
  LunarMemo memo;
  ForEachDay(2023, 2024, [&](CCalendarSolarDate date) {
    LunarMemo empty;
    ASSERT_EQ(Text(LunarDateOf(date, -13, memo)), Text(LunarDateOf(date, -13, empty)))
        << Text(date);
  });
}

TEST(LunarMemo, HasNoQuarterWhereASearchDoesNotSettle) {
  LunarMemo memo;
  EXPECT_EQ(memo.QuarterOf(DayCount(5000000, 1, 1), 8), nullptr);
}

}  // namespace
}  // namespace almara::test
