// SPDX-License-Identifier: MIT
//
// Every function of almara.h that takes an int or a bool with the outermost values of int32 and
// those around the limits that matter, in every argument, and with every byte of a bool. Each test
// has a process and so an engine of its own.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "api/raw_bool_setters.h"
#include "robustness/failures_to_stderr.h"
#include "support/exported_board.h"

namespace almara::test {

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

// clang-format off
constexpr std::int32_t kExtremes[] = {
    kLowest, kLowest + 1, kLowest + 7, -306783379, -65536, -2100, -13, -8, -7, -1, 0, 1, 2, 3, 4, 6,
    7, 8, 12, 13, 28, 31, 32, 50, 51, 1900, 2024, 2099, 2100, 65536, 306783379, kHighest - 7,
    kHighest - 1, kHighest};
constexpr std::int32_t kYears[] = {
    kLowest, -70202147, -5879488, -1200000, -400000, -4713, -1, 0, 1, 31, 1582, 1799, 1800, 1899,
    1900, 2024, 2099, 2100, 400000, 1200000, 5870000, 70202147, 99999999, kHighest};
// clang-format on
constexpr std::int32_t kMonths[] = {kLowest, -1, 0, 1, 2, 12, 13, kHighest};
constexpr std::int32_t kDays[] = {kLowest, -1, 0, 1, 28, 29, 31, 32, kHighest};
constexpr std::int32_t kLanguages[] = {kLowest, 0, 1, 2, 3, 4, 7, 9, 11, kHighest};

constexpr std::int32_t kMaxRow = 200;  // a host must not ask for millions

std::vector<CCalendarSolarDate> Dates() {
  std::vector<CCalendarSolarDate> dates;
  for (const std::int32_t year : kYears) {
    for (const std::int32_t month : kMonths) {
      for (const std::int32_t day : kDays) {
        dates.push_back({year, month, day, kHighest});
      }
    }
  }
  return dates;
}

// Runs call() and tells if it took more than a second of this thread. The searches of dates far
// away are the slowest calls; they take milliseconds.
template <typename Call>
auto Soon(Call call) {
  const auto seconds = [] {
    std::timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
  };
  const double start = seconds();
  auto answer = call();
  EXPECT_LT(seconds() - start, 1);
  return answer;
}

bool IsBuildable(const CCalendarSolarDate& date) {
  return date.year >= 1900 && date.year <= 2099 && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= 31;
}

class Totality : public testing::Test {
 protected:
  // The boards' text would drown the reports.
  void SetUp() override {
    ASSERT_NE(std::freopen("/dev/null", "w", stdout), nullptr);
    setenv("TZ", "UTC", 1);
  }

  // Reads everything there is to read, and asks for what there is not.
  static void ExpectSoundBoard(const std::string& when) {
    const ShownBoard board = ReadExportedBoard();
    ASSERT_STREQ(FirstBroken(board), nullptr) << when;
    ASSERT_STREQ(BrokenHeadings(board, GetDispMonth(), GetStartDayOfWeek()), nullptr) << when;
    ASSERT_STREQ(BrokenOutside(board), nullptr) << when;
  }

