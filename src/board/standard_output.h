// SPDX-License-Identifier: MIT
#ifndef ALMARA_BOARD_STANDARD_OUTPUT_H_
#define ALMARA_BOARD_STANDARD_OUTPUT_H_

#include <string_view>

namespace almara {

// Writes a diagnostic text to the standard output, after whatever the host has printed there, and
// never harms the host. What cannot be written is lost.
//
// A file or a terminal gets the text through stdio, with the host's own. A pipe or a socket gets it
// at once, so that nothing of it is left for the host to write when it prints or exits: a reader
// that has gone would then end the host by SIGPIPE. A reader that does not read holds up one text
// for two seconds, and those after it not at all until it reads again. Text of the host
// that is still in stdio's buffer goes first where there is a reader, and stays where it is
// otherwise; only more than PIPE_BUF of it may wait for the reader without a limit.
void WriteToStandardOutput(std::string_view text);

}  // namespace almara

#endif  // ALMARA_BOARD_STANDARD_OUTPUT_H_
