// SPDX-License-Identifier: MIT
// The instants that a day of the almanac rests on, and whether the day is certain.
#ifndef ALMARA_VIEWER_DAY_INSTANTS_H_
#define ALMARA_VIEWER_DAY_INSTANTS_H_

#include <almara/almanac.h>

#include <optional>
#include <string>

#include "civil_date.h"

namespace almara::viewer {

struct DayInstants {
  std::optional<AlmanacInstant> newMoon;  // that begins the lunar month of the day
  std::optional<AlmanacInstant> term;     // of the day's solar term

  // The instant so close to midnight that the day may have another lunar date.
  std::optional<AlmanacInstant> doubtfulMoon;

  // The term so close to midnight that it may be on this day and not on a neighbour, or the other
  // way round.
  struct DoubtfulTerm {
    ESolarKyureki24 term = eSekkiNone;
    AlmanacInstant instant{};
  };
  std::optional<DoubtfulTerm> doubtfulTerm;

  bool AreCertain() const { return !doubtfulMoon && !doubtfulTerm; }
};

DayInstants InstantsOf(EAlmanacCalendar calendar, CivilDate date);

// Whether every day of the lunar month is certain.
bool IsMonthCertain(EAlmanacCalendar calendar, const CCalendarLunarDate& lunar);

// "17:00:21 UTC+8"
std::string TimeText(const AlmanacInstant& instant);

// "2024-03-10 17:00:21 UTC+8"
std::string InstantText(const AlmanacInstant& instant);

// "2089-09-04 23:59:05 UTC+8 (+/- 92 s)"
std::string DoubtText(const AlmanacInstant& instant);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_DAY_INSTANTS_H_
