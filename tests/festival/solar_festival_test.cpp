// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <utility>

#include "festival/calendar_festival.h"

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

// The solar rules do not need the owner.
EFestivalSolar Festival(ELanguage language, int year, int month, int day) {
  return CCalendarFestival(nullptr).GetFestivalBySolar(language, {year, month, day, 0});
}

using MonthDay = std::pair<int, int>;
using Year = std::map<MonthDay, EFestivalSolar>;

// Every festival of 2023 in a region, in the order of the year.
Year FestivalsOf2023(ELanguage language) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  Year year;
  Festival(language, 2023, 1, 2);  // from the second date of a year on, Easter is known
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= kDays[month - 1]; ++day) {
      if (const EFestivalSolar code = Festival(language, 2023, month, day)) {
        year[{month, day}] = code;
      }
    }
  }
  return year;
}

// 2023: the fourth Thursday of November is the 23rd.
const Year kCommon = {{{1, 1}, 1000},   {{3, 8}, 1001},   {{4, 1}, 1002},   {{4, 7}, 1003},
                      {{4, 22}, 1004},  {{5, 1}, 1005},   {{5, 31}, 1007},  {{10, 31}, 1008},
                      {{11, 23}, 1009}, {{12, 24}, 1010}, {{12, 25}, 1011}, {{12, 31}, 1012}};

Year CommonAnd(const Year& own) {
  Year year = own;
  year.insert(kCommon.begin(), kCommon.end());  // keeps the region's own
  return year;
}

TEST(SolarFestivals, CommonOnesOfEveryRegion) {
  for (const ELanguage language : {0, 11, -1, 100, kMin, kMax}) {
    EXPECT_EQ(FestivalsOf2023(language), kCommon) << language;
  }
}

TEST(SolarFestivals, Chs) {
  EXPECT_EQ(FestivalsOf2023(eLanguageChs), CommonAnd({{{2, 14}, 1014},
                                                      {{3, 12}, 1013},
                                                      {{3, 15}, 2000},
                                                      {{5, 4}, 2001},
                                                      {{5, 14}, 1015},
                                                      {{6, 1}, 1006},
                                                      {{6, 18}, 1016},
                                                      {{7, 1}, 2002},
                                                      {{8, 1}, 2003},
                                                      {{9, 10}, 1017},
                                                      {{10, 1}, 2004}}));
}

TEST(SolarFestivals, Kor) {
  EXPECT_EQ(FestivalsOf2023(eLanguageKor), CommonAnd({{{3, 1}, 3000},
                                                      {{4, 5}, 1013},
                                                      {{5, 5}, 3001},
                                                      {{6, 6}, 3002},
                                                      {{8, 15}, 3003},
                                                      {{10, 3}, 3004},
                                                      {{10, 9}, 3005},
                                                      {{12, 25}, 3006}}));
}

TEST(SolarFestivals, Usa) {
  EXPECT_EQ(FestivalsOf2023(eLanguageUsa), CommonAnd({{{1, 16}, 4001},
                                                      {{4, 7}, 4004},  // not World Health Day
                                                      {{4, 9}, 4003},
                                                      {{6, 4}, 1006},
                                                      {{7, 4}, 4000},
                                                      {{9, 4}, 4002}}));
}

TEST(SolarFestivals, Cht) {
  EXPECT_EQ(FestivalsOf2023(eLanguageCht), CommonAnd({{{2, 14}, 1014},
                                                      {{2, 28}, 2005},
                                                      {{3, 12}, 1013},
                                                      {{4, 4}, 1006},
                                                      {{5, 14}, 1015},
                                                      {{8, 8}, 1016},
                                                      {{9, 28}, 1017},
                                                      {{10, 10}, 2006}}));
}

TEST(SolarFestivals, Rus) { EXPECT_EQ(FestivalsOf2023(eLanguageRus), CommonAnd({{{6, 1}, 1006}})); }

TEST(SolarFestivals, Deu) {
  EXPECT_EQ(FestivalsOf2023(eLanguageDeu), CommonAnd({{{6, 1}, 1006}, {{9, 20}, 1006}}));
}

TEST(SolarFestivals, Jpn) {
  EXPECT_EQ(FestivalsOf2023(eLanguageJpn), CommonAnd({{{1, 1}, 5000},
                                                      {{1, 9}, 5001},
                                                      {{2, 11}, 5002},
                                                      {{3, 3}, 5003},
                                                      {{4, 29}, 5004},
                                                      {{5, 3}, 5005},
                                                      {{5, 4}, 5006},
                                                      {{5, 5}, 5007},
                                                      {{7, 17}, 5008},
                                                      {{9, 18}, 5009},
                                                      {{10, 9}, 5010},
                                                      {{11, 3}, 5011},
                                                      {{11, 23}, 5012},  // not Thanksgiving
                                                      {{12, 23}, 5013}}));
}

