// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_FESTIVAL_OF_DATE_H_
#define ALMARA_ALMANAC_FESTIVAL_OF_DATE_H_

#include "almanac/calendar.h"

namespace almara {

// The region's lunar festival on a Gregorian date by the calendar's lunar dates; eFestivalLunarNone
// if there is none and for a date that does not exist or is outside the span. Every int is
// accepted.
EFestivalLunar FestivalOfDate(const Calendar& calendar, ELanguage language,
                              const CCalendarSolarDate& date);

}  // namespace almara

#endif  // ALMARA_ALMANAC_FESTIVAL_OF_DATE_H_
