// SPDX-License-Identifier: MIT
// Text in terminal cells: a Chinese character takes two, a combining mark none.
#ifndef ALMARA_VIEWER_TEXT_LAYOUT_H_
#define ALMARA_VIEWER_TEXT_LAYOUT_H_

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace almara::viewer {

// Cells that the text takes, by the widths of the active locale.
int DisplayWidth(std::string_view text);

// The text cut to at most `width` cells; what was cut ends in the ellipsis.
std::string Shorten(std::string_view text, int width, std::string_view ellipsis);

// The text at exactly `width` cells: shortened, or filled with spaces at one side or both.
enum class Align { kLeft, kRight, kCenter };
std::string Fit(std::string_view text, int width, std::string_view ellipsis,
                Align align = Align::kLeft);

// `count` copies of a text.
std::string Repeat(std::string_view text, int count);

// Replaces each "{x}" of a pattern by the value named x.
using PatternValues = std::vector<std::pair<char, std::string>>;
std::string FillPattern(std::string_view pattern, const PatternValues& values);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TEXT_LAYOUT_H_
