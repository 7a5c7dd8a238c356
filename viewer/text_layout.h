// SPDX-License-Identifier: MIT
// Text in terminal cells: a Chinese character takes two, a combining mark none.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace viewer {

// Cells that the text takes, by the widths of the active locale.
int displayWidth(std::string_view text);

// The text cut to at most `width` cells; what was cut ends in the ellipsis.
std::string shorten(std::string_view text, int width, std::string_view ellipsis);

// The text at exactly `width` cells: shortened, or filled with spaces at one side or both.
enum class Align { Left, Right, Center };
std::string fit(std::string_view text, int width, std::string_view ellipsis,
                Align align = Align::Left);

// `count` copies of a text.
std::string repeat(std::string_view text, int count);

// Replaces each "{x}" of a pattern by the value named x.
using PatternValues = std::vector<std::pair<char, std::string>>;
std::string fillPattern(std::string_view pattern, const PatternValues& values);

}  // namespace viewer
