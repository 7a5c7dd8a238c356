// SPDX-License-Identifier: MIT
#include "lunar/lunar_date.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "date/calendar_platform_api.h"
#include "gregorian_days.h"

namespace almara::test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

bool IsZero(const CCalendarLunarDate& lunar) {
  return lunar.year == 0 && lunar.month == 0 && lunar.day == 0 && lunar.reserved == 0 &&
         lunar.leap == 0;
}

CCalendarLunarDate Converted(int year, int month, int day, int zone) {
  LunarMemo nothingKept;
  return LunarDateOf({year, month, day, 0}, zone, nothingKept);
}

std::string Lunar(int year, int month, int day, int zone) {
  return Text(Converted(year, month, day, zone));
}

struct Case {
  CCalendarSolarDate solar;
  const char* lunar;
};

// Published dates of the Chinese new year.
constexpr Case kNewYears[] = {
    {{1900, 1, 31, 0}, "1900-1-1"}, {{1924, 2, 5, 0}, "1924-1-1"},  {{1950, 2, 17, 0}, "1950-1-1"},
    {{1976, 1, 31, 0}, "1976-1-1"}, {{1984, 2, 2, 0}, "1984-1-1"},  {{1985, 2, 20, 0}, "1985-1-1"},
    {{2000, 2, 5, 0}, "2000-1-1"},  {{2005, 2, 9, 0}, "2005-1-1"},  {{2015, 2, 19, 0}, "2015-1-1"},
    {{2020, 1, 25, 0}, "2020-1-1"}, {{2021, 2, 12, 0}, "2021-1-1"}, {{2022, 2, 1, 0}, "2022-1-1"},
    {{2023, 1, 22, 0}, "2023-1-1"}, {{2024, 2, 10, 0}, "2024-1-1"}, {{2025, 1, 29, 0}, "2025-1-1"},
    {{2026, 2, 17, 0}, "2026-1-1"}, {{2033, 1, 31, 0}, "2033-1-1"}, {{2034, 2, 19, 0}, "2034-1-1"},
    {{2050, 1, 23, 0}, "2050-1-1"},
};

TEST(LunarDate, NewYearsAtZone8) {
  for (const Case& expected : kNewYears) {
    const CCalendarSolarDate& solar = expected.solar;
    EXPECT_EQ(Lunar(solar.year, solar.month, solar.day, 8), expected.lunar) << Text(solar);
  }
}

// Published first days of leap months.
constexpr Case kLeapMonths[] = {
    {{1995, 9, 25, 0}, "1995-8L-1"}, {{1998, 6, 24, 0}, "1998-5L-1"},
    {{2001, 5, 23, 0}, "2001-4L-1"}, {{2004, 3, 21, 0}, "2004-2L-1"},
    {{2006, 8, 24, 0}, "2006-7L-1"}, {{2009, 6, 23, 0}, "2009-5L-1"},
    {{2012, 5, 21, 0}, "2012-4L-1"}, {{2014, 10, 24, 0}, "2014-9L-1"},
    {{2017, 7, 23, 0}, "2017-6L-1"}, {{2020, 5, 23, 0}, "2020-4L-1"},
    {{2023, 3, 22, 0}, "2023-2L-1"}, {{2025, 7, 25, 0}, "2025-6L-1"},
    {{2028, 6, 23, 0}, "2028-5L-1"}, {{2031, 4, 22, 0}, "2031-3L-1"},
};

TEST(LunarDate, LeapMonthsAtZone8) {
  for (const Case& expected : kLeapMonths) {
    const CCalendarSolarDate& solar = expected.solar;
    EXPECT_EQ(Lunar(solar.year, solar.month, solar.day, 8), expected.lunar) << Text(solar);
  }
}

TEST(LunarDate, ALeapMonthRepeatsTheNumberAndTheNextOneCountsOn) {
  EXPECT_EQ(Lunar(2023, 2, 20, 8), "2023-2-1");
  EXPECT_EQ(Lunar(2023, 3, 21, 8), "2023-2-30");
  EXPECT_EQ(Lunar(2023, 3, 22, 8), "2023-2L-1");
  EXPECT_EQ(Lunar(2023, 4, 19, 8), "2023-2L-29");
  EXPECT_EQ(Lunar(2023, 4, 20, 8), "2023-3-1");
}

TEST(LunarDate, TheDayOfANewMoonIsDayOne) {
  // New moon 2024-02-09 22:59 UT.
  EXPECT_EQ(Lunar(2024, 2, 9, 0), "2024-1-1");
  EXPECT_EQ(Lunar(2024, 2, 8, 0), "2023-12-29");
  EXPECT_EQ(Lunar(2024, 2, 10, 8), "2024-1-1");
  EXPECT_EQ(Lunar(2024, 2, 9, 8), "2023-12-30");
}

