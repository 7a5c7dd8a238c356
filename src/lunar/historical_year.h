// SPDX-License-Identifier: MIT
//
// Days and months of years that are Julian leap years up to 1582 and Gregorian ones after. Years
// are cut to whole ones. A month below 1 counts as 1 and above 12 as 12.
#ifndef ALMARA_LUNAR_HISTORICAL_YEAR_H_
#define ALMARA_LUNAR_HISTORICAL_YEAR_H_

namespace almara {

// Days of a month, 28 to 31.
int DaysOfHistoricalMonth(double year, double month);

// Day of the year of a date, 1 = 1 January.
double DayOfHistoricalYear(double year, double month, double day);

// month * 100 + day of a day of the year. Days after 31 December count on in December (367 of a
// common year gives 1233), days before 1 January back in January (0 gives 100). A fraction stays.
double MonthDayOfHistoricalYear(double year, double dayOfYear);

// Day number of a date: the Julian Day number at noon minus 1. 2000-01-01 gives 2451544.0.
double HistoricalDayNumber(double year, double month, double day);

}  // namespace almara

#endif  // ALMARA_LUNAR_HISTORICAL_YEAR_H_
