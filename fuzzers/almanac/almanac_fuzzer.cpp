// SPDX-License-Identifier: MIT
//
// Every function of the almanac with any int: bounded answers that agree with each other, and each
// term and festival has a name in whatever language.
#include <almara/almanac.h>
#include <almara/almara_names.h>

#include <cstddef>
#include <cstdint>

#include "support/check.h"
#include "support/input.h"

namespace {

using almara::test::Input;

bool IsNone(const CCalendarSolarDate& date) {
  return date.year == 0 && date.month == 0 && date.day == 0 && date.dayOfWeek == 0;
}

bool IsInSpan(const CCalendarSolarDate& date) {
  return date.year >= 1900 && date.year <= 2099 && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= 31 && date.dayOfWeek >= 0 && date.dayOfWeek <= 6;
}

bool IsSame(const CCalendarSolarDate& a, const CCalendarSolarDate& b) {
  return a.year == b.year && a.month == b.month && a.day == b.day;
}

bool IsEarlier(const CCalendarSolarDate& a, const CCalendarSolarDate& b) {
  return a.year != b.year     ? a.year < b.year
         : a.month != b.month ? a.month < b.month
                              : a.day < b.day;
}

void CheckInstant(const AlmanacInstant& instant) {
  if (instant.year == 0) {
    ALMARA_CHECK(instant.month == 0 && instant.day == 0 && instant.offset == 0);
    ALMARA_CHECK(instant.uncertainty == 0 && instant.certain == 0);
    return;
  }
  ALMARA_CHECK(instant.year >= 1899 && instant.year <= 2100);
  ALMARA_CHECK(instant.month >= 1 && instant.month <= 12);
  ALMARA_CHECK(instant.day >= 1 && instant.day <= 31);
  ALMARA_CHECK(instant.dayOfWeek >= 0 && instant.dayOfWeek <= 6);
  ALMARA_CHECK(instant.hour >= 0 && instant.hour <= 23);
  ALMARA_CHECK(instant.minute >= 0 && instant.minute <= 59);
  ALMARA_CHECK(instant.second >= 0 && instant.second <= 59);
  ALMARA_CHECK(instant.offset >= -64800 && instant.offset <= 64800);
  ALMARA_CHECK(instant.uncertainty >= 4 && instant.uncertainty <= 200);
  ALMARA_CHECK(instant.certain == 0 || instant.certain == 1);
}

void CheckNames(ESolarKyureki24 term, std::int32_t festival, ELanguage language) {
  const bool isTerm = term >= 0 && term <= 23;
  ALMARA_CHECK((AlmaraSolarTermName(term, language) != nullptr) == isTerm);
  ALMARA_CHECK((AlmaraSolarTermBriefName(term, language) != nullptr) == isTerm);
  const char* name = AlmaraFestivalName(festival, language);
  ALMARA_CHECK((AlmaraFestivalBriefName(festival, language) != nullptr) == (name != nullptr));
  ALMARA_CHECK((AlmaraRegionName(term, language) != nullptr) == (term >= 1 && term <= 10));
}

void CheckDate(EAlmanacCalendar calendar, ELanguage language, const CCalendarSolarDate& date) {
  const CCalendarLunarDate lunar = AlmanacLunarDate(calendar, date);
  const CCalendarSolarDate back = AlmanacSolarDate(calendar, lunar);
  const ESolarKyureki24 term = AlmanacTermOfDate(calendar, date);
  const EFestivalLunar festival = AlmanacLunarFestival(calendar, language, date);
  ALMARA_CHECK(term >= -1 && term <= 23);
  ALMARA_CHECK(festival == eFestivalLunarNone ||
               (festival >= eFestivalLunarNewYearsDay && festival <= eFestivalLunarHungKings &&
                AlmaraFestivalName(festival, language) != nullptr));
  if (lunar.year == 0) {
    ALMARA_CHECK(IsNone(back) && term == eSekkiNone && festival == eFestivalLunarNone);
    return;
  }
  ALMARA_CHECK(IsSame(back, date) && IsInSpan(back));
  ALMARA_CHECK(lunar.day <= AlmanacDaysOfMonth(calendar, lunar.year, lunar.month, lunar.leap));
  const AlmanacInstant moon = AlmanacNewMoonOfMonth(calendar, lunar.year, lunar.month, lunar.leap);
  ALMARA_CHECK(moon.year == date.year || moon.year == date.year - 1);
}

void CheckLunarDate(EAlmanacCalendar calendar, const CCalendarLunarDate& lunar) {
  const CCalendarSolarDate date = AlmanacSolarDate(calendar, lunar);
  if (IsNone(date)) {
    return;
  }
  ALMARA_CHECK(IsInSpan(date));
  const CCalendarLunarDate back = AlmanacLunarDate(calendar, date);
  ALMARA_CHECK(back.year == lunar.year && back.month == lunar.month && back.day == lunar.day);
  ALMARA_CHECK(back.leap == lunar.leap && back.reserved == 0);
}

void CheckYear(EAlmanacCalendar calendar, std::int32_t year) {
  const std::int32_t months = AlmanacMonthsOfYear(calendar, year);
  const std::int32_t days = AlmanacDaysOfYear(calendar, year);
  const std::int32_t leap = AlmanacLeapMonth(calendar, year);
  ALMARA_CHECK(IsNone(AlmanacFirstDayOfYear(calendar, year)) == (months == 0));
  ALMARA_CHECK(leap >= 0 && leap <= 12);
  ALMARA_CHECK(months == 0 ? days == 0 && leap == 0 : months == (leap != 0 ? 13 : 12));
  ALMARA_CHECK(days == 0 || (days >= 353 && days <= 355) || (days >= 383 && days <= 385));
}

void CheckAnniversary(EAlmanacCalendar calendar, const CCalendarLunarDate& lunar,
                      const CCalendarSolarDate& from, EAlmanacAnniversary rules) {
  const CCalendarSolarDate date = AlmanacNextAnniversary(calendar, lunar, from, rules);
  if (IsNone(date)) {
    return;
  }
  ALMARA_CHECK(IsInSpan(date) && !IsEarlier(date, from));
  const CCalendarLunarDate found = AlmanacLunarDate(calendar, date);
  ALMARA_CHECK(found.month == lunar.month);
  ALMARA_CHECK(found.day == lunar.day || (found.day == 29 && lunar.day == 30));
  ALMARA_CHECK(found.leap == lunar.leap || lunar.leap == 1);
  ALMARA_CHECK((rules & eAlmanacAnniversaryDay30Only) == 0 || found.day == lunar.day);
  ALMARA_CHECK((rules & eAlmanacAnniversaryLeapMonthOnly) == 0 || found.leap == lunar.leap);
}

EAlmanacCalendar CalendarFrom(Input& input) {
  return input.Flag() ? input.About(0, 5) : AlmanacCalendarAtOffset(input.About(-1081, 1081));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) { return 0; }  // the almanac needs no setting up

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  while (!input.IsEmpty()) {
    const EAlmanacCalendar calendar = CalendarFrom(input);
    const std::int32_t year = input.About(1898, 2101);
    const std::int32_t month = input.About(0, 13);
    const std::int32_t day = input.About(0, 32);
    const std::int32_t choice = input.About(-1, 25);  // a term, a leap, an index, rules
    const CCalendarLunarDate lunar{year, month, day, input.Raw(), choice};
    const CCalendarSolarDate from{input.About(1898, 2101), input.About(0, 13), input.About(0, 32),
                                  input.Raw()};
    CheckDate(calendar, choice, {year, month, day, input.Raw()});
    CheckLunarDate(calendar, lunar);
    CheckYear(calendar, year);
    CheckAnniversary(calendar, lunar, from, input.About(0, 3));
    CheckInstant(AlmanacTermInstant(calendar, year, choice));
    CheckInstant(AlmanacNewMoonOfYear(calendar, year, choice));
    CheckInstant(AlmanacNewMoonOfMonth(calendar, year, month, choice));
    const std::int32_t length = AlmanacDaysOfMonth(calendar, year, month, choice);
    ALMARA_CHECK(length == 0 || length == 29 || length == 30);
    AlmanacCalendarOfLanguage(choice);
    CheckNames(choice, lunar.reserved, year);
  }
  return 0;
}
