// SPDX-License-Identifier: MIT
//
// Week numbers and the year arithmetic beside them, with any int.
#include "board/calendar_week_number.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "support/check.h"
#include "support/civil.h"
#include "support/input.h"

namespace {

using almara::test::Input;

// Weeks are carried year by year; a week this far away takes a millisecond.
constexpr std::int32_t kMaxWeek = 30000;

bool IsAccepted(int year, int month, int day) {
  return year >= 1900 && year <= 2099 && month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

void CheckWeeks(CCalendarWeekNumber& weeks, int year, int month, int day, int type) {
  const int shown = weeks.GetWeekNumber(year, month, day, type);
  ALMARA_CHECK(shown == weeks.GetWeekNumber(year, month, day, type));
  const int iso = weeks._GetWeekNumber(year, month, day);
  const int uncorrected = weeks._GetWeekNumber2(year, month, day);
  const int counted = weeks._GetWeekOfYear(year, month, day);
  ALMARA_CHECK(shown == (type == eWeekNumberCalcIso8601 ? iso : counted));
  if (!IsAccepted(year, month, day)) {
    ALMARA_CHECK(iso == -1 && uncorrected == -1 && counted == -1);
    return;
  }
  ALMARA_CHECK(iso >= 1 && iso <= 53);
  ALMARA_CHECK(uncorrected == iso || uncorrected == iso + 1);
  ALMARA_CHECK(counted >= 1 && counted <= 54);
  if (day <= almara::test::DaysOfMonth(year, month)) {
    ALMARA_CHECK(weeks._GetDayOfTheWeek(year, month, day) ==
                 almara::test::DayOfWeek({year, month, day}));
  }
}

void CheckYear(const CCalendarWeekNumber& weeks, int year, int month, int dayOfYear, int week) {
  const int days = weeks._GetDaysInYear(year);
  ALMARA_CHECK(days == 365 + weeks._IsALeapYear(year));
  const int daysOfMonth = weeks._GetDaysInMonth(year, month);
  ALMARA_CHECK(daysOfMonth >= 28 && daysOfMonth <= 31);
  const int count = weeks._GetNumberOfWeeksInYear(year);
  ALMARA_CHECK(count == 52 || count == 53);

  int foundMonth = 0;
  int foundDay = 0;
  ALMARA_CHECK(weeks._GetDayAndMonthFromDayInYear(year, dayOfYear, &foundMonth, &foundDay) == 1);
  ALMARA_CHECK(foundMonth >= 1 && foundMonth <= 13);
  if (dayOfYear >= 1 && dayOfYear <= days) {
    ALMARA_CHECK(foundMonth <= 12 && foundDay >= 1 &&
                 foundDay <= weeks._GetDaysInMonth(year, foundMonth));
  }
  if (week <= kMaxWeek) {
    int weekYear = year;
    ALMARA_CHECK(weeks._GetDayAndMonthFromWeekInYear(&weekYear, week, &foundMonth, &foundDay) == 1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("TZ", "UTC", 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kMaxRounds = 64;
  CCalendarWeekNumber weeks;
  Input input(data, size);
  for (int i = 0; i < kMaxRounds && !input.IsEmpty(); ++i) {
    const int year = input.About(1899, 2100);
    const int month = input.About(0, 13);
    const int day = input.About(0, 32);
    CheckWeeks(weeks, year, month, day, input.About(0, 3));
    CheckYear(weeks, year, month, input.About(-1, 368), input.About(-1, 54));
  }
  return 0;
}