TEST(SolarFestivals, Eng) {
  EXPECT_EQ(FestivalsOf2023(eLanguageEng), CommonAnd({{{7, 14}, 1006}}));
}

TEST(SolarFestivals, Vit) {
  EXPECT_EQ(
      FestivalsOf2023(eLanguageVit),
      CommonAnd(
          {{{1, 1}, 1000}, {{4, 30}, 6000}, {{5, 19}, 6001}, {{6, 1}, 1006}, {{9, 2}, 6002}}));
}

TEST(SolarFestivals, Tha) {
  EXPECT_EQ(FestivalsOf2023(eLanguageTha), CommonAnd({{{1, 14}, 1006}}));
}

TEST(SolarFestivals, TheRegionsOwnWinsOverTheCommonOne) {
  EXPECT_EQ(Festival(eLanguageKor, 2024, 12, 25), eFestivalSolarChristmasKor);
  EXPECT_EQ(Festival(0, 2024, 12, 25), eFestivalSolarChristmasDay);
  EXPECT_EQ(Festival(11, 2024, 12, 25), eFestivalSolarChristmasDay);
  EXPECT_EQ(Festival(eLanguageJpn, 2023, 11, 23), eFestivalSolarLabourThanksgivingDay);
  EXPECT_EQ(Festival(eLanguageUsa, 2023, 11, 23), eFestivalSolarThanksgiving);
  EXPECT_EQ(Festival(eLanguageJpn, 2024, 1, 1), eFestivalSolarGanjitsu);
}

TEST(SolarFestivals, ChsLabourDayIsTheCommonOne) {
  EXPECT_EQ(Festival(eLanguageChs, 2024, 5, 1), eFestivalSolarLabourDay);
  EXPECT_EQ(Festival(eLanguageChs, 2024, 5, 4), eFestivalSolarYouthDay);
}

TEST(SolarFestivals, ThaChildrensDayMovesAndNewYearIsTheCommonOne) {
  EXPECT_EQ(Festival(eLanguageTha, 2024, 1, 13), eFestivalSolarChildrensDay);
  EXPECT_EQ(Festival(eLanguageTha, 2024, 1, 1), eFestivalSolarNewYearsDay);
}

TEST(SolarFestivals, VitNewYearIsItsOwnRule) {
  const CCalendarFestival festival(nullptr);
  EXPECT_EQ(festival._GetFestivalBySolarVit({2024, 1, 1, 0}), eFestivalSolarNewYearsDay);
  EXPECT_EQ(festival._GetFestivalBySolarTha({2024, 1, 1, 0}), eFestivalSolarNone);
}

TEST(SolarFestivals, OneRegionAloneHasNoCommonFestivals) {
  const CCalendarFestival festival(nullptr);
  const CCalendarSolarDate christmas{2024, 12, 25, 0};
  EXPECT_EQ(festival._GetFestivalBySolarChs(christmas), 0);
  EXPECT_EQ(festival._GetFestivalBySolarKor(christmas), 3006);
  EXPECT_EQ(festival._GetFestivalBySolarUsa(christmas), 0);
  EXPECT_EQ(festival._GetFestivalBySolarCht({2024, 10, 10, 0}), 2006);
  EXPECT_EQ(festival._GetFestivalBySolarRus({2024, 6, 1, 0}), 1006);
  EXPECT_EQ(festival._GetFestivalBySolarDeu({2024, 9, 20, 0}), 1006);
  EXPECT_EQ(festival._GetFestivalBySolarJpn(christmas), 0);
  EXPECT_EQ(festival._GetFestivalBySolarEng({2024, 7, 14, 0}), 1006);
  EXPECT_EQ(festival._GetCommonFestivalBySolar(christmas), 1011);
  EXPECT_EQ(festival._GetCommonFestivalBySolar({2024, 6, 1, 0}), 0);
}

