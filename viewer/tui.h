// SPDX-License-Identifier: MIT
// The calendar in full screen.
#ifndef ALMARA_VIEWER_TUI_H_
#define ALMARA_VIEWER_TUI_H_

#include "options.h"
#include "output.h"

namespace almara::viewer {

// Runs until the user leaves; returns the program's exit code. The board is built already.
int RunTui(const Options& options, bool utf8, Output& output);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TUI_H_
