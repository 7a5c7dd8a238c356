// SPDX-License-Identifier: MIT
#ifndef ALMARA_YARDSTICK_SOLAR_FESTIVALS_H_
#define ALMARA_YARDSTICK_SOLAR_FESTIVALS_H_

#include <almara/almara_types.h>

namespace yardstick {

// CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth with one conversion for each day of the
// month.
int DayByWeekNumberOfMonth(int year, int month, int n, int weekday);

// CCalendarFestival::GetFestivalBySolar, region by region and month by month. Remembers the Easter
// of the year asked last, for the whole process, as the engine does for itself.
EFestivalSolar SolarFestival(ELanguage language, CCalendarSolarDate date);

}  // namespace yardstick

#endif  // ALMARA_YARDSTICK_SOLAR_FESTIVALS_H_
