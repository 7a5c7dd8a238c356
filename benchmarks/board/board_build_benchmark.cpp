// SPDX-License-Identifier: MIT
//
// A board build against the time-service calls that it cannot avoid: today's date, the midnight of
// the focus date, and one conversion for each day the board holds.
#include <benchmark/benchmark.h>

#include <ctime>
#include <vector>

#include "board/calendar_logic_build.h"
#include "silent_output.h"

using almara::test::SilentOutput;

namespace {

// A day in the middle of a month that does not begin on a Monday, so that every kind of cell
// occurs.
constexpr CCalendarSolarDate kFocus{2024, 5, 15, 3};

class Board : public CCalendarLogicBuild {
 public:
  explicit Board(int mode) { SetDispMonth(mode); }

  void Build() { _BuildCalendar(kFocus.year, kFocus.month, kFocus.day); }

  // Days on the board, hidden ones included.
  int CountDays() const {
    int days = 0;
    for (const tagCalendarRow& row : m_board.content.rows) {
      for (const CCalendarItem& item : row.items) {
        days += item.GetDate().year != 0 ? 1 : 0;
      }
    }
    return days;
  }
};

void BoardBuild(benchmark::State& state) {
  const SilentOutput silent;
  Board board(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    board.Build();
  }
}
BENCHMARK(BoardBuild)->DenseRange(eDispMonthRollingWeeks, eDispMonthDayStrip);

// The board alone, without its text on the standard output.
void UnprintedBoardBuild(benchmark::State& state, almara::DayCounting counting) {
  Board board(static_cast<int>(state.range(0)));
  board.SetPrintBoard(false);
  board.SetDayCounting(counting);
  for (auto _ : state) {
    board.Build();
  }
}
BENCHMARK_CAPTURE(UnprintedBoardBuild, local_time, almara::DayCounting::kLocalTime)
    ->DenseRange(eDispMonthRollingWeeks, eDispMonthDayStrip);
BENCHMARK_CAPTURE(UnprintedBoardBuild, civil, almara::DayCounting::kCivil)
    ->DenseRange(eDispMonthRollingWeeks, eDispMonthDayStrip);

void BoardTimeServiceCalls(benchmark::State& state) {
  const SilentOutput silent;
  Board board(static_cast<int>(state.range(0)));
  board.Build();
  const int days = board.CountDays();
  for (auto _ : state) {
    const std::time_t now = std::time(nullptr);
    benchmark::DoNotOptimize(std::localtime(&now));
    std::tm record{};
    record.tm_year = kFocus.year - 1900;
    record.tm_mon = kFocus.month - 1;
    record.tm_mday = kFocus.day;
    std::time_t midnight = std::mktime(&record);
    for (int day = 0; day < days; ++day, midnight += 86400) {
      benchmark::DoNotOptimize(localtime_r(&midnight, &record));
    }
  }
}
BENCHMARK(BoardTimeServiceCalls)->DenseRange(eDispMonthRollingWeeks, eDispMonthDayStrip);

}  // namespace
