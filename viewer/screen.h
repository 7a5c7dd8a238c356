// SPDX-License-Identifier: MIT
// The terminal in full-screen mode.
#pragma once

#include <string>
#include <vector>

#include "output.h"
#include "styled_text.h"

// Opaque types of ncurses, whose header defines macros that no other file should see.
struct screen;

namespace viewer {

// What a key press means to the calendar.
enum class Key {
  None,  // no key within the time
  Resize,
  Left,
  Right,
  Up,
  Down,
  PageUp,
  PageDown,
  Enter,
  Escape,
  Backspace,
  Character,
};

struct KeyPress {
  Key key = Key::None;
  char character = 0;  // for Key::Character
};

// Owns the screen: entered in the constructor, left as it was found in the destructor.
class Screen {
 public:
  Screen(const Output& output, bool color);
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  int width() const;
  int height() const;

  // Shows the lines from the top and the status in the last line; what is too long is cut.
  void draw(const std::vector<Line>& lines, const Line& status);

  // Waits for a key for some time. A signal ends the wait.
  KeyPress readKey(int milliseconds);

 private:
  void drawLine(int row, const Line& line) const;

  screen* screen_ = nullptr;
  bool color_ = false;
};

}  // namespace viewer
