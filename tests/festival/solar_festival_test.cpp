// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <utility>

#include "date/gregorian.h"
#include "festival/calendar_festival.h"

namespace almara::test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

// The solar rules do not need the owner.
EFestivalSolar Festival(ELanguage language, int year, int month, int day) {
  return CCalendarFestival(nullptr).GetFestivalBySolar(language, {year, month, day, 0});
}

using Year = std::map<std::pair<int, int>, EFestivalSolar>;  // by month and day

Year FestivalsOf2023(ELanguage language) {
  Year year;
  Festival(language, 2023, 1, 2);  // from the second date of a year on, Easter is known
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= DaysOfMonth(2023, month); ++day) {
      if (const EFestivalSolar code = Festival(language, 2023, month, day)) {
        year[{month, day}] = code;
      }
    }
  }
  return year;
}

// clang-format off
const Year kCommon = {
    {{1, 1}, eFestivalSolarNewYearsDay},
    {{3, 8}, eFestivalSolarWomensDay},
    {{4, 1}, eFestivalSolarAprilFoolsDay},
    {{4, 7}, eFestivalSolarHealthDay},
    {{4, 22}, eFestivalSolarEarthDay},
    {{5, 1}, eFestivalSolarLabourDay},
    {{5, 31}, eFestivalSolarNoTobaccoDay},
    {{10, 31}, eFestivalSolarHalloween},
    {{11, 23}, eFestivalSolarThanksgiving},  // the fourth Thursday
    {{12, 24}, eFestivalSolarChristmasEve},
    {{12, 25}, eFestivalSolarChristmasDay},
    {{12, 31}, eFestivalSolarNewYearsEve},
};

const std::map<ELanguage, Year> kOwn = {
    {eLanguageChs, {
        {{2, 14}, eFestivalSolarValentinesDay},
        {{3, 12}, eFestivalSolarArborDay},
        {{3, 15}, eFestivalSolarConsumerRightsDay},
        {{5, 4}, eFestivalSolarYouthDay},
        {{5, 14}, eFestivalSolarMothersDay},
        {{6, 1}, eFestivalSolarChildrensDay},
        {{6, 18}, eFestivalSolarFathersDay},
        {{7, 1}, eFestivalSolarPartyFoundationDay},
        {{8, 1}, eFestivalSolarArmyDay},
        {{9, 10}, eFestivalSolarTeachersDay},
        {{10, 1}, eFestivalSolarNationalDayChs}}},
    {eLanguageKor, {
        {{3, 1}, eFestivalSolarIndependenceMovementDay},
        {{4, 5}, eFestivalSolarArborDay},
        {{5, 5}, eFestivalSolarChildrensDayKor},
        {{6, 6}, eFestivalSolarMemorialDayKor},
        {{8, 15}, eFestivalSolarLiberationDayKor},
        {{10, 3}, eFestivalSolarNationalFoundationDayKor},
        {{10, 9}, eFestivalSolarHangulDay},
        {{12, 25}, eFestivalSolarChristmasKor}}},
    {eLanguageUsa, {
        {{1, 16}, eFestivalSolarMartinLutherKingDay},
        {{4, 7}, eFestivalSolarGoodFriday},  // not World Health Day
        {{4, 9}, eFestivalSolarEaster},
        {{6, 4}, eFestivalSolarChildrensDay},
        {{7, 4}, eFestivalSolarIndependenceDay},
        {{9, 4}, eFestivalSolarLaborDayUsa}}},
    {eLanguageCht, {
        {{2, 14}, eFestivalSolarValentinesDay},
        {{2, 28}, eFestivalSolarPeaceMemorialDay},
        {{3, 12}, eFestivalSolarArborDay},
        {{4, 4}, eFestivalSolarChildrensDay},
        {{5, 14}, eFestivalSolarMothersDay},
        {{8, 8}, eFestivalSolarFathersDay},
        {{9, 28}, eFestivalSolarTeachersDay},
        {{10, 10}, eFestivalSolarNationalDayCht}}},
    {eLanguageRus, {{{6, 1}, eFestivalSolarChildrensDay}}},
    {eLanguageDeu, {{{6, 1}, eFestivalSolarChildrensDay}, {{9, 20}, eFestivalSolarChildrensDay}}},
    {eLanguageJpn, {
        {{1, 1}, eFestivalSolarGanjitsu},
        {{1, 9}, eFestivalSolarComingOfAgeDay},
        {{2, 11}, eFestivalSolarFoundationDayJpn},
        {{3, 3}, eFestivalSolarHinamatsuri},
        {{4, 29}, eFestivalSolarShowaDay},
        {{5, 3}, eFestivalSolarConstitutionDayJpn},
        {{5, 4}, eFestivalSolarGreeneryDay},
        {{5, 5}, eFestivalSolarChildrensDayJpn},
        {{7, 17}, eFestivalSolarMarineDay},
        {{9, 18}, eFestivalSolarRespectForTheAgedDay},
        {{10, 9}, eFestivalSolarSportsDay},
        {{11, 3}, eFestivalSolarCultureDay},
        {{11, 23}, eFestivalSolarLabourThanksgivingDay},  // not Thanksgiving
        {{12, 23}, eFestivalSolarEmperorsBirthday}}},
    {eLanguageEng, {{{7, 14}, eFestivalSolarChildrensDay}}},
    {eLanguageVit, {
        {{1, 1}, eFestivalSolarNewYearsDay},
        {{4, 30}, eFestivalSolarReunificationDay},
        {{5, 19}, eFestivalSolarHoChiMinhsBirthday},
        {{6, 1}, eFestivalSolarChildrensDay},
        {{9, 2}, eFestivalSolarNationalDayVit}}},
    {eLanguageTha, {{{1, 14}, eFestivalSolarChildrensDay}}},
};
// clang-format on

