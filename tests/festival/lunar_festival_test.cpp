// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <utility>

#include "date/calendar_platform_api.h"
#include "festival/calendar_festival.h"
#include "logic/calendar_logic.h"

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

class LunarFestivals : public testing::Test {
 protected:
  LunarFestivals() { g_mac_timezone = 8; }

  EFestivalLunar Festival(ELanguage language, int year, int month, int day) const {
    return m_festival.GetFestivalByLunar(language, {year, month, day, 0});
  }

  // The codes of every day from 2024-02-10, lunar 2024-1-1, to 2025-01-28, the eve of 2025, by
  // lunar month and day. 2024 has no leap month.
  std::map<std::pair<int, int>, EFestivalLunar> FestivalsOfLunar2024(ELanguage language) {
    std::map<std::pair<int, int>, EFestivalLunar> found;
    CCalendarSolarDate date{2024, 2, 10, 0};
    for (int i = 0; i < 354; ++i) {
      const CCalendarLunarDate lunar = m_owner.ConverterLunar(date);
      EXPECT_EQ(lunar.year, 2024);
      if (const EFestivalLunar code = m_festival.GetFestivalByLunar(language, date)) {
        found[{lunar.month, lunar.day}] = code;
      }
      date = CalendarPlatformApi::GetNewDateByOffsetDays(date, 1);
    }
    return found;
  }

  CCalendarLogic m_owner;
  CCalendarFestival m_festival{&m_owner};
};

using Year = std::map<std::pair<int, int>, EFestivalLunar>;

TEST_F(LunarFestivals, Chs) {
  EXPECT_EQ(FestivalsOfLunar2024(eLanguageChs), (Year{{{1, 1}, 20000},
                                                      {{1, 15}, 20001},
                                                      {{5, 5}, 20002},
                                                      {{7, 7}, 20003},
                                                      {{7, 15}, 20004},
                                                      {{8, 15}, 20005},
                                                      {{9, 9}, 20006},
                                                      {{12, 8}, 20007},
                                                      {{12, 23}, 20008},
                                                      {{12, 29}, 20009}}));
}

TEST_F(LunarFestivals, Cht) {
  EXPECT_EQ(FestivalsOfLunar2024(eLanguageCht), (Year{{{1, 1}, 20000},
                                                      {{1, 15}, 20001},
                                                      {{5, 5}, 20002},
                                                      {{7, 7}, 20003},
                                                      {{7, 15}, 20004},
                                                      {{8, 15}, 20005},
                                                      {{9, 9}, 20006},
                                                      {{12, 8}, 20007},
                                                      {{12, 29}, 20009}}));
}

TEST_F(LunarFestivals, Kor) {
  EXPECT_EQ(FestivalsOfLunar2024(eLanguageKor),
            (Year{{{1, 1}, 20000}, {{4, 8}, 20010}, {{8, 15}, 20005}}));
}

TEST_F(LunarFestivals, Vit) {
  EXPECT_EQ(FestivalsOfLunar2024(eLanguageVit), (Year{{{1, 1}, 20000},
                                                      {{1, 15}, 20001},
                                                      {{3, 10}, 20012},
                                                      {{5, 5}, 20002},
                                                      {{7, 15}, 20004},
                                                      {{8, 15}, 20005},
                                                      {{9, 9}, 20006},
                                                      {{12, 29}, 20009}}));
}

TEST_F(LunarFestivals, NoneForOtherLanguages) {
  for (const ELanguage language : {-1, 0, 3, 5, 6, 7, 8, 10, 11, kMin, kMax}) {
    EXPECT_EQ(FestivalsOfLunar2024(language), Year{}) << language;
  }
}

TEST_F(LunarFestivals, TheEveIsThe29thOrThe30th) {
  // Month 12 of 2023 has 30 days, that of 2024 has 29.
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 8), 0);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 9), eFestivalLunarNewYearsEve);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 10), eFestivalLunarNewYearsDay);
  EXPECT_EQ(Festival(eLanguageChs, 2025, 1, 28), eFestivalLunarNewYearsEve);
  EXPECT_EQ(Festival(eLanguageChs, 2025, 1, 29), eFestivalLunarNewYearsDay);
}

