// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_ZONE_COMPARISON_H_
#define ALMARA_TESTS_ACCURACY_ZONE_COMPARISON_H_

#include <optional>
#include <string>
#include <vector>

#include "accuracy/deviations.h"
#include "accuracy/engine.h"
#include "accuracy/ephemeris.h"
#include "accuracy/lunar_date.h"

namespace almara_accuracy {

// The thirty dates that the engine has fixed for every zone.
constexpr int kFirstFixedDay = almara_test::DayNumber({2017, 2, 26});
constexpr int kLastFixedDay = almara_test::DayNumber({2017, 3, 27});

inline bool IsFixed(const DeviationSpan& span) {
  return span.first >= kFirstFixedDay && span.last <= kLastFixedDay;
}

// A solar term by the ephemeris and by the engine.
struct PairedTerm {
  int longitude;
  double trueMoment;
  double engineMoment;
};

// A lunar festival that falls on another day by the ephemeris; no day where a calendar has none
// that year. New year's eves are left out, since they hang on new year's days.
struct FestivalDeviation {
  int code;  // EFestivalLunar
  std::optional<int> engineDay;
  std::optional<int> trueDay;
};

// The engine in one zone beside the calendars that it is compared with.
struct ZoneComparison {
  EngineAnswers engine;
  LunarDates trueDates;  // by the rule from the ephemeris
  LunarDates ruleDates;  // by the rule from the engine's own instants
  LunarDates icuDates;   // empty where ICU has no calendar for the zone
  std::vector<DeviationSpan> fromEphemeris;
  std::vector<DeviationSpan> fromIcu;
  std::vector<PairedTerm> terms;  // those on different days
  std::vector<FestivalDeviation> festivals;
};

ZoneComparison CompareZone(EngineAnswers engine, const Ephemeris& ephemeris, LunarDates icuDates);

// How far the engine's instants are from those of the ephemeris.
ErrorSummary NewMoonErrors(const EngineAnswers& engine, const Ephemeris& ephemeris);
ErrorSummary ChuErrors(const EngineAnswers& engine, const Ephemeris& ephemeris);
ErrorSummary SekkiErrors(const EngineAnswers& engine, const Ephemeris& ephemeris);

// The new moon that decides on which of two days in a row a month begins: the one next to the
// midnight between them.
struct DecidingNewMoon {
  double trueMoment;
  double engineMoment;
};
DecidingNewMoon NewMoonNextToMidnight(const EngineAnswers& engine, const Ephemeris& ephemeris,
                                      int dayBehind);

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_ZONE_COMPARISON_H_
