// SPDX-License-Identifier: MIT
// What the engine knows about a day beside the board: lunar date, solar term and festivals.
#ifndef ALMARA_VIEWER_ANNOTATIONS_H_
#define ALMARA_VIEWER_ANNOTATIONS_H_

#include <almara/almara_types.h>

#include <set>
#include <string>
#include <vector>

#include "civil_date.h"
#include "texts.h"

namespace almara::viewer {

struct Annotation {
  CCalendarLunarDate lunar{};
  ESolarKyureki24 solarTerm = eSekkiNone;
  EFestivalLunar lunarFestival = eFestivalLunarNone;
  EFestivalSolar solarFestival = eFestivalSolarNone;

  bool HasFestival() const {
    return lunarFestival != eFestivalLunarNone || solarFestival != eFestivalSolarNone;
  }
  bool HasName() const { return solarTerm != eSekkiNone || HasFestival(); }
};

// Asks the engine, which keeps every answer. To be used once the engine is started.
class Annotator {
 public:
  explicit Annotator(ELanguage region) : m_region(region) {}

  Annotation Annotate(CivilDate date);

 private:
  void FindEaster(int year);

  ELanguage m_region;
  std::set<int> m_yearsWithEaster;
};

// A name that the day has, with the form for a narrow place.
struct DayName {
  enum class Kind { kLunarFestival, kSolarFestival, kSolarTerm };
  Kind kind = Kind::kSolarTerm;
  std::int32_t code = 0;
};

// The day's names, the weightiest first: festivals before the solar term.
std::vector<DayName> NamesOf(const Annotation& annotation);
std::string FullName(const DayName& name, TextLanguage language);
std::string BriefName(const DayName& name, TextLanguage language);

// The lunar day as it stands under a day: the month's name on its first day.
std::string LunarDayText(const Texts& texts, const CCalendarLunarDate& lunar);

// The same in at most five cells.
std::string LunarDayBrief(const Texts& texts, const CCalendarLunarDate& lunar);

// The whole lunar date.
std::string LunarDateText(const Texts& texts, const CCalendarLunarDate& lunar);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_ANNOTATIONS_H_
