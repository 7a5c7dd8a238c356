// SPDX-License-Identifier: MIT
// Shows what the options ask for.
#ifndef ALMARA_VIEWER_PROGRAM_H_
#define ALMARA_VIEWER_PROGRAM_H_

#include "locale_settings.h"
#include "options.h"

namespace almara::viewer {

// Starts the engine and writes to the standard output, or runs the full screen. Throws UsageError
// if the options lead outside the calendar, and other exceptions if something fails.
void RunProgram(const Options& options, const LocaleSettings& locale);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_PROGRAM_H_
