// SPDX-License-Identifier: MIT
//
// Turning to pages never seen before: the board build and all four look-ups of every shown cell,
// against the same with the look-ups in their plainest form, and against ICU's lunar date alone for
// the same cells.
#include <benchmark/benchmark.h>

#include <ctime>
#include <vector>

#include "date/calendar_platform_api.h"
#include "icu_chinese_calendar.h"
#include "logic/calendar_logic.h"
#include "silent_output.h"
#include "yardstick/engine.h"

namespace yardstick = almara::test::yardstick;

namespace {

constexpr int kRows = 6;

class Board : public CCalendarLogic {
 public:
  explicit Board(int mode) {
    g_mac_timezone = 8;
    SetDispMonth(mode);
    SetMaxRows(kRows);
    GotoSpecifiedDate(2010, 1, 1);
  }

  std::vector<CCalendarSolarDate> ShownDates() const {
    std::vector<CCalendarSolarDate> dates;
    for (int row = 0; row < GetContentRows(); ++row) {
      for (int column = 0; column < GetContentColumns(); ++column) {
        const CCalendarSolarDate date = GetContentItem(row, column).GetDate();
        if (date.year != 0) {
          dates.push_back(date);
        }
      }
    }
    return dates;
  }
};

template <typename LookUps>
void TurnPage(Board& board, LookUps& lookUps) {
  board.GotoNextPage();
  for (const CCalendarSolarDate& date : board.ShownDates()) {
    benchmark::DoNotOptimize(lookUps.ConverterLunar(date));
    benchmark::DoNotOptimize(lookUps.Check24Sekki(date));
    benchmark::DoNotOptimize(lookUps.CheckFestivalSolar(eLanguageChs, date));
    benchmark::DoNotOptimize(lookUps.CheckFestivalLunar(eLanguageChs, date));
  }
}

template <typename LookUps>
void PageTurns(benchmark::State& state) {
  const SilentOutput silent;
  for (auto _ : state) {
    Board board(static_cast<int>(state.range(0)));
    LookUps lookUps;
    for (int page = 0; page < state.range(1); ++page) {
      TurnPage(board, lookUps);
    }
  }
}
BENCHMARK_TEMPLATE(PageTurns, CCalendarLogic)
    ->ArgsProduct({{eDispMonthRollingWeeks, eDispMonthWholeMonth}, {24}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(PageTurns, yardstick::Engine)
    ->ArgsProduct({{eDispMonthRollingWeeks, eDispMonthWholeMonth}, {24}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

void PageTurnsIcu(benchmark::State& state) {
  const SilentOutput silent;
  IcuChineseCalendar calendar;
  std::vector<UDate> noons;
  Board board(static_cast<int>(state.range(0)));
  for (int page = 0; page < state.range(1); ++page) {
    board.GotoNextPage();
    for (const CCalendarSolarDate& date : board.ShownDates()) {
      noons.push_back(calendar.NoonOf(date));
    }
  }
  for (auto _ : state) {
    for (const UDate noon : noons) {
      benchmark::DoNotOptimize(calendar.LunarDate(noon));
    }
  }
}
BENCHMARK(PageTurnsIcu)
    ->ArgsProduct({{eDispMonthRollingWeeks, eDispMonthWholeMonth}, {24}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

// Time that the processor spent on this program, in seconds.
double ProcessorTime() {
  std::timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// The cost of one page, the argument-th after 1 January 2010; the pages before it are turned
// outside the measured time.
template <typename LookUps>
void PageTurn(benchmark::State& state) {
  const SilentOutput silent;
  for (auto _ : state) {
    Board board(eDispMonthWholeMonth);
    LookUps lookUps;
    for (int page = 1; page < state.range(0); ++page) {
      TurnPage(board, lookUps);
    }
    const double start = ProcessorTime();
    TurnPage(board, lookUps);
    state.SetIterationTime(ProcessorTime() - start);
  }
}
BENCHMARK_TEMPLATE(PageTurn, CCalendarLogic)
    ->DenseRange(1, 24)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(3);
BENCHMARK_TEMPLATE(PageTurn, yardstick::Engine)
    ->DenseRange(1, 24)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(1);

}  // namespace
