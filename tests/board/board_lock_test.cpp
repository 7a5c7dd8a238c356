// SPDX-License-Identifier: MIT
//
// The mutex that every build holds.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

#include "support/board.h"
#include "support/capture_stdout.h"

using almara::test::Board;
using almara::test::CaptureStdout;

namespace {

// From a thread of its own: a thread must not try a mutex that it holds.
bool IsFree() {
  bool free = false;
  std::thread([&free] {
    free = mtx.try_lock();
    if (free) {
      mtx.unlock();
    }
  }).join();
  return free;
}

TEST(BoardLock, BuildWaitsForTheMutex) {
  const CaptureStdout output;
  Board board;
  std::atomic<bool> built{false};
  std::unique_lock<std::mutex> lock(mtx);
  std::thread builder([&] {
    board._BuildCalendar(2024, 3, 13);
    built = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(built);
  EXPECT_TRUE(board.Rows().empty());
  lock.unlock();
  builder.join();
  EXPECT_TRUE(built);
  EXPECT_EQ(board.Rows().size(), 5U);
}

TEST(BoardLock, BuildGivesTheMutexBack) {
  const CaptureStdout output;
  Board board;
  board._BuildCalendar(2024, 3, 13);
  EXPECT_TRUE(IsFree());
  board._BuildCalendar(1899, 12, 31);
  EXPECT_TRUE(IsFree());
}

TEST(BoardLock, ContentAloneTakesNoMutex) {
  Board board;
  std::vector<tagCalendarRow> rows;
  const std::lock_guard<std::mutex> lock(mtx);
  EXPECT_EQ(board._BuildContent(2024, 3, 13, rows), 1);
  EXPECT_EQ(board._BuildContentOfToday(rows), 1);
}

}  // namespace
