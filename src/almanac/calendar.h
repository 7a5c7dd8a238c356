// SPDX-License-Identifier: MIT
#ifndef ALMARA_ALMANAC_CALENDAR_H_
#define ALMARA_ALMANAC_CALENDAR_H_

#include <almara/almanac.h>

#include <cstdint>
#include <optional>

#include "almanac/solstice_year.h"

namespace almara {

// A calendar of the almanac. The years of the published calendars are reckoned by the compiler,
// those of a fixed offset when they are asked for.
struct Calendar {
  Reckoning reckoning;
  const SolsticeYear* years;  // from kFirstSolstice to kLastSolstice, or null
};

// Nothing for an int that stands for no calendar.
std::optional<Calendar> CalendarOf(EAlmanacCalendar calendar);

// The calendar that reckons in one time, up to 18 hours from Greenwich; else eAlmanacNone.
EAlmanacCalendar CalendarAtOffset(std::int32_t minutes);

// The year from the winter solstice of a Gregorian year 1899 to 2099.
inline SolsticeYear SolsticeYearFrom(const Calendar& calendar, int year) {
  return calendar.years != nullptr ? calendar.years[year - kFirstSolstice]
                                   : ReckonSolsticeYear(calendar.reckoning, year);
}

// The year that holds a day of a Gregorian year 1900 to 2099.
inline SolsticeYear SolsticeYearOfDay(const Calendar& calendar, int day, int gregorianYear) {
  if (calendar.years != nullptr) {
    const SolsticeYear* const later = calendar.years + (gregorianYear - kFirstSolstice);
    return day < later->firstDay ? *(later - 1) : *later;
  }
  const Reckoning& reckoning = calendar.reckoning;
  const int later = NewMoonOfSolstice(reckoning, gregorianYear);
  return day < MonthStart(reckoning, later)
             ? ReckonBetween(reckoning, gregorianYear - 1,
                             NewMoonOfSolstice(reckoning, gregorianYear - 1), later)
             : ReckonBetween(reckoning, gregorianYear, later,
                             NewMoonOfSolstice(reckoning, gregorianYear + 1));
}

}  // namespace almara

#endif  // ALMARA_ALMANAC_CALENDAR_H_
