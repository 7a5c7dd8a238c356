// SPDX-License-Identifier: MIT
//
// Days counted by the calendar alone, in zones where local time counts them wrongly. Run on
// Wednesday, 10 January 2024.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/capture_stdout.h"
#include "support/exported_board.h"
#include "support/zone.h"

using almara::test::CaptureStdout;
using almara::test::IsDay;
using almara::test::ScopedZone;

namespace {

// The day of each cell of a month's board, row by row; each row also names its week.
std::vector<std::string> MonthRows(int year, int month) {
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  GotoSpecifiedDate(year, month, 1);
  std::vector<std::string> rows;
  for (std::int32_t row = 0; row < GetContentRows(); ++row) {
    std::string text = std::to_string(GetContentItem(row, 0).weekNumber) + ":";
    for (std::int32_t column = 0; column < GetContentColumns(); ++column) {
      text += " " + std::to_string(GetContentItem(row, column).day);
    }
    rows.push_back(text);
  }
  return rows;
}

using Rows = std::vector<std::string>;

const Rows kJanuary2024{"1: 1 2 3 4 5 6 7", "2: 8 9 10 11 12 13 14", "3: 15 16 17 18 19 20 21",
                        "4: 22 23 24 25 26 27 28", "5: 29 30 31 1 2 3 4"};
const Rows kOctober2014{"40: 29 30 1 2 3 4 5", "41: 6 7 8 9 10 11 12", "42: 13 14 15 16 17 18 19",
                        "43: 20 21 22 23 24 25 26", "44: 27 28 29 30 31 1 2"};
const Rows kFebruary2024{"5: 29 30 31 1 2 3 4", "6: 5 6 7 8 9 10 11", "7: 12 13 14 15 16 17 18",
                         "8: 19 20 21 22 23 24 25", "9: 26 27 28 29 1 2 3"};
const Rows kMarch2024{"9: 26 27 28 29 1 2 3", "10: 4 5 6 7 8 9 10", "11: 11 12 13 14 15 16 17",
                      "12: 18 19 20 21 22 23 24", "13: 25 26 27 28 29 30 31"};

class CivilDays : public testing::Test {
 protected:
  CaptureStdout m_output;
};

// Off, the month is wrong; on, it is right.
void ExpectMendedMonth(const char* zone, int year, int month, const Rows& rows) {
  const ScopedZone scope(zone);
  SetCivilDays(false);
  EXPECT_NE(MonthRows(year, month), rows);
  SetCivilDays(true);
  EXPECT_EQ(MonthRows(year, month), rows);
  EXPECT_EQ(almara::test::FirstBroken(almara::test::ReadExportedBoard()), nullptr);
}

TEST_F(CivilDays, AreOffAtLoadAndNoPartOfTheKey) {
  EXPECT_FALSE(GetCivilDays());
  SetCivilDays(true);
  EXPECT_TRUE(GetCivilDays());
  char* const key = GetConfigKey();
  EXPECT_STREQ(key, "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  std::free(key);
  SetCivilDays(false);
  EXPECT_FALSE(GetCivilDays());
}

TEST_F(CivilDays, JanuaryOf2024InDublin) {
  ExpectMendedMonth("Europe/Dublin", 2024, 1, kJanuary2024);
}

TEST_F(CivilDays, October2014InMoscow) {
  ExpectMendedMonth("Europe/Moscow", 2014, 10, kOctober2014);
}

// The change of 1 March falls into the last row of February, and on the first day of March's run.
TEST_F(CivilDays, FebruaryAndMarch2024InAlmaty) {
  ExpectMendedMonth("Asia/Almaty", 2024, 2, kFebruary2024);
  const ScopedZone zone("Asia/Almaty");
  SetCivilDays(true);
  EXPECT_EQ(MonthRows(2024, 3), kMarch2024);
}

// The midnight of 1 October 1972 never was there.
TEST_F(CivilDays, October1972InAsuncion) {
  ExpectMendedMonth(
      "America/Asuncion", 1972, 10,
      {"39: 25 26 27 28 29 30 1", "40: 2 3 4 5 6 7 8", "41: 9 10 11 12 13 14 15",
       "42: 16 17 18 19 20 21 22", "43: 23 24 25 26 27 28 29", "44: 30 31 1 2 3 4 5"});
}

// The first day of each of three boards.
std::vector<int> FirstDaysOfPages(void (*turn)()) {
  SetDispMonth(eDispMonthRollingWeeks);
  SetShowMonthInterval(false);
  SetMaxRow(1);
  SetPassedWeeks(0);
  GotoSpecifiedDate(2024, 1, 10);
  std::vector<int> days{GetContentItem(0, 0).day};
  for (int page = 0; page < 2; ++page) {
    turn();
    days.push_back(GetContentItem(0, 0).day);
  }
  return days;
}

TEST_F(CivilDays, PagingAdvancesInDublin) {
  const ScopedZone zone("Europe/Dublin");
  GotoToday();
  EXPECT_NE(FirstDaysOfPages(GotoNextPage), (std::vector<int>{8, 15, 22}));
  SetCivilDays(true);
  GotoToday();
  EXPECT_EQ(FirstDaysOfPages(GotoNextPage), (std::vector<int>{8, 15, 22}));
  GotoToday();
  EXPECT_EQ(FirstDaysOfPages(GotoPreviousPage), (std::vector<int>{8, 1, 25}));
}

TEST_F(CivilDays, OffsetsFromTodayAreCountedInDublin) {
  const ScopedZone zone("Europe/Dublin");
  SetCivilDays(true);
  SetDispMonth(eDispMonthRollingWeeks);
  SetMaxRow(1);
  GotoTodayOffset(2);
  EXPECT_EQ(GetContentDate().day, 24);
  GotoTodayOffset(-1);
  EXPECT_EQ(GetContentDate().day, 3);
}

TEST_F(CivilDays, TodayIsTheLocalDate) {
  // 10:00 in UTC on 10 January is 0:00 on the 11th in Kiritimati.
  for (const bool on : {false, true}) {
    SetCivilDays(on);
    const ScopedZone zone("UTC-14");
    EXPECT_EQ(GetToday().day, 11);
    GotoToday();
    EXPECT_EQ(GetContentDate().day, 11);
    EXPECT_TRUE(IsTodayInBoard());
  }
}

// Without civil days, the first answer is kept until the counting changes.
TEST_F(CivilDays, AChangeForgetsWeekNumbers) {
  const ScopedZone zone("Europe/Berlin");
  SetWeekNumberCalcType(eWeekNumberCalcFromJan1);
  const auto weekOfFirstOfApril = [] {
    SetDispMonth(eDispMonthDayStrip);
    GotoSpecifiedDate(2024, 3, 25);
    GotoSpecifiedDate(2024, 4, 1);
    return GetContentItem(0, 0).weekNumber;
  };
  EXPECT_EQ(weekOfFirstOfApril(), 13);
  SetCivilDays(true);
  EXPECT_EQ(weekOfFirstOfApril(), 14);
  const ScopedZone utc("UTC");
  SetCivilDays(true);
  SetCivilDays(false);
  EXPECT_EQ(weekOfFirstOfApril(), 14);  // 13 if it had been kept
}

// Standard midnight of 1 November is a Thursday evening in Dublin, which counts as the first.
TEST_F(CivilDays, AChangeForgetsFestivals) {
  const ScopedZone zone("Europe/Dublin");
  const auto festivalOf = [](int day) {
    return CheckFestivalSolarWithLang(eLanguageUsa, {2024, 11, day, 0});
  };
  EXPECT_EQ(festivalOf(21), eFestivalSolarThanksgiving);
  EXPECT_EQ(festivalOf(28), eFestivalSolarNone);
  SetCivilDays(true);
  EXPECT_EQ(festivalOf(21), eFestivalSolarNone);
  EXPECT_EQ(festivalOf(28), eFestivalSolarThanksgiving);
  SetCivilDays(false);
  EXPECT_EQ(festivalOf(21), eFestivalSolarThanksgiving);
}

TEST_F(CivilDays, SettingTheSameAgainForgetsNothing) {
  const ScopedZone dublin("Europe/Dublin");
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, {2024, 11, 21, 0}),
            eFestivalSolarThanksgiving);
  const ScopedZone utc("UTC");
  SetCivilDays(false);
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, {2024, 11, 21, 0}),
            eFestivalSolarThanksgiving);  // as it was kept
}

TEST_F(CivilDays, GoodFridayInDublin) {
  const ScopedZone zone("Europe/Dublin");
  SetCivilDays(true);
  // Easter of 2024 is 31 March, the day on which clocks go forward.
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, {2024, 3, 29, 0}), eFestivalSolarGoodFriday);
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageUsa, {2024, 3, 28, 0}), eFestivalSolarNone);
}

}  // namespace
