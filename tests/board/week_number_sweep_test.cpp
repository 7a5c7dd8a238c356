// SPDX-License-Identifier: MIT
//
// Week numbers of every day of 1900 to 2099 against ICU, and the helpers against counting.
#include <gtest/gtest.h>
#include <unicode/ucal.h>

#include "board/calendar_week_number.h"
#include "support/civil.h"

using almara::test::AddDays;
using almara::test::Civil;
using almara::test::DayNumber;
using almara::test::DayOfWeek;
using almara::test::kFirstDay;
using almara::test::NextDay;

namespace {

// A Gregorian calendar in UTC whose weeks begin on Monday.
class IcuCalendar {
 public:
  explicit IcuCalendar(int daysOfFirstWeek) {
    UErrorCode error = U_ZERO_ERROR;
    m_calendar = ucal_open(u"UTC", 3, "en_GB", UCAL_GREGORIAN, &error);
    ucal_setAttribute(m_calendar, UCAL_FIRST_DAY_OF_WEEK, UCAL_MONDAY);
    ucal_setAttribute(m_calendar, UCAL_MINIMAL_DAYS_IN_FIRST_WEEK, daysOfFirstWeek);
  }
  ~IcuCalendar() { ucal_close(m_calendar); }
  IcuCalendar(const IcuCalendar&) = delete;
  IcuCalendar& operator=(const IcuCalendar&) = delete;

  int WeekOfYear(const Civil& day) {
    UErrorCode error = U_ZERO_ERROR;
    ucal_clear(m_calendar);
    ucal_setDate(m_calendar, day.year, day.month - 1, day.day, &error);
    const int week = ucal_get(m_calendar, UCAL_WEEK_OF_YEAR, &error);
    EXPECT_TRUE(U_SUCCESS(error));
    return week;
  }

 private:
  UCalendar* m_calendar = nullptr;
};

TEST(WeekNumberSweep, IsoWeekOfEveryDayIsTheOneOfIcu) {
  IcuCalendar iso(4);
  CCalendarWeekNumber weeks;
  for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
    ASSERT_EQ(weeks.GetWeekNumber(day.year, day.month, day.day, 1), iso.WeekOfYear(day)) << day;
  }
}

// ICU gives the last days of December to week 1 of the next year; this rule never does.
TEST(WeekNumberSweep, WeekFrom1JanuaryOfEveryDayIsTheOneOfIcuUntilLateDecember) {
  IcuCalendar fromJan1(1);
  CCalendarWeekNumber weeks;
  for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
    const int icu = fromJan1.WeekOfYear(day);
    const bool lateDecember = day.month == 12 && icu == 1;
    const int expected = lateDecember ? fromJan1.WeekOfYear(AddDays(day, -7)) + 1 : icu;
    ASSERT_EQ(weeks.GetWeekNumber(day.year, day.month, day.day, 0), expected) << day;
  }
}

TEST(WeekNumberSweep, UncorrectedIsoWeekDiffersExactlyInYearsThatBeginLate) {
  const CCalendarWeekNumber weeks;
  for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
    const int iso = weeks._GetWeekNumber(day.year, day.month, day.day);
    const int jan1 = DayOfWeek({day.year, 1, 1});
    const bool beginsLate = jan1 == 5 || jan1 == 6 || jan1 == 0;
    const bool weekOfOtherYear = (day.month == 1 && iso > 50) || (day.month == 12 && iso == 1);
    ASSERT_EQ(weeks._GetWeekNumber2(day.year, day.month, day.day),
              iso + (beginsLate && !weekOfOtherYear ? 1 : 0))
        << day;
  }
}

TEST(WeekNumberSweep, HelpersAgreeWithCounting) {
  const CCalendarWeekNumber weeks;
  for (Civil day = kFirstDay; day.year < 2100; day = NextDay(day)) {
    ASSERT_EQ(weeks._GetDayOfTheWeek(day.year, day.month, day.day), DayOfWeek(day)) << day;
    const int dayInYear = DayNumber(day) - DayNumber({day.year, 1, 1}) + 1;
    int month = 0;
    int dayOfMonth = 0;
    weeks._GetDayAndMonthFromDayInYear(day.year, dayInYear, &month, &dayOfMonth);
    ASSERT_EQ((Civil{day.year, month, dayOfMonth}), day);
    ASSERT_EQ(weeks._GetDaysInMonth(day.year, day.month),
              almara::test::DaysOfMonth(day.year, day.month));
  }
}

TEST(WeekNumberSweep, IsoWeeksOfEveryYearBeginWhereTheirDaysSay) {
  const CCalendarWeekNumber weeks;
  for (int year = 1900; year <= 2099; ++year) {
    // 28 December is always in the last ISO week.
    const int lastWeek = weeks._GetWeekNumber(year, 12, 28);
    ASSERT_EQ(weeks._GetNumberOfWeeksInYear(year), lastWeek) << year;

    const Civil fourth{year, 1, 4};  // always in week 1
    Civil monday = AddDays(fourth, -((DayOfWeek(fourth) + 6) % 7));
    const bool beginsOnSunday = DayOfWeek({year, 1, 1}) == 0;
    for (int week = 1; week <= lastWeek; ++week, monday = AddDays(monday, 7)) {
      Civil found{year, 0, 0};
      weeks._GetDayAndMonthFromWeekInYear(&found.year, week, &found.month, &found.day);
      ASSERT_EQ(found, beginsOnSunday ? AddDays(monday, -1) : monday) << year << ' ' << week;
    }
  }
}

}  // namespace
