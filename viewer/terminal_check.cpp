// SPDX-License-Identifier: MIT
#include "terminal_check.h"

#include <curses.h>
// After curses.h, whose types it needs.
#include <term.h>

namespace almara::viewer {

bool CanMoveCursor(int descriptor) {
  int status = 0;
  if (setupterm(nullptr, descriptor, &status) != OK) {
    return false;
  }
  const bool capable = cursor_address != nullptr;
  del_curterm(cur_term);
  return capable;
}

}  // namespace almara::viewer
