// SPDX-License-Identifier: MIT
// The command line.
#pragma once

#include <optional>
#include <vector>

#include "board_options.h"
#include "civil_date.h"
#include "engine.h"
#include "output.h"

namespace viewer {

enum class Task { ShowBoard, ShowDay, ListYear, FullScreen };

struct Options {
  Task task = Task::ShowBoard;
  BoardOptions board;
  std::optional<CivilDate> date;
  std::vector<Step> steps;  // in the order given
  bool weekNumbers = true;
  bool annotations = true;
  CivilDate day;            // for Task::ShowDay
  std::optional<int> year;  // for Task::ListYear; none is this year
  bool json = false;
  bool dump = false;
  ColorMode color = ColorMode::Auto;
};

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

// Fills the options, whose language is the default to begin with. Returns the exit code if there is
// nothing more to do: the help was printed, or one line on the standard error says what is wrong.
std::optional<int> parseOptions(int argc, char** argv, Options& options);

// One line "almara-board: <message>" on the standard error.
void reportError(const std::string& message);

}  // namespace viewer
