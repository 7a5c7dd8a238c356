// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_
#define ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_

#include <almara/almara_types.h>

// The region's own festival of a day, eFestivalSolarNone if it has none. A region with rules for
// Easter asks CCalendarFestivalFunction for both movable feasts on every call, whatever the date,
// so that Easter Sunday is found from the second call of a year on.
EFestivalSolar RegionSolarFestival(ELanguage language, CCalendarSolarDate date);

// The festival of a day that holds in every region, eFestivalSolarNone if there is none.
EFestivalSolar CommonSolarFestival(CCalendarSolarDate date);

#endif  // ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_
