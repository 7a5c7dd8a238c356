// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <utility>

#include "date/calendar_platform_api.h"
#include "festival/calendar_festival.h"
#include "festival/lunar_festival_rules.h"
#include "logic/calendar_logic.h"

namespace almara::test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

using Year = std::map<std::pair<int, int>, EFestivalLunar>;  // by lunar month and day

class LunarFestivals : public testing::Test {
 protected:
  LunarFestivals() { g_mac_timezone = 8; }

  EFestivalLunar Festival(ELanguage language, int year, int month, int day) const {
    return m_festival.GetFestivalByLunar(language, {year, month, day, 0});
  }

  // The codes of every day from 2024-02-10, lunar 2024-1-1, to 2025-01-28, the eve of 2025. 2024
  // has no leap month.
  Year FestivalsOfLunar2024(ELanguage language) {
    Year found;
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

// clang-format off
const std::map<ELanguage, Year> kLunar2024 = [] {
  std::map<ELanguage, Year> years = {
    {eLanguageCht, {
        {{1, 1}, eFestivalLunarNewYearsDay},
        {{1, 15}, eFestivalLunarLanternFestival},
        {{5, 5}, eFestivalLunarDragonBoat},
        {{7, 7}, eFestivalLunarDoubleSeventh},
        {{7, 15}, eFestivalLunarGhostFestival},
        {{8, 15}, eFestivalLunarMidAutumn},
        {{9, 9}, eFestivalLunarDoubleNinth},
        {{12, 8}, eFestivalLunarLaba},
        {{12, 29}, eFestivalLunarNewYearsEve}}},
    {eLanguageKor, {
        {{1, 1}, eFestivalLunarNewYearsDay},
        {{4, 8}, eFestivalLunarBuddhasBirthday},
        {{8, 15}, eFestivalLunarMidAutumn}}},
    {eLanguageVit, {
        {{1, 1}, eFestivalLunarNewYearsDay},
        {{1, 15}, eFestivalLunarLanternFestival},
        {{3, 10}, eFestivalLunarHungKings},
        {{5, 5}, eFestivalLunarDragonBoat},
        {{7, 15}, eFestivalLunarGhostFestival},
        {{8, 15}, eFestivalLunarMidAutumn},
        {{9, 9}, eFestivalLunarDoubleNinth},
        {{12, 29}, eFestivalLunarNewYearsEve}}},
  };
  years[eLanguageChs] = years[eLanguageCht];
  years[eLanguageChs][{12, 23}] = eFestivalLunarLittleNewYear;
  return years;
}();
// clang-format on

TEST_F(LunarFestivals, OfTheYear2024) {
  for (const auto& [language, expected] : kLunar2024) {
    EXPECT_EQ(FestivalsOfLunar2024(language), expected) << language;
  }
}

TEST_F(LunarFestivals, NoneForOtherLanguages) {
  constexpr ELanguage kOthers[] = {
      -1,           0,  eLanguageUsa, eLanguageRus, eLanguageDeu, eLanguageJpn, eLanguageEng,
      eLanguageTha, 11, kMin,         kMax};
  for (const ELanguage language : kOthers) {
    EXPECT_EQ(FestivalsOfLunar2024(language), Year{}) << language;
  }
}

TEST_F(LunarFestivals, TheEveIsThe29thOrThe30th) {
  // Month 12 of 2023 has 30 days, that of 2024 has 29.
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 8), eFestivalLunarNone);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 9), eFestivalLunarNewYearsEve);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 2, 10), eFestivalLunarNewYearsDay);
  EXPECT_EQ(Festival(eLanguageChs, 2025, 1, 28), eFestivalLunarNewYearsEve);
}

TEST_F(LunarFestivals, LeapMonthsHaveNone) {
  // 2009: 5 of month 5 on 28 May, 5 of leap month 5 on 27 June.
  const CCalendarLunarDate leap = m_owner.ConverterLunar({2009, 6, 27, 0});
  ASSERT_EQ(leap.month * 100 + leap.day, 505);
  ASSERT_EQ(leap.leap, 1);
  EXPECT_EQ(Festival(eLanguageChs, 2009, 5, 28), eFestivalLunarDragonBoat);
  EXPECT_EQ(Festival(eLanguageChs, 2009, 6, 27), eFestivalLunarNone);
}