TEST(LunarDate, TheZoneShiftsTheDaysOfAWholeMonth) {
  for (int day = 10; day <= 28; ++day) {
    EXPECT_EQ(Converted(2024, 2, day, 0).day, Converted(2024, 2, day, 8).day + 1) << day;
  }
  EXPECT_EQ(Lunar(2024, 3, 15, 0), Lunar(2024, 3, 15, 8));  // the next new moon, at 9:00 UT
}

TEST(LunarDate, MonthsTenToTwelveInJanuaryBelongToTheYearBefore) {
  EXPECT_EQ(Lunar(2024, 1, 5, 8), "2023-11-24");
  EXPECT_EQ(Lunar(2024, 1, 11, 8), "2023-12-1");
  EXPECT_EQ(Lunar(2024, 2, 9, 8), "2023-12-30");
  EXPECT_EQ(Lunar(2024, 12, 31, 8), "2024-12-1");
  EXPECT_EQ(Lunar(2024, 12, 30, 8), "2024-11-30");
}

TEST(LunarDate, TheReservedFieldIsZero) {
  EXPECT_EQ(Converted(2024, 2, 10, 8).reserved, 0);
  EXPECT_EQ(Converted(2017, 3, 1, 8).reserved, 0);
}

TEST(LunarDate, ThirtyDatesOf2017AreFixedInEveryZone) {
  for (const int zone : {-12, -3, 0, 5, 8, 9, 14, kTimeZoneUnknown}) {
    int day = 0;
    ForEachDay(2017, 2017, [&](CCalendarSolarDate date) {
      if (Text(date) >= "2017-02-26" && Text(date) <= "2017-03-27") {
        EXPECT_EQ(Lunar(date.year, date.month, date.day, zone), "2017-2-" + std::to_string(++day));
      }
    });
    EXPECT_EQ(day, 30);
  }
}

TEST(LunarDate, TheDaysAroundTheFixedOnesAreWorkedOut) {
  EXPECT_EQ(Lunar(2017, 2, 25, 8), "2017-1-29");
  EXPECT_EQ(Lunar(2017, 3, 28, 8), "2017-3-1");
  // Where the new moon of 28 March falls on the 27th, the month begins with its second day.
  EXPECT_EQ(Lunar(2017, 3, 28, -3), "2017-3-2");
}

// Springs in which the search for a new moon starts again.
constexpr Case kRestartedSprings[] = {
    {{1833, 3, 21, 0}, "1833-2-1"}, {{1833, 4, 20, 0}, "1833-3-1"},
    {{1833, 5, 19, 0}, "1833-4-1"}, {{1852, 3, 21, 0}, "1852-2L-1"},
    {{1852, 4, 19, 0}, "1852-3-1"}, {{1852, 5, 19, 0}, "1852-4-1"},
    {{1966, 3, 22, 0}, "1966-3-1"}, {{1966, 4, 21, 0}, "1966-3L-1"},
    {{1966, 5, 20, 0}, "1966-4-1"}, {{1985, 3, 21, 0}, "1985-2-1"},
    {{1985, 4, 20, 0}, "1985-3-1"}, {{1985, 5, 20, 0}, "1985-4-1"},
    {{2072, 3, 20, 0}, "2072-2-1"}, {{2072, 4, 18, 0}, "2072-3-1"},
    {{2072, 5, 18, 0}, "2072-4-1"}, {{2099, 3, 22, 0}, "2099-2L-1"},
    {{2099, 4, 20, 0}, "2099-3-1"}, {{2099, 5, 20, 0}, "2099-4-1"},
};

TEST(LunarDate, HoldsThroughTheRestartOfTheSearch) {
  for (const Case& expected : kRestartedSprings) {
    const CCalendarSolarDate& solar = expected.solar;
    EXPECT_EQ(Lunar(solar.year, solar.month, solar.day, 8), expected.lunar) << Text(solar);
  }
}

// Where the solstice or equinox shares its day with the new moon before it, that day begins the
// first month of the quarter.
TEST(LunarDate, AQuarterMayBeginWithItsFirstMonth) {
  EXPECT_EQ(Lunar(1900, 12, 23, 8), "1900-11-2");
  EXPECT_EQ(Lunar(1987, 9, 24, 8), "1987-8-2");
  EXPECT_EQ(Lunar(1995, 12, 22, 8), "1995-11-1");
  EXPECT_EQ(Lunar(1995, 12, 23, 8), "1995-11-2");
}

