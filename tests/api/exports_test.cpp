// SPDX-License-Identifier: MIT
//
// The exported functions of the built library, one fresh engine per test. Today is Wednesday,
// 13 March 2024.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "support/capture_stdout.h"

using almara::test::CaptureStdout;

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr char kDefaultKey[] = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";

std::string Text(const CCalendarSolarDate& d) {
  return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day) +
         " (" + std::to_string(d.dayOfWeek) + ")";
}

std::string Text(const tagCalendarCell& c) {
  std::string text;
  for (const std::int32_t field :
       {c.year, c.month, c.day, c.dayOfWeek, c.weekNumber, c.row, c.column, c.type}) {
    text += (text.empty() ? "" : " ") + std::to_string(field);
  }
  return text;
}

std::string Text(const tagWeekNumberSpan& s) {
  return std::to_string(s.weekNumber) + " " + std::to_string(s.secondWeekNumber) + " " +
         std::to_string(s.rows);
}

std::string Key() {
  char* key = GetConfigKey();
  std::string copy = key;
  std::free(key);
  return copy;
}

class Exports : public testing::Test {
 protected:
  CaptureStdout m_output;
};

TEST_F(Exports, AddWraps) {
  EXPECT_EQ(native_add(2, 3), 5);
  EXPECT_EQ(native_add(2147483647, 0), 2147483647);
  EXPECT_EQ(native_add(2147483647, 1), -2147483648LL);
  EXPECT_EQ(native_add(kMin, -1), kMax);
  EXPECT_EQ(native_add(kMin, kMin), 0);
}

TEST_F(Exports, CreatedDateIsAsGiven) {
  EXPECT_EQ(Text(CreateSolarDate(2024, 2, 30, 9)), "2024-2-30 (9)");
  EXPECT_EQ(Text(CreateSolarDate(kMin, kMax, -1, 0)), "-2147483648-2147483647--1 (0)");
}

TEST_F(Exports, FreshEngineIsEmpty) {
  EXPECT_EQ(GetContentRows(), 0);
  EXPECT_EQ(GetContentColumns(), 0);
  EXPECT_EQ(GetWeekNumberCount(), 0);
  EXPECT_EQ(Text(GetContentDate()), "0-0-0 (0)");
  EXPECT_FALSE(IsTodayInBoard());
  EXPECT_EQ(GetCalendarWeekByColumns(0), 1);
  EXPECT_EQ(Text(GetToday()), "2024-3-13 (3)");
  EXPECT_EQ(Key(), kDefaultKey);
  EXPECT_EQ(m_output.Take(), "");
}

TEST_F(Exports, IntSettersStoreWhateverTheyAreGiven) {
  struct {
    void (*set)(std::int32_t);
    std::int32_t (*get)();
    std::int32_t value;
  } const options[] = {{SetDispMonth, GetDispMonth, kMin},
                       {SetMaxRow, GetMaxRow, kMax},
                       {SetPassedWeeks, GetPassedWeeks, -1},
                       {SetStartDayOfWeek, GetStartDayOfWeek, -2},
                       {SetStartWeekNumber, GetStartWeekNumber, -3},
                       {SetWeekNumberCalcType, GetWeekNumberCalcType, -4}};
  for (const auto& option : options) {
    option.set(option.value);
    EXPECT_EQ(option.get(), option.value);
  }
  EXPECT_EQ(Key(), "-2147483648-2147483647-7--1--2--3-0--4-1-(0-0-0-0-0-1-1)-1");
}

TEST_F(Exports, ShowMonthIntervalAnswersWithTheHideBreakDayFlag) {
  for (const bool flag : {true, false}) {
    SetHideBreakDay(flag);
    SetShowMonthInterval(!flag);
    SetShowBreakDayOfWeek(!flag);
    EXPECT_EQ(GetHideBreakDay(), flag);
    EXPECT_EQ(GetShowMonthInterval(), flag);
    EXPECT_EQ(GetShowBreakDayOfWeek(), !flag);
    EXPECT_EQ(Key(), flag ? "1-5-7-1-1-1-1-1-0-(0-0-0-0-0-1-1)-0" : kDefaultKey);
  }
}

