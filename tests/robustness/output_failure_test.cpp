// SPDX-License-Identifier: MIT
//
// Boards of the built library while nothing can be written to the standard output.
//
// Each runs in a process of its own that leaves as hosts do, by exit(), which writes what is still
// in the buffer of the standard output.
#include <almara/almara.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kPages = 200;  // their text fills the buffer of the standard output many times

[[noreturn]] void Exit(int status) {
  std::exit(status);  // NOLINT(concurrency-mt-unsafe): the only thread
}

// Turns pages and takes everything that is shown together.
std::uint32_t SumOfBoards() {
  std::uint32_t sum = 0;
  const auto add = [&sum](std::int32_t value) {
    sum = sum * 31 + static_cast<std::uint32_t>(value);
  };
  GotoSpecifiedDate(2024, 3, 13);
  for (int page = 0; page < kPages; ++page) {
    GotoNextPage();
    for (std::int32_t row = 0; row < GetContentRows(); ++row) {
      for (std::int32_t column = 0; column < GetContentColumns(); ++column) {
        const tagCalendarCell cell = GetContentItem(row, column);
        add(cell.year);
        add(cell.month);
        add(cell.day);
        add(cell.weekNumber);
      }
    }
    add(GetWeekNumberCount());
  }
  GotoTodayOffset(1);
  return sum;
}

constexpr unsigned kMaxSeconds = 10;

// Runs SumOfBoards() in a process of its own, after redirect(), and hands its result back.
template <typename Redirect>
testing::AssertionResult SumBehind(Redirect redirect, std::uint32_t& sum) {
  int ends[2];
  if (pipe(ends) != 0) {
    return testing::AssertionFailure() << "no pipe";
  }
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGPIPE, SIG_DFL);
    redirect();
    alarm(kMaxSeconds);
    const std::uint32_t answer = SumOfBoards();
    Exit(write(ends[1], &answer, sizeof answer) == sizeof answer ? 0 : 1);
  }
  close(ends[1]);
  const bool answered = read(ends[0], &sum, sizeof sum) == sizeof sum;
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFSIGNALED(status)) {
    return testing::AssertionFailure() << "ended by signal " << WTERMSIG(status);
  }
  return answered ? testing::AssertionSuccess() : testing::AssertionFailure() << "no answer";
}

void RedirectTo(const char* path) {
  const int file = open(path, O_WRONLY);
  if (file < 0 || dup2(file, STDOUT_FILENO) < 0) {
    Exit(99);
  }
}

void BreakPipe() {
  int ends[2];
  if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) {
    Exit(99);
  }
  close(ends[0]);
  close(ends[1]);
}

class OutputFailure : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SumBehind([] { RedirectTo("/dev/null"); }, m_right));
  }

  template <typename Redirect>
  void ExpectRightBoards(Redirect redirect) const {
    std::uint32_t sum = 0;
    EXPECT_TRUE(SumBehind(redirect, sum));
    EXPECT_EQ(sum, m_right);
  }

 private:
  std::uint32_t m_right = 0;
};

TEST_F(OutputFailure, ClosedDescriptor) {
  ExpectRightBoards([] { close(STDOUT_FILENO); });
}

TEST_F(OutputFailure, ClosedStream) {
  ExpectRightBoards([] {
    if (std::freopen("/dev/null", "r", stdout) == nullptr) {
      Exit(99);
    }
  });
}

TEST_F(OutputFailure, FullDevice) {
  ExpectRightBoards([] { RedirectTo("/dev/full"); });
}

TEST_F(OutputFailure, FullDeviceWithoutABuffer) {
  ExpectRightBoards([] {
    RedirectTo("/dev/full");
    std::setvbuf(stdout, nullptr, _IONBF, 0);
  });
}

TEST_F(OutputFailure, PipeWithoutAReader) { ExpectRightBoards(BreakPipe); }

TEST_F(OutputFailure, PipeWithoutAReaderWhereEachLineIsWritten) {
  ExpectRightBoards([] {
    BreakPipe();
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  });
}

TEST_F(OutputFailure, PipeWithoutAReaderAndASmallBuffer) {
  ExpectRightBoards([] {
    BreakPipe();
    std::setvbuf(stdout, nullptr, _IOFBF, 100);
  });
}

TEST_F(OutputFailure, PipeThatNobodyReads) {
  ExpectRightBoards([] {
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) {
      Exit(99);
    }
  });
}

}  // namespace
