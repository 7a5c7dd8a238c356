// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_INSTANT_RECORD_H_
#define ALMARA_ALMANAC_INSTANT_RECORD_H_

#include "almanac/calendar.h"

// Instants as a calendar tells them: civil date and time, and whether the day is certain. Any int
// is accepted; what there is not is all zeroes.
namespace almara {

// A solar term of a year 1900 to 2099.
AlmanacInstant TermInstant(const Calendar& calendar, int year, ESolarKyureki24 term);

// The new moon number index, from 0, on the days of a year 1900 to 2099.
AlmanacInstant NewMoonOfYear(const Calendar& calendar, int year, int index);

// New moon k of the table.
AlmanacInstant NewMoonInstant(const Calendar& calendar, int k);

// The term on a date, eSekkiNone if there is none.
ESolarKyureki24 TermOfDate(const Calendar& calendar, const CCalendarSolarDate& date);

}  // namespace almara

#endif  // ALMARA_ALMANAC_INSTANT_RECORD_H_
