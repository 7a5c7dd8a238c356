// SPDX-License-Identifier: MIT
// The words of the calendar in the languages that the viewer speaks.
#pragma once

#include <almara/almara_types.h>

#include <string>

#include "civil_date.h"
#include "text_language.h"

namespace viewer {

// One language's words. In the patterns {y} stands for the year, {m} for the number of the month,
// {M} for its name, {S} for its short name, {d} for the day and {w} for the day of the week; {n}
// and {N} are the number and the name of a second month and {z} its year. Of a lunar date, {L} is
// the name of the month and {D} that of the day. {c} is a count.
struct Texts {
  TextLanguage language;

  const char* weekdays[7];  // short, from Sunday
  const char* longWeekdays[7];
  const char* months[12];
  const char* shortMonths[12];

  const char* fullDate;     // {y} {m} {M} {d} {w}
  const char* dayOfMonth;   // {S} {d}, in a list of names
  const char* title;        // {y} {m} {M}
  const char* titleMonths;  // {y} {m} {M} {n} {N}, two months of one year
  const char* titleYears;   // {y} {m} {M} {n} {N} {z}, months of two years

  const char* const* lunarMonths;  // 12 names, or null where numbers are used
  const char* const* lunarDays;    // 30 names, or null
  const char* lunarMonth;          // {m} {L}, under the first day of a month
  const char* lunarLeapMonth;      // {m} {L}
  const char* lunarDay;            // {d} {D}, under any other day
  const char* lunarDate;           // {y} {m} {d} {L} {D}
  const char* lunarLeapDate;       // {y} {m} {d} {L} {D}

  const char* weekHeading;
  const char* week;
  const char* dayOfYear;
  const char* dayOfYearValue;  // {d} {c}
  const char* lunarDateLabel;
  const char* solarTerm;
  const char* festivals;
  const char* fromToday;
  const char* today;
  const char* tomorrow;
  const char* yesterday;
  const char* inDays;   // {c}
  const char* daysAgo;  // {c}
};

// English where the terminal cannot show the region's own language.
const Texts& textsFor(ELanguage region, bool utf8);

// "Saturday, 10 February 2024"
std::string fullDateText(const Texts& texts, CivilDate date);

// "Feb 10", "Feb  4"
std::string dayOfMonthText(const Texts& texts, CivilDate date);

// "February 2024", "February - March 2024" or "December 2023 - January 2024"
std::string monthsText(const Texts& texts, CivilDate first, CivilDate last);

// "41 of 366"
std::string dayOfYearText(const Texts& texts, CivilDate date);

// "in 12 days"
std::string fromTodayText(const Texts& texts, int days);

}  // namespace viewer
