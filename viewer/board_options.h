// SPDX-License-Identifier: MIT
// The board options as the viewer holds them. The viewer keeps its own copy because the engine
// cannot be asked for all of them: GetShowMonthInterval() answers with another flag.
#ifndef ALMARA_VIEWER_BOARD_OPTIONS_H_
#define ALMARA_VIEWER_BOARD_OPTIONS_H_

#include <almara/almara_types.h>

#include <array>

namespace almara::viewer {

// The viewer's own week rule: as eWeekNumberCalcFromJan1, in weeks that begin on the first day of
// the week, where the engine's weeks begin on Monday.
constexpr EWeekNumberCalc kWeeksOfFirstDay = -1;

constexpr EWeekNumberCalc EngineWeekRule(EWeekNumberCalc rule) {
  return rule == kWeeksOfFirstDay ? eWeekNumberCalcFromJan1 : rule;
}

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

// Whether the numbers of the weeks stand beside the board; kIfRoom gives them up before the days
// have to move together.
enum class WeekNumbers { kIfRoom, kAlways, kNever };

constexpr int kMostRows = 50;

// Whether the arrangement has as many rows as wanted.
constexpr bool HasRows(EDispMonth mode) {
  return mode == eDispMonthRollingWeeks || mode == eDispMonthRollingTail;
}

// One step of navigation, as --next, --previous and --offset name them.
struct Step {
  enum class Kind { kNext, kPrevious, kOffset };
  Kind kind = Kind::kNext;
  int offset = 0;  // for Kind::Offset
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
                                                    {"start", eWeekNumberCalcFromStartWeek},
                                                    {"first-day", kWeeksOfFirstDay}};

constexpr Word<ECalendarWeek> kDayWords[] = {
    {"sun", eCalendarWeekSunday},    {"mon", eCalendarWeekMonday},   {"tue", eCalendarWeekTuesday},
    {"wed", eCalendarWeekWednesday}, {"thu", eCalendarWeekThursday}, {"fri", eCalendarWeekFriday},
    {"sat", eCalendarWeekSaturday}};

constexpr Word<ELanguage> kLanguageWords[] = {
    {"chs", eLanguageChs}, {"cht", eLanguageCht}, {"deu", eLanguageDeu}, {"eng", eLanguageEng},
    {"jpn", eLanguageJpn}, {"kor", eLanguageKor}, {"rus", eLanguageRus}, {"tha", eLanguageTha},
    {"usa", eLanguageUsa}, {"vit", eLanguageVit}};

template <typename Words, typename Value>
const char* WordFor(const Words& words, Value value) {
  for (const auto& word : words) {
    if (word.value == value) {
      return word.text;
    }
  }
  return "";
}

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BOARD_OPTIONS_H_
