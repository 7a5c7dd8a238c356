// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_STANDARD_OUTPUT_H_
#define ALMARA_BOARD_STANDARD_OUTPUT_H_

#include <cstddef>
#include <string_view>

namespace almara {

// Writes a diagnostic text to the standard output, through stdio and so in order with whatever the
// host prints there. Never harms the host: where the output is closed or full the text is lost, and
// a pipe whose reader has gone raises no SIGPIPE. Returns the number of characters taken.
std::size_t WriteToStandardOutput(std::string_view text);

}  // namespace almara

#endif  // ALMARA_BOARD_STANDARD_OUTPUT_H_
