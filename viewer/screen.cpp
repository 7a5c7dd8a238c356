// SPDX-License-Identifier: MIT
#include "screen.h"

#include <ncurses.h>

#include <cstdio>
#include <stdexcept>

#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kEscapeDelayMs = 25;  // an Escape key is not the beginning of a sequence after this

struct Look {
  Role role;
  short color;  // COLOR_..., or -1 for the terminal's own
  attr_t attributes;
};

const Look& LookOf(Role role) {
  static constexpr Look kLooks[] = {
      {Role::kPlain, -1, A_NORMAL},
      {Role::kTitle, -1, A_BOLD},
      {Role::kHeading, -1, A_BOLD},
      {Role::kBreakHeading, COLOR_RED, A_BOLD},
      {Role::kWeekNumber, -1, A_DIM},
      {Role::kDay, -1, A_NORMAL},
      {Role::kBreakDay, COLOR_RED, A_NORMAL},
      {Role::kToday, COLOR_YELLOW, A_BOLD},
      {Role::kMonthTitle, COLOR_CYAN, A_NORMAL},
      {Role::kFestival, COLOR_MAGENTA, A_NORMAL},
      {Role::kSolarTerm, COLOR_GREEN, A_NORMAL},
      {Role::kLunarDay, -1, A_DIM},
      {Role::kHint, -1, A_DIM},
  };
  for (const Look& look : kLooks) {
    if (look.role == role) {
      return look;
    }
  }
  return kLooks[0];
}

// Color pair of a color; pair 0 is the terminal's own look.
short PairOf(short color) { return static_cast<short>(color < 0 ? 0 : color + 1); }

void DefineColors() {
  start_color();
  use_default_colors();
  for (short color = COLOR_BLACK; color <= COLOR_WHITE; ++color) {
    init_pair(PairOf(color), color, -1);
  }
}

}  // namespace

Screen::Screen(const Output& output, bool color)
    : m_screen(newterm(nullptr, output.File(), stdin)) {
  if (m_screen == nullptr) {
    throw std::runtime_error("this terminal cannot show a full screen (is TERM right?)");
  }
  set_term(m_screen);
  cbreak();
  noecho();
  keypad(stdscr, TRUE);
  set_escdelay(kEscapeDelayMs);
  curs_set(0);
  m_color = color && has_colors();
  if (m_color) {
    DefineColors();
  }
}

Screen::~Screen() {
  endwin();
  delscreen(m_screen);
}

int Screen::Width() const { return COLS; }

int Screen::Height() const { return LINES; }

void Screen::Draw(const std::vector<Line>& lines, const Line& status) {
  erase();
  for (int row = 0; row < static_cast<int>(lines.size()) && row < LINES - 1; ++row) {
    DrawLine(row, lines[static_cast<std::size_t>(row)]);
  }
  DrawLine(LINES - 1, status);
  refresh();
}

void Screen::DrawLine(int row, const Line& line) const {
  int column = 0;
  for (const Piece& piece : line) {
    const Look& look = LookOf(piece.role);
    const attr_t selection = piece.selected ? A_REVERSE : A_NORMAL;
    const std::string text = Shorten(piece.text, COLS - column, "");
    attr_set(look.attributes | selection, m_color ? PairOf(look.color) : short{0}, nullptr);
    mvaddstr(row, column, text.c_str());
    column += DisplayWidth(text);
  }
  attr_set(A_NORMAL, 0, nullptr);
}

KeyPress Screen::ReadKey(int milliseconds) {
  timeout(milliseconds);
  const int code = getch();
  switch (code) {
    case ERR:
      return {Key::kNone};
    case KEY_RESIZE:
      return {Key::kResize};
    case KEY_LEFT:
      return {Key::kLeft};
    case KEY_RIGHT:
      return {Key::kRight};
    case KEY_UP:
      return {Key::kUp};
    case KEY_DOWN:
      return {Key::kDown};
    case KEY_PPAGE:
      return {Key::kPageUp};
    case KEY_NPAGE:
      return {Key::kPageDown};
    case KEY_ENTER:
    case '\n':
    case '\r':
      return {Key::kEnter};
    case 27:
      return {Key::kEscape};
    case KEY_BACKSPACE:
    case '\b':
    case 127:
      return {Key::kBackspace};
    default:
      return code > 0 && code < 127 ? KeyPress{Key::kCharacter, static_cast<char>(code)}
                                    : KeyPress{Key::kNone};
  }
}

}  // namespace almara::viewer
