// SPDX-License-Identifier: MIT
// Solar terms, festivals and lunar birthdays as events of other calendar programs.
#ifndef ALMARA_VIEWER_CALENDAR_EVENTS_H_
#define ALMARA_VIEWER_CALENDAR_EVENTS_H_

#include <string>
#include <vector>

#include "annotations.h"
#include "birthdays.h"
#include "civil_date.h"

namespace almara::viewer {

// An event of a whole day.
struct CalendarEvent {
  // The same in every file for the same event of the same region, so that importing a file again
  // changes events and adds none.
  std::string uid;
  CivilDate date;
  std::string summary;
  std::string description;
};

// From 1 January of one year to 31 December of another, in the order of their dates and in the
// region's language.
std::vector<CalendarEvent> EventsOfYears(int firstYear, int lastYear, ELanguage region,
                                         Annotator& annotator,
                                         const std::vector<LunarBirthday>& birthdays);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_CALENDAR_EVENTS_H_
