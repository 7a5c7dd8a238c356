// SPDX-License-Identifier: MIT
//
// What the exported functions give while there is no engine, which a host can see only if loading
// the library failed half way. A cell and a lunar date have no fallback.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <tuple>

#include "api/engine.h"

namespace {

class MissingEngine : public testing::Test {
 protected:
  MissingEngine() : m_engine(g_pCalendarLogic) { g_pCalendarLogic = nullptr; }
  ~MissingEngine() override { g_pCalendarLogic = m_engine; }

  CCalendarLogic* const m_engine;
};

constexpr CCalendarSolarDate kDate{2024, 2, 10, 0};

TEST_F(MissingEngine, LookUpsGiveTheirNone) {
  EXPECT_EQ(Check24SekkiWithDate(kDate), eSekkiNone);
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageChs, kDate), eFestivalSolarNone);
  EXPECT_EQ(CheckFestivalLunarWithLang(eLanguageChs, kDate), eFestivalLunarNone);
}

TEST_F(MissingEngine, TheBoardIsEmpty) {
  EXPECT_EQ(GetContentRows(), 0);
  EXPECT_EQ(GetContentColumns(), 0);
  EXPECT_EQ(GetCalendarWeekByColumns(3), eCalendarWeekMonday);
  EXPECT_EQ(GetWeekNumberCount(), 0);
  const tagWeekNumberSpan span = GetWeekNumberItemWithIndex(0);
  EXPECT_EQ(std::tie(span.weekNumber, span.secondWeekNumber, span.rows), std::make_tuple(0, 0, 0));
  EXPECT_FALSE(IsTodayInBoard());
}

TEST_F(MissingEngine, DatesAreNone) {
  for (const CCalendarSolarDate& date : {GetContentDate(), GetToday()}) {
    EXPECT_EQ(std::tie(date.year, date.month, date.day, date.dayOfWeek),
              std::make_tuple(0, 0, 0, 0));
  }
}

TEST_F(MissingEngine, OptionsHaveFallbacksOfTheirOwn) {
  EXPECT_EQ(GetDispMonth(), eDispMonthRollingWeeks);
  EXPECT_EQ(GetMaxRow(), 0);
  EXPECT_EQ(GetPassedWeeks(), 0);
  EXPECT_EQ(GetStartDayOfWeek(), eCalendarWeekMonday);
  EXPECT_EQ(GetStartWeekNumber(), 0);
  EXPECT_FALSE(GetHideBreakDay());
  EXPECT_FALSE(GetShowMonthInterval());
  EXPECT_FALSE(GetShowBreakDayOfWeek());
  EXPECT_EQ(GetWeekNumberCalcType(), eWeekNumberCalcIso8601);
  EXPECT_FALSE(GetCivilDays());
  EXPECT_FALSE(IsBreakDayOfWeek(0));
  EXPECT_EQ(GetConfigKey(), nullptr);
  EXPECT_FALSE(GetPrintBoard());
}

TEST_F(MissingEngine, CommandsDoNothing) {
  InitCalendarLogicDt(eLanguageChs);
  Build();
  GotoToday();
  GotoPreviousPage();
  GotoNextPage();
  GotoSpecifiedDate(2024, 2, 10);
  GotoTodayOffset(1);
  SetDispMonth(eDispMonthDayStrip);
  SetMaxRow(9);
  SetPassedWeeks(9);
  SetStartDayOfWeek(eCalendarWeekSunday);
  SetStartWeekNumber(9);
  SetHideBreakDay(true);
  SetShowMonthInterval(false);
  SetShowBreakDayOfWeek(false);
  SetWeekNumberCalcType(eWeekNumberCalcFromJan1);
  SetCivilDays(true);
  SetBreakDayOfWeek(3, true);
  SetPrintBoard(false);
  ForgetAnnotations();
  EXPECT_EQ(m_engine->GetConfigKey(), "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  EXPECT_EQ(m_engine->GetContentRows(), 0);
  EXPECT_TRUE(m_engine->IsPrintBoard());
  EXPECT_FALSE(m_engine->IsCivilDays());
}

TEST_F(MissingEngine, ArithmeticNeedsNone) {
  EXPECT_STREQ(GetLibraryVersion(), ALMARA_VERSION_STRING);
  EXPECT_EQ(native_add(2147483647, 1), -2147483648LL);
  EXPECT_EQ(CreateSolarDate(1, 2, 3, 4).dayOfWeek, 4);
}

}  // namespace
