// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_CIVIL_DAY_H_
#define ALMARA_DATE_CIVIL_DAY_H_

#include <almara/almara_types.h>

#include "date/gregorian.h"

// Gregorian dates as a count of days: plain arithmetic that asks no clock and no zone.
namespace almara {

// Number of a day, 1 for 0001-01-01, which is a Monday. Years from 1 to 9999, months 1 to 12; a day
// that the month lacks counts on.
constexpr int DayNumber(int year, int month, int day) {
  const int before = year - 1;
  return 365 * before + before / 4 - before / 100 + before / 400 + DayOfYear(year, month, day);
}

// The date of a day number from 1 on, with its day of the week.
constexpr CCalendarSolarDate DateOfDayNumber(int number) {
  // In years that begin in March the leap day is the last one, and months 0 to 11 have
  // (153 * month + 2) / 5 days before them.
  const auto days = static_cast<unsigned>(number) + 305;  // from 0000-03-01
  const unsigned era = days / 146097;                     // of 400 years
  const unsigned dayOfEra = days % 146097;
  const unsigned yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const unsigned march = (5 * dayOfYear + 2) / 153;
  const unsigned day = dayOfYear - (153 * march + 2) / 5 + 1;
  const unsigned month = march < 10 ? march + 3 : march - 9;
  const unsigned year = 400 * era + yearOfEra + (month <= 2 ? 1 : 0);
  return {static_cast<int>(year), static_cast<int>(month), static_cast<int>(day),
          number % kDaysOfWeek};
}

}  // namespace almara

#endif  // ALMARA_DATE_CIVIL_DAY_H_
