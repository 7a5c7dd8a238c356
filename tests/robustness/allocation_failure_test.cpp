// SPDX-License-Identifier: MIT
//
// Every allocation of a build, of a look-up and of the options' text fails once. This program has
// an operator new of its own for that, and a malloc() between the engine and the C library's.
#include <almara/almara.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <ostream>
#include <string>
#include <vector>

#include "date/calendar_platform_api.h"
#include "robustness/failures_to_stderr.h"
#include "support/board.h"
#include "support/capture_stdout.h"

extern "C" void* __real_malloc(std::size_t size);

namespace {

int g_allocationsLeft = -1;  // until one fails; below 0 none does
int g_liveAllocations = 0;
bool g_mallocFails = false;
std::size_t g_mallocSize = 0;  // of the last call

void* Allocate(std::size_t size) {
  if (g_allocationsLeft == 0) {
    throw std::bad_alloc();
  }
  if (g_allocationsLeft > 0) {
    --g_allocationsLeft;
  }
  void* const memory = __real_malloc(size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  ++g_liveAllocations;
  return memory;
}

void Release(void* memory) {
  if (memory != nullptr) {
    --g_liveAllocations;
    std::free(memory);
  }
}

}  // namespace

extern "C" void* __wrap_malloc(std::size_t size) {
  g_mallocSize = size;
  return g_mallocFails ? nullptr : __real_malloc(size);
}

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete[](void* memory) noexcept { Release(memory); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Release(memory); }

namespace {

using almara::test::Board;
using Action = std::function<void(Board&)>;

// Runs the action with the allocation after the first count failing. Whether it came to that.
bool FailsAfter(int count, const Action& action, Board& board) {
  bool failed = false;
  g_allocationsLeft = count;
  try {
    action(board);
  } catch (const std::bad_alloc&) {
    failed = true;
  }
  g_allocationsLeft = -1;
  return failed;
}

std::string TextOf(const Board& board) {
  std::string text = std::to_string(board.GetContentRows()) + " by " +
                     std::to_string(board.GetContentColumns()) + "\n";
  for (int row = 0; row < board.GetContentRows(); ++row) {
    for (int column = 0; column < board.GetContentColumns(); ++column) {
      const CCalendarItem cell = board.GetContentItem(row, column);
      text += cell.GetDay() + " " + std::to_string(cell.GetWeekNumber()) + "\t";
    }
    text += "\n";
  }
  for (int i = 0; i < board.GetWeekNumberCount(); ++i) {
    const tagCalendarWeekSpan span = board.GetWeekNumberItem(i);
    text += std::to_string(span.weekNumber) + "/" + std::to_string(span.secondWeekNumber) + " x" +
            std::to_string(span.rows) + "\n";
  }
  return text;
}

struct BuildCase {
  const char* name;
  EDispMonth mode;
  Action build;
};

std::ostream& operator<<(std::ostream& out, const BuildCase& tested) { return out << tested.name; }

class FailingBuild : public testing::TestWithParam<BuildCase> {
 protected:
  static std::unique_ptr<Board> NewBoard() {
    auto board = std::make_unique<Board>();
    board->SetWeekNumberCalcType(eWeekNumberCalcFromJan1);  // its answers are kept: they allocate
    board->SetDispMonth(GetParam().mode);
    board->SetMaxRows(8);
    board->GotoSpecifiedDate(2023, 5, 17);
    board->SetMaxRows(30);  // so that the next board outgrows what the first one holds
    return board;
  }
  static void ExpectEmpty(const Board& board) {
    EXPECT_EQ(TextOf(board), "0 by 0\n");
    EXPECT_EQ(board.GetContentItem(0, 0).GetType(), eCalendarItemEmpty);
    const auto [year, month, day, dayOfWeek] = board.GetContentDate();
    EXPECT_TRUE(year == 0 && month == 0 && day == 0 && dayOfWeek == 0);
    EXPECT_FALSE(board.IsTodayInBoard());
  }

