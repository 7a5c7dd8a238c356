// SPDX-License-Identifier: MIT
// What is known about a day beside the board: lunar date, solar term and festivals.
#ifndef ALMARA_VIEWER_ANNOTATIONS_H_
#define ALMARA_VIEWER_ANNOTATIONS_H_

#include <almara/almanac.h>

#include <set>
#include <string>
#include <vector>

#include "board_options.h"
#include "civil_date.h"
#include "texts.h"

namespace almara::viewer {

// Whose lunar dates, solar terms and lunar festivals: those of the region's calendar as published,
// or the engine's own. Solar festivals are always the engine's.
enum class LunarSource { kAlmanac, kEngine };

constexpr Word<LunarSource> kLunarSourceWords[] = {{"almanac", LunarSource::kAlmanac},
                                                   {"engine", LunarSource::kEngine}};

constexpr LunarSource OtherSource(LunarSource source) {
  return source == LunarSource::kAlmanac ? LunarSource::kEngine : LunarSource::kAlmanac;
}

struct Annotation {
  CCalendarLunarDate lunar{};
  ESolarKyureki24 solarTerm = eSekkiNone;
  EFestivalLunar lunarFestival = eFestivalLunarNone;
  EFestivalSolar solarFestival = eFestivalSolarNone;

  // Whether lunar date, solar term or lunar festival are not those of the other.
  bool DiffersFrom(const Annotation& other) const;

  bool HasFestival() const {
    return lunarFestival != eFestivalLunarNone || solarFestival != eFestivalSolarNone;
  }
  bool HasName() const { return solarTerm != eSekkiNone || HasFestival(); }
};

// Asks the almanac and the engine, which keeps every answer. To be used once the engine is started.
class Annotator {
 public:
  Annotator(ELanguage region, LunarSource source)
      : m_region(region), m_calendar(AlmanacCalendarOfLanguage(region)), m_source(source) {}

  LunarSource Source() const { return m_source; }
  EAlmanacCalendar Calendar() const { return m_calendar; }

  Annotation Annotate(CivilDate date) { return AnnotateBy(m_source, date); }

  // The same day by the other source.
  Annotation AnnotateByOther(CivilDate date) { return AnnotateBy(OtherSource(m_source), date); }

 private:
  Annotation AnnotateBy(LunarSource source, CivilDate date);
  void FindEaster(int year);

  ELanguage m_region;
  EAlmanacCalendar m_calendar;
  LunarSource m_source;
  std::set<int> m_yearsWithEaster;
};

// A name that the day has.
struct DayName {
  enum class Kind { kLunarFestival, kSolarFestival, kSolarTerm };
  Kind kind = Kind::kSolarTerm;
  std::int32_t code = 0;
};

// The day's names, the weightiest first: festivals before the solar term.
std::vector<DayName> NamesOf(const Annotation& annotation);

// By the library's names; the number of a code that it has none for. The brief one has at most nine
// cells.
std::string FullName(const DayName& name, ELanguage language);
std::string BriefName(const DayName& name, ELanguage language);

// The lunar day as it stands under a day: the month's name on its first day.
std::string LunarDayText(const Texts& texts, const CCalendarLunarDate& lunar);

// The same in at most five cells.
std::string LunarDayBrief(const Texts& texts, const CCalendarLunarDate& lunar);

// The whole lunar date, month and day alone if its year is 0.
std::string LunarDateText(const Texts& texts, const CCalendarLunarDate& lunar);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_ANNOTATIONS_H_
