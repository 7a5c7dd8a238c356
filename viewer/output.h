// SPDX-License-Identifier: MIT
// The viewer's way to the standard output.
#ifndef ALMARA_VIEWER_OUTPUT_H_
#define ALMARA_VIEWER_OUTPUT_H_

#include <cstdio>
#include <string>
#include <vector>

#include "looks.h"
#include "styled_text.h"

namespace almara::viewer {

// The engine writes a dump of every board it builds to the standard output. So the viewer takes the
// real standard output for itself and leaves the null device in its place; whatever the engine
// writes, at any time, goes there. With `showDump` the dump passes through.
class Output {
 public:
  explicit Output(bool showDump);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  FILE* File() const { return m_file; }
  bool IsTerminal() const;

  // Columns of the terminal, or 80 where there is none.
  int Columns() const;

  void Write(const std::string& text);
  void Write(const std::vector<Line>& lines, Palette palette);

  // False if something could not be written, for example to a full disk.
  bool Finish();

 private:
  FILE* m_file = nullptr;
};

// The option decides, then NO_COLOR, then whether a terminal that can show colours reads it.
Palette PaletteFor(ColorMode mode, const Output& output);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_OUTPUT_H_
