// SPDX-License-Identifier: MIT
#include "output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace almara::viewer {
namespace {

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

bool OutputIsTerminal() { return isatty(STDOUT_FILENO) != 0; }

int OutputColumns() {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    return size.ws_col;
  }
  return 80;
}

void Write(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void Write(const std::vector<Line>& lines, Palette palette) {
  for (const Line& line : lines) {
    std::string text;
    for (const Piece& piece : line) {
      text += palette == Palette::kNone ? piece.text : WithColor(piece, palette);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    Write(text + "\n");
  }
}

bool FinishOutput() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

Palette PaletteFor(ColorMode mode) {
  const std::string term = Variable("TERM");
  const bool wanted =
      Variable("NO_COLOR").empty() && OutputIsTerminal() && !term.empty() && term != "dumb";
  const bool colored = mode == ColorMode::kAuto ? wanted : mode == ColorMode::kAlways;
  return colored ? PaletteOfTerminal() : Palette::kNone;
}

}  // namespace almara::viewer
