// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_CALENDAR_PLATFORM_API_H_
#define ALMARA_DATE_CALENDAR_PLATFORM_API_H_

#include <almara/almara_types.h>

#include <cstdint>

// Offset of local civil time from universal time in whole hours, east positive, in which lunar
// dates and solar terms are reckoned. Only logic/calendar_logic.cpp sets it.
extern std::int32_t g_mac_timezone;

// The value of g_mac_timezone until it is known.
constexpr std::int32_t kTimeZoneUnknown = 10000;

// Today, weekdays and day arithmetic, all through the system's local time, so that they follow its
// time-zone database. Days of the week run from 0 = Sunday to 6 = Saturday.
//
// Every int is accepted: fields outside their month or year are counted on (day 0 is the last day
// of the month before, month 13 is January of the next year). Times are local midnights of standard
// time; in a zone whose data declare winter time to be daylight saving, dates in winter come out
// one day early. Not safe to call from two threads at once.
class CalendarPlatformApi {
 public:
  // Today's local date. The parameters keep their values if the system cannot tell the local time.
  static void GetTodayDate(int& year, int& month, int& day, int& week);

  // The date offsetDays after the given one, before it if negative; all zeroes if the system cannot
  // convert it. The seconds of the offset are formed in 32-bit wrapping arithmetic, so offsets
  // beyond 24855 days either way do not arrive where they point.
  static CCalendarSolarDate GetNewDateByOffsetDays(CCalendarSolarDate date, int offsetDays);

  // g_mac_timezone in hours as it is at the moment, 10000 while it is unknown.
  static double PlatformGetTimeZoneValue();

  // Kept for code that compiles against this class.

  // Normalises a date in place and tells its day of week; the incoming week is not read. The
  // parameters keep their values if the system cannot convert the date.
  static void FixDateAndGetWeek(int& year, int& month, int& day, int& week);

  // GetNewDateByOffsetDays() into four parameters, which keep their values if the system cannot
  // convert the date. Always true, also then: callers zero the parameters first.
  static bool GetNewDateByOffsetDays(int year, int month, int day, int offsetDays, int& outYear,
                                     int& outMonth, int& outDay, int& outWeek);
};

namespace almara {

// Today's local date with its day of week; all zeroes if the system cannot tell the local time.
CCalendarSolarDate Today();

// The machine's offset from universal time at this moment in whole hours, truncated toward zero
// (+5:30 gives 5, -3:30 gives -3); kTimeZoneUnknown if the system cannot tell the local time.
std::int32_t MachineOffsetHours();

}  // namespace almara

#endif  // ALMARA_DATE_CALENDAR_PLATFORM_API_H_
