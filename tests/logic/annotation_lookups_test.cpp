// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"

namespace almara::test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

// The engine with its memos in sight.
class Engine : public CCalendarLogic {
 public:
  using CCalendarLogic::m_map24SekkiCache;
  using CCalendarLogic::m_mapFestivalLunarCache;
  using CCalendarLogic::m_mapFestivalSolarCache;
  using CCalendarLogic::m_mapLunarDateCache;
};

class AnnotationMemo : public testing::Test {
 protected:
  AnnotationMemo() { g_mac_timezone = 8; }

  Engine m_engine;
};

TEST_F(AnnotationMemo, ASecondQueryComputesNothing) {
  const CCalendarSolarDate date{2024, 2, 10, 6};
  m_engine.m_mapLunarDateCache.GetOrCompute(0, date, [] {
    return CCalendarLunarDate{1, 2, 3, 4, 5};
  });
  m_engine.m_map24SekkiCache.GetOrCompute(0, date, [] { return 77; });
  m_engine.m_mapFestivalSolarCache.GetOrCompute(eLanguageChs, date, [] { return 78; });
  m_engine.m_mapFestivalLunarCache.GetOrCompute(eLanguageChs, date, [] { return 79; });
  EXPECT_EQ(m_engine.ConverterLunar(date).day, 3);
  EXPECT_EQ(m_engine.Check24Sekki(date), 77);
  EXPECT_EQ(m_engine.CheckFestivalSolar(eLanguageChs, date), 78);
  EXPECT_EQ(m_engine.CheckFestivalLunar(eLanguageChs, date), 79);
}

TEST_F(AnnotationMemo, TheDayOfTheWeekIsNotPartOfTheKey) {
  m_engine.Check24Sekki({2024, 3, 20, 4});
  m_engine.Check24Sekki({2024, 3, 20, 0});
  EXPECT_EQ(m_engine.m_map24SekkiCache.Size(), 1U);
  EXPECT_EQ(*m_engine.m_map24SekkiCache.Find(0, {2024, 3, 20, 1}), eSekkiSpringEquinox);
  m_engine.ConverterLunar({2024, 2, 10, 5});
  m_engine.ConverterLunar({2024, 2, 10, 0});
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 1U);
  m_engine.CheckFestivalSolar(eLanguageUsa, {2024, 2, 10, 5});
  m_engine.CheckFestivalSolar(eLanguageUsa, {2024, 2, 10, 0});
  EXPECT_EQ(m_engine.m_mapFestivalSolarCache.Size(), 1U);
  m_engine.CheckFestivalLunar(eLanguageUsa, {2024, 2, 10, 5});
  m_engine.CheckFestivalLunar(eLanguageUsa, {2024, 2, 10, 0});
  EXPECT_EQ(m_engine.m_mapFestivalLunarCache.Size(), 1U);
}

TEST_F(AnnotationMemo, KeepsAFestivalForEachLanguage) {
  m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, 1, 0});
  m_engine.CheckFestivalSolar(eLanguageEng, {2024, 1, 1, 0});
  ASSERT_EQ(m_engine.m_mapFestivalSolarCache.Size(), 2U);
  EXPECT_NE(m_engine.m_mapFestivalSolarCache.Find(eLanguageChs, {2024, 1, 1, 0}), nullptr);
  EXPECT_NE(m_engine.m_mapFestivalSolarCache.Find(eLanguageEng, {2024, 1, 1, 0}), nullptr);
}

TEST_F(AnnotationMemo, KeepsTheAnswerThatThereIsNone) {
  m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, 9, 0});
  m_engine.CheckFestivalLunar(eLanguageUsa, {2024, 1, 9, 0});
  m_engine.Check24Sekki({2024, 1, 9, 0});
  EXPECT_EQ(*m_engine.m_mapFestivalSolarCache.Find(eLanguageChs, {2024, 1, 9, 0}),
            eFestivalSolarNone);
  EXPECT_EQ(*m_engine.m_mapFestivalLunarCache.Find(eLanguageUsa, {2024, 1, 9, 0}),
            eFestivalLunarNone);
  EXPECT_EQ(*m_engine.m_map24SekkiCache.Find(0, {2024, 1, 9, 0}), eSekkiNone);
}

