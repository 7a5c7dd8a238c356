// SPDX-License-Identifier: MIT
// The signs that a board is drawn with; each takes one terminal cell.
#ifndef ALMARA_VIEWER_GLYPHS_H_
#define ALMARA_VIEWER_GLYPHS_H_

namespace almara::viewer {

struct Glyphs {
  const char* rule;     // month intervals
  const char* spanTop;  // week-number spans
  const char* spanMiddle;
  const char* spanBottom;
  const char* spanSingle;  // a span of one line
  const char* breakDay;    // after a break day
  const char* ellipsis;    // where a text was cut
};

constexpr Glyphs kUnicodeGlyphs = {"─", "╭", "│", "╰", "╶", "·", "…"};
constexpr Glyphs kAsciiGlyphs = {"-", "/", "|", "\\", "-", ".", "~"};

constexpr const Glyphs& GlyphsFor(bool utf8) { return utf8 ? kUnicodeGlyphs : kAsciiGlyphs; }

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_GLYPHS_H_
