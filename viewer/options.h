// SPDX-License-Identifier: MIT
// What the user asked the program for.
#ifndef ALMARA_VIEWER_OPTIONS_H_
#define ALMARA_VIEWER_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "board_options.h"
#include "civil_date.h"
#include "styled_text.h"

namespace almara::viewer {

enum class Task { kShowBoard, kShowDay, kListYear, kFullScreen, kPrintText };

struct Options {
  Task task = Task::kShowBoard;
  BoardOptions board;
  std::optional<CivilDate> date;
  std::vector<Step> steps;  // in the order given
  bool weekNumbers = true;
  bool annotations = true;
  CivilDate day;            // for Task::ShowDay
  std::optional<int> year;  // for Task::ListYear; none is this year
  std::string text;         // for Task::kPrintText
  bool json = false;
  bool dump = false;
  ColorMode color = ColorMode::kAuto;
};

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_OPTIONS_H_
