// SPDX-License-Identifier: MIT
#include <almara/almanac.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <limits>
#include <sstream>
#include <string>

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

// 2024-02-10
std::string Text(const CCalendarSolarDate& date) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

// 2033-11L-1
std::string Text(const CCalendarLunarDate& date) {
  std::ostringstream text;
  text << date.year << '-' << date.month << (date.leap != 0 ? "L-" : "-") << date.day;
  return text.str();
}

// 2084-03-20 00:00:29
std::string Text(const AlmanacInstant& instant) {
  char text[128];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", instant.year, instant.month,
                instant.day, instant.hour, instant.minute, instant.second);
  return text;
}

const std::string kNoDate = "0000-00-00";
const std::string kNoLunarDate = "0-0-0";
const std::string kNoInstant = "0000-00-00 00:00:00";

std::string LunarText(EAlmanacCalendar calendar, int year, int month, int day) {
  return Text(AlmanacLunarDate(calendar, {year, month, day, 0}));
}

std::string SolarText(EAlmanacCalendar calendar, int year, int month, int day, int leap = 0) {
  return Text(AlmanacSolarDate(calendar, {year, month, day, 0, leap}));
}

TEST(AlmanacCalendar, EachCountryHasItsPublishedNewYearsDay) {
  const struct {
    EAlmanacCalendar calendar;
    int year;
    const char* newYearsDay;
  } cases[] = {
      {eAlmanacChina, 1985, "1985-02-20"},   {eAlmanacVietnam, 1985, "1985-01-21"},
      {eAlmanacChina, 1997, "1997-02-07"},   {eAlmanacKorea, 1997, "1997-02-08"},
      {eAlmanacChina, 2007, "2007-02-18"},   {eAlmanacVietnam, 2007, "2007-02-17"},
      {eAlmanacChina, 2024, "2024-02-10"},   {eAlmanacKorea, 2024, "2024-02-10"},
      {eAlmanacVietnam, 2024, "2024-02-10"}, {eAlmanacJapan, 2024, "2024-02-10"},
      {eAlmanacChina, 1900, "1900-01-31"},   {eAlmanacChina, 2099, "2099-01-21"},
  };
  for (const auto& tested : cases) {
    EXPECT_EQ(Text(AlmanacFirstDayOfYear(tested.calendar, tested.year)), tested.newYearsDay)
        << tested.calendar;
  }
}

// The last difference before a change of the clocks and the first one after it.
TEST(AlmanacCalendar, ReckonsInTheTimeInForceOnTheDay) {
  const EAlmanacCalendar chinaToday = AlmanacCalendarAtOffset(480);
  const EAlmanacCalendar koreaToday = AlmanacCalendarAtOffset(540);
  const EAlmanacCalendar vietnamToday = AlmanacCalendarAtOffset(420);

  // The summer solstice of 1928 is at 0:07 in UTC+8, before midnight in Beijing's own time.
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {1928, 6, 21, 0}), eSekkiSummerSolstice);
  EXPECT_EQ(AlmanacTermOfDate(chinaToday, {1928, 6, 22, 0}), eSekkiSummerSolstice);
  EXPECT_EQ(AlmanacTermInstant(eAlmanacChina, 1928, eSekkiWinterSolstice).offset, 27940);
  EXPECT_EQ(AlmanacTermInstant(eAlmanacChina, 1929, eSekkiMinorCold).offset, 28800);

  EXPECT_EQ(AlmanacTermInstant(eAlmanacKorea, 1911, eSekkiWinterSolstice).offset, 27940);
  EXPECT_EQ(AlmanacTermInstant(eAlmanacKorea, 1912, eSekkiMinorCold).offset, 32400);
  EXPECT_EQ(SolarText(eAlmanacKorea, 1912, 1, 1), SolarText(koreaToday, 1912, 1, 1));

  // Vietnam kept the new year of 1968 a day before China, and that of 1966 with it.
  EXPECT_EQ(AlmanacTermInstant(eAlmanacVietnam, 1967, eSekkiWinterSolstice).offset, 28800);
  EXPECT_EQ(AlmanacTermInstant(eAlmanacVietnam, 1968, eSekkiMinorCold).offset, 25200);
  EXPECT_EQ(SolarText(eAlmanacVietnam, 1968, 1, 1), "1968-01-29");
  EXPECT_EQ(SolarText(eAlmanacChina, 1968, 1, 1), "1968-01-30");
  EXPECT_EQ(SolarText(eAlmanacVietnam, 1965, 1, 1), "1965-02-02");
  EXPECT_EQ(SolarText(vietnamToday, 1965, 1, 1), "1965-02-01");

  EXPECT_EQ(AlmanacTermInstant(eAlmanacJapan, 1900, eSekkiMinorCold).offset, 32400);
}

