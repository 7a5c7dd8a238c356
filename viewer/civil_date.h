// SPDX-License-Identifier: MIT
// A day of the Gregorian calendar and the little arithmetic that the viewer itself needs: checking
// what the user typed and moving a selection. What the board shows always comes from the engine.
#ifndef ALMARA_VIEWER_CIVIL_DATE_H_
#define ALMARA_VIEWER_CIVIL_DATE_H_

#include <almara/almara_types.h>

#include <optional>
#include <string>
#include <tuple>

namespace almara::viewer {

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

constexpr bool IsInCalendar(CivilDate date) {
  return date.year >= kFirstYear && date.year <= kLastYear;
}

int DaysInYear(int year);
int DaysInMonth(int year, int month);

// 1 on 1 January.
int DayOfYear(CivilDate date);

// Days from 1970-01-01, negative before it.
int DayNumber(CivilDate date);
CivilDate FromDayNumber(int number);

// The day some days away, kept between kFirstDate and kLastDate.
CivilDate AddDays(CivilDate date, int days);

// The same day some months away, or the month's last day if it is shorter; kept in the same range.
CivilDate AddMonths(CivilDate date, int months);

// Months counted through the years, and the first day of a month by that number.
constexpr int MonthNumberOf(CivilDate date) { return date.year * 12 + date.month - 1; }
constexpr CivilDate FirstOfMonth(int monthNumber) {
  return {monthNumber / 12, monthNumber % 12 + 1, 1};
}

ECalendarWeek DayOfWeek(CivilDate date);

// The date as the library's functions take it; none of them reads the day of the week.
constexpr CCalendarSolarDate SolarDate(CivilDate date) {
  return {date.year, date.month, date.day, 0};
}

// Reads YYYY-MM-DD. On failure the date is empty and the problem says why, as the end of a sentence
// that begins with the name of the option.
struct ParsedDate {
  std::optional<CivilDate> date;
  std::string problem;
};
ParsedDate ParseDate(const std::string& text);

// YYYY-MM-DD
std::string IsoText(CivilDate date);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_CIVIL_DATE_H_
