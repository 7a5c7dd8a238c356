// SPDX-License-Identifier: MIT
// Days of the lunar calendar that come back every year, and their Gregorian dates.
#ifndef ALMARA_VIEWER_BIRTHDAYS_H_
#define ALMARA_VIEWER_BIRTHDAYS_H_

#include <almara/almanac.h>

#include <optional>
#include <string>
#include <vector>

#include "civil_date.h"
#include "styled_text.h"
#include "texts.h"

namespace almara::viewer {

struct LunarBirthday {
  CCalendarLunarDate date{};  // its year is 0 where none is known
  std::string name;
};

constexpr int kMostAnniversaries = kLastYear - kFirstYear + 2;

struct Anniversary {
  CivilDate date;
  CCalendarLunarDate lunar{};  // of that date: in a year without it not that of the birthday
  int years = 0;               // since the birth; 0 where its year is not known
  bool certain = true;
};

// The day of birth itself. None if the year is not known or does not have the day.
std::optional<Anniversary> BirthOf(EAlmanacCalendar calendar, const LunarBirthday& birthday);

// The anniversaries from one day to another, at most so many, and none before the birth.
std::vector<Anniversary> AnniversariesOf(EAlmanacCalendar calendar, const LunarBirthday& birthday,
                                         CivilDate first, CivilDate last, int most);

// What is known of one birthday.
struct BirthdayReport {
  LunarBirthday birthday;
  CivilDate today;
  std::vector<Anniversary> days;
};
std::vector<Line> BirthdayLines(const BirthdayReport& report, const Texts& texts);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BIRTHDAYS_H_