TEST(AlmanacCalendar, Month4Of1906IsAsPrintedInChinaAndKorea) {
  for (const EAlmanacCalendar calendar : {eAlmanacChina, eAlmanacKorea}) {
    EXPECT_EQ(LunarText(calendar, 1906, 4, 23), "1906-3-30");
    EXPECT_EQ(LunarText(calendar, 1906, 4, 24), "1906-4-1");
    EXPECT_EQ(Text(AlmanacNewMoonOfMonth(calendar, 1906, 4, 0)), "1906-04-23 23:52:05");
  }
  EXPECT_EQ(LunarText(eAlmanacVietnam, 1906, 4, 23), "1906-4-1");
}

TEST(AlmanacCalendar, AnOffsetReachesEighteenHours) {
  EXPECT_EQ(AlmanacTermInstant(AlmanacCalendarAtOffset(-1080), 2024, 0).offset, -64800);
  EXPECT_EQ(AlmanacTermInstant(AlmanacCalendarAtOffset(1080), 2024, 0).offset, 64800);
  EXPECT_EQ(Text(AlmanacTermInstant(AlmanacCalendarAtOffset(0), 2024, eSekkiSpringEquinox)),
            "2024-03-20 03:06:24");
  EXPECT_EQ(Text(AlmanacTermInstant(AlmanacCalendarAtOffset(-210), 2024, eSekkiSpringEquinox)),
            "2024-03-19 23:36:24");
  for (const std::int32_t minutes : {-1081, 1081, kMin, kMax}) {
    EXPECT_EQ(AlmanacCalendarAtOffset(minutes), eAlmanacNone);
  }
}

TEST(AlmanacCalendar, ARegionHasItsCountrysOwn) {
  EXPECT_EQ(AlmanacCalendarOfLanguage(eLanguageKor), eAlmanacKorea);
  EXPECT_EQ(AlmanacCalendarOfLanguage(eLanguageJpn), eAlmanacJapan);
  EXPECT_EQ(AlmanacCalendarOfLanguage(eLanguageVit), eAlmanacVietnam);
  const ELanguage others[] = {eLanguageChs, eLanguageCht, eLanguageUsa, 0, 11, kMin, kMax};
  for (const ELanguage language : others) {
    EXPECT_EQ(AlmanacCalendarOfLanguage(language), eAlmanacChina);
  }
}

TEST(AlmanacCalendar, AnIntThatStandsForNoneHasNoAnswers) {
  for (const EAlmanacCalendar calendar : {0, 5, -1, 10000 - 1081, 10000 + 1081, kMin, kMax}) {
    EXPECT_EQ(LunarText(calendar, 2024, 2, 10), kNoLunarDate);
    EXPECT_EQ(SolarText(calendar, 2024, 1, 1), kNoDate);
    EXPECT_EQ(Text(AlmanacFirstDayOfYear(calendar, 2024)), kNoDate);
    EXPECT_EQ(AlmanacDaysOfYear(calendar, 2024), 0);
    EXPECT_EQ(AlmanacMonthsOfYear(calendar, 2024), 0);
    EXPECT_EQ(AlmanacLeapMonth(calendar, 2023), 0);
    EXPECT_EQ(AlmanacDaysOfMonth(calendar, 2024, 1, 0), 0);
    EXPECT_EQ(Text(AlmanacNextAnniversary(calendar, {0, 1, 1, 0, 0}, {2024, 1, 1, 0}, 0)), kNoDate);
    EXPECT_EQ(Text(AlmanacTermInstant(calendar, 2024, 0)), kNoInstant);
    EXPECT_EQ(Text(AlmanacNewMoonOfYear(calendar, 2024, 0)), kNoInstant);
    EXPECT_EQ(Text(AlmanacNewMoonOfMonth(calendar, 2024, 1, 0)), kNoInstant);
    EXPECT_EQ(AlmanacTermOfDate(calendar, {2024, 1, 6, 0}), eSekkiNone);
    EXPECT_EQ(AlmanacLunarFestival(calendar, eLanguageChs, {2024, 2, 10, 0}), eFestivalLunarNone);
  }
}