TEST(SolarFestivals, ARegionHasItsOwnAndTheCommonOnes) {
  for (const auto& [language, own] : kOwn) {
    Year expected = own;
    expected.insert(kCommon.begin(), kCommon.end());  // the region's own stays
    EXPECT_EQ(FestivalsOf2023(language), expected) << language;
  }
}

TEST(SolarFestivals, OtherLanguagesHaveTheCommonOnesAlone) {
  for (const ELanguage language : {0, 11, -1, 100, kMin, kMax}) {
    EXPECT_EQ(FestivalsOf2023(language), kCommon) << language;
  }
}

TEST(SolarFestivals, OneRegionAloneHasNoCommonFestivals) {
  using Rules = EFestivalSolar (CCalendarFestival::*)(CCalendarSolarDate) const;
  const std::map<ELanguage, Rules> rulesOf = {
      {eLanguageChs, &CCalendarFestival::_GetFestivalBySolarChs},
      {eLanguageKor, &CCalendarFestival::_GetFestivalBySolarKor},
      {eLanguageUsa, &CCalendarFestival::_GetFestivalBySolarUsa},
      {eLanguageCht, &CCalendarFestival::_GetFestivalBySolarCht},
      {eLanguageRus, &CCalendarFestival::_GetFestivalBySolarRus},
      {eLanguageDeu, &CCalendarFestival::_GetFestivalBySolarDeu},
      {eLanguageJpn, &CCalendarFestival::_GetFestivalBySolarJpn},
      {eLanguageEng, &CCalendarFestival::_GetFestivalBySolarEng},
      {eLanguageVit, &CCalendarFestival::_GetFestivalBySolarVit},
      {eLanguageTha, &CCalendarFestival::_GetFestivalBySolarTha},
  };
  const CCalendarFestival festival(nullptr);
  Festival(eLanguageUsa, 2023, 1, 2);
  for (const auto& [language, own] : kOwn) {
    Year found;
    for (const auto& [date, code] : kCommon) {
      found[date] = (festival.*rulesOf.at(language))({2023, date.first, date.second, 0});
      EXPECT_EQ(festival._GetCommonFestivalBySolar({2023, date.first, date.second, 0}), code);
    }
    for (const auto& [date, code] : own) {
      EXPECT_EQ((festival.*rulesOf.at(language))({2023, date.first, date.second, 0}), code);
      found.erase(date);
    }
    for (const auto& [date, code] : found) {
      EXPECT_EQ(code, eFestivalSolarNone) << language << ' ' << date.first << '-' << date.second;
    }
  }
}

