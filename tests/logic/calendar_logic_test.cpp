// SPDX-License-Identifier: MIT
//
// Navigation and queries of the engine.
#include "logic/calendar_logic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <tuple>

#include "date/calendar_platform_api.h"
#include "support/board.h"
#include "support/capture_stdout.h"
#include "support/clock.h"
#include "support/zone.h"

using almara::PageDirection;
using almara::test::Board;
using almara::test::CaptureStdout;
using almara::test::SetNow;
using almara::test::SetToday;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kRolling = eDispMonthRollingWeeks;
constexpr int kTail = eDispMonthRollingTail;
constexpr int kMonth = eDispMonthWholeMonth;
constexpr int kStrip = eDispMonthDayStrip;
constexpr PageDirection kPlain = PageDirection::kNone;
constexpr PageDirection kBackward = PageDirection::kBackward;
constexpr PageDirection kForward = PageDirection::kForward;

std::string Date(const CCalendarSolarDate& d) {
  return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day);
}

class Logic : public testing::Test {
 protected:
  Logic() { SetToday(2024, 3, 13); }

  std::string Focus() const { return Date(m_engine.GetContentDate()); }
  std::string First() const { return Date(m_engine.Built().content.first.GetDate()); }
  std::string Last() const { return Date(m_engine.Built().content.last.GetDate()); }
  PageDirection Direction() const { return m_engine.m_pageDirection; }

  // What was written in front of the text of the board.
  std::string Trace() {
    const std::string text = m_output.Take();
    return text.substr(0, text.find('\n'));
  }

  Board m_engine;
  CaptureStdout m_output;
};

TEST_F(Logic, FreshEngineIsEmpty) {
  EXPECT_EQ(m_engine.GetContentRows(), 0);
  EXPECT_EQ(m_engine.GetContentColumns(), 0);
  EXPECT_EQ(m_engine.GetWeekNumberCount(), 0);
  EXPECT_EQ(Focus(), "0-0-0");
  EXPECT_FALSE(m_engine.IsTodayInBoard());
  EXPECT_EQ(Direction(), kPlain);
  m_engine.Build();
  EXPECT_EQ(Focus(), "2024-3-13");
}

struct LanguageCase {
  int language;
  int zone;  // 0 where the language sets none
};

constexpr LanguageCase kLanguages[] = {
    {eLanguageChs, 8}, {eLanguageKor, 9}, {eLanguageUsa, 0}, {eLanguageCht, 8},
    {eLanguageRus, 0}, {eLanguageJpn, 9}, {eLanguageEng, 0}, {0, 0},
    {-1, 0},           {11, 0},           {kMin, 0},         {kMax, 0}};

TEST_F(Logic, LanguageSetsTheZoneOfFourRegions) {
  for (const LanguageCase& c : kLanguages) {
    g_mac_timezone = 5;
    m_engine.InitCalendarLogic(c.language);
    EXPECT_EQ(g_mac_timezone, c.zone != 0 ? c.zone : 5) << c.language;
  }
}

// Whatever asks for today, or builds a board, which marks today, makes the zone known.
TEST_F(Logic, TheZoneBecomesKnownWithTheFirstToday) {
  const almara::test::ScopedZone zone("NOWHERE-5:45");
  struct {
    void (*call)(Board&);
    int zone;
  } const cases[] = {{[](Board& b) { b.InitCalendarLogic(eLanguageUsa); }, 5},
                     {[](Board& b) { b.Build(); }, 5},
                     {[](Board& b) { b.GotoToday(); }, 5},
                     {[](Board& b) { b.GotoNextPage(); }, 5},
                     {[](Board& b) { b.GotoPreviousPage(); }, 5},
                     {[](Board& b) { b._GotoNextMonth(); }, 5},
                     {[](Board& b) { b._GotoPreviousMonth(); }, 5},
                     {[](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }, 5},
                     {[](Board& b) { b.GotoTodayOffsetMonth(1000000); }, 5},
                     {[](Board& b) { b.GetToday(); }, 5},
                     {[](Board& b) { b.GotoSpecifiedDate(1899, 12, 31); }, kTimeZoneUnknown},
                     {[](Board& b) { b.GetContentDate(); }, kTimeZoneUnknown}};
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    g_mac_timezone = kTimeZoneUnknown;
    cases[i].call(m_engine);
    EXPECT_EQ(g_mac_timezone, cases[i].zone) << i;
  }
}