TEST(AlmanacLunarDate, TheEndOf2033HasLeapMonth11) {
  EXPECT_EQ(LunarText(eAlmanacChina, 2033, 8, 25), "2033-8-1");
  EXPECT_EQ(LunarText(eAlmanacChina, 2033, 12, 21), "2033-11-30");
  EXPECT_EQ(LunarText(eAlmanacChina, 2033, 12, 22), "2033-11L-1");
  EXPECT_EQ(LunarText(eAlmanacChina, 2034, 1, 19), "2033-11L-29");
  EXPECT_EQ(LunarText(eAlmanacChina, 2034, 1, 20), "2033-12-1");
  EXPECT_EQ(LunarText(eAlmanacChina, 2034, 2, 19), "2034-1-1");
}

TEST(AlmanacLunarDate, HasNoAnswerOutsideTheSpanOrForNoDate) {
  EXPECT_EQ(LunarText(eAlmanacChina, 1900, 1, 1), "1899-12-1");
  EXPECT_EQ(LunarText(eAlmanacChina, 2099, 12, 31), "2099-11-20");
  const CCalendarSolarDate none[] = {
      {1899, 12, 31, 0},  {2100, 1, 1, 0},    {2023, 2, 29, 0},
      {2024, 2, 30, 0},   {2024, 4, 31, 0},   {2024, 13, 1, 0},
      {2024, 0, 1, 0},    {2024, 1, 0, 0},    {2024, 1, 32, 0},
      {2024, 1, -1, 0},   {0, 0, 0, 0},       {kMin, kMin, kMin, kMin},
      {kMax, 1, 1, 0},    {2024, kMax, 1, 0}, {kMax, kMax, kMax, kMax},
      {2024, 1, kMin, 0},
  };
  for (const CCalendarSolarDate& date : none) {
    EXPECT_EQ(Text(AlmanacLunarDate(eAlmanacChina, date)), kNoLunarDate) << Text(date);
  }
}

TEST(AlmanacLunarDate, DoesNotReadTheDayOfTheWeek) {
  EXPECT_EQ(Text(AlmanacLunarDate(eAlmanacKorea, {2024, 2, 10, kMax})), "2024-1-1");
  EXPECT_EQ(AlmanacLunarDate(eAlmanacKorea, {2024, 2, 10, kMax}).reserved, 0);
}

TEST(AlmanacSolarDate, HasTheDayOfTheWeek) {
  EXPECT_EQ(AlmanacSolarDate(eAlmanacChina, {2024, 1, 1, 0, 0}).dayOfWeek, eCalendarWeekSaturday);
  EXPECT_EQ(AlmanacSolarDate(eAlmanacChina, {2024, 1, 2, kMax, 0}).dayOfWeek, eCalendarWeekSunday);
  EXPECT_EQ(AlmanacFirstDayOfYear(eAlmanacChina, 1900).dayOfWeek, eCalendarWeekWednesday);
}

TEST(AlmanacSolarDate, HasNoAnswerForADayThatThereIsNot) {
  EXPECT_EQ(SolarText(eAlmanacChina, 2023, 2, 29, 1), "2023-04-19");
  EXPECT_EQ(SolarText(eAlmanacChina, 2023, 2, 30, 1), kNoDate);  // a short month
  EXPECT_EQ(SolarText(eAlmanacChina, 2023, 2, 30, 0), "2023-03-21");
  EXPECT_EQ(SolarText(eAlmanacChina, 2023, 3, 1, 1), kNoDate);  // not this month
  EXPECT_EQ(SolarText(eAlmanacChina, 2024, 2, 1, 1), kNoDate);  // not this year
  EXPECT_EQ(SolarText(eAlmanacChina, 2033, 11, 1, 1), "2033-12-22");
  EXPECT_EQ(SolarText(eAlmanacChina, 2033, 10, 1, 1), kNoDate);
  EXPECT_EQ(SolarText(eAlmanacChina, 1899, 12, 1), "1900-01-01");
  EXPECT_EQ(SolarText(eAlmanacChina, 1899, 11, 29), kNoDate);  // 1899-12-31
  EXPECT_EQ(SolarText(eAlmanacChina, 2099, 11, 20), "2099-12-31");
  EXPECT_EQ(SolarText(eAlmanacChina, 2099, 11, 21), kNoDate);  // 2100-01-01
  const CCalendarLunarDate none[] = {
      {2023, 2, 1, 0, -1},   {2100, 11, 1, 0, 0},   {2100, 12, 1, 0, 0},   {kMin, 10, 1, 0, 0},
      {2024, 0, 1, 0, 0},    {2024, 13, 1, 0, 0},   {2024, 1, 0, 0, 0},    {2024, 1, 31, 0, 0},
      {2024, 1, 1, 0, 2},    {2024, 1, 1, 0, -1},   {1899, 10, 1, 0, 0},   {2100, 1, 1, 0, 0},
      {kMin, 1, 1, 0, 0},    {kMax, 1, 1, 0, 0},    {kMax, 12, 1, 0, 0},   {2024, kMin, 1, 0, 0},
      {2024, 1, kMax, 0, 0}, {2024, 1, kMin, 0, 0}, {2023, 2, 1, 0, kMax}, {kMin, 11, 1, 0, 1},
  };
  for (const CCalendarLunarDate& date : none) {
    EXPECT_EQ(Text(AlmanacSolarDate(eAlmanacChina, date)), kNoDate) << Text(date);
  }
}

