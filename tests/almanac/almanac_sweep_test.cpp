// SPDX-License-Identifier: MIT
//
// Every day of 1900 to 2099, every month and every term, in the four calendars and at the widest
// offsets.
#include <almara/almanac.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "yardstick/days.h"

namespace {

class EveryCalendar : public testing::TestWithParam<EAlmanacCalendar> {};

const EAlmanacCalendar kCalendars[] = {
    eAlmanacChina,
    eAlmanacKorea,
    eAlmanacVietnam,
    eAlmanacJapan,
    AlmanacCalendarAtOffset(0),
    AlmanacCalendarAtOffset(-1080),
    AlmanacCalendarAtOffset(1080),
    AlmanacCalendarAtOffset(345),
};

auto Key(const CCalendarSolarDate& date) { return std::tuple(date.year, date.month, date.day); }

auto Key(const AlmanacInstant& instant) {
  return std::tuple(instant.year, instant.month, instant.day, instant.hour, instant.minute,
                    instant.second);
}

// Walks the lunar days beside the Gregorian ones: each follows the one before by the lengths and
// leap months that the almanac tells, and leads back to its date and day of the week.
TEST_P(EveryCalendar, DaysFollowEachOtherAndLeadBack) {
  const auto days = almara::test::DaysOfYears(1900, 2099);
  CCalendarLunarDate expected = AlmanacLunarDate(GetParam(), days.front());
  int dayOfWeek = eCalendarWeekMonday;
  for (const CCalendarSolarDate& day : days) {
    const CCalendarLunarDate lunar = AlmanacLunarDate(GetParam(), day);
    ASSERT_EQ(
        std::tie(lunar.year, lunar.month, lunar.leap, lunar.day, lunar.reserved),
        std::tie(expected.year, expected.month, expected.leap, expected.day, expected.reserved))
        << day.year << '-' << day.month << '-' << day.day;
    const CCalendarSolarDate back = AlmanacSolarDate(GetParam(), lunar);
    ASSERT_EQ(Key(back), Key(day));
    ASSERT_EQ(back.dayOfWeek, dayOfWeek);

    dayOfWeek = (dayOfWeek + 1) % 7;
    if (++expected.day > AlmanacDaysOfMonth(GetParam(), lunar.year, lunar.month, lunar.leap)) {
      const bool leapFollows =
          lunar.leap == 0 && AlmanacLeapMonth(GetParam(), lunar.year) == lunar.month;
      const bool newYear = lunar.month == 12 && !leapFollows;
      expected = {newYear ? lunar.year + 1 : lunar.year,
                  leapFollows ? lunar.month : lunar.month % 12 + 1, 1, 0, leapFollows ? 1 : 0};
    }
  }
}

TEST_P(EveryCalendar, EachLunarDateThatExistsHasOneDay) {
  int found = 0;
  for (int year = 1898; year <= 2101; ++year) {
    for (int month = 0; month <= 13; ++month) {
      for (int leap = 0; leap <= 1; ++leap) {
        for (int day = 0; day <= 31; ++day) {
          found += AlmanacSolarDate(GetParam(), {year, month, day, 0, leap}).year != 0 ? 1 : 0;
        }
      }
    }
  }
  EXPECT_EQ(found, 73049);
}

TEST_P(EveryCalendar, YearsAreTheSumOfTheirMonths) {
  for (int year = 1900; year <= 2099; ++year) {
    int days = 0;
    int months = 0;
    for (int month = 1; month <= 12; ++month) {
      for (int leap = 0; leap <= 1; ++leap) {
        const int length = AlmanacDaysOfMonth(GetParam(), year, month, leap);
        ASSERT_TRUE(length == 29 || length == 30 || (length == 0 && leap == 1)) << year;
        ASSERT_EQ(length != 0, leap == 0 || AlmanacLeapMonth(GetParam(), year) == month) << year;
        days += length;
        months += length != 0 ? 1 : 0;
      }
    }
    ASSERT_EQ(AlmanacDaysOfYear(GetParam(), year), days);
    ASSERT_EQ(AlmanacMonthsOfYear(GetParam(), year), months);
    ASSERT_EQ(months, AlmanacLeapMonth(GetParam(), year) != 0 ? 13 : 12);
  }
}

TEST_P(EveryCalendar, TermsAreInOrderAndOnTheirDays) {
  AlmanacInstant last{};
  int terms = 0;
  for (int year = 1900; year <= 2099; ++year) {
    for (int term = 0; term < 24; ++term) {
      const AlmanacInstant instant = AlmanacTermInstant(GetParam(), year, term);
      ASSERT_EQ(instant.year, year);
      ASSERT_LT(Key(last), Key(instant));
      ASSERT_EQ(AlmanacTermOfDate(GetParam(), {instant.year, instant.month, instant.day, 0}), term);
      last = instant;
    }
  }
  for (const CCalendarSolarDate& day : almara::test::DaysOfYears(1900, 2099)) {
    terms += AlmanacTermOfDate(GetParam(), day) != eSekkiNone ? 1 : 0;
  }
  EXPECT_EQ(terms, 4800);
}

// Each lunar month begins on the day of its new moon (the printed one of 1906 a day later), and
// these are the new moons of the Gregorian years.
TEST_P(EveryCalendar, MonthsBeginWithTheirNewMoons) {
  for (int year = 1900; year <= 2099; ++year) {
    int index = 0;
    for (;; ++index) {
      const AlmanacInstant moon = AlmanacNewMoonOfYear(GetParam(), year, index);
      if (moon.year == 0) {
        break;
      }
      const bool printed = std::tuple(moon.year, moon.month, moon.day) == std::tuple(1906, 4, 23) &&
                           (GetParam() == eAlmanacChina || GetParam() == eAlmanacKorea);
      const CCalendarLunarDate lunar =
          AlmanacLunarDate(GetParam(), {moon.year, moon.month, moon.day + (printed ? 1 : 0), 0});
      ASSERT_EQ(lunar.day, 1) << moon.year << '-' << moon.month << '-' << moon.day;
      ASSERT_EQ(Key(AlmanacNewMoonOfMonth(GetParam(), lunar.year, lunar.month, lunar.leap)),
                Key(moon));
    }
    ASSERT_TRUE(index == 12 || index == 13) << year;
  }
}

// Each anniversary of each day of the year is the first one on or after any day before it.
TEST_P(EveryCalendar, AnniversariesComeOnceInEachLunarYear) {
  for (int month = 1; month <= 12; ++month) {
    for (const int day : {1, 15, 29, 30}) {
      CCalendarSolarDate from{1900, 1, 1, 0};
      for (int year = 1900; year <= 2098; ++year) {
        const int length = AlmanacDaysOfMonth(GetParam(), year, month, 0);
        const CCalendarSolarDate expected =
            AlmanacSolarDate(GetParam(), {year, month, std::min(day, length), 0, 0});
        from = AlmanacFirstDayOfYear(GetParam(), year);
        ASSERT_EQ(Key(AlmanacNextAnniversary(GetParam(), {0, month, day, 0, 0}, from, 0)),
                  Key(expected));
        ASSERT_EQ(Key(AlmanacNextAnniversary(GetParam(), {0, month, day, 0, 0}, expected, 0)),
                  Key(expected));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Almanac, EveryCalendar, testing::ValuesIn(kCalendars));

}  // namespace
