// SPDX-License-Identifier: MIT
#include "error_report.h"

#include <algorithm>
#include <cctype>
#include <iostream>

namespace almara::viewer {

void ReportError(const std::string& message) {
  std::string line = message;
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, '?');
  std::cerr << "almara-board: " << line << '\n';
}

}  // namespace almara::viewer
