// SPDX-License-Identifier: MIT
// The command line and the configuration file, which holds the same options.
#ifndef ALMARA_VIEWER_COMMAND_LINE_H_
#define ALMARA_VIEWER_COMMAND_LINE_H_

#include "options.h"

namespace almara::viewer {

// The options that the configuration file gives on top of the defaults, and the arguments on top of
// both. Help, version and completion come back as a text to print. Throws UsageError if something
// makes no sense. Asks nothing of the engine.
Options ParseCommandLine(int argc, const char* const* argv, const Options& defaults);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_COMMAND_LINE_H_
