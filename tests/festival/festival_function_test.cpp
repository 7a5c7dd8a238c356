// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>

#include "festival/calendar_festival_function.h"
#include "in_fresh_process.h"
#include "support/civil.h"

namespace almara::test {
namespace {

using Function = CCalendarFestivalFunction;
using MonthDay = std::pair<int, int>;

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

TEST(WeekdayOfMonth, IsTheNthOfTheMonth) {
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2023, 11, 4, 4), 23);  // fourth Thursday
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 1, 2, 6), 13);   // second Saturday
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 2, 5, 4), 29);
}

TEST(WeekdayOfMonth, RunsOneDayPastTheMonth) {
  // Four Mondays each; 1 July 2024 is a Monday, 1 March 2024 is not.
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 6, 5, 1), 1);
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 2, 5, 1), -1);
  // 1 January 2024 after December.
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2023, 12, 5, 1), 1);
  // A leap February reaches 1 March, a Friday in 2024.
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 2, 5, 5), 1);
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 6, 6, 1), -1);
}

TEST(WeekdayOfMonth, NoneOutsideItsYearsAndMonths) {
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(1900, 1, 1, 1), 1);
  EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2099, 12, 1, 2), 1);
  for (const int year : {1899, 2100, 0, kMin, kMax}) {
    EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(year, 6, 1, 1), -1) << year;
  }
  for (const int month : {0, 13, kMin, kMax}) {
    EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, month, 1, 1), -1) << month;
  }
}

TEST(WeekdayOfMonth, NoneForACountOrWeekdayThatDoesNotExist) {
  for (const int n : {0, -1, 7, kMin, kMax}) {
    EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 6, n, 1), -1) << n;
  }
  for (const int weekday : {-1, 7, kMin, kMax}) {
    EXPECT_EQ(Function::_GetDayByWeekNumberOfMonth(2024, 6, 1, weekday), -1) << weekday;
  }
}

TEST(DaysOfMonth, FollowTheGregorianRule) {
  EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(2024, 2), 29);
  EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(2023, 2), 28);
  EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(1900, 2), 28);
  EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(2000, 2), 29);
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(2023, month), DaysOfMonth(2023, month));
    EXPECT_EQ(Function::s_ArrDaysOfSolarMonth[month - 1], DaysOfMonth(2023, month));
  }
}

TEST(DaysOfMonth, NoneOutsideItsYearsAndMonths) {
  for (const int year : {1899, 2100, kMin, kMax}) {
    EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(year, 1), -1) << year;
  }
  for (const int month : {0, 13, kMin, kMax}) {
    EXPECT_EQ(Function::_GetMaxDaysOfSolarMonth(2024, month), -1) << month;
  }
}

// ---- Easter by Gauss ----

TEST(GaussEaster, TheFirstYearComputedAnswersEveryLaterCall) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    int month = 7;
    int day = 7;
    bool holds = Function::_GetEasterDay(2024, &month, &day) == 1 && month == 3 && day == 31;
    month = day = 0;
    holds = holds && Function::_GetEasterDay(2025, &month, &day) == 1 && month == 3 && day == 31;
    month = day = 0;
    return holds && Function::_GetEasterDay(3000, &month, &day) == 1 && month == 3 && day == 31;
  }));
}

TEST(GaussEaster, NothingOutside1583To2299) {
  for (const int year : {1582, 2300, 0, kMin, kMax}) {
    EXPECT_TRUE(HoldsInFreshProcess([year] {
      int month = 7;
      int day = 8;
      return Function::_GetEasterDay(year, &month, &day) == 0 && month == 7 && day == 8;
    })) << year;
  }
}

TEST(GaussEaster, ANullPointerIsRefusedAndNothingIsKept) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    int month = 0;
    int day = 0;
    return Function::_GetEasterDay(2025, nullptr, &day) == 0 &&
           Function::_GetEasterDay(2025, &month, nullptr) == 0 &&
           Function::_GetEasterDay(2024, &month, &day) == 1 && month == 3 && day == 31;
  }));
}

