// SPDX-License-Identifier: MIT
//
// The engine's solar festivals against those of the yardstick, day by day. They follow the
// process's time zone, so this program runs under several.
#include <gtest/gtest.h>

#include "festival/calendar_festival_function.h"
#include "logic/calendar_logic.h"
#include "yardstick/days.h"
#include "yardstick/engine.h"
#include "yardstick/solar_festivals.h"

namespace {

constexpr int kFirstYear = 1799;
constexpr int kLastYear = 2100;

TEST(FestivalIdentity, WeekdaysOfMonths) {
  for (int year = 1899; year <= 2100; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int n = 1; n <= 6; ++n) {
        for (int weekday = 0; weekday <= 6; ++weekday) {
          ASSERT_EQ(CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth(year, month, n, weekday),
                    yardstick::DayByWeekNumberOfMonth(year, month, n, weekday))
              << year << '-' << month << ' ' << n << ' ' << weekday;
        }
      }
    }
  }
}

// In lock-step, because the answers of one region depend on what was asked before.
TEST(FestivalIdentity, SolarFestivals) {
  CCalendarLogic engine;
  yardstick::Engine plain;
  for (const CCalendarSolarDate& day : DaysOfYears(kFirstYear, kLastYear)) {
    for (ELanguage language = -1; language <= 12; ++language) {
      ASSERT_EQ(engine.CheckFestivalSolar(language, day), plain.CheckFestivalSolar(language, day))
          << language << ' ' << day.year << '-' << day.month << '-' << day.day;
    }
  }
}

TEST(FestivalIdentity, SolarFestivalsOfDatesThatDoNotExist) {
  CCalendarLogic engine;
  yardstick::Engine plain;
  for (const int year : {-2147483647 - 1, -1, 0, 13, 20, 31, 1900, 2024, 2100, 2147483647}) {
    for (int month = -1; month <= 13; ++month) {
      for (int day = -1; day <= 33; ++day) {
        for (ELanguage language = 0; language <= 10; ++language) {
          const CCalendarSolarDate date{year, month, day, 0};
          ASSERT_EQ(engine.CheckFestivalSolar(language, date),
                    plain.CheckFestivalSolar(language, date))
              << language << ' ' << year << '-' << month << '-' << day;
        }
      }
    }
  }
}

}  // namespace
