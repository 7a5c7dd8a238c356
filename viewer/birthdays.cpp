// SPDX-License-Identifier: MIT
#include "birthdays.h"

#include <algorithm>

#include "annotations.h"
#include "board_snapshot.h"
#include "day_instants.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

Anniversary AnniversaryOn(EAlmanacCalendar calendar, const LunarBirthday& birthday,
                          CivilDate date) {
  const CCalendarLunarDate lunar = AlmanacLunarDate(calendar, SolarDate(date));
  const int years = birthday.date.year != 0 ? lunar.year - birthday.date.year : 0;
  return {date, lunar, years, IsMonthCertain(calendar, lunar)};
}

// "2026-09-25 Fri  in 308 days  day 15 of month 8, 2026  42 years"
Line AnniversaryLine(const Anniversary& day, const std::string& fromToday, int fromTodayWidth,
                     const Texts& texts) {
  Line line = {{"  " + IsoText(day.date) + " " + Weekday(texts, DayOfWeek(day.date)) + "  "},
               {Fit(fromToday, fromTodayWidth, "") + "  ", Role::kHint},
               {LunarDateText(texts, day.lunar), Role::kLunarDay}};
  if (day.years > 0) {
    line.push_back({"  " + FillPattern(texts.birthdayYears, {{'c', std::to_string(day.years)}})});
  }
  if (!day.certain) {
    line.push_back({"  (" + std::string(texts.notCertain) + ")", Role::kHint});
  }
  return line;
}

}  // namespace

std::optional<Anniversary> BirthOf(EAlmanacCalendar calendar, const LunarBirthday& birthday) {
  const CivilDate date = DateOf(AlmanacSolarDate(calendar, birthday.date));
  return date.year != 0 ? std::optional(AnniversaryOn(calendar, birthday, date)) : std::nullopt;
}

std::vector<Anniversary> AnniversariesOf(EAlmanacCalendar calendar, const LunarBirthday& birthday,
                                         CivilDate first, CivilDate last, int most) {
  const std::optional<Anniversary> birth = BirthOf(calendar, birthday);
  CivilDate from = birth ? std::max(first, birth->date) : first;
  std::vector<Anniversary> days;
  while (static_cast<int>(days.size()) < most) {
    const CivilDate date = DateOf(AlmanacNextAnniversary(calendar, birthday.date, SolarDate(from),
                                                         eAlmanacAnniversaryEveryYear));
    if (date.year == 0 || last < date) {
      break;
    }
    days.push_back(AnniversaryOn(calendar, birthday, date));
    from = FromDayNumber(DayNumber(date) + 1);
  }
  return days;
}

std::vector<Line> BirthdayLines(const BirthdayReport& report, const Texts& texts) {
  std::vector<std::string> fromToday;
  int width = 0;
  for (const Anniversary& day : report.days) {
    fromToday.push_back(FromTodayText(texts, DayNumber(day.date) - DayNumber(report.today)));
    width = std::max(width, DisplayWidth(fromToday.back()));
  }
  std::vector<Line> lines = {{{LunarDateText(texts, report.birthday.date), Role::kTitle}}};
  for (std::size_t index = 0; index < report.days.size(); ++index) {
    lines.push_back(AnniversaryLine(report.days[index], fromToday[index], width, texts));
  }
  return lines;
}

}  // namespace almara::viewer
