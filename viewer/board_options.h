// SPDX-License-Identifier: MIT
// The board options as the viewer holds them. The viewer keeps its own copy because the engine
// cannot be asked for all of them: GetShowMonthInterval() answers with another flag.
#pragma once

#include <almara/almara_types.h>

#include <array>

namespace viewer {

struct BoardOptions {
  EDispMonth mode = eDispMonthRollingWeeks;
  int rows = 5;
  int passedWeeks = 1;
  ECalendarWeek firstDay = eCalendarWeekMonday;
  EWeekNumberCalc weekRule = eWeekNumberCalcIso8601;
  int startWeek = 1;
  std::array<bool, 7> breakDays = {true, false, false, false, false, false, true};
  bool hideBreakDays = false;
  bool monthIntervals = true;
  ELanguage language = eLanguageEng;
};

// The words that stand for the engine's values on the command line and in JSON.
template <typename Value>
struct Word {
  const char* text;
  Value value;
};

constexpr Word<EDispMonth> kModeWords[] = {{"rolling", eDispMonthRollingWeeks},
                                           {"tail", eDispMonthRollingTail},
                                           {"month", eDispMonthWholeMonth},
                                           {"strip", eDispMonthDayStrip}};

constexpr Word<EWeekNumberCalc> kWeekRuleWords[] = {{"iso", eWeekNumberCalcIso8601},
                                                    {"jan1", eWeekNumberCalcFromJan1},
                                                    {"start", eWeekNumberCalcFromStartWeek}};

constexpr Word<ECalendarWeek> kDayWords[] = {
    {"sun", eCalendarWeekSunday},    {"mon", eCalendarWeekMonday},   {"tue", eCalendarWeekTuesday},
    {"wed", eCalendarWeekWednesday}, {"thu", eCalendarWeekThursday}, {"fri", eCalendarWeekFriday},
    {"sat", eCalendarWeekSaturday}};

constexpr Word<ELanguage> kLanguageWords[] = {
    {"chs", eLanguageChs}, {"kor", eLanguageKor}, {"usa", eLanguageUsa}, {"cht", eLanguageCht},
    {"rus", eLanguageRus}, {"deu", eLanguageDeu}, {"jpn", eLanguageJpn}, {"eng", eLanguageEng},
    {"vit", eLanguageVit}, {"tha", eLanguageTha}};

template <typename Words, typename Value>
const char* wordFor(const Words& words, Value value) {
  for (const auto& word : words) {
    if (word.value == value) {
      return word.text;
    }
  }
  return "";
}

}  // namespace viewer
