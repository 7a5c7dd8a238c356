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
CCalendarSolarDateEx KeptBack(const Civil& d) {
  return {0, 0, 0, 0, d.year, d.month, d.day, DayOfWeek(d)};
}

DateList Days(const Civil& first, int count) {
  DateList list;
  for (int i = 0; i < count; ++i) {
    list.push_back(Real(AddDays(first, i)));
  }
  return list;
}

static_assert(sizeof(CCalendarSolarDateEx) == 32 &&
              std::is_standard_layout_v<CCalendarSolarDateEx>);
static_assert(offsetof(CCalendarSolarDateEx, dayOfWeek) == 12 &&
              offsetof(CCalendarSolarDateEx, hiddenYear) == 16 &&
              offsetof(CCalendarSolarDateEx, hiddenDayOfWeek) == 28);

// "29 30 [3] . . . . . . 1 2": days, a title with its month, fillers, and kept-back days as "(31)".
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
  EXPECT_TRUE(KeptBack({2024, 3, 31}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{0, 0, 2, 0, 0, 0, 0, 0}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{0, 4, 0, 0, 0, 0, 0, 0}).IsBlank());
  EXPECT_FALSE((CCalendarSolarDateEx{2024, 0, 0, 0, 0, 0, 0, 0}).IsBlank());
}

TEST_F(DisplayDateList, MonthLengths) {
  constexpr int kMin = std::numeric_limits<int>::min();
  constexpr int kMax = std::numeric_limits<int>::max();
  struct {
    int year, month, days;
  } const cases[] = {{2000, 2, 29}, {1900, 2, 28},  {2024, 2, 29},    {2023, 1, 31},
                     {2023, 4, 30}, {1900, 1, 31},  {2099, 12, 31},   {2100, 1, -1},
                     {1899, 5, -1}, {1899, 12, -1}, {2023, 13, -1},   {2023, 0, -1},
                     {kMin, 5, -1}, {kMax, 5, -1},  {2023, kMin, -1}, {2023, kMax, -1}};
  for (const auto& c : cases) {
    EXPECT_EQ(CCalendarLogicBuild::_GetMaxDaysOfSolarMonth(c.year, c.month), c.days)
        << c.year << '-' << c.month;
  }
}

TEST_F(DisplayDateList, RunWithoutAFirstDayIsShownAsItIs) {
  EXPECT_EQ(Shown(Days({2024, 3, 2}, 10)), "2 3 4 5 6 7 8 9 10 11");
  EXPECT_EQ(Shown({}), "");
}

TEST_F(DisplayDateList, BandOfSevenStandsBeforeAFirstDayInsideTheRunAndKeepsItsColumn) {
  const DateList source = Days({2024, 2, 28}, 4);
  for (const int mode : {1, 2, 3, 0, 5, -4}) {
    m_options.SetDispMonth(mode);
    EXPECT_EQ(Shown(source), "28 29 [3] . . . . . . 1 2") << mode;
  }
  const DateList display = Display(source, 0, 0);
  EXPECT_EQ(display.size(), source.size() + 7);
  EXPECT_TRUE(display[2].IsIntervalTitle());
  EXPECT_EQ(display[2].month, 3);
  EXPECT_EQ(display[2].dayOfWeek, 0);
  EXPECT_EQ(display[2].hiddenDay, 0);
  EXPECT_EQ(display[9].dayOfWeek, 5);
}

TEST_F(DisplayDateList, EveryMonthThatBeginsInsideGetsItsBand) {
  const DateList display = Display(Days({2023, 12, 31}, 33), 0, 0);
  ASSERT_EQ(display.size(), 33U + 14U);
  EXPECT_EQ(display[1].month, 1);  // January after December
  EXPECT_EQ(display[39].month, 2);
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

TEST_F(DisplayDateList, SevenKeptBackDaysOrAShownOneBringTheBand) {
  DateList source;
  for (int day = 24; day <= 29; ++day) {
    source.push_back(KeptBack({2024, 2, day}));
  }
  source.push_back(Real({2024, 3, 1}));
  EXPECT_EQ(Shown(source), "(24) (25) (26) (27) (28) (29) 1");
  source.insert(source.begin(), KeptBack({2024, 2, 23}));
  EXPECT_EQ(Shown(source), "(23) (24) (25) (26) (27) (28) (29) [3] . . . . . . 1");
  EXPECT_EQ(Shown({KeptBack({2024, 2, 28}), Real({2024, 2, 29}), Real({2024, 3, 1})}),
            "(28) 29 [3] . . . . . . 1");
}

TEST_F(DisplayDateList, KeptBackFirstDayNeverBringsABand) {
  EXPECT_EQ(Shown({Real({2024, 2, 29}), KeptBack({2024, 3, 1}), Real({2024, 3, 2})}), "29 (1) 2");
}

TEST_F(DisplayDateList, PlainBuildCutsNothing) {
  for (const int mode : {1, 2, 3}) {
    m_options.SetDispMonth(mode);
    Focus({2024, 3, 3}, PageDirection::kNone);
    EXPECT_EQ(Display(Days({2024, 2, 26}, 7), 6, 0).size(), 14U) << mode;
  }
}

TEST_F(DisplayDateList, WholeMonthLosesItsFirstEntriesBackwardAndItsLastForward) {
  m_options.SetDispMonth(eDispMonthWholeMonth);
  Focus({2024, 2, 28}, PageDirection::kBackward);
  EXPECT_EQ(Shown(Days({2024, 2, 28}, 10), 0, 9), ". . 1 2 3 4 5 6 7 8");
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
  for (const int mode : {eDispMonthRollingWeeks, eDispMonthRollingTail}) {
    m_options.SetDispMonth(mode);
    EXPECT_EQ(Shown(Days({2024, 2, 26}, 7), 6, 0), ". . . . 1 2 3") << mode;
  }
}

TEST_F(DisplayDateList, PagedForwardTheRowsAfterTheFocusThatWereNotAskedForGo) {
  Focus({2024, 2, 26}, PageDirection::kForward);
  EXPECT_EQ(Shown(Days({2024, 2, 26}, 7), 0, 6), "26 27 28 29 [3] . .");
}

// From 26 February to 7 April there is a band before the focus and one after it.
TEST_F(DisplayDateList, BothEndsAreCutWhicheverTheDirection) {
  for (const PageDirection direction : {PageDirection::kBackward, PageDirection::kForward}) {
    Focus({2024, 3, 6}, direction);
    const std::string shown = Shown(Days({2024, 2, 26}, 42), 9, 32);
    EXPECT_EQ(shown.substr(0, 14), ". . . . 1 2 3 ");
    EXPECT_EQ(shown.substr(shown.size() - 18), "31 [4] . . . . . .");
  }
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

TEST_F(DisplayDateList, FocusThatIsNotListedCountsAsTheFirstEntryWithNothingAfter) {
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