TEST_F(Logic, TodayKeepsTheZoneThatIsKnown) {
  const almara::test::ScopedZone zone("NOWHERE-1");
  g_mac_timezone = 9;
  m_engine.GetToday();
  m_engine.GotoToday();
  EXPECT_EQ(g_mac_timezone, 9);
}

TEST_F(Logic, InitBuildsTodaysBoardWithoutADirection) {
  m_engine.m_pageDirection = kBackward;
  m_engine.InitCalendarLogic(eLanguageEng);
  EXPECT_EQ(Focus(), "2024-3-13");
  EXPECT_EQ(Direction(), kPlain);
  EXPECT_EQ(m_engine.GetContentRows(), 5);
  EXPECT_EQ(m_engine.GetContentColumns(), 7);
  EXPECT_TRUE(m_engine.IsTodayInBoard());
}

TEST_F(Logic, BuildReturnsToTodayAfterPagingAway) {
  m_engine.GotoToday();
  m_engine.GotoNextPage();
  m_engine.GotoNextPage();
  EXPECT_FALSE(m_engine.IsTodayInBoard());
  m_engine.Build();
  EXPECT_EQ(Focus(), "2024-3-13");
  EXPECT_EQ(Direction(), kPlain);
  EXPECT_TRUE(m_engine.IsTodayInBoard());
}

TEST_F(Logic, BuildReturnsToTodayFromADateThatDiffersInOneField) {
  for (const CCalendarSolarDate& other :
       {CCalendarSolarDate{2023, 3, 13, 0}, {2024, 2, 13, 0}, {2024, 3, 12, 0}}) {
    m_engine.GotoSpecifiedDate(other.year, other.month, other.day);
    m_engine.m_pageDirection = kBackward;
    m_engine.Build();
    EXPECT_EQ(Focus(), "2024-3-13") << Date(other);
    EXPECT_EQ(Direction(), kPlain) << Date(other);
  }
}

TEST_F(Logic, BuildKeepsTheDirectionWhenTheFocusIsToday) {
  m_engine.GotoSpecifiedDate(2024, 6, 1);
  m_engine.GotoSpecifiedDate(2024, 3, 13);  // before the board: its last row
  ASSERT_EQ(Direction(), kBackward);
  m_engine.Build();
  EXPECT_EQ(Direction(), kBackward);
  EXPECT_EQ(Last(), "2024-3-17");
  m_engine.GotoToday();
  EXPECT_EQ(Direction(), kPlain);
  m_engine.Build();
  EXPECT_EQ(Direction(), kPlain);
}

TEST_F(Logic, RollingWeeksPageByTheDaysShown) {
  m_engine.GotoToday();
  ASSERT_EQ(First(), "2024-3-4");
  m_engine.GotoPreviousPage();
  EXPECT_EQ(Focus(), "2024-3-3");
  EXPECT_EQ(Direction(), kBackward);
  EXPECT_EQ(Last(), "2024-3-3");
  EXPECT_EQ(First(), "2024-2-5");
  m_engine.GotoNextPage();
  EXPECT_EQ(Focus(), "2024-3-4");
  EXPECT_EQ(Direction(), kForward);
  EXPECT_EQ(First(), "2024-3-4");
  EXPECT_EQ(Last(), "2024-3-31");  // the fifth row is the band of April
  m_engine.GotoNextPage();
  EXPECT_EQ(First(), "2024-4-1");
}

TEST_F(Logic, PagesOfRollingWeeksFollowEachOtherWithoutGap) {
  for (const int rows : {1, 2, 5, 6, 8}) {
    for (const bool interval : {true, false}) {
      m_engine.SetMaxRows(rows);
      m_engine.SetShowMonthInterval(interval);
      m_engine.GotoToday();
      for (int page = 0; page < 30; ++page) {
        const std::string last = Last();
        if (last == "0-0-0") {
          break;  // a page of one row may be a band without a day
        }
        m_engine.GotoNextPage();
        const CCalendarSolarDate focus = m_engine.GetContentDate();
        EXPECT_EQ(Date(CalendarPlatformApi::GetNewDateByOffsetDays(focus, -1)), last);
      }
    }
  }
}

