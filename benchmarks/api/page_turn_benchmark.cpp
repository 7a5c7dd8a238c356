// SPDX-License-Identifier: MIT
//
// Turning to pages never seen before: the board build and all four look-ups of every shown cell,
// against ICU's lunar date alone for the same cells.
#include <benchmark/benchmark.h>

#include <vector>

#include "date/calendar_platform_api.h"
#include "icu_chinese_calendar.h"
#include "logic/calendar_logic.h"
#include "silent_output.h"

using almara::test::IcuChineseCalendar;
using almara::test::SilentOutput;

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

void TurnPage(Board& board, CCalendarLogic& lookUps) {
  board.GotoNextPage();
  for (const CCalendarSolarDate& date : board.ShownDates()) {
    benchmark::DoNotOptimize(lookUps.ConverterLunar(date));
    benchmark::DoNotOptimize(lookUps.Check24Sekki(date));
    benchmark::DoNotOptimize(lookUps.CheckFestivalSolar(eLanguageChs, date));
    benchmark::DoNotOptimize(lookUps.CheckFestivalLunar(eLanguageChs, date));
  }
}

void PageTurns(benchmark::State& state) {
  const SilentOutput silent;
  for (auto _ : state) {
    Board board(static_cast<int>(state.range(0)));
    CCalendarLogic lookUps;
    for (int page = 0; page < state.range(1); ++page) {
      TurnPage(board, lookUps);
    }
  }
}
BENCHMARK(PageTurns)
    ->ArgsProduct({{eDispMonthRollingWeeks, eDispMonthWholeMonth}, {24}})
    ->Unit(benchmark::kMillisecond);

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

}  // namespace
