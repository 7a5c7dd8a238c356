// SPDX-License-Identifier: MIT
#include "board/calendar_week_number.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>
#include <tuple>

#include "support/civil.h"
#include "support/zone.h"

using almara::test::AddDays;
using almara::test::Civil;
using almara::test::DayNumber;
using almara::test::DayOfWeek;
using almara::test::NextDay;
using almara::test::ScopedZone;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr EWeekNumberCalc kIso = eWeekNumberCalcIso8601;
constexpr EWeekNumberCalc kFromJan1 = eWeekNumberCalcFromJan1;
constexpr EWeekNumberCalc kFromStart = eWeekNumberCalcFromStartWeek;

struct WeekCase {
  int year, month, day;
  int fromJan1, iso;
};

constexpr WeekCase kWeekCases[] = {
    {2021, 1, 1, 1, 53},     // a Friday, after a long year
    {2021, 1, 4, 2, 1},      //
    {2022, 1, 1, 1, 52},     // a Saturday
    {2005, 1, 1, 1, 53},     // a Saturday, after a leap year
    {2023, 1, 1, 1, 52},     // a Sunday
    {2023, 1, 2, 2, 1},      // the Monday after it
    {2024, 12, 29, 52, 52},  // a Sunday
    {2024, 12, 31, 53, 1},   // a Tuesday, of the next year's first week
    {2025, 12, 29, 53, 1},   // a Monday
    {2020, 12, 31, 53, 53},  // a Thursday: the week keeps its year
    {2012, 12, 31, 54, 1},   // a leap year that begins on a Sunday
    {1900, 1, 1, 1, 1},      //
    {2099, 12, 31, 53, 53},  //
};

TEST(WeekNumber, DatesUnderBothRules) {
  CCalendarWeekNumber weeks;
  for (const WeekCase& c : kWeekCases) {
    SCOPED_TRACE(testing::Message() << c.year << '-' << c.month << '-' << c.day);
    EXPECT_EQ(weeks.GetWeekNumber(c.year, c.month, c.day, kIso), c.iso);
    for (const int type :
         {kFromJan1, kFromStart, 3, -1, kMin, kMax}) {  // every other type counts from 1 January
      EXPECT_EQ(weeks.GetWeekNumber(c.year, c.month, c.day, type), c.fromJan1) << type;
    }
  }
}

// A week belongs to the year of its Thursday.
int WeekOfItsThursday(const Civil& d) {
  const int sinceMonday = (DayOfWeek(d) + 6) % 7;
  const Civil thursday = AddDays(d, 3 - sinceMonday);
  return (DayNumber(thursday) - DayNumber({thursday.year, 1, 1})) / 7 + 1;
}

TEST(WeekNumber, EveryDateUnderBothRules) {
  CCalendarWeekNumber weeks;
  int week = 1;
  for (Civil d{1900, 1, 1}; d.year <= 2099; d = NextDay(d)) {
    ASSERT_EQ(weeks._GetWeekNumber(d.year, d.month, d.day), WeekOfItsThursday(d)) << d;
    ASSERT_EQ(weeks._GetDayOfTheWeek(d.year, d.month, d.day), DayOfWeek(d)) << d;
    // Counted from 1 January, each Monday begins a week.
    const bool isNewYear = d.month == 1 && d.day == 1;
    week = isNewYear ? 1 : DayOfWeek(d) == 1 ? week + 1 : week;
    ASSERT_EQ(weeks._GetWeekOfYear(d.year, d.month, d.day), week) << d;
  }
}

// A rejected date stays so when it is asked again.
TEST(WeekNumber, RangeOfDatesHasBothEnds) {
  CCalendarWeekNumber weeks;
  struct {
    int year, month, day;
    bool accepted;
  } const cases[] = {{1900, 1, 1, true},        {1899, 12, 31, false},    {2099, 12, 31, true},
                     {2100, 1, 1, false},       {2024, 0, 15, false},     {2024, 13, 15, false},
                     {2024, 5, 0, false},       {2024, 5, 32, false},     {2024, -5, -5, false},
                     {kMin, kMin, kMin, false}, {kMax, kMax, kMax, false}};
  for (const auto& c : cases) {
    for (const int type : {kFromJan1, kIso, kFromStart, kFromJan1}) {
      const int week = weeks.GetWeekNumber(c.year, c.month, c.day, type);
      EXPECT_EQ(week != -1, c.accepted) << c.year << '-' << c.month << '-' << c.day << ' ' << type;
    }
    EXPECT_EQ(weeks._GetWeekNumber2(c.year, c.month, c.day) != -1, c.accepted);
  }
}

