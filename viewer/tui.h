// SPDX-License-Identifier: MIT
// The calendar in full screen.
#pragma once

#include "options.h"
#include "output.h"

namespace viewer {

// Runs until the user leaves; returns the program's exit code. The board is built already.
int runTui(const Options& options, bool utf8, Output& output);

}  // namespace viewer
