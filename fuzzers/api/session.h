// SPDX-License-Identifier: MIT
#ifndef ALMARA_FUZZERS_API_SESSION_H_
#define ALMARA_FUZZERS_API_SESSION_H_

#include <almara/almara.h>

#include <array>

#include "support/board_invariants.h"
#include "support/input.h"

namespace almara::test {

// What an engine was told, next to what its getters say. At first the engine's defaults.
struct Options {
  EDispMonth mode = eDispMonthRollingWeeks;
  std::int32_t rows = 5;
  std::int32_t passedWeeks = 1;
  ECalendarWeek startDay = eCalendarWeekMonday;
  std::int32_t startWeek = 1;
  bool hideBreakDay = false;
  bool monthInterval = true;
  bool showBreakDay = true;
  bool printBoard = true;
  bool civilDays = false;
  EWeekNumberCalc calcType = eWeekNumberCalcIso8601;
  std::array<bool, kDaysInRow> breakDay{true, false, false, false, false, false, true};
};

// Bytes decoded into a sequence of exported calls on the one engine. After each call everything
// that can be read is read and held against the options, the clock and itself. Local time is UTC
// while days are counted in it, and Dublin's while they are civil: there every winter day counted
// in local time would be another.
class Session {
 public:
  // Begins on an engine that has the default options.
  Session();

  // Makes as many calls as the input has bytes for.
  void Run(Input& input);

 private:
  void Call(Input& input);
  void CallSetter(Input& input);
  void CallFlagSetter(Input& input);
  void CallNavigation(Input& input);
  void CallGetter(Input& input);
  void GotoDate(Input& input);

  void Check();
  void CheckOptions() const;
  void CheckConfigKey() const;
  void CheckKinds() const;

  Options m_options;
  ShownBoard m_board;
  bool m_setSinceBuild = true;     // or not built yet, so that a build shows another part
  bool m_kindsAreCurrent = false;  // the cells' kinds are of the options and the day in force
};

}  // namespace almara::test

#endif  // ALMARA_FUZZERS_API_SESSION_H_
