// SPDX-License-Identifier: MIT
#include "almanac/instant_record.h"

#include "almanac/certainty.h"
#include "almanac/lunar_date.h"

namespace almara {

namespace {

constexpr int kSecondsOfHour = 3600;
constexpr int kSecondsOfMinute = 60;

// An instant is some time within the second of the table.
AlmanacInstant RecordOf(const Reckoning& reckoning, std::int64_t instant, int errorOfTable) {
  const std::int32_t offset = OffsetAt(reckoning, instant);
  const int second = static_cast<int>((instant + offset) % kSecondsOfDay);
  const CCalendarSolarDate date = DateOfDayNumber(CivilDay(reckoning, instant));
  const int uncertainty = UncertaintyInYear(date.year, errorOfTable);
  return {date.year,
          date.month,
          date.day,
          date.dayOfWeek,
          second / kSecondsOfHour,
          second % kSecondsOfHour / kSecondsOfMinute,
          second % kSecondsOfMinute,
          offset,
          uncertainty,
          IsDayCertain(second, uncertainty) ? 1 : 0};
}

}  // namespace

AlmanacInstant TermInstant(const Calendar& calendar, int year, ESolarKyureki24 term) {
  if (!IsAlmanacYear(year) || term < 0 || term >= kTermsOfYear) {
    return {};
  }
  return RecordOf(calendar.reckoning, SolarTerm(year, term), kErrorOfTerms);
}

AlmanacInstant NewMoonOfYear(const Calendar& calendar, int year, int index) {
  constexpr int kMostNewMoons = 13;
  if (!IsAlmanacYear(year) || index < 0 || index >= kMostNewMoons) {
    return {};
  }
  const int k = NewMoonOfDay(calendar.reckoning, DayNumber(year - 1, 12, 31)) + 1 + index;
  const AlmanacInstant instant = NewMoonInstant(calendar, k);
  return instant.year == year ? instant : AlmanacInstant{};
}

AlmanacInstant NewMoonInstant(const Calendar& calendar, int k) {
  return RecordOf(calendar.reckoning, NewMoon(k), kErrorOfNewMoons);
}

ESolarKyureki24 TermOfDate(const Calendar& calendar, const CCalendarSolarDate& date) {
  if (!IsAlmanacDate(date)) {
    return eSekkiNone;
  }
  const int day = DayNumber(date.year, date.month, date.day);
  const int first = 2 * (date.month - 1);  // a month has two terms, in every zone
  for (int term = first; term <= first + 1; ++term) {
    if (CivilDay(calendar.reckoning, SolarTerm(date.year, term)) == day) {
      return term;
    }
  }
  return eSekkiNone;
}

}  // namespace almara
