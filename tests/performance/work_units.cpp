// SPDX-License-Identifier: MIT
//
// work_units KIND TIMES: does a kind of work so many times, for its instructions to be counted.
// "none" does nothing, which gives the cost of starting.
#include <cstdlib>
#include <string_view>

#include "date/calendar_platform_api.h"
#include "logic/calendar_logic.h"

namespace {

void Annotate(CCalendarLogic& engine, const CCalendarSolarDate& date) {
  engine.ConverterLunar(date);
  engine.Check24Sekki(date);
  engine.CheckFestivalSolar(eLanguageChs, date);
  engine.CheckFestivalLunar(eLanguageChs, date);
}

void AnnotateBoard(CCalendarLogic& engine) {
  for (int row = 0; row < engine.GetContentRows(); ++row) {
    for (int column = 0; column < engine.GetContentColumns(); ++column) {
      Annotate(engine, engine.GetContentItem(row, column).GetDate());
    }
  }
}

void BuildBoard(CCalendarLogic& engine) { engine.GotoSpecifiedDate(2024, 5, 15); }

void TurnPage(CCalendarLogic& engine) {
  engine.GotoNextPage();
  AnnotateBoard(engine);
}

void DoWork(std::string_view kind, int times) {
  g_mac_timezone = 8;
  CCalendarLogic engine;
  engine.SetDispMonth(eDispMonthWholeMonth);
  if (kind != "none") {
    BuildBoard(engine);
  }
  if (kind == "kept") {
    AnnotateBoard(engine);
  }
  for (int i = 0; i < times; ++i) {
    if (kind == "board") {
      BuildBoard(engine);
    } else if (kind == "page") {
      TurnPage(engine);
    } else if (kind == "kept") {
      AnnotateBoard(engine);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    return EXIT_FAILURE;
  }
  DoWork(argv[1], std::atoi(argv[2]));
  return EXIT_SUCCESS;
}