TEST_F(Logic, StripPagesByItsDays) {
  m_engine.SetDispMonth(kStrip);
  m_engine.GotoToday();
  ASSERT_EQ(First(), "2024-3-10");
  m_engine.GotoPreviousPage();
  EXPECT_EQ(First(), "2024-3-3");
  EXPECT_EQ(Last(), "2024-3-9");
  EXPECT_EQ(Direction(), kBackward);
  m_engine.GotoNextPage();
  EXPECT_EQ(First(), "2024-3-10");
  EXPECT_EQ(Last(), "2024-3-16");
  EXPECT_EQ(Direction(), kForward);
}

TEST_F(Logic, MonthsPageToTheFirstOfTheMonth) {
  struct {
    int year, month, day;
    void (CCalendarLogic::*turn)();
    const char* focus;
  } const cases[] = {{2024, 3, 15, &CCalendarLogic::GotoPreviousPage, "2024-2-1"},
                     {2024, 1, 15, &CCalendarLogic::GotoPreviousPage, "2023-12-1"},
                     {2024, 1, 15, &CCalendarLogic::_GotoPreviousMonth, "2023-12-1"},
                     {2024, 11, 30, &CCalendarLogic::GotoNextPage, "2024-12-1"},
                     {2024, 12, 15, &CCalendarLogic::GotoNextPage, "2025-1-1"},
                     {2024, 12, 15, &CCalendarLogic::_GotoNextMonth, "2025-1-1"}};
  for (const int mode : {kTail, kMonth}) {
    m_engine.SetDispMonth(mode);
    for (const auto& c : cases) {
      m_engine.GotoSpecifiedDate(c.year, c.month, c.day);
      (m_engine.*c.turn)();
      EXPECT_EQ(Focus(), c.focus);
    }
  }
}

// A direction from another arrangement stays in force, and hosts see it: the tail board stays
// empty, and a whole month built backward may lack its first week. GotoSpecifiedDate() is a command
// by months in the whole-month arrangement alone; in the tail one it sets the direction.
TEST_F(Logic, CommandsByMonthsKeepTheDirection) {
  struct {
    int mode;
    void (*call)(Board&);
  } const cases[] = {{kTail, [](Board& b) { b.GotoPreviousPage(); }},
                     {kTail, [](Board& b) { b.GotoNextPage(); }},
                     {kMonth, [](Board& b) { b.GotoPreviousPage(); }},
                     {kMonth, [](Board& b) { b.GotoNextPage(); }},
                     {kMonth, [](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }},
                     {kMonth, [](Board& b) { b.GotoSpecifiedDate(2020, 1, 1); }},
                     {kMonth, [](Board& b) { b.GotoTodayOffsetMonth(3); }}};
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    m_engine.SetDispMonth(cases[i].mode);
    m_engine.GotoToday();
    for (const PageDirection direction : {kPlain, kBackward, kForward}) {
      m_engine.m_pageDirection = direction;
      cases[i].call(m_engine);
      EXPECT_EQ(Direction(), direction) << i;
    }
  }
}

TEST_F(Logic, ModesWithoutABoardPageByDays) {
  for (const int mode : {0, 5, -1, kMin, kMax}) {
    m_engine.SetDispMonth(mode);
    m_engine.GotoToday();
    m_engine.GotoPreviousPage();
    EXPECT_EQ(Direction(), kBackward) << mode;
    m_engine.GotoNextPage();
    EXPECT_EQ(Direction(), kForward) << mode;
  }
}

TEST_F(Logic, RollingTailAfterPagingRollingWeeksHasNoRowsUntilToday) {
  m_engine.GotoToday();
  m_engine.GotoNextPage();
  m_engine.SetDispMonth(kTail);
  m_engine.GotoNextPage();
  EXPECT_EQ(m_engine.GetContentRows(), 0);
  EXPECT_EQ(Focus(), "2024-5-1");
  m_engine.GotoToday();
  EXPECT_EQ(m_engine.GetContentRows(), 5);
}

