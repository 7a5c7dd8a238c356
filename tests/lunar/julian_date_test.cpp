// SPDX-License-Identifier: MIT
#include "lunar/julian_date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "gregorian_days.h"

namespace almara::test {
namespace {

void ExpectDate(double jd, int year, int month, int day) {
  const tagSolarKyurekiYMDT date = DateOfDayCount(jd);
  EXPECT_EQ(date.year, year) << jd;
  EXPECT_EQ(date.month, month) << jd;
  EXPECT_EQ(date.day, day) << jd;
}

TEST(DayCounts, TurnsAtMidnight) {
  EXPECT_EQ(DayCount(2000, 1, 1), 2451544.0);
  EXPECT_EQ(DayCount(1900, 1, 1), 2415020.0);
  EXPECT_EQ(DayCount(2000, 1, 1, 12, 0, 0), 2451544.5);
  EXPECT_EQ(DayCount(2000, 1, 1, 6, 0, 0), 2451544.25);
  EXPECT_DOUBLE_EQ(DayCount(2000, 1, 1, 0, 30, 36), 2451544.0 + 1836.0 / 86400);
}

TEST(DayCounts, GoesUpByOneADayAndBack) {
  double expected = DayCount(1800, 1, 1);
  ForEachDay(1800, 2199, [&](CCalendarSolarDate date) {
    ASSERT_EQ(DayCount(date.year, date.month, date.day), expected) << Text(date);
    ExpectDate(expected, date.year, date.month, date.day);
    expected += 1;
  });
}

TEST(DayCounts, CountsJanuaryAndFebruaryWithTheYearBefore) {
  EXPECT_EQ(DayCount(2024, 3, 1) - DayCount(2024, 2, 28), 2);
  EXPECT_EQ(DayCount(2023, 3, 1) - DayCount(2023, 2, 28), 1);
  EXPECT_EQ(DayCount(2024, 0, 1), DayCount(2023, 12, 1));
}

TEST(DayCounts, TruncatesTowardZeroAlsoBelowZero) {
  // 365.25 * -1 is cut to -365, not floored to -366.
  EXPECT_EQ(DayCount(-1, 3, 0), -365 + 0 - 0 + 30 + 1721088);
  EXPECT_EQ(DayCount(-101, 3, 0), -36890 - 0 + 1 + 30 + 1721088);
}

TEST(DayCounts, TakesAPartThatDoesNotFitAsTheLeastInt) {
  constexpr double kLeast = -2147483648.0;
  EXPECT_EQ(DayCount(5879489, 3, 1), 2147483357.0 + 14698 - 58794 + 30 + 1721088 + 1);
  EXPECT_EQ(DayCount(5879490, 3, 1), kLeast + 14698 - 58794 + 30 + 1721088 + 1);
}

TEST(DatesOfDayCounts, GivesTheTimeOfDayInWholeUnits) {
  const tagSolarKyurekiYMDT midnight = DateOfDayCount(2451544.0);
  EXPECT_EQ(midnight.year, 2000);
  EXPECT_EQ(midnight.month, 1);
  EXPECT_EQ(midnight.day, 1);
  EXPECT_EQ(midnight.hour, 0);
  EXPECT_EQ(midnight.minute, 0);
  EXPECT_EQ(midnight.second, 0);

  const tagSolarKyurekiYMDT noon = DateOfDayCount(2451544.5);
  EXPECT_EQ(noon.hour, 12);
  EXPECT_EQ(noon.minute, 0);
  EXPECT_EQ(noon.second, 0);

  const tagSolarKyurekiYMDT later = DateOfDayCount(2451544.0 + (7 * 3600 + 8 * 60 + 9.5) / 86400);
  EXPECT_EQ(later.hour, 7);
  EXPECT_EQ(later.minute, 8);
  EXPECT_EQ(later.second, 9);
  EXPECT_EQ(later.day, 1);
}

// The division gives 30 February for these days; the limit puts it right.
TEST(DatesOfDayCounts, LimitsFebruaryIn2037And2041) {
  ExpectDate(DayCount(2037, 2, 28), 2037, 2, 28);
  ExpectDate(DayCount(2037, 3, 1), 2037, 3, 1);
  ExpectDate(DayCount(2041, 2, 28), 2041, 2, 28);
  ExpectDate(DayCount(2024, 2, 29), 2024, 2, 29);
  ExpectDate(DayCount(2000, 2, 29), 2000, 2, 29);
}

// A century year counts as a leap year there: the limit is 29, not 28.
TEST(DatesOfDayCounts, LimitsFebruaryOfACenturyYearTo29) { ExpectDate(-68571, -4900, 2, 29); }

TEST(DatesOfDayCounts, DoesNotMeetTheLimitIn2100And2101) {
  ExpectDate(DayCount(2100, 2, 28), 2100, 2, 28);
  ExpectDate(DayCount(2100, 2, 28) + 1, 2100, 3, 1);
  ExpectDate(DayCount(2101, 2, 28), 2101, 2, 28);
  ExpectDate(DayCount(2101, 2, 28) + 1, 2101, 3, 1);
}

TEST(DatesOfDayCounts, GivesWholeNumbersForEveryDouble) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double dayCount :
       {0.0, -0.5, -68570.0, -68571.0, 2147415077.0, 2147415078.0, 1e300, -1e300, infinity,
        -infinity, std::numeric_limits<double>::quiet_NaN()}) {
    const tagSolarKyurekiYMDT date = DateOfDayCount(dayCount);
    for (const double field :
         {date.year, date.month, date.day, date.hour, date.minute, date.second}) {
      EXPECT_EQ(field, std::trunc(field)) << dayCount;
    }
  }
}

}  // namespace
}  // namespace almara::test
