// SPDX-License-Identifier: MIT
//
// Civil days are the days that local time counts in UTC, for every int and in every zone.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <random>
#include <vector>

#include "board/calendar_week_number.h"
#include "date/day_run.h"
#include "festival/calendar_festival_function.h"
#include "support/zone.h"

using almara::DayCounting;
using almara::DayRun;
using almara::test::ScopedZone;

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

struct Question {
  int year;
  int month;
  int day;
  int offset;
};

std::ostream& operator<<(std::ostream& out, const Question& q) {
  return out << q.year << '-' << q.month << '-' << q.day << " and " << q.offset << " days";
}

struct Answer {
  bool found;
  CCalendarSolarDate date{7, 7, 7, 7};  // stays where nothing is found
};

bool operator==(const Answer& a, const Answer& b) {
  return a.found == b.found && a.date.year == b.date.year && a.date.month == b.date.month &&
         a.date.day == b.date.day && a.date.dayOfWeek == b.date.dayOfWeek;
}

std::ostream& operator<<(std::ostream& out, const Answer& a) {
  return out << (a.found ? "" : "none, ") << a.date.year << '-' << a.date.month << '-' << a.date.day
             << ", day of week " << a.date.dayOfWeek;
}

Answer Ask(const Question& q, DayCounting counting) {
  Answer answer{};
  answer.found = DayRun(q.year, q.month, q.day, counting).DateAt(q.offset, answer.date);
  return answer;
}

// Near the limits of each field, of the 32-bit seconds, and of the years that the system can tell.
const std::vector<int> kYears{
    kMin, kMin + 1, kMin + 1899, kMin + 1900, kMin + 1901, kMin + 1902, -400, -1,
    0,    1,        1899,        1900,        1969,        1970,        2000, 2024,
    2099, 2100,     kMax - 1901, kMax - 1900, kMax - 1,    kMax};
const std::vector<int> kMonths{kMin, kMin + 1, -12, -1, 0, 1, 2, 3, 12, 13, 25, kMax - 1, kMax};
const std::vector<int> kDays{kMin, kMin + 1, -366, -1, 0, 1, 28, 29, 30, 31, 32, 366, kMax};
const std::vector<int> kOffsets{kMin,  -49711, -24856, -24855, -1,    0,   1,
                                24855, 24856,  24857,  49710,  49711, kMax};

TEST(CivilDays, AreThoseOfLocalTimeInUtcAtTheLimits) {
  const ScopedZone zone("UTC");
  for (const int year : kYears) {
    for (const int month : kMonths) {
      for (const int day : kDays) {
        for (const int offset : kOffsets) {
          const Question q{year, month, day, offset};
          ASSERT_EQ(Ask(q, DayCounting::kCivil), Ask(q, DayCounting::kLocalTime)) << q;
        }
      }
    }
  }
}

TEST(CivilDays, AreThoseOfLocalTimeInUtcForAnyInt) {
  const ScopedZone zone("UTC");
  std::mt19937 random(20241121);
  std::uniform_int_distribution<int> any(kMin, kMax);
  std::uniform_int_distribution<int> year(1890, 2110);
  std::uniform_int_distribution<int> near(-40, 80);
  for (int i = 0; i < 200000; ++i) {
    const Question q{
        i % 2 == 0 ? year(random) : any(random), i % 3 == 0 ? any(random) : near(random),
        i % 5 == 0 ? any(random) : near(random), i % 7 == 0 ? any(random) : near(random)};
    ASSERT_EQ(Ask(q, DayCounting::kCivil), Ask(q, DayCounting::kLocalTime)) << q;
  }
}

TEST(CivilDays, AskNoZone) {
  const Question questions[] = {{2024, 1, 15, 0}, {2011, 12, 30, 0}, {1972, 10, 1, 5}};
  for (const Question& q : questions) {
    const Answer expected = Ask(q, DayCounting::kCivil);
    for (const char* name : {"Europe/Dublin", "Pacific/Apia", "America/Asuncion", "right/UTC"}) {
      const ScopedZone zone(name);
      EXPECT_EQ(Ask(q, DayCounting::kCivil), expected) << name << ' ' << q;
    }
  }
}

TEST(CivilDays, WeeksFrom1JanuaryAreThoseOfUtc) {
  const ScopedZone zone("UTC");
  const CCalendarWeekNumber weeks;
  for (int year = 1899; year <= 2100; ++year) {
    for (int month = 0; month <= 13; ++month) {
      for (int day = 0; day <= 32; ++day) {
        ASSERT_EQ(weeks._GetWeekOfYear(year, month, day, DayCounting::kCivil),
                  weeks._GetWeekOfYear(year, month, day, DayCounting::kLocalTime))
            << year << '-' << month << '-' << day;
      }
    }
  }
}

TEST(CivilDays, WeekdaysOfMonthsAreThoseOfUtc) {
  const ScopedZone zone("UTC");
  const auto day = CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth;
  for (int year = 1900; year <= 2099; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int n = 0; n <= 6; ++n) {
        const int weekday = (year + month + n) % 8;
        ASSERT_EQ(day(year, month, n, weekday, DayCounting::kCivil),
                  day(year, month, n, weekday, DayCounting::kLocalTime))
            << year << '-' << month << ' ' << n << ' ' << weekday;
      }
    }
  }
}

}  // namespace