TEST_F(Logic, PagingAtTheEndsOfTheYearsLeavesTheBoard) {
  m_engine.SetDispMonth(kMonth);
  m_engine.GotoSpecifiedDate(1900, 1, 20);
  m_engine.GotoPreviousPage();
  EXPECT_EQ(Focus(), "1900-1-20");
  m_engine.GotoSpecifiedDate(2099, 12, 20);
  m_engine.GotoNextPage();
  EXPECT_EQ(Focus(), "2099-12-20");
}

TEST_F(Logic, PagingByDaysAtTheEndsOfTheYearsSetsTheDirectionAndWritesTheBoardAgain) {
  const auto page = [this](void (CCalendarLogic::*turn)()) {
    const std::string focus = Focus();
    const std::string first = First();
    m_engine.m_pageDirection = kPlain;
    m_output.Take();
    (m_engine.*turn)();
    EXPECT_EQ(Focus(), focus);
    EXPECT_EQ(First(), first);
    EXPECT_NE(m_output.Take().find("weeknumber"), std::string::npos);
    return Direction();
  };
  m_engine.GotoSpecifiedDate(1900, 1, 1);
  EXPECT_EQ(page(&CCalendarLogic::GotoPreviousPage), kBackward);
  m_engine.GotoSpecifiedDate(2099, 12, 31);
  EXPECT_EQ(page(&CCalendarLogic::GotoNextPage), kForward);
}

TEST_F(Logic, PagingBeforeTheFirstBuildLeavesTheBoardEmpty) {
  for (const int mode : {kRolling, kTail, kMonth, kStrip}) {
    m_engine.SetDispMonth(mode);
    for (const auto turn : {&CCalendarLogic::GotoPreviousPage, &CCalendarLogic::GotoNextPage}) {
      (m_engine.*turn)();
      EXPECT_EQ(m_engine.GetContentRows(), 0) << mode;
      EXPECT_EQ(Focus(), "0-0-0") << mode;
    }
  }
}

TEST_F(Logic, DateBeforeOrAfterTheBoardSetsTheDirectionAndOneWithinClearsIt) {
  m_engine.SetShowMonthInterval(false);
  struct {
    int year, month, day;
    PageDirection direction;
  } const cases[] = {
      {2024, 3, 20, kPlain},     {2024, 2, 10, kBackward},
      {2024, 4, 8, kForward},    {2024, 3, 4, kPlain},  // the first day
      {2024, 3, 3, kBackward},   {2024, 4, 7, kPlain},  // the last day
      {2023, 12, 31, kBackward}, {2025, 1, 1, kForward},
      {2023, 5, 20, kBackward},  {2025, 3, 20, kForward},
  };
  for (const auto& c : cases) {
    for (const PageDirection before : {kPlain, kBackward, kForward}) {
      m_engine.GotoToday();
      ASSERT_EQ(First(), "2024-3-4");
      ASSERT_EQ(Last(), "2024-4-7");
      m_engine.m_pageDirection = before;
      m_engine.GotoSpecifiedDate(c.year, c.month, c.day);
      EXPECT_EQ(Direction(), c.direction) << c.year << '-' << c.month << '-' << c.day;
    }
  }
}

// Paged to, the board's first week is that of its focus; a plain board shows a week before it.
TEST_F(Logic, DateWithinAPagedBoardIsShownOnAPlainOne) {
  m_engine.SetShowMonthInterval(false);
  m_engine.GotoToday();
  m_engine.GotoNextPage();
  ASSERT_EQ(First(), "2024-4-8");
  m_engine.GotoSpecifiedDate(2024, 4, 24);
  EXPECT_EQ(First(), "2024-4-15");
  m_engine.SetDispMonth(kTail);
  m_engine.GotoNextPage();
  EXPECT_EQ(m_engine.GetContentRows(), 5);
}

TEST_F(Logic, DatesAreComparedAsTheyAreGiven) {
  m_engine.SetDispMonth(kStrip);
  m_engine.SetMaxColumns(3);
  SetToday(2024, 2, 28);
  m_engine.GotoToday();
  ASSERT_EQ(Last(), "2024-2-29");
  m_engine.GotoSpecifiedDate(2024, 2, 31);  // after 29 February
  EXPECT_EQ(Direction(), kForward);
  EXPECT_EQ(First(), "2024-3-2");

  SetToday(2024, 3, 2);
  m_engine.GotoToday();
  ASSERT_EQ(First(), "2024-3-1");
  m_engine.GotoSpecifiedDate(2024, 2, 31);  // before 1 March, although it is the 2nd
  EXPECT_EQ(Direction(), kBackward);
  EXPECT_EQ(Last(), "2024-3-2");
}

