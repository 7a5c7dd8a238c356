// SPDX-License-Identifier: MIT
#include "civil_date.h"

#include <gtest/gtest.h>

namespace almara::viewer {
namespace {

TEST(CivilDate, EveryDayOfTheCalendarHasItsNumberAndWeekday) {
  int number = DayNumber(kFirstDate);
  int weekday = eCalendarWeekMonday;  // 1900-01-01
  int days = 0;
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    int ordinal = 1;
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= DaysInMonth(year, month); ++day) {
        const CivilDate date{year, month, day};
        ASSERT_EQ(DayNumber(date), number) << IsoText(date);
        ASSERT_EQ(FromDayNumber(number), date) << IsoText(date);
        ASSERT_EQ(DayOfWeek(date), weekday) << IsoText(date);
        ASSERT_EQ(DayOfYear(date), ordinal) << IsoText(date);
        ++number;
        ++ordinal;
        ++days;
        weekday = (weekday + 1) % 7;
      }
    }
    ASSERT_EQ(ordinal - 1, DaysInYear(year));
  }
  EXPECT_EQ(days, 73049);  // 200 years with 49 leap days: 1900 has none
  EXPECT_EQ(DayNumber({1970, 1, 1}), 0);
}

TEST(CivilDate, StepsStayInsideTheCalendar) {
  EXPECT_EQ(AddDays({2024, 2, 28}, 2), (CivilDate{2024, 3, 1}));
  EXPECT_EQ(AddDays(kFirstDate, -1), kFirstDate);
  EXPECT_EQ(AddDays(kLastDate, 7), kLastDate);
  EXPECT_EQ(AddMonths({2024, 3, 31}, -1), (CivilDate{2024, 2, 29}));
  EXPECT_EQ(AddMonths({2023, 12, 5}, 1), (CivilDate{2024, 1, 5}));
  EXPECT_EQ(AddMonths({1900, 1, 20}, -1), (CivilDate{1900, 1, 20}));
  EXPECT_EQ(AddMonths({2099, 12, 20}, 1), (CivilDate{2099, 12, 20}));
}

TEST(CivilDate, ReadsDatesAndSaysWhyNot) {
  EXPECT_EQ(ParseDate("2024-02-29").date, (CivilDate{2024, 2, 29}));
  EXPECT_EQ(ParseDate("2024-2-9").date, (CivilDate{2024, 2, 9}));
  EXPECT_EQ(ParseDate("1900-01-01").date, kFirstDate);
  EXPECT_EQ(ParseDate("2099-12-31").date, kLastDate);
  const struct {
    const char* text;
    const char* problem;
  } kCases[] = {
      {"2023-02-29", "2023-02-29 is not a day of the calendar"},
      {"2024-00-10", "2024-00-10 is not a day of the calendar"},
      {"2024-13-10", "2024-13-10 is not a day of the calendar"},
      {"2024-01-00", "2024-01-00 is not a day of the calendar"},
      {"1899-12-31", "1899-12-31 is outside the years 1900 to 2099"},
      {"2100-01-01", "2100-01-01 is outside the years 1900 to 2099"},
      {"1899", "expected YYYY-MM-DD, not '1899'"},
      {"", "expected YYYY-MM-DD, not ''"},
      {"2024-02-10x", "expected YYYY-MM-DD, not '2024-02-10x'"},
      {"99999999999-1-1", "expected YYYY-MM-DD, not '99999999999-1-1'"},
  };
  for (const auto& c : kCases) {
    const ParsedDate parsed = ParseDate(c.text);
    EXPECT_FALSE(parsed.date) << c.text;
    EXPECT_EQ(parsed.problem, c.problem);
  }
}

}  // namespace
}  // namespace almara::viewer
