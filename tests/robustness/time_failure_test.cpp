// SPDX-License-Identifier: MIT
//
// The system's time functions fail or yield nothing. This program has its own of each.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <ctime>

#include "date/calendar_platform_api.h"
#include "festival/calendar_festival_function.h"
#include "robustness/failures_to_stderr.h"
#include "support/board.h"
#include "support/capture_stdout.h"

namespace {

enum Fault : unsigned {
  kNone = 0,
  kNoLocalTime = 1,  // localtime() and localtime_r() yield nothing
  kNoInstant = 2,    // mktime() yields -1
  kNoPresent = 4,    // time() yields -1
};

unsigned g_faults = kNone;
constexpr std::time_t kNow = 1710331200;  // 2024-03-13 12:00:00 UTC

template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsFailing(Fault fault) { return (g_faults & fault) != 0; }

}  // namespace

extern "C" std::time_t time(std::time_t* result) noexcept {
  const std::time_t now = IsFailing(kNoPresent) ? -1 : kNow;
  if (result != nullptr) {
    *result = now;
  }
  return now;
}

extern "C" std::tm* localtime(const std::time_t* instant) noexcept {
  return IsFailing(kNoLocalTime) ? nullptr
                                 : Next<std::tm*(const std::time_t*)>("localtime")(instant);
}

extern "C" std::tm* localtime_r(const std::time_t* instant, std::tm* local) noexcept {
  return IsFailing(kNoLocalTime)
             ? nullptr
             : Next<std::tm*(const std::time_t*, std::tm*)>("localtime_r")(instant, local);
}

extern "C" std::time_t mktime(std::tm* local) noexcept {
  return IsFailing(kNoInstant) ? -1 : Next<std::time_t(std::tm*)>("mktime")(local);
}

namespace {

using almara::test::Board;

class TimeFailure : public testing::Test {
 protected:
  TimeFailure() { g_mac_timezone = kTimeZoneUnknown; }
  ~TimeFailure() override { g_faults = kNone; }

  static void ExpectDate(const CCalendarSolarDate& date, int year, int month, int day, int week) {
    EXPECT_EQ(date.year, year);
    EXPECT_EQ(date.month, month);
    EXPECT_EQ(date.day, day);
    EXPECT_EQ(date.dayOfWeek, week);
  }

