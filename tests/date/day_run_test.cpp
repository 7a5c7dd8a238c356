// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ctime>

#include "date/day_run.h"
#include "yardstick/days.h"

using almara::DateOf;
using almara::DayCounting;
using almara::DayRun;

namespace {

constexpr int kSecondsPerDay = 86400;

// The date offset days after another, with a midnight and a conversion of its own.
CCalendarSolarDate PlainDateByOffset(const CCalendarSolarDate& date, int offset) {
  std::tm record{};
  record.tm_year = date.year - 1900;
  record.tm_mon = date.month - 1;
  record.tm_mday = date.day;
  const std::time_t instant = std::mktime(&record) + offset * kSecondsPerDay;
  return DateOf(*std::localtime(&instant));
}

void ExpectEqual(const CCalendarSolarDate& actual, const CCalendarSolarDate& expected, int offset) {
  EXPECT_EQ(actual.year, expected.year) << offset;
  EXPECT_EQ(actual.month, expected.month) << offset;
  EXPECT_EQ(actual.day, expected.day) << offset;
  EXPECT_EQ(actual.dayOfWeek, expected.dayOfWeek) << offset;
}

// One midnight serves a run as well as one for each of its days, also where clocks change at
// midnight and where a day is missing.
TEST(DayRun, GivesTheDatesOfSeparateConversions) {
  const auto days = almara::test::DaysOfYears(1900, 2099);
  for (std::size_t i = 0; i < days.size(); i += 29) {
    const CCalendarSolarDate& first = days[i];
    const DayRun run(first.year, first.month, first.day, DayCounting::kLocalTime);
    for (int offset = -60; offset <= 60; offset += 3) {
      CCalendarSolarDate date{};
      ASSERT_TRUE(run.DateAt(offset, date));
      ExpectEqual(date, PlainDateByOffset(first, offset), offset);
    }
    ASSERT_FALSE(testing::Test::HasFailure())
        << first.year << '-' << first.month << '-' << first.day;
  }
}

TEST(DayRun, GivesTheDatesOfSeparateConversionsAroundDecember2011) {
  for (int day = 1; day <= 45; ++day) {
    const DayRun run(2011, 12, day, DayCounting::kLocalTime);
    for (int offset = -45; offset <= 45; ++offset) {
      CCalendarSolarDate date{};
      ASSERT_TRUE(run.DateAt(offset, date));
      ExpectEqual(date, PlainDateByOffset({2011, 12, day, 0}, offset), offset);
    }
  }
}

TEST(DayRun, FormsTheSecondsIn32Bits) {
  const DayRun run(2024, 1, 1, DayCounting::kLocalTime);
  CCalendarSolarDate date{};
  ASSERT_TRUE(run.DateAt(24855, date));
  EXPECT_EQ(date.year, 2092);
  ASSERT_TRUE(run.DateAt(24856, date));
  EXPECT_EQ(date.year, 1955);
}

}  // namespace
