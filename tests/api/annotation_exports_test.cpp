// SPDX-License-Identifier: MIT
//
// The exported annotation of dates, seen through the shared library alone.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include "festival/in_fresh_process.h"
#include "support/zone.h"

namespace almara::test {
namespace {

void Initialise(int32_t language) {
  testing::internal::CaptureStdout();
  InitCalendarLogicDt(language);
  testing::internal::GetCapturedStdout();
}

// Major Snow of 2024 falls on 6 December in UTC+8 and on 7 December in UTC+9.
TEST(AnnotationZone, ALaterLanguageMovesNewAnswersOnly) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    Initialise(eLanguageChs);
    const bool before = Check24SekkiWithDate({2024, 12, 6, 0}) == eSekkiMajorSnow;
    Initialise(eLanguageKor);
    const bool kept = Check24SekkiWithDate({2024, 12, 6, 0}) == eSekkiMajorSnow;
    return before && kept && Check24SekkiWithDate({2024, 12, 7, 0}) == eSekkiMajorSnow;
  }));
}

// The summer solstice of 2024, 20:51 UT, is 20 June in UTC-3 and 21 June in UTC+14.
TEST(AnnotationZone, ALanguageWithoutAZoneTakesTheMachines) {
  const auto solsticeIsOn = [](const char* zone, int32_t language, int32_t day) {
    const almara::test::ScopedZone machine(zone);
    return HoldsInFreshProcess([=] {
      Initialise(language);
      return Check24SekkiWithDate({2024, 6, day, 0}) == eSekkiSummerSolstice;
    });
  };
  EXPECT_TRUE(solsticeIsOn("XXX+3:30", eLanguageUsa, 20));
  EXPECT_TRUE(solsticeIsOn("XXX-14", eLanguageVit, 21));
}

int AskUsa(int year, int month, int day) {
  return CheckFestivalSolarWithLang(eLanguageUsa, {year, month, day, 0});
}

TEST(EasterQueries, TheFirstOfAYearMissesEasterForGood) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    return AskUsa(2024, 3, 31) == eFestivalSolarNone && AskUsa(2024, 3, 31) == eFestivalSolarNone &&
           AskUsa(2024, 8, 20) == eFestivalSolarNone && AskUsa(2024, 3, 31) == eFestivalSolarNone;
  }));
}

TEST(EasterQueries, AKeptDateDoesNotBringItsYearBack) {
  EXPECT_TRUE(HoldsInFreshProcess([] {
    AskUsa(2024, 8, 20);
    AskUsa(2025, 8, 20);
    AskUsa(2024, 8, 20);  // kept, so 2025 stays the last year worked out
    return AskUsa(2024, 3, 31) == eFestivalSolarNone && AskUsa(2025, 4, 20) == eFestivalSolarNone;
  }));
}

TEST(EasterQueries, WhereEasterIsMissedTheCommonFestivalShows) {
  EXPECT_TRUE(
      HoldsInFreshProcess([] { return AskUsa(2018, 4, 1) == eFestivalSolarAprilFoolsDay; }));
  EXPECT_TRUE(HoldsInFreshProcess([] {
    return AskUsa(2018, 3, 30) == eFestivalSolarGoodFriday &&
           AskUsa(2018, 4, 1) == eFestivalSolarEaster;
  }));
}

// The tests of this fixture ask in this process; all others in processes of their own, which begin
// with the engine as this one has left it. So these stand last.
class AnnotationExports : public testing::Test {
 protected:
  static void SetUpTestSuite() { Initialise(eLanguageChs); }
};

void ExpectLunar(const CCalendarLunarDate& lunar, int year, int month, int day, int leap) {
  EXPECT_EQ(lunar.year, year);
  EXPECT_EQ(lunar.month, month);
  EXPECT_EQ(lunar.day, day);
  EXPECT_EQ(lunar.reserved, 0);
  EXPECT_EQ(lunar.leap, leap);
}

TEST_F(AnnotationExports, LunarDates) {
  ExpectLunar(ConverterLunarWithDate({2024, 2, 10, 0}), 2024, 1, 1, 0);
  ExpectLunar(ConverterLunarWithDate({2023, 3, 22, 0}), 2023, 2, 1, 1);
  ExpectLunar(ConverterLunarWithDate({2033, 12, 22, 0}), 2033, 11, 1, 1);
  ExpectLunar(ConverterLunarWithDate({2017, 3, 27, 0}), 2017, 2, 30, 0);
}

TEST_F(AnnotationExports, TermsAndFestivals) {
  EXPECT_EQ(Check24SekkiWithDate({2024, 3, 20, 0}), eSekkiSpringEquinox);
  EXPECT_EQ(Check24SekkiWithDate({2024, 3, 21, 0}), eSekkiNone);
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageKor, {2024, 12, 25, 0}),
            eFestivalSolarChristmasKor);
  EXPECT_EQ(CheckFestivalSolarWithLang(eLanguageChs, {2024, 1, 9, 0}), eFestivalSolarNone);
  EXPECT_EQ(CheckFestivalLunarWithLang(eLanguageChs, {2024, 2, 9, 0}), eFestivalLunarNewYearsEve);
  EXPECT_EQ(CheckFestivalLunarWithLang(eLanguageTha, {2024, 2, 10, 0}), eFestivalLunarNone);
}

}  // namespace
}  // namespace almara::test
