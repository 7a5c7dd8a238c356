// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "annotations.h"

namespace almara::viewer {
namespace {

TEST(Names, AreTheLibrarysOwn) {
  EXPECT_EQ(FullName({DayName::Kind::kSolarTerm, eSekkiWinterSolstice}, eLanguageDeu),
            "Wintersonnenwende");
  EXPECT_EQ(BriefName({DayName::Kind::kSolarTerm, eSekkiWinterSolstice}, eLanguageDeu), "Sonnenw.");
  EXPECT_EQ(FullName({DayName::Kind::kSolarFestival, eFestivalSolarChristmasDay}, eLanguageUsa),
            "Christmas Day");
  EXPECT_EQ(BriefName({DayName::Kind::kLunarFestival, eFestivalLunarMidAutumn}, eLanguageVit),
            "Trung thu");
}

TEST(Names, AnUnknownCodeGivesItsNumber) {
  EXPECT_EQ(FullName({DayName::Kind::kSolarTerm, 24}, eLanguageKor), "24");
  EXPECT_EQ(FullName({DayName::Kind::kLunarFestival, 20011}, eLanguageEng), "20011");
  EXPECT_EQ(BriefName({DayName::Kind::kSolarFestival, 999}, eLanguageEng), "999");
}

}  // namespace
}  // namespace almara::viewer
