// SPDX-License-Identifier: MIT
#include "configuration.h"

#include <cstdlib>

namespace almara::viewer {
namespace {

std::string AbsolutePath(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? value : "";
}

}  // namespace

std::string ConfigurationPath() {
  constexpr const char* kFile = "/almara/almara-board.toml";
  const std::string folder = AbsolutePath("XDG_CONFIG_HOME");
  if (!folder.empty()) {
    return folder + kFile;
  }
  const std::string home = AbsolutePath("HOME");
  return home.empty() ? "" : home + "/.config" + kFile;
}

}  // namespace almara::viewer