TEST_F(LunarFestivals, NoneAtTheEndOfTheFixedMonth) {
  for (const auto& [language, year] : kLunar2024) {
    EXPECT_EQ(Festival(language, 2017, 3, 27), eFestivalLunarNone);
  }
}

TEST_F(LunarFestivals, NoneWithoutAnOwner) {
  CCalendarLogic* const nobody = nullptr;
  for (const CCalendarFestival& orphan : {CCalendarFestival(nullptr), CCalendarFestival(nobody)}) {
    for (const auto& [language, year] : kLunar2024) {
      EXPECT_EQ(orphan.GetFestivalByLunar(language, {2024, 2, 10, 0}), eFestivalLunarNone);
    }
    EXPECT_EQ(orphan._GetLunarDate({2024, 2, 10, 0}).month, 0);
  }
}

TEST_F(LunarFestivals, TheLunarDateIsTheOwners) {
  struct {
    CCalendarLunarDate ConverterLunar(CCalendarSolarDate date) const {
      return {date.year, 8, 15, 0, 0};
    }
  } owner;
  const CCalendarFestival festival(&owner);
  EXPECT_EQ(festival._GetLunarDate({2024, 2, 10, 0}).day, 15);
  EXPECT_EQ(festival.GetFestivalByLunar(eLanguageKor, {2024, 2, 10, 0}), eFestivalLunarMidAutumn);
}

TEST_F(LunarFestivals, OneRegionAlone) {
  EXPECT_EQ(m_festival._GetFestivalByLunarChs({2024, 2, 2, 0}), eFestivalLunarLittleNewYear);
  EXPECT_EQ(m_festival._GetFestivalByLunarCht({2024, 2, 9, 0}), eFestivalLunarNewYearsEve);
  EXPECT_EQ(m_festival._GetFestivalByLunarKor({2024, 5, 15, 0}), eFestivalLunarBuddhasBirthday);
  EXPECT_EQ(m_festival._GetFestivalByLunarVit({2024, 4, 18, 0}), eFestivalLunarHungKings);
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

// ---- The rule by lunar dates alone ----

TEST(LunarFestivalRule, NoFestivalFallsOnDay0) {
  EXPECT_EQ(RegionLunarFestival(eLanguageChs, 12, 0), eFestivalLunarNone);
}

TEST(LunarFestivalRule, AsksForTheNextDayOnlyWhereItDecides) {
  int asked = 0;
  const auto festival = [&](ELanguage language, CCalendarLunarDate lunar, CCalendarLunarDate next) {
    return LunarFestival(language, lunar, [&] {
      ++asked;
      return next;
    });
  };
  const CCalendarLunarDate newYear{2025, 1, 1, 0, 0};
  EXPECT_EQ(festival(eLanguageChs, {2024, 12, 23, 0, 0}, newYear), eFestivalLunarLittleNewYear);
  EXPECT_EQ(festival(eLanguageKor, {2024, 12, 29, 0, 0}, newYear), eFestivalLunarNone);
  EXPECT_EQ(festival(eLanguageChs, {2024, 12, 29, 0, 1}, newYear), eFestivalLunarNone);
  EXPECT_EQ(festival(eLanguageChs, {2024, 11, 30, 0, 0}, newYear), eFestivalLunarNone);
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(festival(eLanguageCht, {2024, 12, 23, 0, 0}, {2024, 12, 24, 0, 0}), eFestivalLunarNone);
  EXPECT_EQ(festival(eLanguageChs, {2024, 12, 29, 0, 0}, newYear), eFestivalLunarNewYearsEve);
  EXPECT_EQ(festival(eLanguageChs, {2024, 12, 29, 0, 0}, {2025, 1, 2, 0, 0}), eFestivalLunarNone);
  // Whether the next month is a leap month is not asked.
  EXPECT_EQ(festival(eLanguageChs, {2024, 12, 29, 0, 0}, {2025, 1, 1, 0, 1}),
            eFestivalLunarNewYearsEve);
  EXPECT_EQ(asked, 4);
}

}  // namespace
}  // namespace almara::test