TEST_F(Logic, DateInARollingTailSetsTheDirection) {
  m_engine.SetDispMonth(kTail);
  m_engine.GotoToday();
  m_engine.GotoSpecifiedDate(2024, 3, 31);
  EXPECT_EQ(Direction(), kPlain);
  EXPECT_EQ(m_engine.GetContentRows(), 5);
  m_engine.GotoSpecifiedDate(2024, 5, 1);  // not on the board: no rows
  EXPECT_EQ(Direction(), kForward);
  EXPECT_EQ(m_engine.GetContentRows(), 0);
}

TEST_F(Logic, RejectedDateKeepsTheBoardButSetsTheDirection) {
  m_engine.GotoToday();
  m_engine.GotoSpecifiedDate(2100, 1, 1);
  EXPECT_EQ(Focus(), "2024-3-13");
  EXPECT_EQ(First(), "2024-3-4");
  EXPECT_EQ(Direction(), kForward);
  m_engine.GotoSpecifiedDate(1899, 12, 31);
  EXPECT_EQ(Focus(), "2024-3-13");
  EXPECT_EQ(Direction(), kBackward);
}

TEST_F(Logic, AllZeroDateIsTodayAndAPartOfItNone) {
  m_engine.GotoSpecifiedDate(2025, 1, 1);
  for (const CCalendarSolarDate& none :
       {CCalendarSolarDate{0, 0, 1, 0}, {0, 1, 0, 0}, {2025, 0, 0, 0}, {2025, 1, 0, 0}}) {
    m_engine.GotoSpecifiedDate(none.year, none.month, none.day);
    EXPECT_EQ(Focus(), "2025-1-1") << Date(none);
  }
  m_engine.GotoSpecifiedDate(0, 0, 0);
  EXPECT_EQ(Focus(), "2024-3-13");
  EXPECT_EQ(Direction(), kPlain);
}

TEST_F(Logic, FirstDateOfAFreshEngineOpensTheBoard) {
  m_engine.GotoSpecifiedDate(2024, 3, 27);
  EXPECT_EQ(Direction(), kForward);
  EXPECT_EQ(First(), "2024-3-27");
}

TEST_F(Logic, OffsetOfPagesIsCountedInWeeksOfMaxRows) {
  struct {
    int mode, rows, offset;
    const char* trace;
  } const cases[] = {
      {kRolling, 5, 1, "build-logic 2024-4-14"}, {kRolling, 5, -1, "build-logic 2024-2-4"},
      {kRolling, 5, 0, "build-logic 2024-3-10"}, {kRolling, 8, -2, "build-logic 2023-11-19"},
      {kRolling, 0, 9, "build-logic 2024-3-10"}, {kRolling, -1, 1, "build-logic 2024-3-3"},
      {kTail, 5, 1, "build-logic 2024-4-14"},    {kStrip, 5, 1, "build-logic 2024-4-14"},
      {0, 5, 1, "build-logic 2024-4-14"}};
  SetToday(2024, 3, 10);
  for (const auto& c : cases) {
    m_engine.SetDispMonth(c.mode);
    m_engine.SetMaxRows(c.rows);
    m_engine.m_pageDirection = kForward;
    m_engine.GotoTodayOffsetMonth(c.offset);
    EXPECT_EQ(Trace(), c.trace) << c.mode << ' ' << c.rows;
    EXPECT_EQ(Direction(), kPlain);
  }
}

TEST_F(Logic, OffsetOfDaysAndTheirSecondsWrapAt32Bits) {
  m_engine.SetDispMonth(kStrip);
  struct {
    int rows, offset;
    const char* trace;
  } const cases[] = {
      {1, 3550, "build-logic 2092-3-26"},     // 24850 days: their seconds fit
      {1, 3551, "build-logic 1956-2-25"},     // 24857 days: they wrap
      {1, -3551, "build-logic 2092-3-29"},    //
      {kMax, kMax, "build-logic 2024-3-20"},  // 7 days
      {kMin, 2, "build-logic 2024-3-13"},     // 0 days
  };
  for (const auto& c : cases) {
    m_engine.SetMaxRows(c.rows);
    m_engine.GotoTodayOffsetMonth(c.offset);
    EXPECT_EQ(Trace(), c.trace) << c.rows << " rows, offset " << c.offset;
  }
}