  almara::test::CaptureStdout m_output;
};

TEST_P(FailingBuild, LeavesAnEmptyBoardAndTheNextBuildIsRight) {
  int count = 0;
  for (;; ++count) {
    const auto board = NewBoard();
    const int liveBefore = g_liveAllocations;
    if (!FailsAfter(count, GetParam().build, *board)) {
      break;
    }
    EXPECT_LE(g_liveAllocations, liveBefore + 64);  // kept week numbers at the most
    ExpectEmpty(*board);
    ASSERT_TRUE(mtx.try_lock()) << "the lock is still held after allocation " << count;
    mtx.unlock();
    board->GotoToday();
    board->GotoSpecifiedDate(2024, 2, 29);
    const auto direct = NewBoard();
    direct->GotoToday();
    direct->GotoSpecifiedDate(2024, 2, 29);
    ASSERT_EQ(TextOf(*board), TextOf(*direct)) << "after allocation " << count;
  }
  EXPECT_GE(count, 2) << "the two lists of dates are allocated at least";
}

TEST_P(FailingBuild, LeaksNothing) {
  for (int count = 0;; ++count) {
    const int before = g_liveAllocations;
    auto board = NewBoard();
    const bool failed = FailsAfter(count, GetParam().build, *board);
    board.reset();
    ASSERT_EQ(g_liveAllocations, before) << "after allocation " << count;
    if (!failed) {
      return;
    }
  }
}

const BuildCase kBuilds[] = {
    {"RollingWeeks", eDispMonthRollingWeeks, [](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }},
    {"RollingTail", eDispMonthRollingTail, [](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }},
    {"WholeMonth", eDispMonthWholeMonth, [](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }},
    {"DayStrip", eDispMonthDayStrip, [](Board& b) { b.GotoSpecifiedDate(2024, 3, 13); }},
    {"NextPage", eDispMonthRollingWeeks, [](Board& b) { b.GotoNextPage(); }},
    {"PreviousPage", eDispMonthRollingWeeks, [](Board& b) { b.GotoPreviousPage(); }},
    {"Today", eDispMonthRollingTail, [](Board& b) { b.GotoToday(); }},
    {"Offset", eDispMonthWholeMonth, [](Board& b) { b.GotoTodayOffsetMonth(-7); }},
};

INSTANTIATE_TEST_SUITE_P(All, FailingBuild, testing::ValuesIn(kBuilds),
                         [](const auto& tested) { return std::string(tested.param.name); });

struct LookupCase {
  const char* name;
  std::function<std::vector<int>(Board&, CCalendarSolarDate)> ask;
};

std::ostream& operator<<(std::ostream& out, const LookupCase& tested) { return out << tested.name; }

std::vector<int> AskLunarDate(Board& board, CCalendarSolarDate date) {
  const CCalendarLunarDate lunar = board.ConverterLunar(date);
  return {lunar.year, lunar.month, lunar.day, lunar.leap};
}

class FailingLookup : public testing::TestWithParam<LookupCase> {};

TEST_P(FailingLookup, AnswersRightTheNextTimeAndLeaksNothing) {
  g_mac_timezone = 8;
  // An ordinary day, a new year's day, one of the fixed lunar dates, and days far away.
  const CCalendarSolarDate dates[] = {
      {2023, 3, 22, 0}, {2024, 2, 10, 0}, {2017, 2, 27, 0}, {1, 1, 1, 0}, {9999999, 1, 1, 0}};
  for (const CCalendarSolarDate& date : dates) {
    const std::vector<int> expected = GetParam().ask(*std::make_unique<Board>(), date);
    int count = 0;
    for (bool failed = true; failed; ++count) {
      const int before = g_liveAllocations;
      {
        const auto board = std::make_unique<Board>();
        const auto ask = [&date](Board& b) { static_cast<void>(GetParam().ask(b, date)); };
        failed = FailsAfter(count, ask, *board);
        ASSERT_EQ(GetParam().ask(*board, date), expected) << "after allocation " << count;
        ASSERT_EQ(GetParam().ask(*board, date), expected) << "kept, after allocation " << count;
      }
      ASSERT_EQ(g_liveAllocations, before) << "after allocation " << count;
    }
    EXPECT_GE(count, 2) << "an answer is kept, so it allocates";
  }
}

const LookupCase kLookups[] = {
    {"LunarDate", AskLunarDate},
    {"SolarTerm",
     [](Board& b, CCalendarSolarDate d) { return std::vector<int>{b.Check24Sekki(d)}; }},
    {"SolarFestival",
     [](Board& b, CCalendarSolarDate d) {
       return std::vector<int>{b.CheckFestivalSolar(eLanguageChs, d)};
     }},
    {"LunarFestival",
     [](Board& b, CCalendarSolarDate d) {
       return std::vector<int>{b.CheckFestivalLunar(eLanguageChs, d)};
     }},
};

INSTANTIATE_TEST_SUITE_P(All, FailingLookup, testing::ValuesIn(kLookups),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(FailingConfigKey, IsNullAndTheNextOneIsRight) {
  g_mallocFails = true;
  EXPECT_EQ(GetConfigKey(), nullptr);
  g_mallocFails = false;
  g_allocationsLeft = 0;
  EXPECT_EQ(GetConfigKey(), nullptr);
  g_allocationsLeft = -1;
  char* const key = GetConfigKey();
  const std::string expected = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";
  EXPECT_GT(g_mallocSize, expected.size());
  EXPECT_EQ(key, expected);
  std::free(key);
}

}  // namespace
