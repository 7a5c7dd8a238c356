// SPDX-License-Identifier: MIT
#include "screen.h"

#include <ncurses.h>

#include <cstdio>
#include <stdexcept>

#include "text_layout.h"

namespace viewer {
namespace {

constexpr int kEscapeDelayMs = 25;  // an Escape key is not the beginning of a sequence after this

struct Look {
  Role role;
  short color;  // COLOR_..., or -1 for the terminal's own
  attr_t attributes;
};

const Look& lookOf(Role role) {
  static constexpr Look kLooks[] = {
      {Role::Plain, -1, A_NORMAL},
      {Role::Title, -1, A_BOLD},
      {Role::Heading, -1, A_BOLD},
      {Role::BreakHeading, COLOR_RED, A_BOLD},
      {Role::WeekNumber, -1, A_DIM},
      {Role::Day, -1, A_NORMAL},
      {Role::BreakDay, COLOR_RED, A_NORMAL},
      {Role::Today, COLOR_YELLOW, A_BOLD},
      {Role::MonthTitle, COLOR_CYAN, A_NORMAL},
      {Role::Festival, COLOR_MAGENTA, A_NORMAL},
      {Role::SolarTerm, COLOR_GREEN, A_NORMAL},
      {Role::LunarDay, -1, A_DIM},
      {Role::Hint, -1, A_DIM},
  };
  for (const Look& look : kLooks) {
    if (look.role == role) {
      return look;
    }
  }
  return kLooks[0];
}

// Color pair of a color; pair 0 is the terminal's own look.
short pairOf(short color) { return static_cast<short>(color < 0 ? 0 : color + 1); }

void defineColors() {
  start_color();
  use_default_colors();
  for (short color = COLOR_BLACK; color <= COLOR_WHITE; ++color) {
    init_pair(pairOf(color), color, -1);
  }
}

}  // namespace

Screen::Screen(const Output& output, bool color) : screen_(newterm(nullptr, output.file(), stdin)) {
  if (screen_ == nullptr) {
    throw std::runtime_error("this terminal cannot show a full screen (is TERM right?)");
  }
  set_term(screen_);
  cbreak();
  noecho();
  keypad(stdscr, TRUE);
  set_escdelay(kEscapeDelayMs);
  curs_set(0);
  color_ = color && has_colors();
  if (color_) {
    defineColors();
  }
}

Screen::~Screen() {
  endwin();
  delscreen(screen_);
}

int Screen::width() const { return COLS; }

int Screen::height() const { return LINES; }

void Screen::draw(const std::vector<Line>& lines, const Line& status) {
  erase();
  for (int row = 0; row < static_cast<int>(lines.size()) && row < LINES - 1; ++row) {
    drawLine(row, lines[static_cast<std::size_t>(row)]);
  }
  drawLine(LINES - 1, status);
  refresh();
}

void Screen::drawLine(int row, const Line& line) const {
  int column = 0;
  for (const Piece& piece : line) {
    const Look& look = lookOf(piece.role);
    const attr_t selection = piece.selected ? A_REVERSE : A_NORMAL;
    const std::string text = shorten(piece.text, COLS - column, "");
    attr_set(look.attributes | selection, color_ ? pairOf(look.color) : short{0}, nullptr);
    mvaddstr(row, column, text.c_str());
    column += displayWidth(text);
  }
  attr_set(A_NORMAL, 0, nullptr);
}

KeyPress Screen::readKey(int milliseconds) {
  timeout(milliseconds);
  const int code = getch();
  switch (code) {
    case ERR:
      return {Key::None};
    case KEY_RESIZE:
      return {Key::Resize};
    case KEY_LEFT:
      return {Key::Left};
    case KEY_RIGHT:
      return {Key::Right};
    case KEY_UP:
      return {Key::Up};
    case KEY_DOWN:
      return {Key::Down};
    case KEY_PPAGE:
      return {Key::PageUp};
    case KEY_NPAGE:
      return {Key::PageDown};
    case KEY_ENTER:
    case '\n':
    case '\r':
      return {Key::Enter};
    case 27:
      return {Key::Escape};
    case KEY_BACKSPACE:
    case '\b':
    case 127:
      return {Key::Backspace};
    default:
      return code > 0 && code < 127 ? KeyPress{Key::Character, static_cast<char>(code)}
                                    : KeyPress{Key::None};
  }
}

}  // namespace viewer