TEST(GaussEaster, OnceComputedANullPointerIsLeftAlone) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    int month = 0;
    int day = 0;
    Function::_GetEasterDay(2024, &month, &day);
    month = 0;
    return Function::_GetEasterDay(2024, &month, nullptr) == 1 && month == 3 &&
           Function::_GetEasterDay(2024, nullptr, nullptr) == 1;
  }));
}

// ---- Easter by the anonymous rule ----

// Asks twice, since the first call of a year only computes.
MonthDay Anonymous(int year) {
  int month = 0;
  int day = 0;
  Function::_GetEasterDay2(year, &month, &day);
  Function::_GetEasterDay2(year, &month, &day);
  return {month, day};
}

TEST(AnonymousEaster, TheFirstCallOfAYearWritesNothing) {
  Anonymous(2000);
  int month = 7;
  int day = 8;
  EXPECT_EQ(Function::_GetEasterDay2(2024, &month, &day), 1);
  EXPECT_EQ(month, 7);
  EXPECT_EQ(day, 8);
  EXPECT_EQ(Function::_GetEasterDay2(2024, &month, &day), 1);
  EXPECT_EQ(month, 3);
  EXPECT_EQ(day, 31);
}

TEST(AnonymousEaster, AnotherYearInBetweenMakesItComputeAgain) {
  Anonymous(2024);
  Function::_GetEasterDay2(2025, nullptr, nullptr);
  int month = 7;
  int day = 8;
  Function::_GetEasterDay2(2024, &month, &day);
  EXPECT_EQ(month, 7);
  EXPECT_EQ(day, 8);
}

TEST(AnonymousEaster, ANullPointerIsLeftAlone) {
  Anonymous(2024);
  int month = 0;
  EXPECT_EQ(Function::_GetEasterDay2(2024, &month, nullptr), 1);
  EXPECT_EQ(month, 3);
  EXPECT_EQ(Function::_GetEasterDay2(2024, nullptr, nullptr), 1);
}

TEST(AnonymousEaster, AFreshProcessDoesNotTakeYearMinusOneForKept) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    int month = 7;
    int day = 8;
    return Function::_GetEasterDay2(-1, &month, &day) == 1 && month == 7 && day == 8;
  }));
}

// Golden number and epact, corrected for the century: the rule as the reform of 1582 set it.
MonthDay EasterByEpact(std::int64_t year) {
  const std::int64_t golden = year % 19 + 1;
  const std::int64_t century = year / 100 + 1;
  const std::int64_t leapYearsLeftOut = 3 * century / 4 - 12;
  const std::int64_t moonsOrbit = (8 * century + 5) / 25 - 5;
  const std::int64_t sunday = 5 * year / 4 - leapYearsLeftOut - 10;
  std::int64_t epact = ((11 * golden + 20 + moonsOrbit - leapYearsLeftOut) % 30 + 30) % 30;
  if ((epact == 25 && golden > 11) || epact == 24) {
    ++epact;
  }
  std::int64_t day = 44 - epact;
  day += day < 21 ? 30 : 0;
  day += 7 - (sunday + day) % 7;
  return day > 31 ? MonthDay(4, day - 31) : MonthDay(3, day);
}

TEST(AnonymousEaster, AgreesWithGoldenNumberAndEpactInEveryYear) {
  for (int year = 1583; year <= 30000; ++year) {
    ASSERT_EQ(Anonymous(year), EasterByEpact(year)) << year;
  }
}

MonthDay Gauss(int year) {
  const int packed = ValueInFreshProcess([year] {
    int month = 0;
    int day = 0;
    return Function::_GetEasterDay(year, &month, &day) * 10000 + month * 100 + day;
  });
  return {packed / 100 % 100, packed % 100};
}

