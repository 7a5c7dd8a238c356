// SPDX-License-Identifier: MIT
// A day of the Gregorian calendar and the little arithmetic that the viewer itself needs: checking
// what the user typed and moving a selection. What the board shows always comes from the engine.
#pragma once

#include <almara/almara_types.h>

#include <optional>
#include <string>
#include <tuple>

namespace viewer {

struct CivilDate {
  int year = 0;
  int month = 0;
  int day = 0;
};

inline bool operator==(CivilDate a, CivilDate b) {
  return std::tie(a.year, a.month, a.day) == std::tie(b.year, b.month, b.day);
}
inline bool operator!=(CivilDate a, CivilDate b) { return !(a == b); }
inline bool operator<(CivilDate a, CivilDate b) {
  return std::tie(a.year, a.month, a.day) < std::tie(b.year, b.month, b.day);
}

// The days that a board can be built for.
constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2099;
constexpr CivilDate kFirstDate{kFirstYear, 1, 1};
constexpr CivilDate kLastDate{kLastYear, 12, 31};

int daysInYear(int year);
int daysInMonth(int year, int month);

// 1 on 1 January.
int dayOfYear(CivilDate date);

// Days from 1970-01-01, negative before it.
int dayNumber(CivilDate date);
CivilDate fromDayNumber(int number);

// The day some days away, kept between kFirstDate and kLastDate.
CivilDate addDays(CivilDate date, int days);

// The same day some months away, or the month's last day if it is shorter; kept in the same range.
CivilDate addMonths(CivilDate date, int months);

ECalendarWeek dayOfWeek(CivilDate date);

// Reads YYYY-MM-DD. On failure the date is empty and the problem says why, as the end of a sentence
// that begins with the name of the option.
struct ParsedDate {
  std::optional<CivilDate> date;
  std::string problem;
};
ParsedDate parseDate(const std::string& text);

// YYYY-MM-DD
std::string isoText(CivilDate date);

}  // namespace viewer
