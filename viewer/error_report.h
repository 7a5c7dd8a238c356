// SPDX-License-Identifier: MIT
// How the program says that it cannot do what was asked.
#ifndef ALMARA_VIEWER_ERROR_REPORT_H_
#define ALMARA_VIEWER_ERROR_REPORT_H_

#include <stdexcept>
#include <string>

namespace almara::viewer {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

// The command line makes no sense: exit code kExitUsage.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One line "almara-board: <message>" on the standard error.
void ReportError(const std::string& message);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_ERROR_REPORT_H_
