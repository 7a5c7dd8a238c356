// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DAY_RUN_H_
#define ALMARA_DATE_DAY_RUN_H_

#include <almara/almara_types.h>

#include <ctime>

#include "date/day_counting.h"

namespace almara {

// Days counted from one midnight, in steps of 86400 seconds.
//
// In local time that is a midnight of standard time. An hour of daylight saving on the way moves
// the time of day only, never the day. The midnight is looked up once for the whole run: asked
// again for the same day, the system gives the same instant.
//
// In civil days the dates are those that local time gives in UTC, whatever the zone.
class DayRun {
 public:
  // Any int is accepted; fields outside their month or year count on.
  DayRun(int year, int month, int day, DayCounting counting);

  // Writes the date and day of week offset days after the first one to date. The seconds are formed
  // in 32-bit wrapping arithmetic. Returns false, with date unchanged, if that instant has no date
  // whose year fits.
  bool DateAt(int offset, CCalendarSolarDate& date) const;

 private:
  DayCounting m_counting;
  std::time_t m_midnight;      // of the first day; in civil days as if the zone were UTC
  CCalendarSolarDate m_first;  // civil days: the first day
};

// The date offset days after another, before it if negative, counted as a DayRun does; all zeroes
// if there is none.
CCalendarSolarDate DateByOffset(const CCalendarSolarDate& date, int offset, DayCounting counting);

// The date of a local time of the system.
CCalendarSolarDate DateOf(const std::tm& local);

}  // namespace almara

#endif  // ALMARA_DATE_DAY_RUN_H_
