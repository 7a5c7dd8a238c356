// SPDX-License-Identifier: MIT
//
// The date services with any int, in the shapes of time zones that the tests know.
#include "date/calendar_platform_api.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include "support/check.h"
#include "support/civil.h"
#include "support/input.h"
#include "support/zone.h"

namespace {

using almara::test::AddDays;
using almara::test::Civil;
using almara::test::Input;

constexpr int kReach = 20000;  // days; below the 24855 at which the seconds wrap

struct Day {
  int year = 0;
  int month = 0;
  int day = 0;
  int week = 0;
};

Day Offset(const Day& from, int days) {
  Day to;
  ALMARA_CHECK(CalendarPlatformApi::GetNewDateByOffsetDays(from.year, from.month, from.day, days,
                                                           to.year, to.month, to.day, to.week));
  const CCalendarSolarDate same = CalendarPlatformApi::GetNewDateByOffsetDays(
      CCalendarSolarDate{from.year, from.month, from.day, from.week}, days);
  ALMARA_CHECK(same.year == to.year && same.month == to.month && same.day == to.day &&
               same.dayOfWeek == to.week);
  return to;
}

void CheckIsDateOrNone(const Day& date) {
  const bool none = date.year == 0 && date.month == 0 && date.day == 0 && date.week == 0;
  const bool isDate = date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31 &&
                      date.week >= 0 && date.week <= 6;
  ALMARA_CHECK(none || isDate);
}

// Offsets within reach arrive where counting arrives. In UTC, where each day has 86400 seconds.
void CheckArithmetic(Input& input) {
  const almara::test::ScopedZone utc("UTC");
  Civil from{input.Within(1900, 2099), input.Within(1, 12), 0};
  from.day = input.Within(1, almara::test::DaysOfMonth(from.year, from.month));
  const int days = input.Within(0, 2 * kReach) - kReach;
  const Day to = Offset({from.year, from.month, from.day, 0}, days);
  const Civil expected = AddDays(from, days);
  ALMARA_CHECK((Civil{to.year, to.month, to.day}) == expected);
  ALMARA_CHECK(to.week == almara::test::DayOfWeek(expected));
}

void CheckAnyInt(Input& input) {
  constexpr std::size_t kZones = sizeof almara::test::kZones / sizeof almara::test::kZones[0];
  const almara::test::ScopedZone zone(almara::test::kZones[input.Byte() % kZones]);
  Day date{input.About(1899, 2100), input.About(0, 13), input.About(0, 32), input.Raw()};
  CheckIsDateOrNone(Offset(date, input.About(-kReach, kReach)));

  CalendarPlatformApi::FixDateAndGetWeek(date.year, date.month, date.day, date.week);
  Day today;
  almara::test::SetNow(input.Raw());
  CalendarPlatformApi::GetTodayDate(today.year, today.month, today.day, today.week);
  CheckIsDateOrNone(today);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kMaxRounds = 16;
  Input input(data, size);
  for (int i = 0; i < kMaxRounds && !input.IsEmpty(); ++i) {
    if (input.Flag()) {
      CheckArithmetic(input);
    } else {
      CheckAnyInt(input);
    }
  }
  return 0;
}
