// SPDX-License-Identifier: MIT
#include "date/calendar_platform_api.h"

#include <ctime>

#include "date/day_run.h"

std::int32_t g_mac_timezone = kTimeZoneUnknown;

namespace {

constexpr int kSecondsPerHour = 3600;

// The local time of this moment, in storage that the process shares; null if the system cannot
// tell.
const std::tm* LocalNow() {
  const std::time_t now = std::time(nullptr);
  // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread drives the engine.
  return std::localtime(&now);
}

void Store(const CCalendarSolarDate& date, int& year, int& month, int& day, int& week) {
  year = date.year;
  month = date.month;
  day = date.day;
  week = date.dayOfWeek;
}

}  // namespace

void CalendarPlatformApi::GetTodayDate(int& year, int& month, int& day, int& week) {
  const std::tm* local = LocalNow();
  if (local == nullptr) {
    return;
  }
  Store(almara::DateOf(*local), year, month, day, week);
}

void CalendarPlatformApi::FixDateAndGetWeek(int& year, int& month, int& day, int& week) {
  GetNewDateByOffsetDays(year, month, day, 0, year, month, day, week);
}

CCalendarSolarDate CalendarPlatformApi::GetNewDateByOffsetDays(CCalendarSolarDate date,
                                                               int offsetDays) {
  CCalendarSolarDate result{};
  almara::DayRun(date.year, date.month, date.day).DateAt(offsetDays, result);
  return result;
}

bool CalendarPlatformApi::GetNewDateByOffsetDays(int year, int month, int day, int offsetDays,
                                                 int& outYear, int& outMonth, int& outDay,
                                                 int& outWeek) {
  CCalendarSolarDate date{};
  if (almara::DayRun(year, month, day).DateAt(offsetDays, date)) {
    Store(date, outYear, outMonth, outDay, outWeek);
  }
  return true;
}

double CalendarPlatformApi::PlatformGetTimeZoneValue() { return g_mac_timezone; }

namespace almara {

CCalendarSolarDate Today() {
  CCalendarSolarDate today{};
  CalendarPlatformApi::GetTodayDate(today.year, today.month, today.day, today.dayOfWeek);
  return today;
}

std::int32_t MachineOffsetHours() {
  const std::tm* local = LocalNow();
  return local != nullptr ? static_cast<std::int32_t>(local->tm_gmtoff / kSecondsPerHour)
                          : kTimeZoneUnknown;
}

}  // namespace almara
