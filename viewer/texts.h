// SPDX-License-Identifier: MIT
// The words of the calendar in the languages that the viewer speaks.
#ifndef ALMARA_VIEWER_TEXTS_H_
#define ALMARA_VIEWER_TEXTS_H_

#include <almara/almara_types.h>

#include <array>
#include <cstddef>
#include <string>

#include "civil_date.h"

namespace almara::viewer {

constexpr std::size_t kHelpLines = 15;

// One language's words. In the patterns {y} stands for the year, {m} for the number of the month,
// {M} for its name, {S} for its short name, {d} for the day and {w} for the day of the week; {n}
// and {N} are the number and the name of a second month, {T} its short name and {z} its year. Of a
// lunar date, {L} is the name of the month and {D} that of the day. {c} is a count.
struct Texts {
  ELanguage language = eLanguageEng;

  std::array<const char*, 7> weekdays{};        // short, from Sunday
  std::array<const char*, 7> narrowWeekdays{};  // at most two cells each
  std::array<const char*, 7> longWeekdays{};
  std::array<const char*, 12> months{};
  std::array<const char*, 12> monthsInDates{};  // as they stand in fullDate
  std::array<const char*, 12> shortMonths{};

  const char* fullDate = nullptr;          // {y} {m} {M} {d} {w}
  const char* dayOfMonth = nullptr;        // {S} {d}, in a list of names
  const char* title = nullptr;             // {y} {m} {M}
  const char* titleMonths = nullptr;       // {y} {m} {M} {n} {N}, two months of one year
  const char* titleYears = nullptr;        // {y} {m} {M} {n} {N} {z}, months of two years
  const char* titleMonthsBrief = nullptr;  // {y} {m} {S} {n} {T}, in at most 20 cells
  const char* titleYearsBrief = nullptr;   // {y} {m} {S} {n} {T} {z}, in at most 20 cells

  std::array<const char*, 12> lunarMonths{};  // null where numbers are used
  std::array<const char*, 30> lunarDays{};    // likewise
  const char* lunarMonth = nullptr;           // {m} {L}, under the first day of a month
  const char* lunarLeapMonth = nullptr;       // {m} {L}
  const char* lunarDay = nullptr;             // {d} {D}, under any other day
  const char* lunarMonthBrief = nullptr;      // {m} {L}, the three in at most five cells
  const char* lunarLeapMonthBrief = nullptr;  // {m} {L}
  const char* lunarDayBrief = nullptr;        // {d} {D}
  const char* lunarDate = nullptr;            // {y} {m} {d} {L} {D}
  const char* lunarLeapDate = nullptr;        // {y} {m} {d} {L} {D}
  const char* lunarBirthday = nullptr;        // {m} {d} {L} {D}
  const char* lunarLeapBirthday = nullptr;    // {m} {d} {L} {D}
  const char* birthdayYears = nullptr;        // {c}

  const char* weekHeading = nullptr;
  const char* week = nullptr;
  const char* dayOfYear = nullptr;
  const char* dayOfYearValue = nullptr;  // {d} {c}
  const char* lunarDateLabel = nullptr;
  const char* newMoon = nullptr;
  const char* solarTerm = nullptr;
  const char* festivals = nullptr;
  const char* notCertain = nullptr;
  const char* byEngine = nullptr;
  const char* byAlmanac = nullptr;
  const char* fromToday = nullptr;
  const char* today = nullptr;
  const char* tomorrow = nullptr;
  const char* yesterday = nullptr;
  const char* inDays = nullptr;   // {c}
  const char* daysAgo = nullptr;  // {c}

  // Of the full screen.
  const char* hint = nullptr;  // "? help  q quit", with these keys
  const char* goTo = nullptr;  // before what the user types
  const char* notADate = nullptr;
  const char* arrangement = nullptr;  // {a}, the word for it on the command line
  const char* firstDay = nullptr;     // {w}
  const char* rows = nullptr;         // {c}
  const char* rowsNotHere = nullptr;
  const char* calendarBegins = nullptr;
  const char* calendarEnds = nullptr;
  const char* clockOutside = nullptr;
  const char* arrowKeys = nullptr;
  const char* mouse = nullptr;
  std::array<const char*, kHelpLines> help{};  // what the keys do, in the order of the help
};

// Each in a file of its own under languages/, label by label.
Texts TextsEnglish();
Texts TextsChineseSimplified();
Texts TextsChineseTraditional();
Texts TextsKorean();
Texts TextsJapanese();
Texts TextsVietnamese();
Texts TextsGerman();
Texts TextsRussian();
Texts TextsThai();

// English where the terminal cannot show the region's own language.
Texts TextsFor(ELanguage region, bool utf8);

// A day of the week from 0, Sunday, and a month from 1.
const char* Weekday(const Texts& texts, ECalendarWeek day);
const char* NarrowWeekday(const Texts& texts, ECalendarWeek day);
const char* Month(const Texts& texts, int month);
const char* MonthInDate(const Texts& texts, int month);
const char* ShortMonth(const Texts& texts, int month);

// "Saturday, 10 February 2024"
std::string FullDateText(const Texts& texts, CivilDate date);

// "Feb 10", "Feb  4"
std::string DayOfMonthText(const Texts& texts, CivilDate date);

// "February 2024", "February - March 2024" or "December 2023 - January 2024"
std::string MonthsText(const Texts& texts, CivilDate first, CivilDate last);

// The same with the short names of the months: "Feb - Mar 2024".
std::string MonthsTextBrief(const Texts& texts, CivilDate first, CivilDate last);

// "41 of 366"
std::string DayOfYearText(const Texts& texts, CivilDate date);

// "in 12 days"
std::string FromTodayText(const Texts& texts, int days);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TEXTS_H_
