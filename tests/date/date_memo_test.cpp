// SPDX-License-Identifier: MIT
#include "date/date_memo.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <set>
#include <stdexcept>
#include <vector>

using almara::DateMemo;

namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

class CountedMemo {
 public:
  int Ask(std::int32_t variant, const CCalendarSolarDate& date) {
    return m_memo.GetOrCompute(variant, date, [this] { return ++m_computed; });
  }
  int Computed() const { return m_computed; }

 private:
  DateMemo<int> m_memo;
  int m_computed = 0;
};

TEST(DateMemo, ComputesEachQuestionOnce) {
  CountedMemo memo;
  EXPECT_EQ(memo.Ask(1, {2024, 3, 9, 0}), 1);
  EXPECT_EQ(memo.Ask(1, {2024, 3, 9, 0}), 1);
  EXPECT_EQ(memo.Ask(1, {2024, 3, 10, 0}), 2);
  EXPECT_EQ(memo.Ask(1, {2024, 3, 9, 0}), 1);
  EXPECT_EQ(memo.Computed(), 2);
}

TEST(DateMemo, VariantYearMonthAndDayEachMakeAQuestionOfTheirOwn) {
  CountedMemo memo;
  const int first = memo.Ask(1, {2024, 3, 9, 0});
  EXPECT_NE(memo.Ask(2, {2024, 3, 9, 0}), first);
  EXPECT_NE(memo.Ask(1, {2023, 3, 9, 0}), first);
  EXPECT_NE(memo.Ask(1, {2024, 4, 9, 0}), first);
  EXPECT_NE(memo.Ask(1, {2024, 3, 8, 0}), first);
  EXPECT_EQ(memo.Ask(1, {2024, 3, 9, 0}), first);
  EXPECT_EQ(memo.Computed(), 5);
}

TEST(DateMemo, DaysOutsideAMonthDoNotCollide) {
  const std::vector<std::int32_t> days = {0,   1,   31,   32,   33,       63,       64,   -1,   -31,
                                          -32, -33, kMin, kMax, kMin + 1, kMax - 1, 1000, -1000};
  CountedMemo memo;
  std::set<int> answers;
  for (const std::int32_t day : days) {
    answers.insert(memo.Ask(1, {2024, 3, day, 0}));
  }
  EXPECT_EQ(answers.size(), days.size());
  for (const std::int32_t day : days) {
    answers.insert(memo.Ask(1, {2024, 3, day, 0}));
  }
  EXPECT_EQ(answers.size(), days.size());
}

TEST(DateMemo, FindsOnlyWhatWasAsked) {
  DateMemo<int> memo;
  memo.GetOrCompute(1, {2024, 3, 9, 0}, [] { return 7; });
  ASSERT_NE(memo.Find(1, {2024, 3, 9, 5}), nullptr);
  EXPECT_EQ(*memo.Find(1, {2024, 3, 9, 5}), 7);
  EXPECT_EQ(memo.Find(1, {2024, 3, 10, 0}), nullptr);
  EXPECT_EQ(memo.Find(1, {2024, 4, 9, 0}), nullptr);
  EXPECT_EQ(memo.Find(2, {2024, 3, 9, 0}), nullptr);
  EXPECT_EQ(memo.Size(), 1U);
}

TEST(DateMemo, AnswerThatThrewIsComputedAgain) {
  DateMemo<int> memo;
  EXPECT_THROW(
      memo.GetOrCompute(1, {2024, 3, 9, 0}, []() -> int { throw std::runtime_error("no answer"); }),
      std::runtime_error);
  EXPECT_EQ(memo.GetOrCompute(1, {2024, 3, 9, 0}, [] { return 7; }), 7);
}

TEST(DateMemo, ComputingMayAskTheMemo) {
  DateMemo<int> memo;
  const auto inner = [&memo] {
    return memo.GetOrCompute(1, {2025, 1, 1, 0}, [] { return 20; }) +
           memo.GetOrCompute(1, {2024, 3, 10, 0}, [] { return 3; });
  };
  EXPECT_EQ(memo.GetOrCompute(1, {2024, 3, 9, 0}, inner), 23);
  EXPECT_EQ(memo.GetOrCompute(1, {2024, 3, 9, 0}, [] { return 0; }), 23);
  EXPECT_EQ(memo.GetOrCompute(1, {2024, 3, 10, 0}, [] { return 0; }), 3);
}

}  // namespace