TEST(AlmanacYear, HasItsMonthsAndDays) {
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, 2023), 2);
  EXPECT_EQ(AlmanacMonthsOfYear(eAlmanacChina, 2023), 13);
  EXPECT_EQ(AlmanacDaysOfYear(eAlmanacChina, 2023), 384);
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, 2024), 0);
  EXPECT_EQ(AlmanacMonthsOfYear(eAlmanacChina, 2024), 12);
  EXPECT_EQ(AlmanacDaysOfYear(eAlmanacChina, 2024), 354);
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, 2033), 11);
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, 2034), 0);
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacVietnam, 1985), 2);  // in China 1984 has leap month 10
  EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, 1984), 10);
  EXPECT_EQ(AlmanacDaysOfYear(eAlmanacChina, 1900), 384);
  EXPECT_EQ(AlmanacDaysOfYear(eAlmanacChina, 2099), 384);
  for (const std::int32_t year : {1899, 2100, kMin, kMax}) {
    EXPECT_EQ(AlmanacLeapMonth(eAlmanacChina, year), 0);
    EXPECT_EQ(AlmanacMonthsOfYear(eAlmanacChina, year), 0);
    EXPECT_EQ(AlmanacDaysOfYear(eAlmanacChina, year), 0);
    EXPECT_EQ(Text(AlmanacFirstDayOfYear(eAlmanacChina, year)), kNoDate);
  }
}

TEST(AlmanacYear, LeapMonthsAreThosePublishedInChina) {
  std::ostringstream found;
  for (int year = 1900; year <= 2099; ++year) {
    if (const std::int32_t month = AlmanacLeapMonth(eAlmanacChina, year); month != 0) {
      found << year << ':' << month << ' ';
    }
  }
  EXPECT_EQ(found.str(),
            "1900:8 1903:5 1906:4 1909:2 1911:6 1914:5 1917:2 1919:7 1922:5 1925:4 1928:2 1930:6 "
            "1933:5 1936:3 1938:7 1941:6 1944:4 1947:2 1949:7 1952:5 1955:3 1957:8 1960:6 1963:4 "
            "1966:3 1968:7 1971:5 1974:4 1976:8 1979:6 1982:4 1984:10 1987:6 1990:5 1993:3 1995:8 "
            "1998:5 2001:4 2004:2 2006:7 2009:5 2012:4 2014:9 2017:6 2020:4 2023:2 2025:6 2028:5 "
            "2031:3 2033:11 2036:6 2039:5 2042:2 2044:7 2047:5 2050:3 2052:8 2055:6 2058:4 2061:3 "
            "2063:7 2066:5 2069:4 2071:8 2074:6 2077:4 2080:3 2082:7 2085:5 2088:4 2090:8 2093:6 "
            "2096:4 2099:2 ");
}

TEST(AlmanacMonth, Has29Or30DaysOrIsNone) {
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 2, 0), 30);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 2, 1), 29);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 3, 1), 0);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 0, 0), 0);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 13, 0), 0);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2023, 2, 2), 0);
  // 1900-01-01 is the first day of a month in China and the last of one 18 hours east.
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 1899, 12, 0), 30);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 1899, 11, 0), 0);
  EXPECT_EQ(AlmanacDaysOfMonth(AlmanacCalendarAtOffset(1080), 1899, 11, 0), 30);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2099, 12, 0), 30);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2100, 1, 0), 0);
}

