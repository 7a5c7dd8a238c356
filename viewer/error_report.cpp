// SPDX-License-Identifier: MIT
#include "error_report.h"

#include <cctype>
#include <cstddef>
#include <iostream>

namespace almara::viewer {

namespace {

// Whether a control character begins here: one byte, or the two of U+0080 to U+009F in UTF-8.
bool IsControl(const std::string& text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  const auto next = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0U;
  return std::iscntrl(byte) != 0 || (byte == 0xC2 && next >= 0x80 && next <= 0x9F);
}

}  // namespace

void ReportError(const std::string& message) {
  std::string line = message;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (IsControl(line, at)) {
      const bool oneByte = static_cast<unsigned char>(line[at]) != 0xC2;
      line.replace(at, oneByte ? 1 : 2, "?");
    }
  }
  std::cerr << "almara-board: " << line << '\n';
}

}  // namespace almara::viewer
