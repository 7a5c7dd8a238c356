// SPDX-License-Identifier: MIT
//
// Dates and day counts. A day count is a Julian date minus 0.5, so that it turns at midnight:
// 2000-01-01 00:00 is 2451544.0.
#ifndef ALMARA_LUNAR_JULIAN_DATE_H_
#define ALMARA_LUNAR_JULIAN_DATE_H_

// A broken-down date and time. All fields hold whole numbers.
struct tagSolarKyurekiYMDT {
  double year;
  double month;  // 1 to 12
  double day;
  double hour;
  double minute;
  double second;
};

namespace almara {

// The day count of a Gregorian date and time.
double DayCount(double year, double month, double day, double hour = 0, double minute = 0,
                double second = 0);

// The Gregorian date and time of a day count.
tagSolarKyurekiYMDT DateOfDayCount(double dayCount);

}  // namespace almara

#endif  // ALMARA_LUNAR_JULIAN_DATE_H_