TEST(SolarFestivals, WeekdayRulesHoldFrom1900To2099Only) {
  // The fourth Thursdays of November.
  EXPECT_EQ(Festival(0, 1900, 11, 22), eFestivalSolarThanksgiving);
  EXPECT_EQ(Festival(0, 2099, 11, 26), eFestivalSolarThanksgiving);
  for (int day = 1; day <= 30; ++day) {
    EXPECT_EQ(Festival(0, 1899, 11, day), 0) << day;
    EXPECT_EQ(Festival(0, 2100, 11, day), 0) << day;
    EXPECT_EQ(Festival(eLanguageJpn, 2100, 7, day), 0) << day;
  }
  EXPECT_EQ(Festival(0, 2100, 12, 25), eFestivalSolarChristmasDay);
  EXPECT_EQ(Festival(eLanguageChs, kMin, 10, 1), eFestivalSolarNationalDayChs);
}

TEST(SolarFestivals, NoWeekdayRuleHoldsIn2100) {
  const struct {
    ELanguage language;
    EFestivalSolar code;
  } rules[] = {
      {eLanguageChs, eFestivalSolarMothersDay},
      {eLanguageChs, eFestivalSolarFathersDay},
      {eLanguageUsa, eFestivalSolarMartinLutherKingDay},
      {eLanguageUsa, eFestivalSolarChildrensDay},
      {eLanguageUsa, eFestivalSolarLaborDayUsa},
      {eLanguageCht, eFestivalSolarMothersDay},
      {eLanguageJpn, eFestivalSolarComingOfAgeDay},
      {eLanguageJpn, eFestivalSolarMarineDay},
      {eLanguageJpn, eFestivalSolarRespectForTheAgedDay},
      {eLanguageJpn, eFestivalSolarSportsDay},
      {eLanguageTha, eFestivalSolarChildrensDay},
      {0, eFestivalSolarThanksgiving},
  };
  for (const auto& rule : rules) {
    int in2099 = 0;
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= 31; ++day) {
        in2099 += Festival(rule.language, 2099, month, day) == rule.code ? 1 : 0;
        EXPECT_NE(Festival(rule.language, 2100, month, day), rule.code) << month << '-' << day;
      }
    }
    EXPECT_EQ(in2099, 1) << rule.code;
  }
}

TEST(SolarFestivals, TheDayOfTheWeekIsNotRead) {
  const CCalendarFestival festival(nullptr);
  EXPECT_EQ(festival.GetFestivalBySolar(0, {2023, 11, 23, 4}),
            festival.GetFestivalBySolar(0, {2023, 11, 23, 0}));
}

TEST(SolarFestivals, EveryIntIsAnswered) {
  constexpr int kInts[] = {kMin, kMin + 1, -31, -1, 0, 1, 11, 13, 31, 2024, kMax - 1, kMax};
  for (ELanguage language = -1; language <= 12; ++language) {
    for (const int year : kInts) {
      for (const int month : kInts) {
        for (const int day : kInts) {
          Festival(language, year, month, day);
        }
      }
    }
  }
}

// ---- Easter through the region's rules ----

class UsaEaster : public testing::Test {
 protected:
  UsaEaster() { Festival(eLanguageUsa, 1999, 1, 2); }  // another year is the last one asked
};

TEST_F(UsaEaster, IsMissedByTheFirstQueryOfAYear) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), 0);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
}

TEST_F(UsaEaster, IsFoundAfterAnyOtherDateOfTheYear) {
  Festival(eLanguageUsa, 2024, 12, 25);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
}

TEST_F(UsaEaster, IsMissedAgainAfterAnotherYear) {
  Festival(eLanguageUsa, 2024, 3, 30);
  Festival(eLanguageUsa, 2025, 3, 30);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), 0);
  EXPECT_EQ(Festival(eLanguageUsa, 2025, 4, 20), 0);
  EXPECT_EQ(Festival(eLanguageUsa, 2025, 4, 20), eFestivalSolarEaster);
}

TEST_F(UsaEaster, OtherRegionsDoNotDisturbIt) {
  Festival(eLanguageUsa, 2024, 3, 30);
  Festival(eLanguageEng, 2025, 4, 20);
  Festival(0, 2025, 4, 20);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
}

TEST_F(UsaEaster, GoodFridayIsFoundFromTheFirstQueryOn) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 29), eFestivalSolarGoodFriday);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 29), eFestivalSolarGoodFriday);
}

// While Easter is not known its month and day are 0.
TEST_F(UsaEaster, IsTakenForMonth0Day0ByTheFirstQueryOfAYear) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 0, 0), eFestivalSolarEaster);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 0, 0), 0);
}

// 29 March 2024 makes year 29 look kept.
TEST_F(UsaEaster, GoodFridayOfYear29MayBeThatOf2024) {
  Festival(eLanguageUsa, 2024, 1, 2);
  EXPECT_EQ(Festival(eLanguageUsa, 29, 3, 29), eFestivalSolarGoodFriday);
}

}  // namespace