  static void NavigateEverywhere(const std::string& when) {
    const std::function<void()> calls[] = {[] { Build(); },
                                           [] { GotoToday(); },
                                           [] { GotoNextPage(); },
                                           [] { GotoNextPage(); },
                                           [] { GotoPreviousPage(); },
                                           [] { GotoTodayOffset(-1); },
                                           [] { GotoTodayOffset(kHighest); },
                                           [] { GotoSpecifiedDate(2099, 12, 31); },
                                           [] { GotoNextPage(); },
                                           [] { GotoSpecifiedDate(1900, 1, 1); },
                                           [] { GotoPreviousPage(); },
                                           [] { Build(); }};
    for (const auto& call : calls) {
      call();
      ExpectSoundBoard(when);
    }
  }
};

TEST_F(Totality, BridgeChecks) {
  for (const std::int32_t a : kExtremes) {
    for (const std::int32_t b : kExtremes) {
      EXPECT_EQ(static_cast<std::uint32_t>(native_add(a, b)),
                static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
      const CCalendarSolarDate date = CreateSolarDate(a, b, a, b);
      EXPECT_TRUE(date.year == a && date.month == b && date.day == a && date.dayOfWeek == b);
    }
  }
}

TEST_F(Totality, QueriesBeforeAndAfterABuild) {
  for (const bool built : {false, true}) {
    if (built) {
      InitCalendarLogicDt(eLanguageChs);
    }
    for (const std::int32_t a : kExtremes) {
      for (const std::int32_t b : kExtremes) {
        const tagCalendarCell cell = GetContentItem(a, b);
        const bool shown = a >= 0 && a < GetContentRows() && b >= 0 && b < GetContentColumns();
        EXPECT_TRUE(shown || (cell.type == eCalendarItemEmpty && cell.weekNumber == -1));
      }
      EXPECT_TRUE(GetWeekNumberItemWithIndex(a).rows == 0 || (a >= 0 && a < GetWeekNumberCount()));
      const ECalendarWeek heading = GetCalendarWeekByColumns(a);
      EXPECT_TRUE(heading >= 0 && heading <= 6);
      EXPECT_TRUE(!IsBreakDayOfWeek(a) || a == 0 || a == 6);
    }
    const CCalendarSolarDate today = GetToday();
    EXPECT_TRUE(today.dayOfWeek >= 0 && today.dayOfWeek <= 6);
  }
}

TEST_F(Totality, PagingBeforeTheFirstBuild) {
  if (GetContentDate().year != 0) {
    GTEST_SKIP() << "another test of this process has built a board";
  }
  for (const EDispMonth mode : {1, 2, 3, 4, 0}) {
    SetDispMonth(mode);
    GotoPreviousPage();
    GotoNextPage();
    EXPECT_EQ(GetContentRows(), 0);
    EXPECT_EQ(GetWeekNumberCount(), 0);
    EXPECT_EQ(GetContentDate().year, 0);
  }
}

TEST_F(Totality, EveryLanguageInitialises) {
  for (const std::int32_t language : kExtremes) {
    InitCalendarLogicDt(language);
    ExpectSoundBoard("language " + std::to_string(language));
  }
}

TEST_F(Totality, EveryOffsetInEveryArrangement) {
  for (const EDispMonth mode : {1, 2, 3, 4, 5}) {
    SetDispMonth(mode);
    for (const std::int32_t rows : {0, 1, 5, 50, kLowest}) {
      SetMaxRow(rows);
      for (const std::int32_t offset : kExtremes) {
        GotoTodayOffset(offset);
        ExpectSoundBoard("offset " + std::to_string(offset) + ", rows " + std::to_string(rows));
      }
    }
  }
}

TEST_F(Totality, EveryDateInEveryArrangementBuildsOrLeavesTheDate) {
  for (const EDispMonth mode : {1, 2, 3, 4, kLowest}) {
    SetDispMonth(mode);
    GotoSpecifiedDate(2024, 3, 13);
    for (const CCalendarSolarDate& date : Dates()) {
      const CCalendarSolarDate before = GetContentDate();
      GotoSpecifiedDate(date.year, date.month, date.day);
      const CCalendarSolarDate after = GetContentDate();
      const bool today = date.year == 0 && date.month == 0 && date.day == 0;
      if (today) {
        continue;
      }
      const CCalendarSolarDate& expected = IsBuildable(date) ? date : before;
      ASSERT_TRUE(after.year == expected.year && after.month == expected.month &&
                  after.day == expected.day && after.dayOfWeek == 0)
          << date.year << "-" << date.month << "-" << date.day;
      ExpectSoundBoard("arrangement " + std::to_string(mode));
    }
  }
}

// An option that takes any int.
struct IntOption {
  const char* name;
  void (*set)(std::int32_t);
  std::int32_t (*get)();
  std::int32_t highest;  // that a test with little memory may set
};

std::ostream& operator<<(std::ostream& out, const IntOption& tested) { return out << tested.name; }

class IntOptionTotality : public Totality, public testing::WithParamInterface<IntOption> {};

TEST_P(IntOptionTotality, EveryValueIsKeptAndBuilds) {
  for (const EDispMonth mode : {1, 2, 3, 4}) {
    SetDispMonth(mode);
    for (const std::int32_t value : kExtremes) {
      if (value > GetParam().highest) {
        continue;
      }
      GetParam().set(value);
      ASSERT_EQ(GetParam().get(), value);
      NavigateEverywhere(GetParam().name + (" " + std::to_string(value)));
      char* const key = GetConfigKey();
      ASSERT_NE(key, nullptr);
      EXPECT_NE(std::string(key).find(std::to_string(value)), std::string::npos);
      std::free(key);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, IntOptionTotality,
    testing::Values(IntOption{"DispMonth", SetDispMonth, GetDispMonth, kHighest},
                    IntOption{"MaxRow", SetMaxRow, GetMaxRow, kMaxRow},
                    IntOption{"PassedWeeks", SetPassedWeeks, GetPassedWeeks, kHighest},
                    IntOption{"StartDayOfWeek", SetStartDayOfWeek, GetStartDayOfWeek, kHighest},
                    IntOption{"StartWeekNumber", SetStartWeekNumber, GetStartWeekNumber, kHighest},
                    IntOption{"WeekNumberCalcType", SetWeekNumberCalcType, GetWeekNumberCalcType,
                              kHighest}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(Totality, EveryByteOfABoolCountsByItsLowestBit) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto flag = static_cast<std::uint8_t>(byte);
    const bool isSet = byte % 2 == 1;
    RawSetHideBreakDay(flag);
    EXPECT_EQ(GetHideBreakDay(), isSet);
    EXPECT_EQ(GetShowMonthInterval(), isSet) << "answers for the other flag";
    RawSetShowBreakDayOfWeek(flag);
    EXPECT_EQ(GetShowBreakDayOfWeek(), isSet);
    RawSetShowMonthInterval(flag);
    RawSetPrintBoard(flag);
    EXPECT_EQ(GetPrintBoard(), isSet);
    RawSetCivilDays(flag);
    EXPECT_EQ(GetCivilDays(), isSet);
    for (const std::int32_t day : kExtremes) {
      RawSetBreakDayOfWeek(day, flag);
      EXPECT_EQ(IsBreakDayOfWeek(day), isSet && day >= 0 && day <= 6);
    }
  }
  NavigateEverywhere("bools");
}

TEST_F(Totality, BoolSettersOfTheHeader) {
  for (const bool flag : {true, false}) {
    SetHideBreakDay(flag);
    SetShowMonthInterval(flag);
    SetShowBreakDayOfWeek(flag);
    for (const std::int32_t day : kExtremes) {
      SetBreakDayOfWeek(day, flag);
    }
    NavigateEverywhere("bools");
  }
}

void ExpectSolarFestival(EFestivalSolar festival) {
  EXPECT_TRUE(festival == eFestivalSolarNone || (festival >= 1000 && festival <= 6002)) << festival;
}

void ExpectLunarFestival(EFestivalLunar festival) {
  EXPECT_TRUE(festival == eFestivalLunarNone || (festival >= 20000 && festival <= 20012))
      << festival;
}

class LookupTotality : public Totality {
 protected:
  void SetUp() override {
    Totality::SetUp();
    InitCalendarLogicDt(eLanguageChs);
  }
};

TEST_F(LookupTotality, LunarDates) {
  for (const CCalendarSolarDate& date : Dates()) {
    const CCalendarLunarDate lunar = Soon([&] { return ConverterLunarWithDate(date); });
    ASSERT_TRUE(SameBytes(lunar, ConverterLunarWithDate(date)));
    ASSERT_TRUE(lunar.reserved == 0 && (lunar.leap == 0 || lunar.leap == 1));
    if (IsBuildable(date)) {
      ASSERT_TRUE(lunar.month >= 1 && lunar.month <= 12 && lunar.day >= 1 && lunar.day <= 30);
    }
  }
}

TEST_F(LookupTotality, SolarTerms) {
  for (const CCalendarSolarDate& date : Dates()) {
    const ESolarKyureki24 term = Soon([&] { return Check24SekkiWithDate(date); });
    ASSERT_TRUE(term >= -1 && term <= 23);
    ASSERT_TRUE(term == -1 || (date.year >= 1800 && date.year <= 2099));
  }
}

TEST_F(LookupTotality, SolarFestivals) {
  for (const std::int32_t language : kLanguages) {
    for (const CCalendarSolarDate& date : Dates()) {
      ExpectSolarFestival(Soon([&] { return CheckFestivalSolarWithLang(language, date); }));
    }
  }
}

TEST_F(LookupTotality, LunarFestivals) {
  for (const std::int32_t language : kLanguages) {
    for (const CCalendarSolarDate& date : Dates()) {
      ExpectLunarFestival(Soon([&] { return CheckFestivalLunarWithLang(language, date); }));
    }
  }
}

// Before the zone is known the answers mean nothing, but there are some.
TEST_F(Totality, LookupsBeforeTheFirstBuild) {
  for (const CCalendarSolarDate& date : Dates()) {
    const CCalendarLunarDate lunar = ConverterLunarWithDate(date);
    ASSERT_TRUE(lunar.leap == 0 || lunar.leap == 1);
    const ESolarKyureki24 term = Check24SekkiWithDate(date);
    ASSERT_TRUE(term >= -1 && term <= 23);
    ExpectSolarFestival(CheckFestivalSolarWithLang(eLanguageUsa, date));
    ExpectLunarFestival(CheckFestivalLunarWithLang(eLanguageVit, date));
  }
}

}  // namespace

}  // namespace almara::test
