// SPDX-License-Identifier: MIT
#include "screen.h"

#include <ncurses.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "error_report.h"
#include "terminal_check.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kEscapeDelayMs = 25;  // an Escape key is not the beginning of a sequence after this

// The selection is the terminal's own look turned round, which can be read on any ground. So today,
// which is reversed elsewhere, is underlined.
attr_t AttributesOf(const Look& look, bool selected) {
  const attr_t bold = look.bold ? A_BOLD : A_NORMAL;
  if (selected) {
    return bold | A_REVERSE;
  }
  return bold | (look.dim ? A_DIM : A_NORMAL) | (look.reverse ? A_UNDERLINE : A_NORMAL);
}

// The colour pair of a role; pair 0 is the terminal's own look.
short PairOf(Role role) { return static_cast<short>(static_cast<int>(role) + 1); }

// The palette as far as the terminal has it.
Palette DefineColors(Palette wanted) {
  if (wanted == Palette::kNone || !has_colors()) {
    return Palette::kNone;
  }
  start_color();
  use_default_colors();
  constexpr int kMany = 256;
  const Palette palette = COLORS < kMany ? Palette::kBasic : wanted;
  for (int role = 0; role <= static_cast<int>(Role::kHint); ++role) {
    const int color = ColorOf(LookOf(static_cast<Role>(role)), palette);
    init_pair(PairOf(static_cast<Role>(role)), static_cast<short>(color), -1);
  }
  return palette;
}

constexpr const char* kUnsuitable =
    "--tui: this terminal cannot show a full screen (is TERM right?)";

constexpr int kEscape = 27;
constexpr int kDelete = 127;
constexpr int kControlU = 'U' - '@';

struct Translation {
  int code;  // of getch()
  Key key;
};

constexpr Translation kTranslations[] = {
    {KEY_RESIZE, Key::kResize},  {KEY_LEFT, Key::kLeft},
    {KEY_RIGHT, Key::kRight},    {KEY_UP, Key::kUp},
    {KEY_DOWN, Key::kDown},      {KEY_PPAGE, Key::kPageUp},
    {KEY_NPAGE, Key::kPageDown}, {KEY_HOME, Key::kHome},
    {KEY_END, Key::kEnd},        {KEY_ENTER, Key::kEnter},
    {'\n', Key::kEnter},         {'\r', Key::kEnter},
    {kEscape, Key::kEscape},     {KEY_BACKSPACE, Key::kBackspace},
    {'\b', Key::kBackspace},     {kDelete, Key::kBackspace},
    {kControlU, Key::kClear},
};

// Whether the terminal is gone: it hung up, or there is something to read and it is nothing.
bool InputEnded() {
  pollfd input = {STDIN_FILENO, POLLIN, 0};
  if (poll(&input, 1, 0) <= 0) {
    return false;
  }
  int waiting = 0;
  return (input.revents & POLLIN) == 0 || ioctl(STDIN_FILENO, FIONREAD, &waiting) != 0 ||
         waiting == 0;
}

KeyPress ReadMouse() {
  MEVENT event{};
  if (getmouse(&event) != OK) {
    return {};
  }
  if ((event.bstate & BUTTON4_PRESSED) != 0) {
    return {Key::kWheelUp};
  }
  if ((event.bstate & BUTTON5_PRESSED) != 0) {
    return {Key::kWheelDown};
  }
  return {Key::kClick, 0, event.y, event.x};
}

screen* OpenTerminal() {
  if (!CanMoveCursor(STDOUT_FILENO)) {
    throw UsageError(kUnsuitable);
  }
  // The window's size is the terminal's, not that of LINES and COLUMNS.
  unsetenv("LINES");
  unsetenv("COLUMNS");
  return newterm(nullptr, stdout, stdin);
}

}  // namespace

Screen::Screen(Palette palette) : m_screen(OpenTerminal()) {
  if (m_screen == nullptr) {
    throw UsageError(kUnsuitable);
  }
  set_term(m_screen);
  cbreak();
  noecho();
  keypad(stdscr, TRUE);
  set_escdelay(kEscapeDelayMs);
  curs_set(0);
  mousemask(BUTTON1_PRESSED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
  mouseinterval(0);  // a click counts when the button goes down
  m_palette = DefineColors(palette);
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
    const bool colored = m_palette != Palette::kNone && !piece.selected;
    const std::string text = Shorten(piece.text, COLS - column, "");
    // The spaces after a text have a look only where they are part of the selection.
    const std::size_t end = piece.selected ? text.size() : text.find_last_not_of(' ') + 1;
    attr_set(AttributesOf(LookOf(piece.role), piece.selected),
             colored ? PairOf(piece.role) : short{0}, nullptr);
    mvaddnstr(row, column, text.c_str(), static_cast<int>(end));
    column += DisplayWidth(text);
  }
  attr_set(A_NORMAL, 0, nullptr);
}

KeyPress Screen::ReadKey(int milliseconds) {
  timeout(milliseconds);
  const int code = getch();
  if (code == ERR) {
    return {InputEnded() ? Key::kGone : Key::kNone};
  }
  if (code == KEY_MOUSE) {
    return ReadMouse();
  }
  for (const Translation& translation : kTranslations) {
    if (translation.code == code) {
      return {translation.key};
    }
  }
  return code >= ' ' && code < kDelete ? KeyPress{Key::kCharacter, static_cast<char>(code)}
                                       : KeyPress{Key::kNone};
}

}  // namespace almara::viewer
