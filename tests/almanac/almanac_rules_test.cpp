// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>

#include "almanac/calendar.h"
#include "almanac/certainty.h"
#include "date/civil_day.h"

namespace {

std::size_t g_allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++g_allocations;
  if (void* const memory = std::malloc(size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace almara {

namespace {

TEST(CivilDay, CountsEveryDayOnce) {
  static_assert(DayNumber(1, 1, 1) == 1);
  static_assert(DayNumber(1970, 1, 1) == 719163);  // 719162 days from 0001-01-01
  int number = 1;
  for (int year = 1; year <= 2401; ++year) {
    for (int month = 1; month <= kMonthsOfYear; ++month) {
      for (int day = 1; day <= DaysOfMonth(year, month); ++day, ++number) {
        ASSERT_EQ(DayNumber(year, month, day), number);
        const CCalendarSolarDate date = DateOfDayNumber(number);
        ASSERT_TRUE(date.year == year && date.month == month && date.day == day);
        ASSERT_EQ(date.dayOfWeek, number % kDaysOfWeek);
      }
    }
  }
  EXPECT_EQ(DateOfDayNumber(DayNumber(2024, 2, 10)).dayOfWeek, eCalendarWeekSaturday);
}

// What the compiler reckoned is what the processor reckons.
TEST(AlmanacCalendar, YearsAreReckonedAlikeAtCompileTime) {
  for (EAlmanacCalendar calendar = eAlmanacChina; calendar <= eAlmanacJapan; ++calendar) {
    const Calendar found = *CalendarOf(calendar);
    for (int year = kFirstSolstice; year <= kLastSolstice; ++year) {
      const SolsticeYear kept = SolsticeYearFrom(found, year);
      const SolsticeYear reckoned = ReckonSolsticeYear(found.reckoning, year);
      ASSERT_EQ(kept.firstDay, reckoned.firstDay);
      ASSERT_EQ(kept.firstNewMoon, reckoned.firstNewMoon);
      ASSERT_EQ(kept.longMonths, reckoned.longMonths);
      ASSERT_EQ(kept.leapPlace, reckoned.leapPlace);
    }
  }
}

// No instant lies where a change of the clocks shows a time twice, or none, so that its day does
// not hang on which of the two is taken.
TEST(AlmanacCalendar, NoInstantIsNearAChangeOfTheClocks) {
  constexpr std::int64_t kDay = kSecondsOfDay;
  for (EAlmanacCalendar calendar = eAlmanacChina; calendar <= eAlmanacJapan; ++calendar) {
    const Reckoning reckoning = CalendarOf(calendar)->reckoning;
    for (const std::int64_t change : reckoning.changes) {
      for (int k = 0; k < kNewMoons; ++k) {
        ASSERT_TRUE(NewMoon(k) < change - kDay / 12 || NewMoon(k) - kDay / 12 > change);
      }
      for (int year = kFirstTermYear; year < kFirstTermYear + kTermYears; ++year) {
        for (int term = 0; term < kTermsOfYear; ++term) {
          const std::int64_t instant = SolarTerm(year, term);
          ASSERT_TRUE(instant < change - kDay / 12 || instant - kDay / 12 > change);
        }
      }
    }
  }
}

// Three standard errors of 365.25 * N * sqrt(N * 0.058 / 3 * (1 + N / 2500)) / 1000 seconds, N
// years after 2022, upward to whole seconds: 0.15, 31.8 and 137.1 for N = 1, 35 and 77.
TEST(AlmanacCertainty, GrowsFromTheLastYearMeasured) {
  EXPECT_EQ(UncertaintyInYear(1900, kErrorOfTerms), 4);
  EXPECT_EQ(UncertaintyInYear(1900, kErrorOfNewMoons), 7);
  EXPECT_EQ(UncertaintyInYear(2022, kErrorOfNewMoons), 7);
  EXPECT_EQ(UncertaintyInYear(2023, kErrorOfNewMoons), 8);
  EXPECT_EQ(UncertaintyInYear(2057, kErrorOfNewMoons), 39);
  EXPECT_EQ(UncertaintyInYear(2099, kErrorOfTerms), 4 + 105);
}

TEST(AlmanacCertainty, EndsWhereMidnightIsAsNear) {
  EXPECT_FALSE(IsDayCertain(0, 4));
  EXPECT_FALSE(IsDayCertain(3, 4));
  EXPECT_TRUE(IsDayCertain(4, 4));
  EXPECT_TRUE(IsDayCertain(86395, 4));  // within 4 to 5 seconds of midnight
  EXPECT_FALSE(IsDayCertain(86396, 4));
  EXPECT_FALSE(IsDayCertain(86399, 4));
}

TEST(Almanac, AllocatesNothing) {
  const std::size_t before = g_allocations;
  for (const EAlmanacCalendar calendar : {EAlmanacCalendar{eAlmanacChina}, CalendarAtOffset(345)}) {
    const CCalendarLunarDate lunar = AlmanacLunarDate(calendar, {2024, 2, 10, 0});
    AlmanacSolarDate(calendar, lunar);
    AlmanacFirstDayOfYear(calendar, 2024);
    AlmanacDaysOfYear(calendar, 2024);
    AlmanacMonthsOfYear(calendar, 2024);
    AlmanacLeapMonth(calendar, 2023);
    AlmanacDaysOfMonth(calendar, 2024, 1, 0);
    AlmanacNextAnniversary(calendar, lunar, {2024, 3, 1, 0}, eAlmanacAnniversaryEveryYear);
    AlmanacTermOfDate(calendar, {2024, 6, 21, 0});
    AlmanacTermInstant(calendar, 2024, eSekkiSpringEquinox);
    AlmanacNewMoonOfYear(calendar, 2024, 0);
    AlmanacNewMoonOfMonth(calendar, 2024, 1, 0);
    AlmanacLunarFestival(calendar, eLanguageChs, {2024, 2, 9, 0});
  }
  EXPECT_EQ(g_allocations, before);
}

}  // namespace

}  // namespace almara
