// SPDX-License-Identifier: MIT
#include "board/calendar_item.h"

#include <gtest/gtest.h>

#include <limits>

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
  EXPECT_EQ(item.GetType(), 1);
  EXPECT_EQ(item.GetDate().year, 0);
  EXPECT_EQ(item.GetDate().month, 0);
  EXPECT_EQ(item.GetDate().day, 0);
  EXPECT_EQ(item.GetDate().dayOfWeek, 0);
}

TEST(CalendarItem, SettersStoreWhateverTheyAreGiven) {
  for (const int value : {0, 1, -1, 7, 99, kMin, std::numeric_limits<int>::max()}) {
    CCalendarItem item;
    item.SetRow(value);
    EXPECT_EQ(item.GetRow(), value);
    item.SetColumn(value);
    EXPECT_EQ(item.GetColumn(), value);
    item.SetType(value);
    EXPECT_EQ(item.GetType(), value);
    item.SetWeekNumber(value);
    EXPECT_EQ(item.GetWeekNumber(), value);
  }
}

TEST(CalendarItem, CopyOfADateKeepsEverythingElse) {
  CCalendarItem item;
  item.SetType(eCalendarItemToday);
  item.SetRow(2);
  item.SetColumn(5);
  item.SetWeekNumber(11);
  item.Copy(CCalendarSolarDate{2024, 3, 15, 5});
  EXPECT_EQ(item.GetType(), eCalendarItemToday);
  EXPECT_EQ(item.GetRow(), 2);
  EXPECT_EQ(item.GetColumn(), 5);
  EXPECT_EQ(item.GetWeekNumber(), 11);
  EXPECT_EQ(item.GetDate().year, 2024);
  EXPECT_EQ(item.GetDate().month, 3);
  EXPECT_EQ(item.GetDate().day, 15);
  EXPECT_EQ(item.GetDate().dayOfWeek, 5);
}

TEST(CalendarItem, CopyOfACellTakesAllFiveFields) {
  CCalendarItem from = Item(eCalendarItemBreakDay, {2024, 3, 16, 6});
  from.SetRow(3);
  from.SetColumn(5);
  from.SetWeekNumber(11);
  CCalendarItem item = Item(eCalendarItemToday, {1900, 1, 1, 1});
  item.Copy(from);
  EXPECT_EQ(item.GetDay(), "(5)2024-03-16");
  EXPECT_EQ(item.GetDate().dayOfWeek, 6);
  EXPECT_EQ(item.GetRow(), 3);
  EXPECT_EQ(item.GetColumn(), 5);
  EXPECT_EQ(item.GetWeekNumber(), 11);
}

TEST(CalendarItem, TextOfEachKind) {
  EXPECT_EQ(Item(eCalendarItemBlank, {0, 0, 0, 0}).GetDay(), "(2)0000-00-00");
  EXPECT_EQ(Item(eCalendarItemBlank, {2024, 2, 26, 0}).GetDay(), "(2)2024-02-26");
  EXPECT_EQ(Item(eCalendarItemDay, {2024, 3, 5, 2}).GetDay(), "(3)2024-03-05");
  EXPECT_EQ(Item(eCalendarItemTodayBreakDay, {2024, 3, 10, 0}).GetDay(), "(6)2024-03-10");
}

TEST(CalendarItem, MonthTitleForMarch) {
  EXPECT_EQ(Item(eCalendarItemMonthTitle, {0, 3, 1, 0}).GetDay(), "(7)0000-03-01");
}

TEST(CalendarItem, TextPadsTheYearToFourDigitsAndMonthAndDayToTwo) {
  EXPECT_EQ(Item(3, {5, 1, 2, 0}).GetDay(), "(3)0005-01-02");
  EXPECT_EQ(Item(3, {12345, 123, 456, 0}).GetDay(), "(3)12345-123-456");
  EXPECT_EQ(Item(-12, {2024, 12, 31, 0}).GetDay(), "(-12)2024-12-31");
}

// The sign stands in front of the padded digits.
TEST(CalendarItem, TextWritesNegativeFieldsWithTheirSign) {
  EXPECT_EQ(Item(3, {-5, -1, -2, 0}).GetDay(), "(3)-0005--01--02");
  EXPECT_EQ(Item(kMin, {kMin, kMin, kMin, 0}).GetDay(),
            "(-2147483648)-2147483648--2147483648--2147483648");
}

TEST(CalendarItem, NoTextIsLongerThanItsRoom) {
  EXPECT_LE(Item(kMin, {kMin, kMin, kMin, 0}).GetDay().size(), CCalendarItem::kMaxDayLength + 0U);
}

}  // namespace