TEST(GaussEaster, AgreesWithTheAnonymousRuleInEveryYear) {
  for (int year = 1583; year <= 2299; ++year) {
    EXPECT_EQ(Gauss(year), Anonymous(year)) << year;
  }
}

TEST(AnonymousEaster, OfAnyYearLiesInFebruaryToApril) {
  for (const int year : {kMin, kMin + 1, -1000000, -100, -31, -1, 0, 1, 31, 1582, 3000, kMax}) {
    const MonthDay easter = Anonymous(year);
    EXPECT_TRUE(easter.first >= 2 && easter.first <= 4) << year;
    EXPECT_TRUE(easter.second >= 1 && easter.second <= 31) << year;
  }
}

// ---- Good Friday ----

MonthDay GoodFriday(int year) {
  int month = 0;
  int day = 0;
  EXPECT_EQ(Function::_GetGoodFriday(year, &month, &day), 1);
  return {month, day};
}

TEST(GoodFridayRule, IsTwoDaysBeforeEaster) {
  EXPECT_EQ(GoodFriday(2024), MonthDay(3, 29));
  EXPECT_EQ(GoodFriday(2025), MonthDay(4, 18));
  EXPECT_EQ(GoodFriday(2018), MonthDay(3, 30));  // Easter on 1 April
}

TEST(GoodFridayRule, RefusesNullPointers) {
  int value = 0;
  EXPECT_EQ(Function::_GetGoodFriday(2024, nullptr, &value), 0);
  EXPECT_EQ(Function::_GetGoodFriday(2024, &value, nullptr), 0);
}

TEST(GoodFridayRule, FillsTheMemoryOfTheAnonymousRule) {
  Anonymous(2000);
  GoodFriday(2024);
  int month = 0;
  int day = 0;
  Function::_GetEasterDay2(2024, &month, &day);
  EXPECT_EQ(MonthDay(month, day), MonthDay(3, 31));
}

TEST(GoodFridayRule, UsesTheMemoryOfTheAnonymousRule) {
  Function::_GetEasterDay2(2024, nullptr, nullptr);
  EXPECT_EQ(GoodFriday(2024), MonthDay(3, 29));
}

// The day kept is compared with the year: after 29 March 2024, year 29 is taken for kept.
TEST(GoodFridayRule, ComparesItsDayWithTheYear) {
  GoodFriday(2024);
  EXPECT_EQ(GoodFriday(29), MonthDay(3, 29));
  GoodFriday(2025);
  EXPECT_EQ(GoodFriday(18), MonthDay(4, 18));
  EXPECT_NE(GoodFriday(29), MonthDay(3, 29));
}

TEST(GoodFridayRule, AFreshProcessDoesNotTakeYearMinusOneForKept) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    int month = 0;
    int day = 0;
    Function::_GetGoodFriday(-1, &month, &day);
    return month >= 2 && month <= 4 && day >= 1 && day <= 31;
  }));
}

TEST(GoodFridayRule, ATakenYearLeavesTheMemoryOfTheAnonymousRuleAlone) {
  Anonymous(2000);
  GoodFriday(2024);
  GoodFriday(29);
  int month = 0;
  int day = 0;
  Function::_GetEasterDay2(2024, &month, &day);
  EXPECT_EQ(MonthDay(month, day), MonthDay(3, 31));
}

// Where the system cannot convert Easter Sunday it is all zeroes.
TEST(GoodFridayRule, AnswersEveryYear) {
  for (const int year : {kMin, kMin + 1, -1000000, -1, 0, 1, 31, 32, 1582, 3000, kMax - 1, kMax}) {
    const MonthDay friday = GoodFriday(year);
    const bool isDate = friday.first >= 2 && friday.first <= 4 && friday.second >= 1;
    EXPECT_TRUE(isDate || friday == MonthDay(0, 0)) << year;
  }
}

}  // namespace
}  // namespace almara::test
