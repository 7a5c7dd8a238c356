// SPDX-License-Identifier: MIT
#include "board/standard_output.h"

#include <poll.h>
#include <stdio_ext.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>

namespace almara {

namespace {

// Longer than a reader on a busy machine pauses, who is to get everything.
constexpr std::chrono::milliseconds kPatience{2000};

// Whether the last text waited for its reader in vain.
std::atomic<bool> g_readerIsLate{false};

// Keeps SIGPIPE from this thread for the life of the object.
class BrokenPipeGuard {
 public:
  BrokenPipeGuard() {
    sigemptyset(&m_brokenPipe);
    sigaddset(&m_brokenPipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &m_brokenPipe, &m_savedMask);
  }

  ~BrokenPipeGuard() {
    if (sigismember(&m_savedMask, SIGPIPE) == 1) {
      return;  // the host blocks the signal itself and sees to it
    }
    constexpr std::timespec kNoWait{};
    sigtimedwait(&m_brokenPipe, nullptr, &kNoWait);
    pthread_sigmask(SIG_SETMASK, &m_savedMask, nullptr);
  }

  BrokenPipeGuard(const BrokenPipeGuard&) = delete;
  BrokenPipeGuard& operator=(const BrokenPipeGuard&) = delete;

 private:
  sigset_t m_brokenPipe{};
  sigset_t m_savedMask{};
};

// Whether a text is handed to a reader, which may be gone or slow.
bool HasReader(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

// Waits until the reader has made room for PIPE_BUF characters; false if it has gone or is late.
bool WaitForRoom(int descriptor) {
  using Clock = std::chrono::steady_clock;
  using std::chrono::milliseconds;
  const Clock::time_point deadline = Clock::now() + (g_readerIsLate ? milliseconds{0} : kPatience);
  pollfd end{descriptor, POLLOUT, 0};
  milliseconds left{0};
  int count = 0;
  do {
    left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now());
    count = poll(&end, 1, std::max(0, static_cast<int>(left.count())));
    // poll() fails otherwise only for want of memory.
  } while (count < 0 && errno == EINTR && left > milliseconds{0});  // GCOVR_EXCL_BR_LINE
  g_readerIsLate = count <= 0;
  return end.revents == POLLOUT;
}

// Writes what there is room for, at most PIPE_BUF characters, after WaitForRoom(): a pipe takes as
// many without waiting, and a socket can be told not to wait.
ssize_t WriteNow(int descriptor, std::string_view text) {
  const std::string_view piece = text.substr(0, PIPE_BUF);
  const ssize_t sent = send(descriptor, piece.data(), piece.size(), MSG_DONTWAIT);
  // MUTATE_EXCL: a piece is never empty, so send() gives no 0.
  return sent < 0 && errno == ENOTSOCK ? write(descriptor, piece.data(), piece.size()) : sent;
}

void WriteToReader(int descriptor, std::string_view text) {
  const BrokenPipeGuard guard;
  // MUTATE_EXCL: with nothing pending the wait is the one below.
  if (__fpending(stdout) != 0) {
    if (!WaitForRoom(descriptor)) {
      return;  // the host's text is still to come, and comes first
    }
    std::fflush(stdout);
  }
  while (!text.empty() && WaitForRoom(descriptor)) {
    const ssize_t written = WriteNow(descriptor, text);
    // MUTATE_EXCL: write() gives 0 for an empty text alone.
    if (written < 0) {
      return;
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

void WriteToStandardOutput(std::string_view text) {
  const int descriptor = fileno(stdout);
  if (HasReader(descriptor)) {
    WriteToReader(descriptor, text);
  } else {
    std::fwrite(text.data(), 1, text.size(), stdout);
  }
}

}  // namespace almara
