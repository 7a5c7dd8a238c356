// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_ANNIVERSARY_H_
#define ALMARA_ALMANAC_ANNIVERSARY_H_

#include "almanac/calendar.h"

namespace almara {

// The day number of the first anniversary of a lunar month and day on or after a Gregorian date, by
// the rules of AlmanacNextAnniversary(); 0 if there is none to the end of 2099, or if the lunar
// month and day or the Gregorian date can never be. The lunar date's year is not read.
int NextAnniversary(const Calendar& calendar, const CCalendarLunarDate& date,
                    const CCalendarSolarDate& from, EAlmanacAnniversary rules);

}  // namespace almara

#endif  // ALMARA_ALMANAC_ANNIVERSARY_H_
