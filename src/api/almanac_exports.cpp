// SPDX-License-Identifier: MIT
//
// The exported almanac. Each function finds the reckoning of its calendar, or gives its fallback
// where the calendar is none.
#include <almara/almanac.h>

#include "almanac/anniversary.h"
#include "almanac/festival_of_date.h"
#include "almanac/instant_record.h"
#include "almanac/lunar_date.h"

namespace {

using almara::CalendarOf;

CCalendarSolarDate DateOrNone(int day) {
  return day != 0 ? almara::DateOfDayNumber(day) : CCalendarSolarDate{};
}

}  // namespace

EAlmanacCalendar AlmanacCalendarAtOffset(std::int32_t minutes) {
  return almara::CalendarAtOffset(minutes);
}

EAlmanacCalendar AlmanacCalendarOfLanguage(ELanguage language) {
  switch (language) {
    case eLanguageKor:
      return eAlmanacKorea;
    case eLanguageJpn:
      return eAlmanacJapan;
    case eLanguageVit:
      return eAlmanacVietnam;
    default:
      return eAlmanacChina;
  }
}

CCalendarLunarDate AlmanacLunarDate(EAlmanacCalendar calendar, CCalendarSolarDate date) {
  const auto found = CalendarOf(calendar);
  return found ? almara::LunarDateOf(*found, date) : CCalendarLunarDate{};
}

CCalendarSolarDate AlmanacSolarDate(EAlmanacCalendar calendar, CCalendarLunarDate date) {
  const auto found = CalendarOf(calendar);
  return found ? DateOrNone(almara::DayOf(*found, date)) : CCalendarSolarDate{};
}

CCalendarSolarDate AlmanacFirstDayOfYear(EAlmanacCalendar calendar, std::int32_t year) {
  return AlmanacSolarDate(calendar, {year, 1, 1, 0, 0});
}

std::int32_t AlmanacDaysOfYear(EAlmanacCalendar calendar, std::int32_t year) {
  const auto found = CalendarOf(calendar);
  return found && almara::IsAlmanacYear(year)
             ? FindMonth(*found, year + 1, 1, 0)->firstDay - FindMonth(*found, year, 1, 0)->firstDay
             : 0;
}

std::int32_t AlmanacMonthsOfYear(EAlmanacCalendar calendar, std::int32_t year) {
  const auto found = CalendarOf(calendar);
  return found && almara::IsAlmanacYear(year)
             ? FindMonth(*found, year + 1, 1, 0)->newMoon - FindMonth(*found, year, 1, 0)->newMoon
             : 0;
}

std::int32_t AlmanacLeapMonth(EAlmanacCalendar calendar, std::int32_t year) {
  const auto found = CalendarOf(calendar);
  return found && almara::IsAlmanacYear(year) ? almara::LeapMonthOfYear(*found, year) : 0;
}

std::int32_t AlmanacDaysOfMonth(EAlmanacCalendar calendar, std::int32_t year, std::int32_t month,
                                std::int32_t leap) {
  const auto found = CalendarOf(calendar);
  const auto lunarMonth = found ? FindAlmanacMonth(*found, year, month, leap) : std::nullopt;
  return lunarMonth ? lunarMonth->days : 0;
}

CCalendarSolarDate AlmanacNextAnniversary(EAlmanacCalendar calendar, CCalendarLunarDate date,
                                          CCalendarSolarDate from, EAlmanacAnniversary rules) {
  const auto found = CalendarOf(calendar);
  return found ? DateOrNone(almara::NextAnniversary(*found, date, from, rules))
               : CCalendarSolarDate{};
}

ESolarKyureki24 AlmanacTermOfDate(EAlmanacCalendar calendar, CCalendarSolarDate date) {
  const auto found = CalendarOf(calendar);
  return found ? almara::TermOfDate(*found, date) : eSekkiNone;
}

AlmanacInstant AlmanacTermInstant(EAlmanacCalendar calendar, std::int32_t year,
                                  ESolarKyureki24 term) {
  const auto found = CalendarOf(calendar);
  return found ? almara::TermInstant(*found, year, term) : AlmanacInstant{};
}

AlmanacInstant AlmanacNewMoonOfYear(EAlmanacCalendar calendar, std::int32_t year,
                                    std::int32_t index) {
  const auto found = CalendarOf(calendar);
  return found ? almara::NewMoonOfYear(*found, year, index) : AlmanacInstant{};
}

AlmanacInstant AlmanacNewMoonOfMonth(EAlmanacCalendar calendar, std::int32_t year,
                                     std::int32_t month, std::int32_t leap) {
  const auto found = CalendarOf(calendar);
  const auto lunarMonth = found ? FindAlmanacMonth(*found, year, month, leap) : std::nullopt;
  return lunarMonth ? almara::NewMoonInstant(*found, lunarMonth->newMoon) : AlmanacInstant{};
}

EFestivalLunar AlmanacLunarFestival(EAlmanacCalendar calendar, ELanguage language,
                                    CCalendarSolarDate date) {
  const auto found = CalendarOf(calendar);
  return found ? almara::FestivalOfDate(*found, language, date) : eFestivalLunarNone;
}