// Thirty days after a new moon the search finds the next one, thirty-one days after it may not.
TEST(LunarDate, NoMonthOf1936IsPassedOver) {
  EXPECT_EQ(Lunar(1936, 2, 23, 8), "1936-2-1");
  EXPECT_EQ(Lunar(1936, 3, 23, 8), "1936-3-1");
  EXPECT_EQ(Lunar(1936, 4, 21, 8), "1936-3L-1");
  EXPECT_EQ(Lunar(1936, 5, 21, 8), "1936-4-1");
}

TEST(LunarDate, Leap11Of2033FollowsMonth10) {
  for (const int zone : {8, 9}) {
    EXPECT_EQ(Lunar(2033, 8, 25, zone), "2033-7L-1");
    EXPECT_EQ(Lunar(2033, 11, 22, zone), "2033-10-1");
    EXPECT_EQ(Lunar(2033, 12, 21, zone), "2033-10-30");
    EXPECT_EQ(Lunar(2033, 12, 22, zone), "2033-11L-1");
    EXPECT_EQ(Lunar(2034, 1, 20, zone), "2033-12-1");
  }
}

TEST(LunarDate, ADayThatItsMonthDoesNotHaveCountsOn) {
  EXPECT_EQ(Lunar(2023, 2, 30, 8), Lunar(2023, 3, 2, 8));
  EXPECT_EQ(Lunar(2024, 4, 31, 8), Lunar(2024, 5, 1, 8));
  EXPECT_EQ(Lunar(2024, 3, 0, 8), Lunar(2024, 2, 29, 8));
  EXPECT_EQ(Lunar(2024, 0, 15, 8), Lunar(2023, 12, 15, 8));
  EXPECT_EQ(Lunar(2024, 1, 1000, 8), Lunar(2026, 9, 26, 8));
}

// 10000 hours lead more than a year away, into another month.
TEST(LunarDate, AnUnknownZoneGivesADateWithoutMeaning) {
  EXPECT_EQ(Lunar(2024, 1, 1, kTimeZoneUnknown), "2023-10-17");
}

TEST(LunarDateSpan, ADateAMillionYearsAwayIsConverted) {
  for (const int zone : {-12, 8, 14, kTimeZoneUnknown}) {
    for (const int year : {-1000000, -10000, -1, 0, 1, 10000, 1000000}) {
      const CCalendarLunarDate lunar = Converted(year, 6, 15, zone);
      EXPECT_FALSE(IsZero(lunar)) << year;
      EXPECT_TRUE(lunar.month >= 1 && lunar.month <= 12) << year;
    }
  }
}

// The calendars drift apart; only months 10 to 12 belong to the year before.
TEST(LunarDateSpan, AMonthBefore10KeepsItsYear) {
  EXPECT_EQ(Lunar(200000, 1, 15, 8), "200000-2-3");
  EXPECT_EQ(Lunar(200000, 8, 15, 8), "200000-9-11");
}

// So far away the search may find a new moon twice: the first of the two months has the day.
TEST(LunarDateSpan, OfTwoMonthsThatBeginOnADayTheFirstHasIt) {
  EXPECT_EQ(Lunar(-5089, 2, 26, 8), "-5089-1L-1");
}

// Some 12,000 centuries away the Sun still moves on all the time, on the far side of -11,500 and
// 12,300 it does not.
TEST(LunarDateSpan, AnswersAsFarAsTheSearchesSettle) {
  for (int month = 1; month <= 12; ++month) {
    EXPECT_FALSE(IsZero(Converted(1200000, month, 1, 8))) << month;
    EXPECT_FALSE(IsZero(Converted(-1120000, month, 1, 8))) << month;
    EXPECT_TRUE(IsZero(Converted(5800000, month, 1, 8))) << month;
    EXPECT_TRUE(IsZero(Converted(-5800000, month, 1, 8))) << month;
  }
}

TEST(LunarDateSpan, NoAnswerBeyondTheSpan) {
  for (const int zone : {-12, 8, 14, kTimeZoneUnknown}) {
    for (const int year : {5879489, 100000000, kMax, -5879489, -100000000, kMin}) {
      EXPECT_TRUE(IsZero(Converted(year, 6, 15, zone))) << year;
    }
    EXPECT_TRUE(IsZero(Converted(2024, 70202148, 1, zone)));
    EXPECT_TRUE(IsZero(Converted(2024, -70202148, 1, zone)));
    EXPECT_TRUE(IsZero(Converted(2024, 6, kMax, zone)));
    EXPECT_TRUE(IsZero(Converted(2024, 6, kMin, zone)));
  }
}

}  // namespace
}  // namespace almara::test
