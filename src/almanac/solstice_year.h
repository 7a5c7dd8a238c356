// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_SOLSTICE_YEAR_H_
#define ALMARA_ALMANAC_SOLSTICE_YEAR_H_

#include <cstdint>

#include "almanac/reckoning.h"

// The months from one with the winter solstice up to the next one, which is not included. The rule
// of the calendar numbers them together: the first is month 11; where there are 13, the first of
// them without a principal term is leap and has the number of the one before.
//
// A month has a place among them, counted from 0.
namespace almara {

constexpr int kFirstSolstice = 1899;
constexpr int kLastSolstice = 2099;

struct SolsticeYear {
  std::int32_t year;          // Gregorian year of its winter solstice
  std::int32_t firstDay;      // day number on which month 11 begins
  std::int16_t firstNewMoon;  // of month 11, in the table
  std::uint16_t longMonths;   // bit p is set where the month at place p has 30 days
  std::int32_t leapPlace;     // 1 to 12, or 0 in a year of 12 months
};

// The new moon of the month that holds a day of 1899-02-01 to 2101-11-30.
constexpr int NewMoonOfDay(const Reckoning& reckoning, int day) {
  int k = LastNewMoonGuess(day);
  while (MonthStart(reckoning, k) > day) {
    --k;
  }
  return k;
}

// The new moon of the month that holds the winter solstice of a Gregorian year 1899 to 2100.
constexpr int NewMoonOfSolstice(const Reckoning& reckoning, int year) {
  constexpr int kWinterSolstice = 23;
  return NewMoonOfDay(reckoning, CivilDay(reckoning, SolarTerm(year, kWinterSolstice)));
}

// Whether a month, by its first day and the next one's, holds none of the principal terms of a
// Gregorian year. These have odd numbers; the terms before the given one are known to be earlier,
// and it moves on to the first that is not.
constexpr bool LacksPrincipalTerm(const Reckoning& reckoning, int year, int start, int end,
                                  int& term) {
  int day = CivilDay(reckoning, SolarTerm(year, term));
  while (day < start) {
    term += 2;
    day = CivilDay(reckoning, SolarTerm(year, term));
  }
  return day >= end;
}

// The year from a winter solstice of 1899 to 2099, given the new moons of its month 11 and the
// next.
constexpr SolsticeYear ReckonBetween(const Reckoning& reckoning, int year, int first, int next) {
  const int months = next - first;
  const int firstDay = MonthStart(reckoning, first);
  unsigned longMonths = 0;
  int leapPlace = 0;
  int term = 1;
  int start = firstDay;
  for (int place = 0; place < months; ++place) {
    const int end = MonthStart(reckoning, first + place + 1);
    longMonths |= (end - start == 30 ? 1U : 0U) << place;
    // Eleven terms are left for the twelve months after the solstice's, so one of them lacks a
    // term.
    if (months > kMonthsOfYear && leapPlace == 0 && place > 0 &&
        LacksPrincipalTerm(reckoning, year + 1, start, end, term)) {
      leapPlace = place;
    }
    start = end;
  }
  return {year, firstDay, static_cast<std::int16_t>(first), static_cast<std::uint16_t>(longMonths),
          leapPlace};
}

constexpr SolsticeYear ReckonSolsticeYear(const Reckoning& reckoning, int year) {
  return ReckonBetween(reckoning, year, NewMoonOfSolstice(reckoning, year),
                       NewMoonOfSolstice(reckoning, year + 1));
}

}  // namespace almara

#endif  // ALMARA_ALMANAC_SOLSTICE_YEAR_H_
