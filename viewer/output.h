// SPDX-License-Identifier: MIT
// The viewer's way to the standard output.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "styled_text.h"

namespace viewer {

enum class ColorMode { Auto, Always, Never };

// The engine writes a dump of every board it builds to the standard output. So the viewer takes the
// real standard output for itself and leaves the null device in its place; whatever the engine
// writes, at any time, goes there. With `showDump` the dump passes through.
class Output {
 public:
  explicit Output(bool showDump);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  FILE* file() const { return file_; }
  bool isTerminal() const;

  // Columns of the terminal, or 80 where there is none.
  int columns() const;

  void write(const std::string& text);
  void write(const std::vector<Line>& lines, bool color);

  // False if something could not be written, for example to a full disk.
  bool finish();

 private:
  FILE* file_ = nullptr;
};

// The option decides, then NO_COLOR, then whether a terminal that can show colours reads it.
bool useColor(ColorMode mode, const Output& output);

}  // namespace viewer