TEST_F(LunarFestivals, KorHasNoEveAndNoLanternFestival) {
  EXPECT_EQ(Festival(eLanguageKor, 2024, 2, 9), 0);
  EXPECT_EQ(Festival(eLanguageKor, 2024, 2, 24), 0);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 24), eFestivalLunarLanternFestival);
}

TEST_F(LunarFestivals, ChtHasNothingOn12And23) {
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 2), eFestivalLunarLittleNewYear);
  EXPECT_EQ(Festival(eLanguageCht, 2024, 2, 2), 0);
}

TEST_F(LunarFestivals, LeapMonthsHaveNone) {
  // 2009: 5 of month 5 on 28 May, 5 of leap month 5 on 27 June.
  ASSERT_EQ(m_owner.ConverterLunar({2009, 6, 27, 0}).month, 5);
  ASSERT_EQ(m_owner.ConverterLunar({2009, 6, 27, 0}).day, 5);
  ASSERT_EQ(m_owner.ConverterLunar({2009, 6, 27, 0}).leap, 1);
  EXPECT_EQ(Festival(eLanguageChs, 2009, 5, 28), eFestivalLunarDragonBoat);
  EXPECT_EQ(Festival(eLanguageChs, 2009, 6, 27), 0);
}

TEST_F(LunarFestivals, NoneAtTheEndOfTheCorrectedMonth) {
  for (const ELanguage language : {eLanguageChs, eLanguageKor, eLanguageCht, eLanguageVit}) {
    EXPECT_EQ(Festival(language, 2017, 3, 27), 0);
  }
}

TEST_F(LunarFestivals, NoneWithoutAnOwner) {
  const CCalendarFestival orphan(nullptr);
  for (const ELanguage language : {eLanguageChs, eLanguageKor, eLanguageCht, eLanguageVit}) {
    EXPECT_EQ(orphan.GetFestivalByLunar(language, {2024, 2, 10, 0}), 0);
  }
  EXPECT_EQ(orphan._GetLunarDate({2024, 2, 10, 0}).month, 0);
  EXPECT_EQ(orphan._GetFestivalByLunarChs({2024, 2, 9, 0}), 0);
}

TEST_F(LunarFestivals, TheLunarDateIsTheOwners) {
  const CCalendarLunarDate lunar = m_festival._GetLunarDate({2024, 2, 10, 0});
  EXPECT_EQ(lunar.year, 2024);
  EXPECT_EQ(lunar.month, 1);
  EXPECT_EQ(lunar.day, 1);
}

TEST_F(LunarFestivals, OneRegionAlone) {
  EXPECT_EQ(m_festival._GetFestivalByLunarChs({2024, 2, 9, 0}), 20009);
  EXPECT_EQ(m_festival._GetFestivalByLunarCht({2024, 2, 9, 0}), 20009);
  EXPECT_EQ(m_festival._GetFestivalByLunarKor({2024, 2, 9, 0}), 0);
  EXPECT_EQ(m_festival._GetFestivalByLunarVit({2024, 4, 18, 0}), 20012);
}

TEST_F(LunarFestivals, EveryIntIsAnswered) {
  for (const int value : {kMin, kMin + 1, -1, 0, kMax - 1, kMax}) {
    Festival(eLanguageChs, value, 1, 1);
    Festival(eLanguageChs, 2024, value, 1);
    Festival(eLanguageChs, 2024, 1, value);
    Festival(value, 2024, 1, 1);
  }
}

// Far away, where the method finds a leap month 12: the month before it ends on 21 January 5572.
TEST_F(LunarFestivals, AMonth12ThatALeapMonthFollowsHasNoEve) {
  ASSERT_EQ(m_owner.ConverterLunar({5572, 1, 21, 0}).day, 29);
  ASSERT_EQ(m_owner.ConverterLunar({5572, 1, 22, 0}).leap, 1);
  for (const ELanguage language : {eLanguageChs, eLanguageCht, eLanguageVit}) {
    EXPECT_EQ(Festival(language, 5572, 1, 21), eFestivalLunarNone);
    EXPECT_EQ(Festival(language, 5572, 2, 19), eFestivalLunarNone) << "a day of the leap month";
    EXPECT_EQ(Festival(language, 5572, 2, 20), eFestivalLunarNewYearsDay);
  }
}

}  // namespace
