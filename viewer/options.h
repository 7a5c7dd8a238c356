// SPDX-License-Identifier: MIT
// What the user asked the program for.
#ifndef ALMARA_VIEWER_OPTIONS_H_
#define ALMARA_VIEWER_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "annotations.h"
#include "birthdays.h"
#include "board_options.h"
#include "civil_date.h"
#include "styled_text.h"

namespace almara::viewer {

enum class Task {
  kShowBoard,
  kShowMonths,
  kShowYear,
  kShowDay,
  kListYear,
  kShowBirthday,
  kWriteCalendar,
  kFullScreen,
  kPrintText
};

// A day, a month or a year, as the arguments that are no options name it: "10 2 2024", "2 2024",
// "2024". What is missing is that of today.
struct When {
  std::optional<int> day;
  std::optional<int> month;
  std::optional<int> year;
};

struct Options {
  Task task = Task::kShowBoard;
  BoardOptions board;
  std::optional<CivilDate> date;  // to show instead of today
  When when;                      // the same, by the day, the month or the year
  std::vector<Step> steps;        // in the order given
  int monthsBefore = 0;           // for Task::kShowMonths
  int monthsAfter = 0;
  WeekNumbers weekNumbers = WeekNumbers::kIfRoom;
  bool annotations = true;
  LunarSource lunar = LunarSource::kAlmanac;
  CivilDate day;             // for Task::kShowDay
  std::optional<int> year;   // for Task::kListYear and the following two; none is this year
  LunarBirthday birthday;    // for Task::kShowBirthday
  std::optional<int> years;  // for Task::kShowBirthday and the next one
  std::vector<LunarBirthday> birthdays;  // for Task::kWriteCalendar
  std::string text;                      // for Task::kPrintText
  bool json = false;
  bool dump = false;
  ColorMode color = ColorMode::kAuto;
  bool ascii = false;          // lines and marks in ASCII, whatever the terminal can show
  std::optional<int> columns;  // to use instead of the terminal's
};

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_OPTIONS_H_
