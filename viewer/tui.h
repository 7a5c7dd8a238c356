// SPDX-License-Identifier: MIT
// The calendar in full screen.
#ifndef ALMARA_VIEWER_TUI_H_
#define ALMARA_VIEWER_TUI_H_

#include "board_painter.h"
#include "options.h"

namespace almara::viewer {

// Runs until the user leaves. The board is built already; the settings say how to draw it.
void RunTui(const Options& options, const PaintSettings& settings);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TUI_H_