// Mode 0 counts seconds: a spring day of 23 hours makes every later date a day short.
TEST(WeekNumber, DaylightSavingTakesADayFromTheCountFrom1January) {
  CCalendarWeekNumber inUtc;
  EXPECT_EQ(inUtc.GetWeekNumber(2024, 4, 1, kFromJan1), 14);

  const ScopedZone berlin("Europe/Berlin");  // from 31 March 2024 on
  CCalendarWeekNumber weeks;
  EXPECT_EQ(weeks.GetWeekNumber(2024, 3, 31, kFromJan1),
            13);                                              // a Sunday; its midnight comes before
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, kFromJan1), 13);  // a Monday
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 2, kFromJan1), 14);
  EXPECT_EQ(weeks.GetWeekNumber(2024, 10, 28, kFromJan1), 44);  // a Monday in winter time again
  EXPECT_EQ(weeks.GetWeekNumber(2012, 12, 31, kFromJan1), 54);
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, kIso), 14);  // ISO weeks do not count seconds

  const ScopedZone sydney("Australia/Sydney");  // across the new year: an hour more on 8 April
  CCalendarWeekNumber inSydney;
  EXPECT_EQ(inSydney.GetWeekNumber(2024, 4, 8, kFromJan1), 15);
  EXPECT_EQ(inSydney.GetWeekNumber(2012, 12, 31, kFromJan1), 54);
}

TEST(WeekNumber, DaysThatAShortMonthLacksCountOn) {
  CCalendarWeekNumber weeks;
  for (const int type : {kFromJan1, kIso}) {
    for (int year = 1900; year <= 2099; ++year) {
      const bool leap = almara::test::IsLeapYear(year);
      EXPECT_EQ(weeks.GetWeekNumber(year, 2, 30, type),
                weeks.GetWeekNumber(year, 3, leap ? 1 : 2, type))
          << year << ' ' << type;
    }
  }
}

// An answer is kept for good, by date and type: a new zone shows which ones are computed.
TEST(WeekNumber, AnswerIsKeptByDateAndType) {
  CCalendarWeekNumber weeks;
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, kFromJan1), 14);
  const ScopedZone berlin("Europe/Berlin");
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, kFromJan1), 14);
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, kFromStart), 13);
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 1, 5), 13);
  EXPECT_EQ(weeks.GetWeekNumber(2024, 4, 8, kFromJan1), 14);  // another date
}

TEST(WeekNumber2, IsOneAboveIsoAfterTheFirstPartialWeek) {
  const CCalendarWeekNumber weeks;
  EXPECT_EQ(weeks._GetWeekNumber2(2021, 1, 3), 53);
  EXPECT_EQ(weeks._GetWeekNumber2(2021, 1, 4), 2);
  EXPECT_EQ(weeks._GetWeekNumber2(2021, 12, 31), 53);
  EXPECT_EQ(weeks._GetWeekNumber2(2012, 12, 31), 1);  // a week of the next year stays week 1
  EXPECT_EQ(weeks._GetWeekNumber2(2012, 12, 30), 53);
  for (Civil d{1900, 1, 1}; d.year <= 2099; d = NextDay(d)) {
    const int iso = WeekOfItsThursday(d);
    const int newYear = DayOfWeek({d.year, 1, 1});
    const bool beginsLate = newYear >= 5 || newYear == 0;
    const bool weekOfOtherYear = (d.month == 1 && iso > 50) || (d.month == 12 && iso == 1);
    ASSERT_EQ(weeks._GetWeekNumber2(d.year, d.month, d.day),
              iso + (beginsLate && !weekOfOtherYear ? 1 : 0))
        << d;
  }
}

TEST(WeekHelpers, LeapYearsAndTheirFebruaries) {
  const CCalendarWeekNumber weeks;
  struct {
    int year, leap;
  } const cases[] = {{2024, 1}, {2023, 0}, {2000, 1}, {1900, 0}, {2100, 0}, {0, 1}, {-4, 1}};
  for (const auto& c : cases) {
    EXPECT_EQ(weeks._IsALeapYear(c.year), c.leap) << c.year;
    EXPECT_EQ(weeks._GetDaysInYear(c.year), 365 + c.leap) << c.year;
    EXPECT_EQ(weeks._GetDaysInMonth(c.year, 2), 28 + c.leap) << c.year;
  }
  for (const int month : {1, 3, 5, 7, 8, 10, 12, 0, 13, -2, kMin, kMax}) {
    EXPECT_EQ(weeks._GetDaysInMonth(2023, month), 31) << month;
  }
  EXPECT_EQ(weeks._GetDaysInMonth(2023, 4), 30);
}

