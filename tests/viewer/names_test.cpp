// SPDX-License-Identifier: MIT
#include "names.h"

#include <almara/almara.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <set>
#include <vector>

#include "annotations.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr TextLanguage kLanguages[] = {
    TextLanguage::kEnglish, TextLanguage::kChineseSimplified, TextLanguage::kChineseTraditional,
    TextLanguage::kKorean,  TextLanguage::kJapanese,          TextLanguage::kVietnamese,
    TextLanguage::kGerman,  TextLanguage::kRussian,           TextLanguage::kThai};

// Every code of the public header.
std::vector<DayName> AllNames() {
  std::vector<DayName> names;
  const auto add = [&names](DayName::Kind kind, std::int32_t first, std::int32_t last) {
    for (std::int32_t code = first; code <= last; ++code) {
      names.push_back({kind, code});
    }
  };
  add(DayName::Kind::kSolarTerm, eSekkiMinorCold, eSekkiWinterSolstice);
  add(DayName::Kind::kSolarFestival, eFestivalSolarNewYearsDay, eFestivalSolarTeachersDay);
  add(DayName::Kind::kSolarFestival, eFestivalSolarConsumerRightsDay, eFestivalSolarNationalDayCht);
  add(DayName::Kind::kSolarFestival, eFestivalSolarIndependenceMovementDay,
      eFestivalSolarChristmasKor);
  add(DayName::Kind::kSolarFestival, eFestivalSolarIndependenceDay, eFestivalSolarGoodFriday);
  add(DayName::Kind::kSolarFestival, eFestivalSolarGanjitsu, eFestivalSolarEmperorsBirthday);
  add(DayName::Kind::kSolarFestival, eFestivalSolarReunificationDay, eFestivalSolarNationalDayVit);
  add(DayName::Kind::kLunarFestival, eFestivalLunarNewYearsDay, eFestivalLunarBuddhasBirthday);
  add(DayName::Kind::kLunarFestival, eFestivalLunarHungKings, eFestivalLunarHungKings);
  return names;
}

bool IsAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

class Names : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

TEST_F(Names, EveryCodeHasAnEnglishNameInAscii) {
  EXPECT_EQ(AllNames().size(), 24U + 54U + 12U);
  for (const DayName& name : AllNames()) {
    const std::string english = FullName(name, TextLanguage::kEnglish);
    EXPECT_NE(english, std::to_string(name.code));
    EXPECT_TRUE(IsAscii(english)) << english;
    EXPECT_TRUE(IsAscii(BriefName(name, TextLanguage::kEnglish))) << english;
  }
}

TEST_F(Names, BriefNamesFitUnderADayOfABoardOf80Columns) {
  for (const DayName& name : AllNames()) {
    for (const TextLanguage language : kLanguages) {
      EXPECT_LE(DisplayWidth(BriefName(name, language)), 9) << FullName(name, language);
      EXPECT_GE(DisplayWidth(BriefName(name, language)), 2) << FullName(name, language);
      EXPECT_EQ(FullName(name, language).find('|'), std::string::npos);
    }
  }
}

TEST_F(Names, AnUnknownCodeGivesItsNumber) {
  EXPECT_EQ(SolarTermName(24, TextLanguage::kKorean), "24");
  EXPECT_EQ(LunarFestivalName(20011, TextLanguage::kEnglish), "20011");
  EXPECT_EQ(SolarFestivalBrief(999, TextLanguage::kEnglish), "999");
}

TEST_F(Names, WhatARegionMeetsInAYearIsNamedInItsLanguage) {
  using Texts = std::set<std::string>;
  const struct {
    ELanguage region;
    Texts english;  // taken over by the language
  } kCases[] = {
      {eLanguageChs, {}},
      {eLanguageCht, {}},
      {eLanguageKor, {}},
      {eLanguageJpn, {}},
      {eLanguageRus, {}},
      {eLanguageTha, {}},
      {eLanguageVit, {"Halloween"}},
      {eLanguageDeu, {"Halloween", "Thanksgiving"}},
  };
  for (const auto& c : kCases) {
    InitCalendarLogicDt(c.region);
    Annotator annotator(c.region, LunarSource::kAlmanac);
    Texts english;
    for (int day = DayNumber({2023, 1, 1}); day <= DayNumber({2023, 12, 31}); ++day) {
      for (const DayName& name : NamesOf(annotator.Annotate(FromDayNumber(day)))) {
        const std::string text = FullName(name, TextLanguageOf(c.region));
        if (text == FullName(name, TextLanguage::kEnglish)) {
          english.insert(text);
        }
      }
    }
    EXPECT_EQ(english, c.english) << c.region;
  }
}

}  // namespace
}  // namespace almara::viewer
