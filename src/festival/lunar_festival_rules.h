// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_
#define ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_

#include <almara/almara_types.h>

// Whether the region has lunar festivals at all.
bool HasLunarFestivals(ELanguage language);

// The region's festival on a month and day of the lunar calendar, eFestivalLunarNone if it has
// none. Does not know the last day of a month.
EFestivalLunar RegionLunarFestival(ELanguage language, int lunarMonth, int lunarDay);

// The region's festival on the last day of a lunar month, eFestivalLunarNone if it has none.
EFestivalLunar RegionMonthEndFestival(ELanguage language, int lunarMonth);

#endif  // ALMARA_FESTIVAL_LUNAR_FESTIVAL_RULES_H_
