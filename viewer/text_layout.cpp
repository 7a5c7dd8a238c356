// SPDX-License-Identifier: MIT
#include "text_layout.h"

#include <algorithm>
#include <cwchar>

namespace almara::viewer {
namespace {

struct Character {
  std::size_t bytes = 0;
  int width = 0;
};

// The first character of a text that is not empty. A byte that is no character counts as one cell.
Character FirstCharacter(std::string_view text) {
  wchar_t character = 0;
  std::mbstate_t state{};
  const std::size_t bytes = std::mbrtowc(&character, text.data(), text.size(), &state);
  if (bytes == 0 || bytes > text.size()) {
    return {1, 1};
  }
  return {bytes, std::max(wcwidth(character), 0)};
}

// The longest beginning of the text that takes at most `width` cells.
std::string_view PrefixOfWidth(std::string_view text, int width) {
  std::size_t end = 0;
  int used = 0;
  while (end < text.size()) {
    const Character next = FirstCharacter(text.substr(end));
    if (used + next.width > width) {
      break;
    }
    used += next.width;
    end += next.bytes;
  }
  return text.substr(0, end);
}

}  // namespace

int DisplayWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const Character next = FirstCharacter(text);
    width += next.width;
    text.remove_prefix(next.bytes);
  }
  return width;
}

std::string Shorten(std::string_view text, int width, std::string_view ellipsis) {
  if (DisplayWidth(text) <= width) {
    return std::string(text);
  }
  const int room = width - DisplayWidth(ellipsis);
  if (room < 1) {
    return std::string(PrefixOfWidth(text, width));
  }
  return std::string(PrefixOfWidth(text, room)).append(ellipsis);
}

std::string Fit(std::string_view text, int width, std::string_view ellipsis, Align align) {
  const std::string shortened = Shorten(text, width, ellipsis);
  const int space = std::max(width - DisplayWidth(shortened), 0);
  const int before = align == Align::kLeft ? 0 : align == Align::kRight ? space : space / 2;
  return Repeat(" ", before) + shortened + Repeat(" ", space - before);
}

std::string Repeat(std::string_view text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) {
    result.append(text);
  }
  return result;
}

std::string FillPattern(std::string_view pattern, const PatternValues& values) {
  std::string result;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (pattern[at] != '{') {
      result.push_back(pattern[at]);
      continue;
    }
    for (const auto& [name, value] : values) {
      if (name == pattern[at + 1]) {
        result.append(value);
      }
    }
    at += 2;  // the name and the closing brace
  }
  return result;
}

}  // namespace almara::viewer
