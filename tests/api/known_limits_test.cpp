// SPDX-License-Identifier: MIT
//
// What a host sees in zones whose winter time is daylight saving in the system's data: run in
// Europe/Dublin on Monday, 15 January 2024.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <string>

#include "support/capture_stdout.h"

namespace {

std::string Strip() {
  std::string days;
  for (std::int32_t column = 0; column < GetContentColumns(); ++column) {
    const tagCalendarCell cell = GetContentItem(0, column);
    days += (days.empty() ? "" : " ") + std::to_string(cell.day);
    days += cell.type == eCalendarItemToday ? "*" : "";
  }
  return days;
}

TEST(KnownLimits, WinterBoardInDublinShiftsByADay) {
  const almara::test::CaptureStdout output;
  EXPECT_EQ(GetToday().day, 15);
  EXPECT_EQ(GetToday().dayOfWeek, 1);
  SetDispMonth(eDispMonthDayStrip);
  InitCalendarLogicDt(eLanguageEng);
  EXPECT_EQ(GetContentDate().day, 15);
  EXPECT_EQ(Strip(), "10 11 12 14 14 15* 16");
  EXPECT_EQ(GetCalendarWeekByColumns(3), 0);
}

TEST(KnownLimits, SummerBoardInDublinIsRight) {
  const almara::test::CaptureStdout output;
  SetDispMonth(eDispMonthDayStrip);
  InitCalendarLogicDt(eLanguageEng);
  GotoSpecifiedDate(2024, 7, 15);
  EXPECT_EQ(Strip(), "15 16 17 18 19 20 21");
}

}  // namespace