std::string Anniversary(int month, int day, int leap, CCalendarSolarDate from,
                        EAlmanacAnniversary rules = eAlmanacAnniversaryEveryYear) {
  return Text(AlmanacNextAnniversary(eAlmanacChina, {kMin, month, day, kMin, leap}, from, rules));
}

TEST(AlmanacAnniversary, IsOnTheDateItselfOrTheNextOne) {
  EXPECT_EQ(Anniversary(8, 15, 0, {2023, 9, 28, 0}), "2023-09-29");
  EXPECT_EQ(Anniversary(8, 15, 0, {2023, 9, 29, 0}), "2023-09-29");
  EXPECT_EQ(Anniversary(8, 15, 0, {2023, 9, 30, 0}), "2024-09-17");
  EXPECT_EQ(Anniversary(12, 1, 0, {2024, 1, 1, 0}), "2024-01-11");  // of the lunar year 2023
  const CCalendarSolarDate friday = AlmanacNextAnniversary(
      eAlmanacKorea, {0, 8, 15, 0, 0}, {2026, 1, 1, 0}, eAlmanacAnniversaryEveryYear);
  EXPECT_EQ(Text(friday), "2026-09-25");
  EXPECT_EQ(friday.dayOfWeek, eCalendarWeekFriday);
}

TEST(AlmanacAnniversary, OfALeapMonthFallsInThePlainOneWhereThereIsNone) {
  EXPECT_EQ(Anniversary(2, 1, 1, {2022, 6, 1, 0}), "2023-03-22");
  EXPECT_EQ(Anniversary(2, 1, 1, {2023, 3, 23, 0}), "2024-03-10");
  EXPECT_EQ(Anniversary(2, 1, 1, {2023, 3, 23, 0}, eAlmanacAnniversaryLeapMonthOnly), "2042-03-22");
  EXPECT_EQ(Anniversary(2, 1, 0, {2023, 1, 1, 0}, eAlmanacAnniversaryLeapMonthOnly), "2023-02-20");
  EXPECT_EQ(Anniversary(1, 1, 1, {1900, 1, 1, 0}, eAlmanacAnniversaryLeapMonthOnly), kNoDate);
}

TEST(AlmanacAnniversary, OfDay30FallsOnDay29OfAShortMonth) {
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2024, 12, 0), 29);
  EXPECT_EQ(AlmanacDaysOfMonth(eAlmanacChina, 2028, 12, 0), 29);
  EXPECT_EQ(Anniversary(12, 30, 0, {2025, 1, 1, 0}), "2025-01-28");
  EXPECT_EQ(Anniversary(12, 30, 0, {2024, 2, 9, 0}), "2024-02-09");
  EXPECT_EQ(Anniversary(12, 30, 0, {2024, 2, 10, 0}, eAlmanacAnniversaryDay30Only), "2030-02-02");
  // The leap month of 2023 has 29 days: the rules hold together and each alone.
  EXPECT_EQ(Anniversary(2, 30, 1, {2023, 1, 1, 0}), "2023-04-19");
  EXPECT_EQ(Anniversary(2, 30, 1, {2023, 1, 1, 0}, eAlmanacAnniversaryDay30Only), "2024-04-08");
  EXPECT_EQ(Anniversary(2, 30, 1, {2023, 1, 1, 0},
                        eAlmanacAnniversaryDay30Only + eAlmanacAnniversaryLeapMonthOnly),
            kNoDate);
}

