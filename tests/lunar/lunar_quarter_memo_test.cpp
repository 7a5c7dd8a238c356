// SPDX-License-Identifier: MIT
#include "lunar/lunar_quarter_memo.h"

#include <gtest/gtest.h>

#include <string>

#include "gregorian_days.h"
#include "lunar/calendar_lunar_converter.h"
#include "zone_guard.h"

namespace {

double DayCount(int year, int month, int day) {
  return CCalendarLunarConverter::_YMDT2JD(year, month, day, 0, 0, 0);
}

TEST(LunarQuarterMemo, DaysOfAQuarterShareIt) {
  const ZoneGuard guard(8);
  LunarQuarterMemo memo;
  const LunarQuarter* const quarter = memo.QuarterOf(DayCount(2024, 4, 1));
  EXPECT_EQ(memo.QuarterOf(DayCount(2024, 5, 31)), quarter);
  EXPECT_EQ(memo.QuarterOf(DayCount(2024, 4, 1)), quarter);
  EXPECT_NE(memo.QuarterOf(DayCount(2024, 7, 1)), quarter);
}

// Both sides of the years and zones within which the days of a quarter share it: the quarter found
// for one day is that of another in them only.
TEST(LunarQuarterMemo, SharesWithinItsYearsAndZonesOnly) {
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
    const ZoneGuard guard(tested.zone);
    LunarQuarterMemo memo;
    memo.QuarterOf(DayCount(tested.year, tested.month, 1));
    const LunarQuarter* const one = memo.QuarterOf(DayCount(tested.year, tested.month, 20));
    const double oneEnds = one->terms.back().time;
    const LunarQuarter* const next = memo.QuarterOf(DayCount(tested.year, tested.month, 20) + 91);
    EXPECT_NE(next->terms.back().time, oneEnds);
    EXPECT_EQ(next != one, tested.shares) << tested.year << " zone " << tested.zone;
  }
}

TEST(LunarQuarterMemo, AnotherZoneForgets) {
  LunarQuarterMemo memo;
  const CCalendarLunarConverter converter;
  const auto at = [&](int zone, CCalendarSolarDate date) {
    const ZoneGuard guard(zone);
    return Text(converter.Converter(date, memo));
  };
  // The new moon of 2024-02-09 22:59 UT.
  EXPECT_EQ(at(8, {2024, 2, 10, 0}), "2024-1-1");
  EXPECT_EQ(at(0, {2024, 2, 10, 0}), "2024-1-2");
  EXPECT_EQ(at(8, {2024, 2, 10, 0}), "2024-1-1");
}

TEST(LunarQuarterMemo, OutsideItsZonesDatesAreThoseOfTheConverterAlone) {
  const ZoneGuard guard(-13);
  const CCalendarLunarConverter converter;
  LunarQuarterMemo memo;
  ForEachDay(2023, 2024, [&](CCalendarSolarDate date) {
    ASSERT_EQ(Text(converter.Converter(date, memo)), Text(converter.Converter(date))) << Text(date);
  });
}

TEST(LunarQuarterMemo, HasNoQuarterWhereASearchDoesNotSettle) {
  const ZoneGuard guard(8);
  LunarQuarterMemo memo;
  EXPECT_EQ(memo.QuarterOf(DayCount(5000000, 1, 1)), nullptr);
}

}  // namespace