TEST_F(Logic, OffsetOfMonthsKeepsTheDayOrTakesTheMonthsLast) {
  m_engine.SetDispMonth(kMonth);
  SetToday(2024, 3, 31);
  struct {
    int offset;
    const char* date;
  } const cases[] = {{-1, "2024-2-29"},  {11, "2025-2-28"},  {0, "2024-3-31"},
                     {9, "2024-12-31"},  {10, "2025-1-31"},  {-2, "2024-1-31"},
                     {-3, "2023-12-31"}, {-14, "2023-1-31"}, {-15, "2022-12-31"},
                     {21, "2025-12-31"}, {-25, "2022-2-28"}};
  for (const auto& c : cases) {
    m_engine.GotoTodayOffsetMonth(c.offset);
    EXPECT_EQ(Trace(), c.date);
    EXPECT_EQ(Focus(), c.date);
  }
}

// No month has a length out there, so its day is -1.
TEST_F(Logic, OffsetToAMonthOutsideTheYearsPrintsDayMinus1AndKeepsTheBoard) {
  m_engine.SetDispMonth(kMonth);
  struct {
    int offset;
    const char* trace;
    const char* focus;
  } const cases[] = {
      {909, "2099-12-13", "2099-12-13"},           {910, "2100-1--1", "2099-12-13"},
      {-1490, "1900-1-13", "1900-1-13"},           {-1491, "1899-12--1", "1900-1-13"},
      {2147483644, "178958994-7--1", "1900-1-13"},  // 3 + 2147483644 still fits
      {kMax, "-178954947-6--1", "1900-1-13"},       // the sum wraps
      {kMin, "-178954947-7--1", "1900-1-13"}};
  for (const auto& c : cases) {
    m_engine.GotoTodayOffsetMonth(c.offset);
    EXPECT_EQ(Trace(), c.trace);
    EXPECT_EQ(Focus(), c.focus);
  }
}

TEST_F(Logic, OffsetOfMonthsFromTheLastYearOfAClockWraps) {
  SetNow(67767976233500000);  // in December of the year 2^31 - 1
  m_engine.SetDispMonth(kMonth);
  m_engine.GotoTodayOffsetMonth(1);
  EXPECT_EQ(Trace(), "-2147483648-1--1");
}

TEST_F(Logic, TraceStandsBeforeTheTextOfTheBoardWithoutALineEnd) {
  m_engine.GotoTodayOffsetMonth(0);
  EXPECT_EQ(m_output.Take().rfind("build-logic 2024-3-13\n\n\n\n\nweeknumber = 10", 0), 0U);
  m_engine.SetDispMonth(kMonth);
  m_engine.GotoTodayOffsetMonth(0);
  EXPECT_EQ(m_output.Take().rfind("2024-3-13\n\n\n\n\nweeknumber = 9", 0), 0U);
}

TEST_F(Logic, EveryNavigationWritesTheBoardOnce) {
  void (*const navigations[])(Board&) = {[](Board& b) { b.InitCalendarLogic(eLanguageUsa); },
                                         [](Board& b) { b.Build(); },
                                         [](Board& b) { b.GotoToday(); },
                                         [](Board& b) { b.GotoPreviousPage(); },
                                         [](Board& b) { b.GotoNextPage(); },
                                         [](Board& b) { b.GotoSpecifiedDate(2024, 5, 5); },
                                         [](Board& b) { b.GotoSpecifiedDate(2024, 5, 55); },
                                         [](Board& b) { b.GotoTodayOffsetMonth(1); }};
  for (const auto navigate : navigations) {
    navigate(m_engine);
    const std::string text = m_output.Take();
    EXPECT_EQ(std::count(text.begin(), text.end(), 'w'), 5);  // one in each row's "weeknumber"
    EXPECT_EQ(text.substr(text.size() - 5), "\n\n\n\n\n");
  }
}