TEST_F(AnnotationMemo, KeepsEveryInt) {
  m_engine.CheckFestivalSolar(kMin, {kMin, kMin, kMin, kMin});
  m_engine.CheckFestivalLunar(kMax, {kMax, kMax, kMax, kMax});
  m_engine.ConverterLunar({-1, 1, 1, 0});
  EXPECT_NE(m_engine.m_mapFestivalSolarCache.Find(kMin, {kMin, kMin, kMin, 0}), nullptr);
  EXPECT_NE(m_engine.m_mapFestivalLunarCache.Find(kMax, {kMax, kMax, kMax, 0}), nullptr);
  EXPECT_NE(m_engine.m_mapLunarDateCache.Find(0, {-1, 1, 1, 0}), nullptr);
}

TEST_F(AnnotationMemo, AFirstQuestionOfZeroesIsNotTakenForKept) {
  EXPECT_NE(m_engine.ConverterLunar({0, 0, 0, 0}).month, 0);
  EXPECT_EQ(m_engine.Check24Sekki({0, 0, 0, 0}), eSekkiNone);
}

TEST_F(AnnotationMemo, DaysThatShareAPageKeepTheirOwnAnswers) {
  m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, 33, 0});
  EXPECT_EQ(m_engine.m_mapFestivalSolarCache.Find(eLanguageChs, {2024, 1, 1, 0}), nullptr);
  EXPECT_EQ(m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, 1, 0}), eFestivalSolarNewYearsDay);
  EXPECT_EQ(m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, 33, 0}), eFestivalSolarNone);
  EXPECT_EQ(m_engine.CheckFestivalSolar(eLanguageChs, {2024, 1, -31, 0}), eFestivalSolarNone);
  EXPECT_EQ(m_engine.m_mapFestivalSolarCache.Size(), 3U);
}

TEST_F(AnnotationMemo, ALunarFestivalKeepsTheLunarDateToo) {
  m_engine.CheckFestivalLunar(eLanguageChs, {2024, 5, 1, 0});
  EXPECT_NE(m_engine.m_mapLunarDateCache.Find(0, {2024, 5, 1, 0}), nullptr);
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 1U);
}

TEST_F(AnnotationMemo, ADayOfMonthTwelveKeepsTheLunarDateOfTheNextDay) {
  m_engine.CheckFestivalLunar(eLanguageChs, {2024, 2, 5, 0});
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 2U);
  EXPECT_NE(m_engine.m_mapLunarDateCache.Find(0, {2024, 2, 6, 0}), nullptr);
  // 12/23 has a festival of its own, and in Korean there is no eve.
  m_engine.CheckFestivalLunar(eLanguageChs, {2024, 2, 2, 0});
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 3U);
  m_engine.CheckFestivalLunar(eLanguageKor, {2024, 1, 30, 0});
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 4U);
}

TEST_F(AnnotationMemo, OtherLanguagesDoNotAskForLunarDates) {
  constexpr ELanguage kOthers[] = {
      0, eLanguageUsa, eLanguageRus, eLanguageDeu, eLanguageJpn, eLanguageEng, eLanguageTha, 11};
  for (const ELanguage language : kOthers) {
    m_engine.CheckFestivalLunar(language, {2024, 2, 10, 0});
  }
  EXPECT_EQ(m_engine.m_mapLunarDateCache.Size(), 0U);
  EXPECT_EQ(m_engine.m_mapFestivalLunarCache.Size(), 8U);
}

TEST_F(AnnotationMemo, AnswersOutliveAChangeOfTheZone) {
  EXPECT_EQ(m_engine.ConverterLunar({2024, 2, 9, 0}).month, 12);
  EXPECT_EQ(m_engine.Check24Sekki({2024, 6, 21, 0}), eSekkiSummerSolstice);
  EXPECT_EQ(m_engine.CheckFestivalLunar(eLanguageChs, {2024, 2, 9, 0}), eFestivalLunarNewYearsEve);
  g_mac_timezone = 0;
  EXPECT_EQ(m_engine.ConverterLunar({2024, 2, 9, 0}).month, 12);
  EXPECT_EQ(m_engine.Check24Sekki({2024, 6, 21, 0}), eSekkiSummerSolstice);
  EXPECT_EQ(m_engine.CheckFestivalLunar(eLanguageChs, {2024, 2, 9, 0}), eFestivalLunarNewYearsEve);
  // Another engine has answers of its own.
  EXPECT_EQ(Engine().ConverterLunar({2024, 2, 9, 0}).month, 1);
}

}  // namespace
}  // namespace almara::test