TEST(SolarFestivals, WeekdayRulesHoldFrom1900To2099Only) {
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
    std::map<int, int> found;  // by year
    for (const int year : {1899, 1900, 2099, 2100}) {
      for (int month = 1; month <= 12; ++month) {
        for (int day = -1; day <= 31; ++day) {
          found[year] += Festival(rule.language, year, month, day) == rule.code ? 1 : 0;
        }
      }
    }
    EXPECT_EQ(found, (std::map<int, int>{{1899, 0}, {1900, 1}, {2099, 1}, {2100, 0}})) << rule.code;
  }
}

TEST(SolarFestivals, FixedDatesHoldInEveryYear) {
  EXPECT_EQ(Festival(0, 2100, 12, 25), eFestivalSolarChristmasDay);
  EXPECT_EQ(Festival(eLanguageChs, kMin, 10, 1), eFestivalSolarNationalDayChs);
  EXPECT_EQ(Festival(eLanguageVit, kMax, 9, 2), eFestivalSolarNationalDayVit);
}

TEST(SolarFestivals, TheDayOfTheWeekIsNotRead) {
  const CCalendarFestival festival(nullptr);
  EXPECT_EQ(festival.GetFestivalBySolar(0, {2023, 11, 23, 4}), eFestivalSolarThanksgiving);
  EXPECT_EQ(festival.GetFestivalBySolar(0, {2023, 11, 23, 0}), eFestivalSolarThanksgiving);
}

// ---- Easter through the region's rules ----

class UsaEaster : public testing::Test {
 protected:
  UsaEaster() { Festival(eLanguageUsa, 1999, 1, 2); }  // another year is the last one asked
};

TEST_F(UsaEaster, IsMissedByTheFirstQueryOfAYear) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarNone);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
}

// Also after one in a month whose rules do not name Easter.
TEST_F(UsaEaster, IsFoundAfterAnyOtherDateOfTheYear) {
  int year = 2000;
  for (const int month : {1, 4, 6, 7, 9, 12}) {
    Festival(eLanguageUsa, ++year, month, 1);
    Festival(eLanguageUsa, year, month, 4);
    int found = 0;
    for (const int spring : {3, 4}) {
      for (int day = 1; day <= 31; ++day) {
        found += Festival(eLanguageUsa, year, spring, day) == eFestivalSolarEaster ? 1 : 0;
      }
    }
    EXPECT_EQ(found, 1) << month;
  }
}

TEST_F(UsaEaster, IsMissedAgainAfterAnotherYear) {
  Festival(eLanguageUsa, 2024, 3, 30);
  Festival(eLanguageUsa, 2025, 7, 4);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarNone);
  EXPECT_EQ(Festival(eLanguageUsa, 2025, 4, 20), eFestivalSolarNone);
  EXPECT_EQ(Festival(eLanguageUsa, 2025, 4, 20), eFestivalSolarEaster);
}

TEST_F(UsaEaster, OtherRegionsDoNotDisturbIt) {
  Festival(eLanguageUsa, 2024, 3, 30);
  for (ELanguage language = 0; language <= 11; ++language) {
    Festival(language, language == eLanguageUsa ? 2024 : 2025, 4, 20);
  }
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 31), eFestivalSolarEaster);
}

TEST_F(UsaEaster, GoodFridayIsFoundFromTheFirstQueryOn) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 29), eFestivalSolarGoodFriday);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 3, 29), eFestivalSolarGoodFriday);
}

// While Easter is not known its month and day are 0.
TEST_F(UsaEaster, IsTakenForMonth0Day0ByTheFirstQueryOfAYear) {
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 0, 0), eFestivalSolarEaster);
  EXPECT_EQ(Festival(eLanguageUsa, 2024, 0, 0), eFestivalSolarNone);
}

// 29 March 2024 makes year 29 look kept.
TEST_F(UsaEaster, GoodFridayOfYear29MayBeThatOf2024) {
  Festival(eLanguageUsa, 2024, 1, 2);
  EXPECT_EQ(Festival(eLanguageUsa, 29, 3, 29), eFestivalSolarGoodFriday);
}

}  // namespace
}  // namespace almara::test
