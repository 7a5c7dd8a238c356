// SPDX-License-Identifier: MIT
// The board of the full screen and the day selected on it: every key's effect, without the screen.
#pragma once

#include "board.h"
#include "board_options.h"
#include "civil_date.h"

namespace viewer {

class Navigator {
 public:
  // Takes over the board that was built last and selects the date it was built for.
  explicit Navigator(const BoardOptions& options);

  const Board& board() const { return board_; }
  const BoardOptions& options() const { return options_; }
  CivilDate selected() const { return selected_; }

  // To the day before or behind among the shown ones; off the board it pages.
  void moveDays(int direction);

  // To the same day of another week; off the board it pages.
  void moveWeeks(int direction);

  // Pages and keeps the selection's place. False at the end of the calendar.
  bool page(int direction);

  void goToToday();
  void goTo(CivilDate date);

  void nextMode();
  void toggleBreakDays();
  void toggleIntervals();

  // Follows the clock past midnight. True if the board was built anew.
  bool refreshToday();

 private:
  void read();
  void rebuild();
  bool turnPage(int direction);
  void selectNearest(CivilDate date);

  BoardOptions options_;
  Board board_;
  CivilDate selected_;
};

}  // namespace viewer
