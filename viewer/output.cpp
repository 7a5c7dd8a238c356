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

// Select Graphic Rendition codes; empty for text in the terminal's own look.
std::string ColorCodes(const Look& look, Palette palette) {
  std::string codes;
  const auto add = [&codes](const std::string& code) {
    codes += (codes.empty() ? "" : ";") + code;
  };
  const int color = ColorOf(look, palette);
  if (look.bold) {
    add("1");
  }
  if (look.dim) {
    add("2");
  }
  if (look.reverse) {
    add("7");
  }
  if (color != kOwnColor) {
    add((palette == Palette::k256 ? "38;5;" : "3") + std::to_string(color));
  }
  return codes;
}

std::string WithColor(const Piece& piece, Palette palette) {
  const std::string codes = ColorCodes(LookOf(piece.role), palette);
  // The spaces after a text stay outside, so that today's box is as wide as its text.
  const std::size_t end = piece.text.find_last_not_of(' ') + 1;
  if (codes.empty() || end == 0) {
    return piece.text;
  }
  return "\033[" + codes + "m" + piece.text.substr(0, end) + "\033[0m" + piece.text.substr(end);
}

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

Palette PaletteOfTerminal() {
  const bool many =
      Variable("TERM").find("256color") != std::string::npos || !Variable("COLORTERM").empty();
  return many ? Palette::k256 : Palette::kBasic;
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

void Output::Write(const std::vector<Line>& lines, Palette palette) {
  for (const Line& line : lines) {
    std::string text;
    for (const Piece& piece : line) {
      text += palette == Palette::kNone ? piece.text : WithColor(piece, palette);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    Write(text + "\n");
  }
}

bool Output::Finish() { return std::fflush(m_file) == 0 && std::ferror(m_file) == 0; }

Palette PaletteFor(ColorMode mode, const Output& output) {
  const std::string term = Variable("TERM");
  const bool wanted =
      Variable("NO_COLOR").empty() && output.IsTerminal() && !term.empty() && term != "dumb";
  const bool colored = mode == ColorMode::kAuto ? wanted : mode == ColorMode::kAlways;
  return colored ? PaletteOfTerminal() : Palette::kNone;
}

}  // namespace almara::viewer
