// SPDX-License-Identifier: MIT
#include "styled_text.h"

#include "text_layout.h"

namespace almara::viewer {
namespace {

// Cuts the first word off the text, or the blanks before it.
std::string TakeWord(std::string& text) {
  const bool blank = text.front() == ' ';
  const std::size_t end = blank ? text.find_first_not_of(' ') : text.find(' ');
  std::string word = text.substr(0, end);
  text.erase(0, word.size());
  return word;
}

// Collects words on lines of a limited width.
class Wrapper {
 public:
  Wrapper(int width, int indent) : m_width(width), m_indent(indent) {}

  void Add(const std::string& word, const Piece& like) {
    const int width = DisplayWidth(word);
    if (m_used + width <= m_width) {
      Put(word, like);
      return;
    }
    if (!m_fresh) {
      Break();
    }
    if (word.front() != ' ') {
      AddInParts(word, like);
    }
  }

  std::vector<Line> Lines() const { return m_lines; }

 private:
  void AddInParts(std::string word, const Piece& like) {
    while (DisplayWidth(word) > m_width - m_used) {
      const std::string part = Shorten(word, m_width - m_used, "");
      if (part.empty()) {
        break;  // not even one character fits
      }
      Put(part, like);
      word.erase(0, part.size());
      Break();
    }
    Put(word, like);
  }

  void Put(const std::string& text, const Piece& like) {
    Piece piece = like;
    piece.text = text;
    m_lines.back().push_back(piece);
    m_used += DisplayWidth(text);
    m_fresh = false;
  }

  void Break() {
    m_lines.push_back({{Repeat(" ", m_indent)}});
    m_used = m_indent;
    m_fresh = true;
  }

  std::vector<Line> m_lines = {{}};
  int m_width;
  int m_indent;
  int m_used = 0;
  bool m_fresh = true;  // nothing but the indent is on the last line
};

}  // namespace

int WidthOf(const Line& line) {
  int width = 0;
  for (const Piece& piece : line) {
    width += DisplayWidth(piece.text);
  }
  return width;
}

void Append(Line& line, const Line& more) { line.insert(line.end(), more.begin(), more.end()); }

void Append(std::vector<Line>& lines, const std::vector<Line>& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

std::vector<Line> Wrapped(const Line& line, int width, int indent) {
  if (WidthOf(line) <= width) {
    return {line};
  }
  Wrapper wrapper(width, indent);
  for (const Piece& piece : line) {
    for (std::string rest = piece.text; !rest.empty();) {
      wrapper.Add(TakeWord(rest), piece);
    }
  }
  return wrapper.Lines();
}

}  // namespace almara::viewer
