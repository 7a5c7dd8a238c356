// SPDX-License-Identifier: MIT
#include "board/standard_output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "support/capture_stdout.h"
#include "support/leave_process.h"

using almara::WriteToStandardOutput;
using almara::test::CaptureStdout;

namespace {

TEST(StandardOutput, TakesTheTextAsItIs) {
  CaptureStdout output;
  EXPECT_EQ(WriteToStandardOutput("100%d\n\tend"), 10U);
  EXPECT_EQ(WriteToStandardOutput(""), 0U);
  EXPECT_EQ(output.Take(), "100%d\n\tend");
}

TEST(StandardOutput, TextLongerThanTheBufferArrivesInOrder) {
  CaptureStdout output;
  const std::string text(3 * BUFSIZ, 'x');
  std::fputs("a", stdout);
  EXPECT_EQ(WriteToStandardOutput(text), text.size());
  std::fputs("b", stdout);
  EXPECT_EQ(output.Take(), "a" + text + "b");
}

// Ends the process with 0 if writing to a standard output made by redirect() does no harm.
template <typename Redirect>
void WriteAndExit(Redirect redirect) {
  redirect();
  const std::string text(3 * BUFSIZ, 'x');
  for (int i = 0; i < 10; ++i) {
    WriteToStandardOutput(text);
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

TEST(StandardOutputDeathTest, PipeWithoutAReaderEndsNoProcess) {
  std::signal(SIGPIPE, SIG_DFL);
  EXPECT_EXIT(WriteAndExit(BreakPipe), testing::ExitedWithCode(0), "");
}

TEST(StandardOutputDeathTest, LineBufferedPipeWithoutAReaderEndsNoProcess) {
  std::signal(SIGPIPE, SIG_DFL);
  EXPECT_EXIT(WriteAndExit([] {
                std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
                BreakPipe();
              }),
              testing::ExitedWithCode(0), "");
}

// Whether stdio writes at once or keeps a text back turns on a single character.
TEST(StandardOutputDeathTest, TextThatJustFitsTheBufferEndsNoProcess) {
  std::signal(SIGPIPE, SIG_DFL);
  EXPECT_EXIT(
      {
        BreakPipe();
        static char buffer[512];
        for (std::size_t size = 128; size <= sizeof buffer; ++size) {
          std::setvbuf(stdout, buffer, _IOFBF, size);
          for (std::size_t length = size - 3; length <= size + 3; ++length) {
            for (const std::size_t first : {std::size_t{0}, std::size_t{60}}) {
              WriteToStandardOutput(std::string(first, 'x'));
              WriteToStandardOutput(std::string(length - first, 'x'));
            }
          }
        }
        almara::test::LeaveProcess(0);
      },
      testing::ExitedWithCode(0), "");
}

TEST(StandardOutputDeathTest, SignalThatTheHostBlocksStaysBlockedAndPending) {
  EXPECT_EXIT(WriteAndExit([] {
                sigset_t set;
                sigemptyset(&set);
                sigaddset(&set, SIGPIPE);
                pthread_sigmask(SIG_BLOCK, &set, nullptr);
                BreakPipe();
              }),
              testing::ExitedWithCode(3), "");
}

}  // namespace
