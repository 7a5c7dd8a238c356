// SPDX-License-Identifier: MIT
// The command line.
#ifndef ALMARA_VIEWER_COMMAND_LINE_H_
#define ALMARA_VIEWER_COMMAND_LINE_H_

#include "options.h"

namespace almara::viewer {

// The options that the arguments give, on top of the defaults. Help and version come back as a text
// to print. Throws UsageError if the arguments make no sense. Asks nothing of the engine.
Options ParseCommandLine(int argc, const char* const* argv, const Options& defaults);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_COMMAND_LINE_H_
