// SPDX-License-Identifier: MIT
// The terminal in full-screen mode.
#ifndef ALMARA_VIEWER_SCREEN_H_
#define ALMARA_VIEWER_SCREEN_H_

#include <string>
#include <vector>

#include "looks.h"
#include "styled_text.h"

// Opaque types of ncurses, whose header defines macros that no other file should see.
struct screen;

namespace almara::viewer {

// What a key press or the mouse means to the calendar.
enum class Key {
  kNone,  // nothing within the time
  kGone,  // the terminal went away, and no key will ever come
  kResize,
  kLeft,
  kRight,
  kUp,
  kDown,
  kPageUp,
  kPageDown,
  kHome,
  kEnd,
  kEnter,
  kEscape,
  kBackspace,
  kClear,
  kCharacter,
  kClick,
  kWheelUp,
  kWheelDown,
};

struct KeyPress {
  Key key = Key::kNone;
  char character = 0;  // for Key::kCharacter
  int row = 0;         // for Key::kClick: the place on the screen, from 0
  int column = 0;
};

// Owns the screen: entered in the constructor, left as it was found in the destructor.
class Screen {
 public:
  explicit Screen(Palette palette);
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  int Width() const;
  int Height() const;

  // Shows the lines from the top and the status in the last line; what is too long is cut.
  void Draw(const std::vector<Line>& lines, const Line& status);

  // Waits for a key for some time. A signal ends the wait.
  KeyPress ReadKey(int milliseconds);

 private:
  void DrawLine(int row, const Line& line) const;

  screen* m_screen = nullptr;
  Palette m_palette = Palette::kNone;
};

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_SCREEN_H_
