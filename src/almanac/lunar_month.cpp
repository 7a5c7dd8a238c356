// SPDX-License-Identifier: MIT
#include "almanac/lunar_month.h"

#include <bitset>

namespace almara {

namespace {

constexpr int kMonthOfSolstice = 11;
constexpr int kPlaceOfMonth1 = 2;  // in a year without a leap month before it
constexpr int kShortMonth = 29;
constexpr int kPlaces = 13;

// Day number on which the month at a place begins; at the place after the last, the next year.
int StartOfPlace(const SolsticeYear& year, int place) {
  const std::bitset<kPlaces> longMonths(year.longMonths & ((1U << place) - 1U));
  return year.firstDay + kShortMonth * place + static_cast<int>(longMonths.count());
}

// The place of the month that holds a day of the year.
int PlaceOfDay(const SolsticeYear& year, int day) {
  // Three days are more than months ever fall short of their mean, 29.53 days each.
  int place = (day - year.firstDay + 3) * 100 / 2953;
  while (StartOfPlace(year, place) > day) {
    --place;
  }
  return place;
}

// The month at a place of the year.
LunarMonth MonthAtPlace(const SolsticeYear& year, int place) {
  const bool afterLeap = year.leapPlace != 0 && place >= year.leapPlace;
  const int count = kMonthOfSolstice + place - (afterLeap ? 1 : 0);
  const bool newYear = count > kMonthsOfYear;
  return {newYear ? year.year + 1 : year.year,
          newYear ? count - kMonthsOfYear : count,
          afterLeap && place == year.leapPlace ? 1 : 0,
          StartOfPlace(year, place),
          kShortMonth + static_cast<int>(year.longMonths >> place & 1U),
          year.firstNewMoon + place};
}

}  // namespace

LunarMonth MonthOfDay(const Calendar& calendar, int day, int gregorianYear) {
  const SolsticeYear year = SolsticeYearOfDay(calendar, day, gregorianYear);
  return MonthAtPlace(year, PlaceOfDay(year, day));
}

std::optional<LunarMonth> FindMonth(const Calendar& calendar, int year, int month, int leap) {
  const bool beforeNewYear = month >= kMonthOfSolstice;
  if (!IsMonth(month) || leap < 0 || leap > 1 || year < kFirstSolstice + (beforeNewYear ? 0 : 1) ||
      year > kLastSolstice + (beforeNewYear ? 0 : 1)) {
    return std::nullopt;
  }
  const SolsticeYear months = SolsticeYearFrom(calendar, beforeNewYear ? year : year - 1);
  const int plain = beforeNewYear ? month - kMonthOfSolstice : month - 1 + kPlaceOfMonth1;
  if (leap != 0) {
    return months.leapPlace == plain + 1 ? std::optional(MonthAtPlace(months, months.leapPlace))
                                         : std::nullopt;
  }
  const bool afterLeap = months.leapPlace != 0 && plain >= months.leapPlace;
  return MonthAtPlace(months, plain + (afterLeap ? 1 : 0));
}

int LeapMonthOfYear(const Calendar& calendar, int year) {
  const int before = SolsticeYearFrom(calendar, year - 1).leapPlace;
  if (before > kPlaceOfMonth1) {
    return before - kPlaceOfMonth1;
  }
  const int after = SolsticeYearFrom(calendar, year).leapPlace;
  return after != 0 && after <= kPlaceOfMonth1 ? kMonthOfSolstice - 1 + after : 0;
}

}  // namespace almara
