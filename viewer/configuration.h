// SPDX-License-Identifier: MIT
// Where the user's own defaults are kept.
#ifndef ALMARA_VIEWER_CONFIGURATION_H_
#define ALMARA_VIEWER_CONFIGURATION_H_

#include <string>

namespace almara::viewer {

// $XDG_CONFIG_HOME/almara/almara-board.toml, ~/.config if the variable is not set or no absolute
// path; empty without a home.
std::string ConfigurationPath();

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_CONFIGURATION_H_
