// SPDX-License-Identifier: MIT
// What the engine knows about a day beside the board: lunar date, solar term and festivals.
#pragma once

#include <almara/almara_types.h>

#include <set>
#include <string>
#include <vector>

#include "civil_date.h"
#include "texts.h"

namespace viewer {

struct Annotation {
  CCalendarLunarDate lunar{};
  ESolarKyureki24 solarTerm = eSekkiNone;
  EFestivalLunar lunarFestival = eFestivalLunarNone;
  EFestivalSolar solarFestival = eFestivalSolarNone;

  bool hasName() const {
    return solarTerm != eSekkiNone || lunarFestival != eFestivalLunarNone ||
           solarFestival != eFestivalSolarNone;
  }
};

// Asks the engine, which keeps every answer. To be used once the engine is started.
class Annotator {
 public:
  explicit Annotator(ELanguage region) : region_(region) {}

  Annotation annotate(CivilDate date);

 private:
  void findEaster(int year);

  ELanguage region_;
  std::set<int> yearsWithEaster_;
};

// A name that the day has, with the form for a narrow place.
struct DayName {
  enum class Kind { LunarFestival, SolarFestival, SolarTerm };
  Kind kind = Kind::SolarTerm;
  std::int32_t code = 0;
};

// The day's names, the weightiest first: festivals before the solar term.
std::vector<DayName> namesOf(const Annotation& annotation);
std::string fullName(const DayName& name, TextLanguage language);
std::string briefName(const DayName& name, TextLanguage language);

// The lunar day as it stands under a day: the month's name on its first day.
std::string lunarDayText(const Texts& texts, const CCalendarLunarDate& lunar);

// The whole lunar date.
std::string lunarDateText(const Texts& texts, const CCalendarLunarDate& lunar);

}  // namespace viewer
