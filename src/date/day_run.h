// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_DAY_RUN_H_
#define ALMARA_DATE_DAY_RUN_H_

#include <almara/almara_types.h>

#include <ctime>

namespace almara {

// Days counted from one local midnight of standard time, in steps of 86400 seconds. An hour of
// daylight saving on the way moves the time of day only, never the day. The midnight is looked up
// once for the whole run: asked again for the same day, the system gives the same instant.
class DayRun {
 public:
  // Any int is accepted; fields outside their month or year count on.
  DayRun(int year, int month, int day);

  // Writes the local date and day of week offset days after the first one to date. The seconds are
  // formed in 32-bit wrapping arithmetic. Returns false, with date unchanged, if the system cannot
  // convert that instant.
  bool DateAt(int offset, CCalendarSolarDate& date) const;

 private:
  std::time_t m_midnight;
};

// The date of a local time of the system.
CCalendarSolarDate DateOf(const std::tm& local);

}  // namespace almara

#endif  // ALMARA_DATE_DAY_RUN_H_