TEST_F(Exports, BreakDays) {
  SetBreakDayOfWeek(3, true);
  EXPECT_TRUE(IsBreakDayOfWeek(3));
  SetBreakDayOfWeek(6, false);
  EXPECT_FALSE(IsBreakDayOfWeek(6));
  EXPECT_EQ(Key(), "1-5-7-1-1-1-0-1-1-(0-0-1-0-0-0-1)-1");
}

TEST_F(Exports, ConfigKeyIsANewTextEachTime) {
  char* first = GetConfigKey();
  char* second = GetConfigKey();
  EXPECT_NE(first, second);
  EXPECT_STREQ(first, second);
  first[0] = '9';  // the caller's own
  EXPECT_STREQ(second, kDefaultKey);
  std::free(first);
  std::free(second);
}

TEST_F(Exports, CellsHaveTheirEightFields) {
  InitCalendarLogicDt(eLanguageEng);
  EXPECT_EQ(Text(GetContentItem(1, 2)), "2024 3 13 3 11 1 2 4");
  EXPECT_EQ(Text(GetContentItem(4, 0)), "0 4 1 0 -1 4 0 7");
  EXPECT_EQ(Text(GetContentItem(5, 0)), "0 0 0 0 -1 0 0 1");
  EXPECT_EQ(GetCalendarWeekByColumns(6), 0);
}

TEST_F(Exports, SpansHaveTheirThreeFields) {
  SetStartDayOfWeek(eCalendarWeekSaturday);
  SetShowMonthInterval(false);
  Build();
  EXPECT_EQ(GetWeekNumberCount(), 5);
  EXPECT_EQ(Text(GetWeekNumberItemWithIndex(0)), "9 10 1");
  EXPECT_EQ(Text(GetWeekNumberItemWithIndex(5)), "0 0 0");
}

TEST_F(Exports, Navigation) {
  InitCalendarLogicDt(eLanguageEng);
  EXPECT_EQ(Text(GetContentDate()), "2024-3-13 (0)");
  EXPECT_EQ(GetContentRows(), 5);
  EXPECT_EQ(GetContentColumns(), 7);
  EXPECT_TRUE(IsTodayInBoard());
  GotoNextPage();
  EXPECT_EQ(Text(GetContentDate()), "2024-4-1 (0)");
  EXPECT_FALSE(IsTodayInBoard());
  GotoPreviousPage();
  EXPECT_EQ(Text(GetContentDate()), "2024-3-31 (0)");
  GotoSpecifiedDate(2023, 2, 31);
  EXPECT_EQ(Text(GetContentDate()), "2023-2-31 (0)");
  GotoTodayOffset(1);
  EXPECT_EQ(Text(GetContentDate()), "2024-4-17 (0)");
  GotoToday();
  EXPECT_EQ(Text(GetContentDate()), "2024-3-13 (0)");
  GotoSpecifiedDate(2025, 1, 1);
  Build();
  EXPECT_EQ(Text(GetContentDate()), "2024-3-13 (0)");
}

TEST_F(Exports, BoardAndTraceAreWrittenInOrder) {
  SetDispMonth(eDispMonthDayStrip);
  SetMaxRow(1);
  const std::string strip =
      "\n\n\n\n\nweeknumber = 11\t(5)2024-03-10\t(3)2024-03-11\t(3)2024-03-12\t(4)2024-03-13"
      "\t(3)2024-03-14\t(3)2024-03-15\t(5)2024-03-16\n\n\n\n\n\n";
  InitCalendarLogicDt(eLanguageEng);
  EXPECT_EQ(m_output.Take(), strip);
  GotoTodayOffset(0);
  GotoSpecifiedDate(1899, 12, 31);
  std::fputs("host", stdout);
  GotoToday();
  EXPECT_EQ(m_output.Take(), "build-logic 2024-3-13" + strip + strip + "host" + strip);
}

