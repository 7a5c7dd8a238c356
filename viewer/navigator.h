// SPDX-License-Identifier: MIT
// The board of the full screen and the day selected on it: every key's effect, without the screen.
#ifndef ALMARA_VIEWER_NAVIGATOR_H_
#define ALMARA_VIEWER_NAVIGATOR_H_

#include "board_options.h"
#include "board_snapshot.h"
#include "civil_date.h"

namespace almara::viewer {

class Navigator {
 public:
  // Takes over the board that was built last and selects the date it was built for.
  explicit Navigator(const BoardOptions& options);

  const BoardSnapshot& Board() const { return m_board; }
  const BoardOptions& Options() const { return m_options; }
  CivilDate Selected() const { return m_selected; }

  // To the day before or after among the shown ones; off the board it pages.
  void MoveDays(int direction);

  // To the same day of another week; off the board it pages.
  void MoveWeeks(int direction);

  // Pages and keeps the selection's place. False at the end of the calendar.
  bool Page(int direction);

  // The same day of another year, or the calendar's first or last day.
  void MoveYears(int years);
  void GoToFirstOfMonth();
  void GoToLastOfMonth();

  // False, and nothing changes, while the clock stands outside the calendar.
  bool GoToToday();

  // Builds the board of the date and selects it.
  void GoTo(CivilDate date);

  // Selects a day, on the board as it is if it shows the day.
  void Select(CivilDate date);

  void NextMode();
  void NextFirstDay();
  // False where the number of rows has no effect or would leave its range.
  bool ChangeRows(int difference);
  void ToggleBreakDays();
  void ToggleIntervals();

  // Follows the clock past midnight. True if the board was built anew.
  bool RefreshToday();

 private:
  void Read();
  void Rebuild();
  bool TurnPage(int direction);
  void SelectNearest(CivilDate date);

  BoardOptions m_options;
  BoardSnapshot m_board;
  CivilDate m_selected;
};

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_NAVIGATOR_H_
