// SPDX-License-Identifier: MIT
#include "board/standard_output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdio_ext.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "support/capture_stdout.h"
#include "support/leave_process.h"

using almara::WriteToStandardOutput;
using almara::test::CaptureStdout;

namespace {

constexpr std::size_t kPipeSize = std::size_t{2} * PIPE_BUF;
const std::string kWholePipe(kPipeSize, 'x');
const std::string kLongText(2 * kPipeSize, 'x');

TEST(StandardOutput, FileTakesTheTextAsItIsInOrderWithTheHosts) {
  CaptureStdout output;
  std::fputs("a", stdout);
  WriteToStandardOutput("100%d\n\tend");
  EXPECT_NE(__fpending(stdout), 0U);  // as the host's own
  WriteToStandardOutput("");
  std::fputs("b", stdout);
  WriteToStandardOutput(kLongText);
  std::fputs("c", stdout);
  EXPECT_EQ(output.Take(), "a100%d\n\tendb" + kLongText + "c");
}

// A pipe of two pages as the standard output, for the life of the object.
class PipedOutput {
 public:
  PipedOutput() {
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) {
      std::abort();
    }
    close(ends[1]);
    fcntl(STDOUT_FILENO, F_SETPIPE_SZ, kPipeSize);
    m_readEnd = ends[0];
  }
  ~PipedOutput() { CloseReadEnd(); }
  PipedOutput(const PipedOutput&) = delete;
  PipedOutput& operator=(const PipedOutput&) = delete;

  // What is in the pipe, at least one character; empty at its end.
  std::string Read() const {
    char text[kPipeSize];
    return {text,
            static_cast<std::size_t>(std::max<ssize_t>(0, read(m_readEnd, text, sizeof text)))};
  }

  void CloseReadEnd() {
    close(m_readEnd);
    m_readEnd = -1;
  }

 private:
  CaptureStdout m_restorer;
  int m_readEnd;
};

TEST(StandardOutput, PipeHasTheTextAtOnceInOrderWithTheHosts) {
  const PipedOutput output;
  std::fputs("a", stdout);
  WriteToStandardOutput("b");
  EXPECT_EQ(output.Read(), "ab");
  std::fputs("c", stdout);
  WriteToStandardOutput("d");
  EXPECT_EQ(output.Read(), "cd");
  EXPECT_EQ(__fpending(stdout), 0U);
}

// Also where signals interrupt the wait.
TEST(StandardOutput, SlowReaderGetsEveryCharacter) {
  PipedOutput output;
  std::string text;
  std::signal(SIGALRM, [](int) {});
  std::thread reader([&] {
    sigset_t alarms;
    sigemptyset(&alarms);
    sigaddset(&alarms, SIGALRM);
    pthread_sigmask(SIG_BLOCK, &alarms, nullptr);
    std::string piece;
    do {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      piece = output.Read();
      text += piece;
    } while (!piece.empty());
  });
  constexpr itimerval kEvery5Milliseconds{{0, 5000}, {0, 5000}};
  setitimer(ITIMER_REAL, &kEvery5Milliseconds, nullptr);
  std::fputs("a", stdout);
  WriteToStandardOutput("b");
  WriteToStandardOutput(kLongText);
  WriteToStandardOutput("c");
  constexpr itimerval kNever{};
  setitimer(ITIMER_REAL, &kNever, nullptr);
  std::signal(SIGALRM, SIG_DFL);
  std::fputs("d", stdout);
  std::fflush(stdout);
  close(STDOUT_FILENO);
  reader.join();
  EXPECT_EQ(text, "ab" + kLongText + "cd");
}

TEST(StandardOutput, ReaderThatDoesNotReadHoldsUpOneText) {
  const PipedOutput output;
  alarm(10);  // for a write that waits
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 100; ++i) {
    WriteToStandardOutput(kLongText);
  }
  alarm(0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(output.Read(), kWholePipe);
  WriteToStandardOutput("reads again");
  EXPECT_EQ(output.Read(), "reads again");
}

TEST(StandardOutput, HostsTextStaysWhereItIsUntilThereIsRoom) {
  const PipedOutput output;
  WriteToStandardOutput(kWholePipe);
  std::fputs("host ", stdout);
  WriteToStandardOutput("lost");
  EXPECT_EQ(__fpending(stdout), 5U);
  EXPECT_EQ(output.Read(), kWholePipe);
  WriteToStandardOutput("engine");
  EXPECT_EQ(output.Read(), "host engine");
}

TEST(StandardOutput, HostsTextStaysTheHostsAfterTheReaderHasGone) {
  PipedOutput output;
  std::fputs("host", stdout);
  output.CloseReadEnd();
  WriteToStandardOutput("lost");
  EXPECT_EQ(__fpending(stdout), 4U);
  __fpurge(stdout);
}

TEST(StandardOutput, NonBlockingPipeStaysAsItIsAndLeavesNoError) {
  const PipedOutput output;
  fcntl(STDOUT_FILENO, F_SETFL, O_NONBLOCK);
  WriteToStandardOutput(kLongText);
  EXPECT_EQ(std::ferror(stdout), 0);
  EXPECT_NE(fcntl(STDOUT_FILENO, F_GETFL) & O_NONBLOCK, 0);
  EXPECT_EQ(output.Read(), kWholePipe);
}

// Room for fewer characters than a piece has: a write that may wait would.
TEST(StandardOutput, SocketWithLittleRoomIsNotWaitedFor) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  constexpr int kLittle = 1;
  setsockopt(ends[1], SOL_SOCKET, SO_SNDBUF, &kLittle, sizeof kLittle);
  const CaptureStdout restorer;
  dup2(ends[1], STDOUT_FILENO);
  close(ends[1]);
  alarm(10);
  WriteToStandardOutput(kLongText);
  alarm(0);
  char text[kPipeSize];
  EXPECT_GT(read(ends[0], text, sizeof text), 0);
  close(ends[0]);
}

// Ends the process with 0 if writing to a standard output made by redirect() does no harm.
template <typename Redirect>
void WriteAndExit(Redirect redirect) {
  std::signal(SIGPIPE, SIG_DFL);
  redirect();
  for (int i = 0; i < 10; ++i) {
    WriteToStandardOutput(kLongText);
    WriteToStandardOutput("short\n");
  }
  sigset_t pending;
  sigpending(&pending);
  sigset_t mask;
  pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  almara::test::LeaveProcess(sigismember(&pending, SIGPIPE) + 2 * sigismember(&mask, SIGPIPE));
}

void BreakPipe() {
  int ends[2];
  if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) {
    almara::test::LeaveProcess(99);
  }
  close(ends[0]);
}

// A write raises SIGPIPE, although the socket is ready for it and has a reader.
void BreakSocket() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0 ||
      shutdown(STDOUT_FILENO, SHUT_WR) != 0) {
    almara::test::LeaveProcess(99);
  }
}

void BlockTheSignalAndBreakSocket() {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  BreakSocket();
}

TEST(StandardOutputDeathTest, PipeWithoutAReaderEndsNoProcess) {
  EXPECT_EXIT(WriteAndExit(BreakPipe), testing::ExitedWithCode(0), "");
}

TEST(StandardOutputDeathTest, SocketThatTakesNothingEndsNoProcess) {
  EXPECT_EXIT(WriteAndExit(BreakSocket), testing::ExitedWithCode(0), "");
}

TEST(StandardOutputDeathTest, SignalThatTheHostBlocksStaysBlockedAndPending) {
  EXPECT_EXIT(WriteAndExit(BlockTheSignalAndBreakSocket), testing::ExitedWithCode(3), "");
}

}  // namespace
