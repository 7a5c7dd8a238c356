// SPDX-License-Identifier: MIT
#include "date/calendar_platform_api.h"

#include <ctime>
#include <optional>

#include "date/day_run.h"

using almara::DayCounting;

std::int32_t g_mac_timezone = kTimeZoneUnknown;

namespace {

constexpr int kSecondsPerHour = 3600;

// The local time of this moment, in the zone that TZ names at this moment; none if the system
// cannot tell. Whatever other threads ask the system meanwhile does not reach it.
std::optional<std::tm> LocalNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  tzset();  // which localtime_r() need not do
  if (localtime_r(&now, &local) == nullptr) {
    return std::nullopt;
  }
  return local;
}

void Store(const CCalendarSolarDate& date, int& year, int& month, int& day, int& week) {
  year = date.year;
  month = date.month;
  day = date.day;
  week = date.dayOfWeek;
}

}  // namespace

void CalendarPlatformApi::GetTodayDate(int& year, int& month, int& day, int& week) {
  const std::optional<std::tm> local = LocalNow();
  if (!local) {
    return;
  }
  Store(almara::DateOf(*local), year, month, day, week);
}

void CalendarPlatformApi::FixDateAndGetWeek(int& year, int& month, int& day, int& week) {
  GetNewDateByOffsetDays(year, month, day, 0, year, month, day, week);
}

CCalendarSolarDate CalendarPlatformApi::GetNewDateByOffsetDays(CCalendarSolarDate date,
                                                               int offsetDays) {
  return almara::DateByOffset(date, offsetDays, DayCounting::kLocalTime);
}

bool CalendarPlatformApi::GetNewDateByOffsetDays(int year, int month, int day, int offsetDays,
                                                 int& outYear, int& outMonth, int& outDay,
                                                 int& outWeek) {
  CCalendarSolarDate date{};
  if (almara::DayRun(year, month, day, DayCounting::kLocalTime).DateAt(offsetDays, date)) {
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
  const std::optional<std::tm> local = LocalNow();
  return local ? static_cast<std::int32_t>(local->tm_gmtoff / kSecondsPerHour) : kTimeZoneUnknown;
}

}  // namespace almara
