// SPDX-License-Identifier: MIT
//
// The mutex that every build holds.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <climits>
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
  std::atomic<bool> started{false};
  std::atomic<bool> built{false};
  std::unique_lock<std::mutex> lock(mtx);
  std::thread builder([&] {
    started = true;
    board._BuildCalendar(2024, 3, 13);
    built = true;
  });
  while (!started) {
    std::this_thread::yield();
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_FALSE(built);
  EXPECT_TRUE(board.Rows().empty());
  lock.unlock();
  builder.join();
  EXPECT_TRUE(built);
  EXPECT_EQ(board.Rows().size(), 5U);
}

// A build waits for the reader of a full pipe, here several times.
TEST(BoardLock, BoardIsWrittenUnderTheMutex) {
  const CaptureStdout output;  // puts the standard output back
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  fcntl(ends[1], F_SETPIPE_SZ, PIPE_BUF);
  dup2(ends[1], STDOUT_FILENO);
  close(ends[1]);
  Board board;
  board.SetMaxRows(200);
  std::atomic<bool> built{false};
  std::thread builder([&] {
    board._BuildCalendar(2024, 3, 13);
    built = true;
  });
  bool wasHeld = false;  // judged below: a failure is written to the full pipe
  while (!built) {
    pollfd writeEnd{STDOUT_FILENO, POLLOUT, 0};
    if (poll(&writeEnd, 1, 0) == 0) {
      wasHeld = wasHeld || !IsFree();
      char text[PIPE_BUF];
      ASSERT_GT(read(ends[0], text, sizeof text), 0);
    }
  }
  builder.join();
  EXPECT_TRUE(wasHeld);
  EXPECT_TRUE(IsFree());
  close(ends[0]);
}

TEST(BoardLock, ContentAloneTakesNoMutex) {
  Board board;
  std::vector<tagCalendarRow> rows;
  const std::lock_guard<std::mutex> lock(mtx);
  EXPECT_EQ(board._BuildContent(2024, 3, 13, rows), 1);
  EXPECT_EQ(board._BuildContentOfToday(rows), 1);
}

}  // namespace
