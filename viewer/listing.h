// SPDX-License-Identifier: MIT
// Days with their names in full, as lines of text: under a board, of a year, and of one day.
#pragma once

#include <vector>

#include "annotations.h"
#include "board.h"
#include "styled_text.h"
#include "texts.h"

namespace viewer {

struct NamedDay {
  CivilDate date;
  Annotation annotation;
};

// Of the days those that have a festival or a solar term.
std::vector<NamedDay> namedDays(const std::vector<CivilDate>& days, Annotator& annotator);
std::vector<NamedDay> namedDaysOfYear(int year, Annotator& annotator);

// The names of a day, set apart by commas.
Line namesLine(const Annotation& annotation, TextLanguage language);

// A line for each day, in as many columns as the width allows.
std::vector<Line> legendLines(const std::vector<NamedDay>& days, const Texts& texts, int width);

// The days of a year under the names of their months.
std::vector<Line> yearLines(int year, const std::vector<NamedDay>& days, const Texts& texts);

// What is known of one day.
struct DayReport {
  CivilDate date;
  CCalendarSolarDate today{};
  int weekNumber = 0;
  Annotation annotation;

  int daysFromToday() const { return dayNumber(date) - dayNumber(dateOf(today)); }
};
std::vector<Line> dayLines(const DayReport& report, const Texts& texts);

}  // namespace viewer
