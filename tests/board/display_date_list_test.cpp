// SPDX-License-Identifier: MIT
#include "board/display_date_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "board/calendar_logic_build.h"
#include "support/civil.h"

using almara::DateList;
using almara::PageDirection;
using almara::test::AddDays;
using almara::test::Civil;
using almara::test::DayOfWeek;

namespace {

CCalendarSolarDateEx Real(const Civil& d) {
  return {d.year, d.month, d.day, DayOfWeek(d), 0, 0, 0, 0};
}
CCalendarSolarDateEx Hidden(const Civil& d) {
  return {0, 0, 0, 0, d.year, d.month, d.day, DayOfWeek(d)};
}

DateList Days(const Civil& first, int count) {
  DateList list;
  for (int i = 0; i < count; ++i) {
    list.push_back(Real(AddDays(first, i)));
  }
  return list;
}

// "29 30 [3] . . . . . . 1 2": days, a title with its month, fillers, and hidden days as "(31)".
std::string Text(const DateList& list) {
  std::string text;
  for (const CCalendarSolarDateEx& e : list) {
    text += text.empty() ? "" : " ";
    if (e.year != 0) {
      text += std::to_string(e.day);
    } else if (e.day == 1) {
      text += "[" + std::to_string(e.month) + "]";
    } else {
      text += e.hiddenDay != 0 ? "(" + std::to_string(e.hiddenDay) + ")" : ".";
    }
  }
  return text;
}

class DisplayDateList : public testing::Test {
 protected:
  void Focus(const Civil& focus, PageDirection direction) {
    m_focus = {focus.year, focus.month, focus.day, 0};
    m_direction = direction;
  }
  DateList Display(const DateList& source, int before, int after) const {
    return almara::MakeDisplayList({m_options, m_focus, {}, m_direction}, source, before, after);
  }
  std::string Shown(const DateList& source, int before = 0, int after = 0) const {
    return Text(Display(source, before, after));
  }

  CCalendarConfig m_options;

