// SPDX-License-Identifier: MIT
//
// What may run on several threads: board builds, which exclude each other, and converters that
// share nothing but the zone. Meant for the thread sanitizer; the results are checked everywhere.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "lunar/lunar_date.h"
#include "lunar/sekki_lookup.h"
#include "robustness/failures_to_stderr.h"
#include "support/board.h"
#include "support/capture_stdout.h"

namespace {

using almara::test::Board;

constexpr int kThreads = 4;

template <typename Work>
void OnEveryThread(Work work) {
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back(work, i);
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

TEST(Concurrency, BuildsOfOneBoardExcludeEachOther) {
  constexpr int kBuilds = 200;
  const almara::test::CaptureStdout output;
  Board board;
  board.SetDispMonth(eDispMonthWholeMonth);
  OnEveryThread([&board](int thread) {
    for (int i = 0; i < kBuilds; ++i) {
      board._BuildCalendar(2000 + thread, 1 + i % 12, 1);
    }
  });
  Board alone;
  alone.SetDispMonth(eDispMonthWholeMonth);
  alone._BuildCalendar(board.GetContentDate().year, board.GetContentDate().month,
                       board.GetContentDate().day);
  EXPECT_EQ(board.RowTexts(), alone.RowTexts());
}

TEST(Concurrency, BuildsOfSeveralBoardsExcludeEachOther) {
  constexpr int kBuilds = 100;
  const almara::test::CaptureStdout output;
  std::vector<Board> boards(kThreads);
  OnEveryThread([&boards](int thread) {
    Board& board = boards[static_cast<std::size_t>(thread)];
    for (int i = 0; i < kBuilds; ++i) {
      board._BuildCalendar(0, 0, 0);
      board._BuildCalendar(2024, 3, 13);
    }
  });
  for (const Board& board : boards) {
    EXPECT_EQ(board.RowTexts(), boards.front().RowTexts());
  }
}

TEST(Concurrency, ConvertersOfSeveralThreadsAnswerAlike) {
  constexpr double kZone = 8;
  std::vector<std::string> answers(kThreads);
  OnEveryThread([&answers](int thread) {
    almara::LunarMemo memo;
    std::string& text = answers[static_cast<std::size_t>(thread)];
    for (int day = 1; day <= 28; ++day) {
      for (int month = 1; month <= 12; ++month) {
        const CCalendarSolarDate date{2033, month, day, 0};
        const CCalendarLunarDate lunar = almara::LunarDateOf(date, kZone, memo);
        text += std::to_string(lunar.month * 100 + lunar.day + 10000 * lunar.leap) + " " +
                std::to_string(almara::SekkiOf(date, kZone, memo)) + "\n";
      }
    }
  });
  for (const std::string& text : answers) {
    EXPECT_EQ(text, answers.front());
    EXPECT_FALSE(text.empty());
  }
}

}  // namespace
