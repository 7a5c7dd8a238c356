// SPDX-License-Identifier: MIT
#include "board/calendar_item.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

constexpr int kMin = std::numeric_limits<int>::min();

CCalendarItem Item(ECalendarItem type, const CCalendarSolarDate& date) {
  CCalendarItem item;
  item.Copy(date);
  item.SetType(type);
  return item;
}

TEST(CalendarItem, DefaultCellIsEmpty) {
  const CCalendarItem item;
  EXPECT_EQ(item.GetDay(), "(1)0000-00-00");
  EXPECT_EQ(item.GetWeekNumber(), -1);
  EXPECT_EQ(item.GetRow(), 0);
  EXPECT_EQ(item.GetColumn(), 0);
  EXPECT_EQ(item.GetDate().dayOfWeek, 0);
}

TEST(CalendarItem, CopyOfADateKeepsEverythingElseAndCopyOfACellNothing) {
  CCalendarItem item;
  item.SetType(eCalendarItemToday);
  item.SetRow(2);
  item.SetColumn(5);
  item.SetWeekNumber(11);
  item.Copy(CCalendarSolarDate{2024, 3, 15, 5});
  CCalendarItem copy = Item(eCalendarItemBreakDay, {1900, 1, 1, 1});
  copy.Copy(item);
  for (const CCalendarItem& cell : {item, copy}) {
    EXPECT_EQ(cell.GetDay(), "(4)2024-03-15");
    EXPECT_EQ(cell.GetDate().dayOfWeek, 5);
    EXPECT_EQ(cell.GetRow(), 2);
    EXPECT_EQ(cell.GetColumn(), 5);
    EXPECT_EQ(cell.GetWeekNumber(), 11);
  }
}

TEST(CalendarItem, TextPadsTheYearToFourDigitsAndMonthAndDayToTwo) {
  EXPECT_EQ(Item(eCalendarItemMonthTitle, {0, 3, 1, 0}).GetDay(), "(7)0000-03-01");
  EXPECT_EQ(Item(eCalendarItemDay, {5, 1, 2, 0}).GetDay(), "(3)0005-01-02");
  EXPECT_EQ(Item(eCalendarItemDay, {12345, 123, 456, 0}).GetDay(), "(3)12345-123-456");
  // The sign stands in front of the padded digits.
  EXPECT_EQ(Item(-12, {-5, -1, -2, 0}).GetDay(), "(-12)-0005--01--02");
  const std::string longest = Item(kMin, {kMin, kMin, kMin, 0}).GetDay();
  EXPECT_EQ(longest, "(-2147483648)-2147483648--2147483648--2147483648");
  EXPECT_LE(longest.size(), CCalendarItem::kMaxDayLength + 0U);
}

}  // namespace