TEST(WeekHelpers, DayOfTheWeekOutsideTheMonthsIsNone) {
  const CCalendarWeekNumber weeks;
  EXPECT_EQ(weeks._GetDayOfTheWeek(2024, 1, 1), 1);
  EXPECT_EQ(weeks._GetDayOfTheWeek(2024, 12, 1), 0);
  for (const int month : {0, 13, kMin, kMax}) {
    EXPECT_EQ(weeks._GetDayOfTheWeek(2024, month, 1), -1) << month;
  }
}

// 28 December is always in the last ISO week, 4 January in the first.
TEST(WeekHelpers, WeeksOfEveryYear) {
  const CCalendarWeekNumber weeks;
  for (int year = 1900; year <= 2099; ++year) {
    const int lastWeek = WeekOfItsThursday({year, 12, 28});
    ASSERT_EQ(weeks._GetNumberOfWeeksInYear(year), lastWeek) << year;
    const Civil fourth{year, 1, 4};
    Civil monday = AddDays(fourth, -((DayOfWeek(fourth) + 6) % 7));
    const bool beginsOnSunday = DayOfWeek({year, 1, 1}) == 0;
    for (int week = 1; week <= lastWeek; ++week, monday = AddDays(monday, 7)) {
      Civil found{year, 0, 0};
      weeks._GetDayAndMonthFromWeekInYear(&found.year, week, &found.month, &found.day);
      ASSERT_EQ(found, beginsOnSunday ? AddDays(monday, -1) : monday) << year << ' ' << week;
    }
  }
}

TEST(WeekHelpers, DayAndMonthFromDayInYear) {
  const CCalendarWeekNumber weeks;
  const auto split = [&](int year, int dayInYear) {
    Civil found{year, 0, 0};
    EXPECT_EQ(weeks._GetDayAndMonthFromDayInYear(year, dayInYear, &found.month, &found.day), 1);
    return found;
  };
  for (const int year : {2023, 2024}) {
    int dayInYear = 0;
    for (Civil d{year, 1, 1}; d.year == year; d = NextDay(d)) {
      EXPECT_EQ(split(year, ++dayInYear), d);
    }
    EXPECT_EQ(split(year, dayInYear + 35), (Civil{year, 13, 35}));  // beyond the year: month 13
  }
  EXPECT_EQ(split(2023, 0), (Civil{2023, 1, 0}));  // nothing is rejected
  EXPECT_EQ(split(2023, -7), (Civil{2023, 1, -7}));
}

struct WeekInYearCase {
  int year, week;
  int newYear, month, day;
};

constexpr WeekInYearCase kWeekInYearCases[] = {
    {2024, 10, 2024, 3, 4},                    //
    {2024, 53, 2024, 12, 30},                  // one week too many goes to 2025 and falls back
    {2026, 54, 2027, 1, 4},                    //
    {2024, 105, 2025, 12, 29},                 // two years on: week 1 of 2026
    {2024, -306783379, 2025, 13, 2147482906},  // seven times as many days wrap
};

TEST(WeekHelpers, WeekPastTheYearIsCountedOn) {
  const CCalendarWeekNumber weeks;
  for (const WeekInYearCase& c : kWeekInYearCases) {
    Civil found{c.year, -99, -99};
    EXPECT_EQ(weeks._GetDayAndMonthFromWeekInYear(&found.year, c.week, &found.month, &found.day),
              1);
    EXPECT_EQ(found, (Civil{c.newYear, c.month, c.day})) << c.year << " week " << c.week;
  }
}

TEST(SetDay, SetsSevenFieldsAndLeavesTheRest) {
  std::tm t{};
  t.tm_sec = t.tm_min = t.tm_hour = 1;
  t.tm_wday = 4;
  t.tm_yday = 5;
  t.tm_gmtoff = 6;
  setDay(t, 2024, 3, 9);
  EXPECT_EQ(std::tie(t.tm_year, t.tm_mon, t.tm_mday), std::make_tuple(124, 2, 9));
  EXPECT_EQ(std::tie(t.tm_hour, t.tm_min, t.tm_sec, t.tm_isdst), std::make_tuple(0, 0, 0, -1));
  EXPECT_EQ(std::tie(t.tm_wday, t.tm_yday, t.tm_gmtoff), std::make_tuple(4, 5, 6));
}

}  // namespace
