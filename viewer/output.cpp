// SPDX-License-Identifier: MIT
#include "output.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace viewer {
namespace {

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

void silence(int descriptor) {
  const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (null < 0 || dup2(null, descriptor) < 0) {
    fail("/dev/null");
  }
  close(null);
}

// Select Graphic Rendition codes; empty for text in the terminal's own colours.
const char* colorCodes(Role role) {
  switch (role) {
    case Role::Title:
    case Role::Heading:
      return "1";
    case Role::BreakHeading:
      return "1;31";
    case Role::BreakDay:
      return "31";
    case Role::Today:
      return "1;7";
    case Role::MonthTitle:
      return "36";
    case Role::Festival:
      return "35";
    case Role::SolarTerm:
      return "32";
    case Role::WeekNumber:
    case Role::LunarDay:
    case Role::Hint:
      return "2";
    case Role::Plain:
    case Role::Day:
      break;
  }
  return "";
}

std::string withColor(const Piece& piece) {
  const std::string codes = colorCodes(piece.role);
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
    fail("standard output");
  }
  file_ = fdopen(own, "w");
  if (file_ == nullptr) {
    fail("standard output");
  }
  if (!showDump) {
    silence(STDOUT_FILENO);
  }
}

Output::~Output() { std::fclose(file_); }

bool Output::isTerminal() const { return isatty(fileno(file_)) != 0; }

int Output::columns() const {
  winsize size{};
  if (ioctl(fileno(file_), TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    return size.ws_col;
  }
  return 80;
}

void Output::write(const std::string& text) {
  std::fflush(stdout);  // the dump, where it is shown, stands before what follows from it
  std::fwrite(text.data(), 1, text.size(), file_);
}

void Output::write(const std::vector<Line>& lines, bool color) {
  for (const Line& line : lines) {
    std::string text;
    for (const Piece& piece : line) {
      text += color ? withColor(piece) : piece.text;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    write(text + "\n");
  }
}

bool Output::finish() { return std::fflush(file_) == 0 && std::ferror(file_) == 0; }

bool useColor(ColorMode mode, const Output& output) {
  if (mode != ColorMode::Auto) {
    return mode == ColorMode::Always;
  }
  const char* noColor = std::getenv("NO_COLOR");
  if (noColor != nullptr && *noColor != '\0') {
    return false;
  }
  const char* term = std::getenv("TERM");
  const bool dumb = term == nullptr || std::string(term) == "dumb";
  return output.isTerminal() && !dumb;
}

}  // namespace viewer