TEST_F(Logic, OptionsTakeEffectAtTheNextBuildAndWriteNothing) {
  m_engine.GotoToday();
  m_output.Take();
  m_engine.SetMaxRows(3);
  m_engine.SetShowBreakDayOfWeek(false);
  EXPECT_EQ(m_engine.GetContentRows(), 5);
  EXPECT_EQ(m_engine.GetContentColumns(), 7);
  EXPECT_EQ(m_output.Take(), "");
  m_engine.Build();
  EXPECT_EQ(m_engine.GetContentRows(), 3);
  EXPECT_EQ(m_engine.GetContentColumns(), 5);
}

TEST_F(Logic, CellsAreAskedByVisibleRowAndColumn) {
  m_engine.SetStartDayOfWeek(eCalendarWeekSunday);
  m_engine.SetShowBreakDayOfWeek(false);
  m_engine.GotoToday();
  const CCalendarItem item = m_engine.GetContentItem(1, 2);  // Wednesday, after the hidden Sunday
  EXPECT_EQ(item.GetDay(), "(4)2024-03-13");
  EXPECT_EQ(item.GetRow(), 1);
  EXPECT_EQ(item.GetColumn(), 3);
  EXPECT_EQ(item.GetDate().dayOfWeek, 3);
  EXPECT_EQ(item.GetWeekNumber(), 11);
}

TEST_F(Logic, CellsAreAskedByVisibleRowWhereRowsAreHidden) {
  SetToday(2024, 5, 22);
  m_engine.SetMaxRows(6);
  m_engine.SetShowBreakDayOfWeek(false);
  m_engine.GotoToday();
  EXPECT_EQ(m_engine.GetContentRows(), 5);
  EXPECT_EQ(m_engine.GetContentItem(2, 0).GetDay(), "(3)2024-05-27");
  EXPECT_EQ(m_engine.GetContentItem(3, 0).GetDay(), "(3)2024-06-03");
  EXPECT_EQ(m_engine.GetContentItem(3, 0).GetRow(), 4);
}

TEST_F(Logic, CellOutsideTheVisibleOnesIsADefaultCell) {
  m_engine.SetShowBreakDayOfWeek(false);
  m_engine.GotoToday();
  EXPECT_NE(m_engine.GetContentItem(0, 0).GetType(), eCalendarItemEmpty);
  EXPECT_NE(m_engine.GetContentItem(4, 4).GetType(), eCalendarItemEmpty);
  struct {
    int row, column;
  } const cases[] = {{5, 4}, {4, 5}, {-1, 0}, {0, -1}, {kMin, 0}, {0, kMin}, {kMax, 0}, {0, kMax}};
  for (const auto& c : cases) {
    const CCalendarItem item = m_engine.GetContentItem(c.row, c.column);
    EXPECT_EQ(item.GetDay(), "(1)0000-00-00") << c.row << ' ' << c.column;
    EXPECT_EQ(item.GetWeekNumber(), -1);
    EXPECT_EQ(item.GetRow(), 0);
    EXPECT_EQ(item.GetColumn(), 0);
  }
}

// The entries after the visible columns are column 0.
TEST_F(Logic, HeadingOfAColumnThatIsNotVisibleIsTheStartDay) {
  m_engine.SetShowBreakDayOfWeek(false);
  m_engine.SetStartDayOfWeek(eCalendarWeekWednesday);
  m_engine.GotoToday();
  const int headings[] = {3, 4, 5, 1, 2, 3, 3};
  for (int column = 0; column < 7; ++column) {
    EXPECT_EQ(m_engine.GetCalendarWeekByColumns(column), headings[column]) << column;
  }
  for (const int column : {-1, 7, kMin, kMax}) {
    EXPECT_EQ(m_engine.GetCalendarWeekByColumns(column), 0) << column;
  }
}

TEST_F(Logic, HeadingsBeforeTheFirstBuild) {
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(0), 1);
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(6), 1);
  m_engine.SetStartDayOfWeek(10);
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(0), 3);
}

