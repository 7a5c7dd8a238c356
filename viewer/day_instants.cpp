// SPDX-License-Identifier: MIT
#include "day_instants.h"

#include <cstdio>
#include <cstdlib>

namespace almara::viewer {
namespace {

std::optional<AlmanacInstant> IfKnown(const AlmanacInstant& instant) {
  return instant.year != 0 ? std::optional(instant) : std::nullopt;
}

CivilDate DateOf(const AlmanacInstant& instant) {
  return {instant.year, instant.month, instant.day};
}

// Whether the instant, not being certain, may fall on the date.
bool MayFallOn(const AlmanacInstant& instant, CivilDate date) {
  const CivilDate likely = DateOf(instant);
  return date == likely || date == FromDayNumber(DayNumber(likely) + (instant.hour < 12 ? -1 : 1));
}

std::optional<AlmanacInstant> NewMoonOf(EAlmanacCalendar calendar,
                                        const CCalendarLunarDate& lunar) {
  return IfKnown(AlmanacNewMoonOfMonth(calendar, lunar.year, lunar.month, lunar.leap));
}

// The days of a month are in doubt with the new moon that begins it, its last day also with the one
// that ends it.
std::optional<AlmanacInstant> DoubtfulMoon(EAlmanacCalendar calendar, CivilDate date) {
  const CivilDate tomorrow = FromDayNumber(DayNumber(date) + 1);
  for (const CivilDate day : {date, tomorrow}) {
    const auto moon = NewMoonOf(calendar, AlmanacLunarDate(calendar, SolarDate(day)));
    if (moon && moon->certain == 0 && (day == date || MayFallOn(*moon, date))) {
      return moon;
    }
  }
  return std::nullopt;
}

std::optional<DayInstants::DoubtfulTerm> DoubtfulTermOf(EAlmanacCalendar calendar, CivilDate date) {
  for (const int distance : {0, -1, 1}) {
    const CivilDate day = FromDayNumber(DayNumber(date) + distance);
    const ESolarKyureki24 term = AlmanacTermOfDate(calendar, SolarDate(day));
    const AlmanacInstant instant = AlmanacTermInstant(calendar, day.year, term);
    if (term != eSekkiNone && instant.certain == 0 && MayFallOn(instant, date)) {
      return DayInstants::DoubtfulTerm{term, instant};
    }
  }
  return std::nullopt;
}

// "UTC+8", "UTC-9:30", "UTC+7:45:40"
std::string OffsetText(int offset) {
  const int seconds = std::abs(offset);
  char text[32];
  std::snprintf(text, sizeof text, "UTC%c%d", offset < 0 ? '-' : '+', seconds / 3600);
  std::string result = text;
  if (seconds % 3600 != 0) {
    std::snprintf(text, sizeof text, ":%02d", seconds / 60 % 60);
    result += text;
  }
  if (seconds % 60 != 0) {
    std::snprintf(text, sizeof text, ":%02d", seconds % 60);
    result += text;
  }
  return result;
}

}  // namespace

DayInstants InstantsOf(EAlmanacCalendar calendar, CivilDate date) {
  const CCalendarSolarDate day = SolarDate(date);
  const ESolarKyureki24 term = AlmanacTermOfDate(calendar, day);
  return {NewMoonOf(calendar, AlmanacLunarDate(calendar, day)),
          IfKnown(AlmanacTermInstant(calendar, date.year, term)), DoubtfulMoon(calendar, date),
          DoubtfulTermOf(calendar, date)};
}

bool IsMonthCertain(EAlmanacCalendar calendar, const CCalendarLunarDate& lunar) {
  const std::optional<AlmanacInstant> moon = NewMoonOf(calendar, lunar);
  return !moon || moon->certain != 0;
}

std::string TimeText(const AlmanacInstant& instant) {
  char text[40];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d ", instant.hour, instant.minute, instant.second);
  return text + OffsetText(instant.offset);
}

std::string InstantText(const AlmanacInstant& instant) {
  return IsoText(DateOf(instant)) + " " + TimeText(instant);
}

std::string DoubtText(const AlmanacInstant& instant) {
  return InstantText(instant) + " (+/- " + std::to_string(instant.uncertainty) + " s)";
}

}  // namespace almara::viewer
