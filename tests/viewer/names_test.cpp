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

namespace viewer {
namespace {

constexpr TextLanguage kLanguages[] = {
    TextLanguage::English, TextLanguage::ChineseSimplified, TextLanguage::ChineseTraditional,
    TextLanguage::Korean,  TextLanguage::Japanese,          TextLanguage::Vietnamese};

// Every code of the public header.
std::vector<DayName> allNames() {
  std::vector<DayName> names;
  const auto add = [&names](DayName::Kind kind, std::int32_t first, std::int32_t last) {
    for (std::int32_t code = first; code <= last; ++code) {
      names.push_back({kind, code});
    }
  };
  add(DayName::Kind::SolarTerm, eSekkiMinorCold, eSekkiWinterSolstice);
  add(DayName::Kind::SolarFestival, eFestivalSolarNewYearsDay, eFestivalSolarTeachersDay);
  add(DayName::Kind::SolarFestival, eFestivalSolarConsumerRightsDay, eFestivalSolarNationalDayCht);
  add(DayName::Kind::SolarFestival, eFestivalSolarIndependenceMovementDay,
      eFestivalSolarChristmasKor);
  add(DayName::Kind::SolarFestival, eFestivalSolarIndependenceDay, eFestivalSolarGoodFriday);
  add(DayName::Kind::SolarFestival, eFestivalSolarGanjitsu, eFestivalSolarEmperorsBirthday);
  add(DayName::Kind::SolarFestival, eFestivalSolarReunificationDay, eFestivalSolarNationalDayVit);
  add(DayName::Kind::LunarFestival, eFestivalLunarNewYearsDay, eFestivalLunarBuddhasBirthday);
  add(DayName::Kind::LunarFestival, eFestivalLunarHungKings, eFestivalLunarHungKings);
  return names;
}

bool isAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

class Names : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

TEST_F(Names, EveryCodeHasAnEnglishNameInAscii) {
  EXPECT_EQ(allNames().size(), 24U + 54U + 12U);
  for (const DayName& name : allNames()) {
    const std::string english = fullName(name, TextLanguage::English);
    EXPECT_NE(english, std::to_string(name.code));
    EXPECT_TRUE(isAscii(english)) << english;
    EXPECT_TRUE(isAscii(briefName(name, TextLanguage::English))) << english;
  }
}

TEST_F(Names, BriefNamesFitUnderADayOfABoardOf80Columns) {
  for (const DayName& name : allNames()) {
    for (const TextLanguage language : kLanguages) {
      EXPECT_LE(displayWidth(briefName(name, language)), 9) << fullName(name, language);
      EXPECT_GE(displayWidth(briefName(name, language)), 3) << fullName(name, language);
      EXPECT_EQ(fullName(name, language).find('|'), std::string::npos);
    }
  }
}

TEST_F(Names, AnUnknownCodeGivesItsNumber) {
  EXPECT_EQ(solarTermName(24, TextLanguage::Korean), "24");
  EXPECT_EQ(lunarFestivalName(20011, TextLanguage::English), "20011");
  EXPECT_EQ(solarFestivalBrief(999, TextLanguage::English), "999");
}

TEST_F(Names, WhatARegionMeetsInAYearIsNamedInItsLanguage) {
  for (const ELanguage region :
       {eLanguageChs, eLanguageCht, eLanguageKor, eLanguageJpn, eLanguageVit}) {
    InitCalendarLogicDt(region);
    Annotator annotator(region);
    std::set<std::string> foreign;
    for (int day = dayNumber({2023, 1, 1}); day <= dayNumber({2023, 12, 31}); ++day) {
      for (const DayName& name : namesOf(annotator.annotate(fromDayNumber(day)))) {
        const std::string text = fullName(name, textLanguageOf(region));
        if (isAscii(text)) {
          foreign.insert(text);
        }
      }
    }
    // The one is taken over from English, the other is written without marks.
    const std::set<std::string> vietnamese = {"Halloween", "Thanh minh"};
    const std::set<std::string> expected =
        region == eLanguageVit ? vietnamese : std::set<std::string>{};
    EXPECT_EQ(foreign, expected) << region;
  }
}

}  // namespace
}  // namespace viewer