// The start day counts as it was set, although the days are laid out from Monday then.
TEST_F(Logic, HeadingsOfAStartDayOutsideTheWeekKeepItsRemainder) {
  struct {
    int start, column, heading;
  } const cases[] = {{9, 0, 2},    {-10, 0, -3}, {-10, 3, 0},
                     {-10, 4, -6}, {kMax, 0, 1}, {kMax, 1, -2}};  // wraps
  for (const auto& c : cases) {
    m_engine.SetStartDayOfWeek(c.start);
    m_engine.GotoToday();
    EXPECT_EQ(m_engine.GetCalendarWeekByColumns(c.column), c.heading) << c.start;
    EXPECT_EQ(m_engine.GetContentItem(0, 0).GetDate().dayOfWeek, 1);
  }
}

TEST_F(Logic, HeadingsOfTheStripAreTheWeekdaysOfItsDates) {
  m_engine.SetDispMonth(kStrip);
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(0), 0);  // no build yet
  m_engine.GotoSpecifiedDate(2024, 3, 13);
  ASSERT_EQ(Direction(), kForward);
  for (int column = 0; column < 7; ++column) {
    EXPECT_EQ(m_engine.GetCalendarWeekByColumns(column), (3 + column) % 7);
  }
  m_engine.SetMaxColumns(3);
  m_engine.GotoToday();
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(0), 2);
  for (const int column : {3, 6, 7, -1, kMin, kMax}) {
    EXPECT_EQ(m_engine.GetCalendarWeekByColumns(column), 0) << column;
  }
}

TEST_F(Logic, HeadingsOfAStripWhoseRowIsHiddenAre0) {
  SetToday(2024, 3, 16);
  m_engine.SetDispMonth(kStrip);
  m_engine.SetMaxColumns(2);
  m_engine.SetShowBreakDayOfWeek(false);
  m_engine.GotoToday();
  ASSERT_EQ(m_engine.GetContentRows(), 0);
  ASSERT_EQ(m_engine.GetContentColumns(), 2);
  EXPECT_EQ(m_engine.GetCalendarWeekByColumns(0), 0);
}

TEST_F(Logic, SpansAreAskedByIndex) {
  m_engine.GotoToday();
  ASSERT_EQ(m_engine.GetWeekNumberCount(), 4);
  EXPECT_EQ(m_engine.GetWeekNumberItem(0).weekNumber, 10);
  EXPECT_EQ(m_engine.GetWeekNumberItem(3).weekNumber, 13);
  EXPECT_EQ(m_engine.GetWeekNumberItem(3).rows, 2);
  for (const int index : {-1, 4, kMin, kMax}) {
    const tagCalendarWeekSpan span = m_engine.GetWeekNumberItem(index);
    EXPECT_EQ(std::tie(span.weekNumber, span.firstWeekCells, span.secondWeekNumber,
                       span.secondWeekCells, span.cellsWithoutWeek, span.rows),
              std::make_tuple(0, 0, 0, 0, 0, 0));
  }
}

TEST_F(Logic, TodayHasItsWeekdayAndDoesNotTouchTheBoard) {
  const CCalendarSolarDate today = m_engine.GetToday();
  EXPECT_EQ(Date(today), "2024-3-13");
  EXPECT_EQ(today.dayOfWeek, 3);
  EXPECT_EQ(m_engine.GetContentRows(), 0);
}

// No board can be built for the day after, so that the one before stays.
TEST_F(Logic, MidnightAfterTheLastYearLeavesTheBoard) {
  SetToday(2099, 12, 31);
  m_engine.GotoToday();
  SetToday(2100, 1, 1);
  m_engine.Build();
  m_engine.InitCalendarLogic(eLanguageChs);
  EXPECT_EQ(Date(m_engine.GetToday()), "2100-1-1");
  EXPECT_EQ(Focus(), "2099-12-31");
  EXPECT_TRUE(m_engine.IsTodayInBoard());
}

// What was today at the last build stays so until the next.
TEST_F(Logic, MidnightPassesBetweenBuilds) {
  m_engine.GotoToday();
  SetToday(2024, 3, 14);
  EXPECT_EQ(m_engine.GetContentItem(1, 2).GetType(), eCalendarItemToday);
  EXPECT_EQ(m_engine.GetToday().day, 14);
  m_engine.Build();
  EXPECT_EQ(Focus(), "2024-3-14");
  EXPECT_EQ(m_engine.GetContentItem(1, 2).GetType(), eCalendarItemDay);
  EXPECT_EQ(m_engine.GetContentItem(1, 3).GetType(), eCalendarItemToday);
}

}  // namespace