TEST(AlmanacAnniversary, HasNoneAfterTheSpanOrForWhatCanNeverBe) {
  EXPECT_EQ(Anniversary(11, 20, 0, {2099, 1, 1, 0}), "2099-12-31");
  EXPECT_EQ(Anniversary(11, 21, 0, {2099, 1, 1, 0}), kNoDate);
  EXPECT_EQ(Anniversary(12, 1, 0, {1900, 1, 1, 0}), "1900-01-01");
  EXPECT_EQ(Anniversary(12, 1, 0, {1899, 12, 31, 0}), kNoDate);
  EXPECT_EQ(Anniversary(12, 1, 0, {2023, 2, 29, 0}), kNoDate);
  for (const int none : {0, 13, kMin, kMax}) {
    EXPECT_EQ(Anniversary(none, 1, 0, {2023, 1, 1, 0}), kNoDate);
  }
  for (const int none : {0, 31, kMin, kMax}) {
    EXPECT_EQ(Anniversary(1, none, 0, {2023, 1, 1, 0}), kNoDate);
  }
  for (const int none : {-1, 2, kMin, kMax}) {
    EXPECT_EQ(Anniversary(1, 1, none, {2023, 1, 1, 0}), kNoDate);
  }
  EXPECT_EQ(Anniversary(8, 15, 0, {2023, 9, 28, 0}, ~3), "2023-09-29");  // bits that mean nothing
}

// Jean Meeus, Astronomical Algorithms, table 27.E: the March equinox in dynamical time, which was
// ahead of universal time by the seconds that follow.
TEST(AlmanacInstant, IsThatOfAPublishedTable) {
  const struct {
    int year;
    int hour;
    int minute;
    int second;
    int dynamicalAhead;
  } cases[] = {
      {1996, 8, 4, 7, 62},   {1997, 13, 55, 42, 62}, {1998, 19, 55, 35, 63}, {1999, 1, 46, 53, 63},
      {2000, 7, 36, 19, 64}, {2001, 13, 31, 47, 64}, {2002, 19, 17, 13, 64}, {2003, 1, 0, 50, 64},
      {2004, 6, 49, 42, 65}, {2005, 12, 34, 29, 65},
  };
  for (const auto& tested : cases) {
    const AlmanacInstant instant =
        AlmanacTermInstant(AlmanacCalendarAtOffset(0), tested.year, eSekkiSpringEquinox);
    EXPECT_NEAR((instant.hour * 60 + instant.minute) * 60 + instant.second,
                (tested.hour * 60 + tested.minute) * 60 + tested.second - tested.dynamicalAhead, 3)
        << tested.year;
  }
}

TEST(AlmanacInstant, IsTheSecondInTheCalendarsTime) {
  EXPECT_EQ(Text(AlmanacTermInstant(eAlmanacChina, 2024, eSekkiSpringEquinox)),
            "2024-03-20 11:06:24");
  EXPECT_EQ(Text(AlmanacTermInstant(eAlmanacJapan, 2024, eSekkiSpringEquinox)),
            "2024-03-20 12:06:24");
  EXPECT_EQ(Text(AlmanacNewMoonOfMonth(eAlmanacChina, 2024, 1, 0)), "2024-02-10 06:59:10");
  const AlmanacInstant instant = AlmanacNewMoonOfMonth(eAlmanacChina, 2024, 1, 0);
  EXPECT_EQ(instant.dayOfWeek, eCalendarWeekSaturday);
  EXPECT_EQ(instant.offset, 28800);
  EXPECT_EQ(instant.certain, 1);
}

TEST(AlmanacInstant, HasNoAnswerOutsideItsRanges) {
  for (const std::int32_t year : {1899, 2100, kMin, kMax}) {
    EXPECT_EQ(Text(AlmanacTermInstant(eAlmanacChina, year, 0)), kNoInstant);
    EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, year, 0)), kNoInstant);
    EXPECT_EQ(Text(AlmanacNewMoonOfMonth(eAlmanacChina, year, 1, 0)), kNoInstant);
  }
  for (const ESolarKyureki24 term : {-1, 24, kMin, kMax}) {
    EXPECT_EQ(Text(AlmanacTermInstant(eAlmanacChina, 2024, term)), kNoInstant);
  }
  for (const std::int32_t index : {-1, 13, kMin, kMax}) {
    EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2024, index)), kNoInstant);
  }
  EXPECT_EQ(Text(AlmanacNewMoonOfMonth(eAlmanacChina, 2024, 2, 1)), kNoInstant);
}

// 2024 has 13 new moons in UTC+8 and 2025 has 12.
TEST(AlmanacInstant, CountsTheNewMoonsOfAGregorianYear) {
  EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2024, 0)), "2024-01-11 19:57:24");
  EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2024, 12)), "2024-12-31 06:26:48");
  EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2025, 0)), "2025-01-29 20:35:59");
  EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2025, 11)), "2025-12-20 09:43:21");
  EXPECT_EQ(Text(AlmanacNewMoonOfYear(eAlmanacChina, 2025, 12)), kNoInstant);
}