  almara::test::CaptureStdout m_output;
  Board m_board;
};

TEST_F(TimeFailure, ThePresentIsKnownWhileNothingFails) {
  ExpectDate(m_board.GetToday(), 2024, 3, 13, eCalendarWeekWednesday);
  EXPECT_EQ(g_mac_timezone, 0);
}

TEST_F(TimeFailure, WithoutLocalTimeTodayIsNoDateAndTheZoneStaysUnknown) {
  g_faults = kNoLocalTime;
  ExpectDate(m_board.GetToday(), 0, 0, 0, 0);
  EXPECT_EQ(g_mac_timezone, kTimeZoneUnknown);
}

TEST_F(TimeFailure, WithoutLocalTimeParametersKeepTheirValues) {
  g_faults = kNoLocalTime;
  int year = 1;
  int month = 2;
  int day = 3;
  int week = 4;
  CalendarPlatformApi::GetTodayDate(year, month, day, week);
  CalendarPlatformApi::FixDateAndGetWeek(year, month, day, week);
  EXPECT_TRUE(CalendarPlatformApi::GetNewDateByOffsetDays(2024, 3, 13, 1, year, month, day, week));
  ExpectDate({year, month, day, week}, 1, 2, 3, 4);
  ExpectDate(CalendarPlatformApi::GetNewDateByOffsetDays({2024, 3, 13, 0}, 1), 0, 0, 0, 0);
}

TEST_F(TimeFailure, WithoutLocalTimeTodaysBoardLeavesTheBoardAsItWas) {
  m_board.GotoSpecifiedDate(2023, 5, 17);
  const auto before = m_board.RowTexts();
  g_faults = kNoLocalTime;
  m_board.GotoToday();
  m_board.Build();
  m_board.InitCalendarLogic(eLanguageUsa);
  m_board.GotoTodayOffsetMonth(1);
  EXPECT_EQ(m_board.RowTexts(), before);
  ExpectDate(m_board.GetContentDate(), 2023, 5, 17, 0);
}

TEST_F(TimeFailure, WithoutLocalTimeABoardHoldsItsFocusDateAlone) {
  g_faults = kNoLocalTime;
  for (int mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
    m_board.SetDispMonth(mode);
    m_board.GotoToday();
    m_board.GotoSpecifiedDate(2024, 3, 13);
    int days = 0;
    for (const tagCalendarRow& row : m_board.Rows()) {
      for (const CCalendarItem& cell : row.items) {
        days += cell.GetDate().year != 0 ? 1 : 0;
      }
    }
    EXPECT_EQ(days, 1) << "arrangement " << mode;
    EXPECT_FALSE(m_board.IsTodayInBoard());
    m_board.GotoNextPage();
    m_board.GotoPreviousPage();
  }
}

TEST_F(TimeFailure, TheNextBuildAfterAFailureIsRight) {
  m_board.GotoToday();
  const auto right = m_board.RowTexts();
  g_faults = kNoLocalTime | kNoInstant | kNoPresent;
  m_board.GotoSpecifiedDate(2022, 8, 1);
  g_faults = kNone;
  m_board.GotoToday();
  EXPECT_EQ(m_board.RowTexts(), right);
  EXPECT_TRUE(m_board.IsTodayInBoard());
}

TEST_F(TimeFailure, AnInstantThatCannotBeToldIsTheLastSecondBeforeTheEpoch) {
  g_faults = kNoInstant;
  ExpectDate(CalendarPlatformApi::GetNewDateByOffsetDays({2024, 3, 13, 0}, 0), 1969, 12, 31,
             eCalendarWeekWednesday);
  ExpectDate(CalendarPlatformApi::GetNewDateByOffsetDays({2024, 3, 13, 0}, 1), 1970, 1, 1,
             eCalendarWeekThursday);
}

TEST_F(TimeFailure, WithoutInstantsEveryWeekIsTheFirstOfItsYear) {
  CCalendarWeekNumber weeks;
  g_faults = kNoInstant;
  EXPECT_EQ(weeks._GetWeekOfYear(2024, 11, 20), 1);
  EXPECT_EQ(weeks._GetWeekNumber(2024, 11, 20), 47) << "ISO weeks ask no clock";
}

TEST_F(TimeFailure, WithoutLocalTimeNoWeekdayOfAMonthAndNoGoodFridayIsFound) {
  g_faults = kNoLocalTime;
  EXPECT_EQ(CCalendarFestivalFunction::_GetDayByWeekNumberOfMonth(2024, 5, 2, 0), -1);
  int month = 7;
  int day = 7;
  EXPECT_EQ(CCalendarFestivalFunction::_GetGoodFriday(2024, &month, &day), 1);
  EXPECT_EQ(month, 0);
  EXPECT_EQ(day, 0);
}

TEST_F(TimeFailure, WithoutInstantsBoardsKeepTheirSize) {
  g_faults = kNoInstant;
  for (int mode = eDispMonthRollingWeeks; mode <= eDispMonthDayStrip; ++mode) {
    m_board.SetDispMonth(mode);
    m_board.GotoToday();
    const int rows = m_board.GetContentRows();
    EXPECT_GE(rows, 1);
    EXPECT_LE(rows, 6);
    m_board.GotoNextPage();
    m_board.GotoPreviousPage();
    m_board.GotoTodayOffsetMonth(3);
  }
}

TEST_F(TimeFailure, APresentThatCannotBeToldIsTheLastSecondBeforeTheEpoch) {
  g_faults = kNoPresent;
  ExpectDate(m_board.GetToday(), 1969, 12, 31, eCalendarWeekWednesday);
  m_board.GotoToday();
  ExpectDate(m_board.GetContentDate(), 1969, 12, 31, 0);
}

}  // namespace
