// SPDX-License-Identifier: MIT
// almara-board: the terminal calendar.
#include <exception>
#include <stdexcept>

#include "command_line.h"
#include "error_report.h"
#include "output.h"
#include "program.h"

namespace almara::viewer {
namespace {

void Run(int argc, char** argv) {
  const LocaleSettings locale = UseLocale();
  Options defaults;
  defaults.board.language = locale.language;
  defaults.board.firstDay = locale.firstDay;
  const Options options = ParseCommandLine(argc, argv, defaults);
  RunProgram(options, locale);
  if (!FinishOutput()) {
    throw std::runtime_error("could not write to the standard output");
  }
}

}  // namespace
}  // namespace almara::viewer

int main(int argc, char** argv) {
  using namespace almara::viewer;
  try {
    Run(argc, argv);
    return 0;
  } catch (const UsageError& error) {
    ReportError(error.what());
    return kExitUsage;
  } catch (const std::exception& error) {
    ReportError(error.what());
    return kExitFailure;
  }
}
