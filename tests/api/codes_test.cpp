// SPDX-License-Identifier: MIT
//
// The numbers behind the names of the headers. Hosts in other languages, files and stored settings
// hold them, so none may ever change.
#include <almara/almanac.h>
#include <almara/almara_types.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>

namespace almara::test {
namespace {

void ExpectConsecutive(std::int32_t first, std::initializer_list<std::int32_t> codes) {
  std::int32_t expected = first;
  for (const std::int32_t code : codes) {
    EXPECT_EQ(code, expected++);
  }
}

TEST(Codes, Weekdays) {
  ExpectConsecutive(
      0, {eCalendarWeekSunday, eCalendarWeekMonday, eCalendarWeekTuesday, eCalendarWeekWednesday,
          eCalendarWeekThursday, eCalendarWeekFriday, eCalendarWeekSaturday});
}

TEST(Codes, Cells) {
  ExpectConsecutive(1,
                    {eCalendarItemEmpty, eCalendarItemBlank, eCalendarItemDay, eCalendarItemToday,
                     eCalendarItemBreakDay, eCalendarItemTodayBreakDay, eCalendarItemMonthTitle});
}

TEST(Codes, Arrangements) {
  ExpectConsecutive(
      1, {eDispMonthRollingWeeks, eDispMonthRollingTail, eDispMonthWholeMonth, eDispMonthDayStrip});
}

TEST(Codes, RulesForWeekNumbers) {
  ExpectConsecutive(
      0, {eWeekNumberCalcFromJan1, eWeekNumberCalcIso8601, eWeekNumberCalcFromStartWeek});
}

TEST(Codes, Regions) {
  ExpectConsecutive(1, {eLanguageChs, eLanguageKor, eLanguageUsa, eLanguageCht, eLanguageRus,
                        eLanguageDeu, eLanguageJpn, eLanguageEng, eLanguageVit, eLanguageTha});
}

TEST(Codes, SolarTerms) {
  ExpectConsecutive(
      -1,
      {eSekkiNone,           eSekkiMinorCold,          eSekkiMajorCold,     eSekkiStartOfSpring,
       eSekkiRainWater,      eSekkiAwakeningOfInsects, eSekkiSpringEquinox, eSekkiClearAndBright,
       eSekkiGrainRain,      eSekkiStartOfSummer,      eSekkiGrainBuds,     eSekkiGrainInEar,
       eSekkiSummerSolstice, eSekkiMinorHeat,          eSekkiMajorHeat,     eSekkiStartOfAutumn,
       eSekkiEndOfHeat,      eSekkiWhiteDew,           eSekkiAutumnEquinox, eSekkiColdDew,
       eSekkiFrostsDescent,  eSekkiStartOfWinter,      eSekkiMinorSnow,     eSekkiMajorSnow,
       eSekkiWinterSolstice});
}

TEST(Codes, SolarFestivals) {
  EXPECT_EQ(eFestivalSolarNone, 0);
  ExpectConsecutive(
      1000, {eFestivalSolarNewYearsDay, eFestivalSolarWomensDay, eFestivalSolarAprilFoolsDay,
             eFestivalSolarHealthDay, eFestivalSolarEarthDay, eFestivalSolarLabourDay,
             eFestivalSolarChildrensDay, eFestivalSolarNoTobaccoDay, eFestivalSolarHalloween,
             eFestivalSolarThanksgiving, eFestivalSolarChristmasEve, eFestivalSolarChristmasDay,
             eFestivalSolarNewYearsEve, eFestivalSolarArborDay, eFestivalSolarValentinesDay,
             eFestivalSolarMothersDay, eFestivalSolarFathersDay, eFestivalSolarTeachersDay});
  ExpectConsecutive(
      2000, {eFestivalSolarConsumerRightsDay, eFestivalSolarYouthDay,
             eFestivalSolarPartyFoundationDay, eFestivalSolarArmyDay, eFestivalSolarNationalDayChs,
             eFestivalSolarPeaceMemorialDay, eFestivalSolarNationalDayCht});
  ExpectConsecutive(3000, {eFestivalSolarIndependenceMovementDay, eFestivalSolarChildrensDayKor,
                           eFestivalSolarMemorialDayKor, eFestivalSolarLiberationDayKor,
                           eFestivalSolarNationalFoundationDayKor, eFestivalSolarHangulDay,
                           eFestivalSolarChristmasKor});
  ExpectConsecutive(4000,
                    {eFestivalSolarIndependenceDay, eFestivalSolarMartinLutherKingDay,
                     eFestivalSolarLaborDayUsa, eFestivalSolarEaster, eFestivalSolarGoodFriday});
  ExpectConsecutive(
      5000, {eFestivalSolarGanjitsu, eFestivalSolarComingOfAgeDay, eFestivalSolarFoundationDayJpn,
             eFestivalSolarHinamatsuri, eFestivalSolarShowaDay, eFestivalSolarConstitutionDayJpn,
             eFestivalSolarGreeneryDay, eFestivalSolarChildrensDayJpn, eFestivalSolarMarineDay,
             eFestivalSolarRespectForTheAgedDay, eFestivalSolarSportsDay, eFestivalSolarCultureDay,
             eFestivalSolarLabourThanksgivingDay, eFestivalSolarEmperorsBirthday});
  ExpectConsecutive(6000, {eFestivalSolarReunificationDay, eFestivalSolarHoChiMinhsBirthday,
                           eFestivalSolarNationalDayVit});
}

TEST(Codes, LunarFestivals) {
  EXPECT_EQ(eFestivalLunarNone, 0);
  ExpectConsecutive(
      20000, {eFestivalLunarNewYearsDay, eFestivalLunarLanternFestival, eFestivalLunarDragonBoat,
              eFestivalLunarDoubleSeventh, eFestivalLunarGhostFestival, eFestivalLunarMidAutumn,
              eFestivalLunarDoubleNinth, eFestivalLunarLaba, eFestivalLunarLittleNewYear,
              eFestivalLunarNewYearsEve, eFestivalLunarBuddhasBirthday});
  EXPECT_EQ(eFestivalLunarHungKings, 20012);
}

TEST(Codes, CalendarsOfTheAlmanac) {
  ExpectConsecutive(0,
                    {eAlmanacNone, eAlmanacChina, eAlmanacKorea, eAlmanacVietnam, eAlmanacJapan});
}

TEST(Codes, Anniversaries) {
  ExpectConsecutive(0, {eAlmanacAnniversaryEveryYear, eAlmanacAnniversaryLeapMonthOnly,
                        eAlmanacAnniversaryDay30Only});
}

}  // namespace
}  // namespace almara::test
