// SPDX-License-Identifier: MIT
// Days with their names in full, as lines of text: under a board, of a year, and of one day.
#ifndef ALMARA_VIEWER_LISTING_H_
#define ALMARA_VIEWER_LISTING_H_

#include <vector>

#include "annotations.h"
#include "board_snapshot.h"
#include "day_instants.h"
#include "styled_text.h"
#include "texts.h"

namespace almara::viewer {

struct NamedDay {
  CivilDate date;
  Annotation annotation;
};

// Of the days those that have a festival or a solar term.
std::vector<NamedDay> NamedDays(const std::vector<CivilDate>& days, Annotator& annotator);
std::vector<NamedDay> NamedDaysOfYear(int year, Annotator& annotator);

// Of a year those that have another solar term or lunar festival by the other source than by the
// annotator's own, with these alone.
std::vector<NamedDay> DaysNamedByOther(int year, Annotator& annotator);

// The names of a day, set apart by commas.
Line NamesLine(const Annotation& annotation, ELanguage language);

// A line for each day, in as many columns as the width allows.
std::vector<Line> LegendLines(const std::vector<NamedDay>& days, const Texts& texts, int width);

// The days of a year under the names of their months, each with its days from today.
std::vector<Line> YearLines(int year, CivilDate today, const std::vector<NamedDay>& days,
                            const Texts& texts);

// What is known of one day.
struct DayReport {
  CivilDate date;
  CCalendarSolarDate today{};
  int weekNumber = 0;
  LunarSource source = LunarSource::kAlmanac;
  Annotation annotation;
  Annotation other;      // by the other source
  DayInstants instants;  // empty if the almanac is not the source

  int DaysFromToday() const { return DayNumber(date) - DayNumber(DateOf(today)); }
};
std::vector<Line> DayLines(const DayReport& report, const Texts& texts);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_LISTING_H_