 private:
  CCalendarSolarDate m_focus{};
  PageDirection m_direction = PageDirection::kNone;
};

TEST(DisplayDate, BlankIsWhatShowsNoPartOfADate) {
  EXPECT_TRUE(CCalendarSolarDateEx{}.IsBlank());
  EXPECT_TRUE(Hidden({2024, 3, 31}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{0, 0, 2, 0, 0, 0, 0, 0}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{0, 4, 0, 0, 0, 0, 0, 0}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{2024, 0, 0, 0, 0, 0, 0, 0}).IsBlank());
}

TEST_F(DisplayDateList, MonthLengths) {
  struct {
    int year, month, days;
  } const cases[] = {
      {2000, 2, 29},
      {1900, 2, 28},
      {2024, 2, 29},
      {2023, 2, 28},
      {2099, 2, 28},
      {2023, 1, 31},
      {2023, 3, 31},
      {2023, 4, 30},
      {2023, 5, 31},
      {2023, 6, 30},
      {2023, 7, 31},
      {2023, 8, 31},
      {2023, 9, 30},
      {2023, 10, 31},
      {2023, 11, 30},
      {2023, 12, 31},
      {1900, 1, 31},
      {2099, 12, 31},
      {2100, 1, -1},
      {1899, 5, -1},
      {1899, 12, -1},
      {2023, 13, -1},
      {2023, 0, -1},
      {2023, -1, -1},
      {-2023, 5, -1},
      {0, 0, -1},
      {std::numeric_limits<int>::min(), 5, -1},
      {2023, std::numeric_limits<int>::min(), -1},
      {std::numeric_limits<int>::max(), 5, -1},
      {2023, std::numeric_limits<int>::max(), -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CCalendarLogicBuild::_GetMaxDaysOfSolarMonth(c.year, c.month), c.days)
        << c.year << '-' << c.month;
  }
}

TEST_F(DisplayDateList, EntryIsTwoDatesOfFourInts) {
  static_assert(sizeof(CCalendarSolarDateEx) == 32);
  static_assert(std::is_standard_layout_v<CCalendarSolarDateEx>);
  static_assert(offsetof(CCalendarSolarDateEx, year) == 0);
  static_assert(offsetof(CCalendarSolarDateEx, month) == 4);
  static_assert(offsetof(CCalendarSolarDateEx, day) == 8);
  static_assert(offsetof(CCalendarSolarDateEx, dayOfWeek) == 12);
  static_assert(offsetof(CCalendarSolarDateEx, hiddenYear) == 16);
  static_assert(offsetof(CCalendarSolarDateEx, hiddenMonth) == 20);
  static_assert(offsetof(CCalendarSolarDateEx, hiddenDay) == 24);
  static_assert(offsetof(CCalendarSolarDateEx, hiddenDayOfWeek) == 28);
}

TEST_F(DisplayDateList, RunWithoutAFirstDayIsShownAsItIs) {
  EXPECT_EQ(Shown(Days({2024, 3, 2}, 10)), "2 3 4 5 6 7 8 9 10 11");
  EXPECT_EQ(Shown({}), "");
}

TEST_F(DisplayDateList, BandOfSevenStandsBeforeAFirstDayInsideTheRun) {
  const DateList display = Display(Days({2024, 2, 28}, 4), 0, 0);
  EXPECT_EQ(Text(display), "28 29 [3] . . . . . . 1 2");
  const CCalendarSolarDateEx& title = display[2];
  EXPECT_EQ(title.year, 0);
  EXPECT_EQ(title.month, 3);
  EXPECT_EQ(title.day, 1);
  EXPECT_EQ(title.dayOfWeek, 0);
  EXPECT_EQ(title.hiddenYear, 0);
  EXPECT_EQ(title.hiddenMonth, 0);
  EXPECT_EQ(title.hiddenDay, 0);
  EXPECT_EQ(title.hiddenDayOfWeek, 0);
  EXPECT_EQ(display[9].dayOfWeek, 5);
}

TEST_F(DisplayDateList, EveryMonthThatBeginsInsideGetsItsBand) {
  const DateList display = Display(Days({2023, 12, 31}, 33), 0, 0);
  ASSERT_EQ(display.size(), 33U + 14U);
  EXPECT_EQ(display[1].month, 1);  // January after December
  EXPECT_EQ(display[8].day, 1);
  EXPECT_EQ(display[39].month, 2);
  EXPECT_EQ(display[46].month, 2);
}

TEST_F(DisplayDateList, FirstEntryGetsNoBand) {
  EXPECT_EQ(Shown(Days({2024, 3, 1}, 4)), "1 2 3 4");
  EXPECT_EQ(Shown(Days({2024, 2, 29}, 4)), "29 [3] . . . . . . 1 2 3");
}

TEST_F(DisplayDateList, WithoutIntervalsNothingIsInsertedInAnyMode) {
  m_options.SetShowMonthInterval(false);
  for (const int mode : {1, 2, 3, 4, 0, 5}) {
    m_options.SetDispMonth(mode);
    EXPECT_EQ(Shown(Days({2024, 2, 28}, 4)), "28 29 1 2") << mode;
  }
}

TEST_F(DisplayDateList, StripHasNoBandAcrossAMonth) {
  m_options.SetDispMonth(eDispMonthDayStrip);
  EXPECT_EQ(Shown(Days({2024, 2, 26}, 7)), "26 27 28 29 1 2 3");
}

TEST_F(DisplayDateList, EveryOtherModeHasBands) {
  for (const int mode : {1, 2, 3, 0, 5, -4}) {
    m_options.SetDispMonth(mode);
    EXPECT_EQ(Shown(Days({2024, 2, 29}, 2)), "29 [3] . . . . . . 1") << mode;
  }
}

TEST_F(DisplayDateList, FirstDayBehindHiddenDaysOnlyGetsNoBand) {
  m_options.SetDispMonth(eDispMonthWholeMonth);
  DateList source;
  for (int day = 26; day <= 29; ++day) {
    source.push_back(Hidden({2024, 2, day}));
  }
  source.push_back(Real({2024, 3, 1}));
  source.push_back(Real({2024, 3, 2}));
  EXPECT_EQ(Shown(source), "(26) (27) (28) (29) 1 2");
}

TEST_F(DisplayDateList, SevenHiddenDaysAreARowAndBringTheBand) {
  DateList source;
  for (int day = 24; day <= 29; ++day) {
    source.push_back(Hidden({2024, 2, day}));
  }
  source.push_back(Real({2024, 3, 1}));
  EXPECT_EQ(Shown(source), "(24) (25) (26) (27) (28) (29) 1");
  source.insert(source.begin(), Hidden({2024, 2, 23}));
  EXPECT_EQ(Shown(source), "(23) (24) (25) (26) (27) (28) (29) [3] . . . . . . 1");
}

TEST_F(DisplayDateList, OneShownDayBeforeBringsTheBand) {
  EXPECT_EQ(Shown({Hidden({2024, 2, 28}), Real({2024, 2, 29}), Real({2024, 3, 1})}),
            "(28) 29 [3] . . . . . . 1");
}

TEST_F(DisplayDateList, HiddenFirstDayNeverBringsABand) {
  EXPECT_EQ(Shown({Real({2024, 2, 29}), Hidden({2024, 3, 1}), Real({2024, 3, 2})}), "29 (1) 2");
}

TEST_F(DisplayDateList, PlainBuildKeepsTheColumnOfTheNewMonth) {
  const DateList source = Days({2024, 2, 26}, 35);  // Monday
  Focus({2024, 3, 6}, PageDirection::kNone);
  const DateList display = Display(source, 9, 25);
  EXPECT_EQ(display.size(), source.size() + 7);
  EXPECT_EQ(source[4].day, 1);
  EXPECT_EQ(display[11].day, 1);
  EXPECT_EQ(display[11].month, 3);
  EXPECT_EQ(11 % 7, 4);
}

TEST_F(DisplayDateList, PlainBuildCutsNothing) {
  for (const int mode : {1, 2, 3}) {
    m_options.SetDispMonth(mode);
    Focus({2024, 3, 3}, PageDirection::kNone);
    EXPECT_EQ(Display(Days({2024, 2, 26}, 7), 6, 0).size(), 14U) << mode;
  }
}

TEST_F(DisplayDateList, WholeMonthPagedBackwardLosesItsFirstEntries) {
  m_options.SetDispMonth(eDispMonthWholeMonth);
  Focus({2024, 2, 28}, PageDirection::kBackward);
  EXPECT_EQ(Shown(Days({2024, 2, 28}, 10), 0, 9), ". . 1 2 3 4 5 6 7 8");
}

TEST_F(DisplayDateList, WholeMonthPagedForwardLosesItsLastEntries) {
  m_options.SetDispMonth(eDispMonthWholeMonth);
  Focus({2024, 2, 28}, PageDirection::kForward);
  EXPECT_EQ(Shown(Days({2024, 2, 28}, 10), 0, 9), "28 29 [3] . . . . . . 1");
}

TEST_F(DisplayDateList, WholeMonthLosesAsManyEntriesAsAllBandsAdded) {
  m_options.SetDispMonth(eDispMonthWholeMonth);
  Focus({2024, 1, 31}, PageDirection::kForward);
  const DateList source = Days({2024, 1, 31}, 32);  // to 2 March: two bands
  EXPECT_EQ(Display(source, 0, 31).size(), source.size());
  EXPECT_EQ(Display(source, 0, 31).back().day, 24);
}

TEST_F(DisplayDateList, PagedBackwardTheRowsBeforeTheFocusThatWereNotAskedForGo) {
  Focus({2024, 3, 3}, PageDirection::kBackward);
  EXPECT_EQ(Shown(Days({2024, 2, 26}, 7), 6, 0), ". . . . 1 2 3");
}

TEST_F(DisplayDateList, PagedForwardTheRowsBehindTheFocusThatWereNotAskedForGo) {
  Focus({2024, 2, 26}, PageDirection::kForward);
  EXPECT_EQ(Shown(Days({2024, 2, 26}, 7), 0, 6), "26 27 28 29 [3] . .");
}

TEST_F(DisplayDateList, BothEndsAreCutWhicheverTheDirection) {
  for (const PageDirection direction : {PageDirection::kBackward, PageDirection::kForward}) {
    Focus({2024, 3, 6}, direction);
    // From 26 February to 7 April: a band before the focus and one after it.
    const DateList display = Display(Days({2024, 2, 26}, 42), 9, 32);
    EXPECT_EQ(display.size(), 42U);
    EXPECT_EQ(Text(display),
              ". . . . 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 "
              "29 30 31 [4] . . . . . .");
  }
}

TEST_F(DisplayDateList, RollingTailIsCutLikeRollingWeeks) {
  m_options.SetDispMonth(eDispMonthRollingTail);
  Focus({2024, 3, 3}, PageDirection::kBackward);
  EXPECT_EQ(Shown(Days({2024, 2, 26}, 7), 6, 0), ". . . . 1 2 3");
}

TEST_F(DisplayDateList, SurplusThatIsNoWholeRowStays) {
  Focus({2024, 3, 3}, PageDirection::kForward);
  // Three days and a band before the focus.
  EXPECT_EQ(Shown(Days({2024, 2, 29}, 4), 2, 0), "29 [3] . . . . . . 1 2 3");
  EXPECT_EQ(Shown(Days({2024, 2, 29}, 4), 3, 0), ". 1 2 3");
  EXPECT_EQ(Shown(Days({2024, 2, 29}, 4), 4, 0), "29 [3] . . . . . . 1 2 3");
}

TEST_F(DisplayDateList, WithoutABandNothingIsCut) {
  Focus({2024, 3, 20}, PageDirection::kBackward);
  EXPECT_EQ(Display(Days({2024, 3, 6}, 29 - 7), 0, 0).size(), 22U);
}

TEST_F(DisplayDateList, FocusThatIsNotListedCountsAsTheFirstEntryWithNothingBehind) {
  Focus({2024, 2, 31}, PageDirection::kBackward);
  const DateList source = Days({2024, 2, 26}, 7);
  EXPECT_EQ(Display(source, 6, 0).size(), 14U);
  EXPECT_EQ(Display(source, 0, 0).size(), 14U);
  EXPECT_EQ(Display(source, -7, 0).size(), 7U);  // 0 - -7 is a row
  EXPECT_EQ(Display(source, 0, -7).size(), 7U);  // so is this at the end
  EXPECT_EQ(Display(source, -6, -8).size(), 14U);
  Focus({2024, 2, 25}, PageDirection::kBackward);  // a day before the list
  EXPECT_EQ(Display(source, 0, 6).size(), 14U);
}

// Rows of -2 or less, paged backward.
TEST_F(DisplayDateList, SurplusLargerThanTheListEmptiesIt) {
  Focus({2024, 2, 26}, PageDirection::kBackward);
  const DateList source = Days({2024, 2, 26}, 7);
  EXPECT_EQ(Shown(source, -21, 6), "");
  EXPECT_EQ(Shown(source, -14, 6), "");
  EXPECT_EQ(Shown(source, -7, 6), "");   // seven from the front, seven from the end
  EXPECT_EQ(Shown(source, 0, -50), "");  // 63 from the end
  EXPECT_EQ(Shown(source, -2147483647 - 1, 6), "26 27 28 29 [3] . .");  // wraps to no surplus
}

}  // namespace
