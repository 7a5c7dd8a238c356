// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_
#define ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_

#include <almara/almara_types.h>

#include "date/day_counting.h"

// The festivals of the Gregorian calendar. Those of a weekday, and Good Friday, are found by
// counting days.
namespace almara {

// The region's own festival of a day, eFestivalSolarNone if it has none. A region with rules for
// Easter asks CCalendarFestivalFunction for both movable feasts on every call, whatever the date:
// it depends on the questions before whether Easter Sunday is found, so each of them counts.
EFestivalSolar RegionSolarFestival(ELanguage language, CCalendarSolarDate date,
                                   DayCounting counting);

// The festival of a day that holds in every region, eFestivalSolarNone if there is none.
EFestivalSolar CommonSolarFestival(CCalendarSolarDate date, DayCounting counting);

}  // namespace almara

#endif  // ALMARA_FESTIVAL_SOLAR_FESTIVAL_RULES_H_
