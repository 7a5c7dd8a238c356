// SPDX-License-Identifier: MIT
// What the terminal can do. Apart from the screen, because the header of the terminal's
// capabilities defines macros of common names.
#ifndef ALMARA_VIEWER_TERMINAL_CHECK_H_
#define ALMARA_VIEWER_TERMINAL_CHECK_H_

namespace almara::viewer {

// Whether TERM names a known terminal that can put the cursor anywhere.
bool CanMoveCursor(int descriptor);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TERMINAL_CHECK_H_
