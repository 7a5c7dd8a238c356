// SPDX-License-Identifier: MIT
#include "output.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace almara::viewer {
namespace {

[[noreturn]] void Fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

void Silence(int descriptor) {
  const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (null < 0 || dup2(null, descriptor) < 0) {
    Fail("/dev/null");
  }
  close(null);
}

// Select Graphic Rendition codes; empty for text in the terminal's own colours.
const char* ColorCodes(Role role) {
  switch (role) {
    case Role::kTitle:
    case Role::kHeading:
      return "1";
    case Role::kBreakHeading:
      return "1;31";
    case Role::kBreakDay:
      return "31";
    case Role::kToday:
      return "1;7";
    case Role::kMonthTitle:
      return "36";
    case Role::kFestival:
      return "35";
    case Role::kSolarTerm:
      return "32";
    case Role::kWeekNumber:
    case Role::kLunarDay:
    case Role::kHint:
      return "2";
    case Role::kPlain:
    case Role::kDay:
      break;
  }
  return "";
}

std::string WithColor(const Piece& piece) {
  const std::string codes = ColorCodes(piece.role);
  // The spaces behind a text stay outside, so that today's box is as wide as its text.
  const std::size_t end = piece.text.find_last_not_of(' ') + 1;
  if (codes.empty() || end == 0) {
    return piece.text;
  }
  return "\033[" + codes + "m" + piece.text.substr(0, end) + "\033[0m" + piece.text.substr(end);
}

}  // namespace

Output::Output(bool showDump) {
  std::fflush(stdout);
  const int own = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  if (own < 0) {
    Fail("standard output");
  }
  m_file = fdopen(own, "w");
  if (m_file == nullptr) {
    Fail("standard output");
  }
  if (!showDump) {
    Silence(STDOUT_FILENO);
  }
}

Output::~Output() { std::fclose(m_file); }

bool Output::IsTerminal() const { return isatty(fileno(m_file)) != 0; }

int Output::Columns() const {
  winsize size{};
  if (ioctl(fileno(m_file), TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    return size.ws_col;
  }
  return 80;
}

void Output::Write(const std::string& text) {
  std::fflush(stdout);  // the dump, where it is shown, stands before what follows from it
  std::fwrite(text.data(), 1, text.size(), m_file);
}

void Output::Write(const std::vector<Line>& lines, bool color) {
  for (const Line& line : lines) {
    std::string text;
    for (const Piece& piece : line) {
      text += color ? WithColor(piece) : piece.text;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    Write(text + "\n");
  }
}

bool Output::Finish() { return std::fflush(m_file) == 0 && std::ferror(m_file) == 0; }

bool UseColor(ColorMode mode, const Output& output) {
  if (mode != ColorMode::kAuto) {
    return mode == ColorMode::kAlways;
  }
  const char* noColor = std::getenv("NO_COLOR");
  if (noColor != nullptr && *noColor != '\0') {
    return false;
  }
  const char* term = std::getenv("TERM");
  const bool dumb = term == nullptr || std::string(term) == "dumb";
  return output.IsTerminal() && !dumb;
}

}  // namespace almara::viewer