// Within a minute of midnight.
TEST(AlmanacInstant, IsNotCertainWhereMidnightIsWithinTheUncertainty) {
  const AlmanacInstant cases[] = {
      AlmanacNewMoonOfMonth(eAlmanacChina, 2057, 9, 0),
      AlmanacNewMoonOfMonth(eAlmanacChina, 2089, 8, 0),
      AlmanacTermInstant(eAlmanacChina, 2084, eSekkiSpringEquinox),
  };
  const char* const texts[] = {"2057-09-29 00:00:36", "2089-09-04 23:59:05", "2084-03-20 00:00:29"};
  const int uncertainties[] = {39, 92, 80};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Text(cases[i]), texts[i]);
    EXPECT_EQ(cases[i].uncertainty, uncertainties[i]);
    EXPECT_EQ(cases[i].certain, 0) << texts[i];
  }
  // 5 seconds before midnight, and the years are measured: 4 seconds.
  const AlmanacInstant certain = AlmanacTermInstant(eAlmanacChina, 1979, eSekkiMajorCold);
  EXPECT_EQ(Text(certain), "1979-01-20 23:59:54");
  EXPECT_EQ(certain.uncertainty, 4);
  EXPECT_EQ(certain.certain, 1);
  EXPECT_EQ(AlmanacTermInstant(eAlmanacChina, 1951, eSekkiWinterSolstice).certain, 0);
}

TEST(AlmanacTermOfDate, IsTheTermOfTheCivilDay) {
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {2024, 6, 21, kMax}), eSekkiSummerSolstice);
  EXPECT_EQ(AlmanacTermOfDate(AlmanacCalendarAtOffset(0), {2024, 6, 20, 0}), eSekkiSummerSolstice);
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {2024, 6, 20, 0}), eSekkiNone);
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacJapan, {2021, 2, 3, 0}), eSekkiStartOfSpring);
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {1899, 12, 22, 0}), eSekkiNone);
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {2100, 1, 5, 0}), eSekkiNone);
  EXPECT_EQ(AlmanacTermOfDate(eAlmanacChina, {kMin, kMin, kMin, kMin}), eSekkiNone);
}

TEST(AlmanacLunarFestival, FollowsTheDatesOfTheCalendar) {
  const struct {
    EAlmanacCalendar calendar;
    ELanguage language;
    CCalendarSolarDate date;
    EFestivalLunar festival;
  } cases[] = {
      {eAlmanacChina, eLanguageChs, {2033, 9, 8, 0}, eFestivalLunarMidAutumn},
      {eAlmanacChina, eLanguageChs, {2033, 10, 7, 0}, eFestivalLunarNone},
      {eAlmanacChina, eLanguageChs, {2024, 2, 9, kMax}, eFestivalLunarNewYearsEve},  // 30 days
      {eAlmanacChina, eLanguageChs, {2025, 1, 28, 0}, eFestivalLunarNewYearsEve},    // 29 days
      {eAlmanacChina, eLanguageChs, {2025, 1, 27, 0}, eFestivalLunarNone},
      {eAlmanacVietnam, eLanguageVit, {2007, 2, 17, 0}, eFestivalLunarNewYearsDay},
      {eAlmanacChina, eLanguageVit, {2007, 2, 17, 0}, eFestivalLunarNewYearsEve},
      {eAlmanacKorea, eLanguageKor, {1997, 2, 8, 0}, eFestivalLunarNewYearsDay},
      {eAlmanacKorea, eLanguageKor, {1997, 2, 7, 0}, eFestivalLunarNone},
      {eAlmanacJapan, eLanguageJpn, {2024, 2, 10, 0}, eFestivalLunarNone},
      {eAlmanacChina, kMin, {2024, 2, 10, 0}, eFestivalLunarNone},
      {eAlmanacChina, eLanguageChs, {2100, 2, 9, 0}, eFestivalLunarNone},
      {eAlmanacChina, eLanguageChs, {2024, 2, 30, 0}, eFestivalLunarNone},
      {eAlmanacChina, eLanguageChs, {kMax, kMax, kMax, kMax}, eFestivalLunarNone},
  };
  for (const auto& tested : cases) {
    EXPECT_EQ(AlmanacLunarFestival(tested.calendar, tested.language, tested.date), tested.festival)
        << tested.language << " " << Text(tested.date);
  }
}

}  // namespace