TEST_F(Exports, PrintingIsOnUntilItIsSwitchedOff) {
  EXPECT_TRUE(GetPrintBoard());
  SetPrintBoard(false);
  EXPECT_FALSE(GetPrintBoard());
  InitCalendarLogicDt(eLanguageChs);
  GotoTodayOffset(1);
  GotoSpecifiedDate(2100, 1, 1);
  EXPECT_EQ(m_output.Take(), "");
  EXPECT_EQ(GetContentRows(), 5);
  EXPECT_EQ(Key(), kDefaultKey);
  SetPrintBoard(true);
  GotoTodayOffset(1);
  EXPECT_EQ(m_output.Take().rfind("build-logic 2024-4-17", 0), 0U);
}

TEST_F(Exports, ForgettingStartsAfreshWithTheZone) {
  const CCalendarSolarDate date{2051, 11, 3, 0};  // day 30 of month 9 or day 1 of month 10
  InitCalendarLogicDt(eLanguageChs);
  EXPECT_EQ(ConverterLunarWithDate(date).day, 1);
  InitCalendarLogicDt(eLanguageKor);
  EXPECT_EQ(ConverterLunarWithDate(date).day, 1);
  ForgetAnnotations();
  InitCalendarLogicDt(eLanguageUsa);  // fixes no zone, so that the machine's counts again
  EXPECT_EQ(ConverterLunarWithDate({2024, 2, 10, 0}).day, 2);
  ForgetAnnotations();
  InitCalendarLogicDt(eLanguageKor);
  EXPECT_EQ(ConverterLunarWithDate(date).day, 30);
}

TEST_F(Exports, ForgettingForgetsTermsFestivalsAndTheYearOfEaster) {
  const CCalendarSolarDate term{2024, 6, 21, 0};
  const CCalendarSolarDate easter{2024, 3, 31, 0};
  InitCalendarLogicDt(eLanguageChs);
  EXPECT_EQ(Check24SekkiWithDate(term), eSekkiSummerSolstice);
  CheckFestivalSolarWithLang(eLanguageUsa, {2024, 3, 1, 0});
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, easter), eFestivalSolarEaster);
  EXPECT_EQ(CheckFestivalLunarWithLang(eLanguageChs, {2024, 2, 10, 0}), eFestivalLunarNewYearsDay);
  ForgetAnnotations();
  InitCalendarLogicDt(eLanguageUsa);
  EXPECT_EQ(Check24SekkiWithDate(term), eSekkiNone);  // the day before, in UTC
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, easter), eFestivalSolarNone);
  EXPECT_EQ(CheckFestivalLunarWithLang(eLanguageChs, {2024, 2, 10, 0}), eFestivalLunarNone);
}

TEST_F(Exports, ForgettingLeavesOptionsAndBoard) {
  SetMaxRow(3);
  InitCalendarLogicDt(eLanguageChs);
  const std::string cell = Text(GetContentItem(1, 2));
  ForgetAnnotations();
  EXPECT_EQ(GetContentRows(), 3);
  EXPECT_EQ(Text(GetContentItem(1, 2)), cell);
  EXPECT_EQ(GetMaxRow(), 3);
}

TEST_F(Exports, VersionIsThatOfTheHeader) {
  EXPECT_STREQ(GetLibraryVersion(), ALMARA_VERSION_STRING);
  EXPECT_EQ(GetLibraryVersion(), GetLibraryVersion());  // one static text
}

TEST_F(Exports, ReleasesItsTexts) {
  ReleaseText(GetConfigKey());
  ReleaseText(nullptr);
}

// The engine outlives every object of the host: it is never destroyed.
struct CallsAtExit {
  CallsAtExit() { SetMaxRow(3); }
  CallsAtExit(const CallsAtExit&) = delete;
  CallsAtExit& operator=(const CallsAtExit&) = delete;
  ~CallsAtExit() {
    GotoToday();
    if (GetContentRows() != 3) {
      std::fputs("the board is gone\n", stderr);
      std::_Exit(4);
    }
  }
};

TEST(ExportsDeathTest, HostMayCallWhileTheProcessEnds) {
  EXPECT_EXIT(
      {
        static const CallsAtExit calls;
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

// It is there before the host's first line: the load has made it.
const std::int32_t g_rowsBeforeMain = GetMaxRow();

TEST_F(Exports, EngineExistsBeforeTheHostsOwnInitialisers) { EXPECT_EQ(g_rowsBeforeMain, 5); }

}  // namespace
