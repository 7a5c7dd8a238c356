// SPDX-License-Identifier: MIT
// The viewer's way to the standard output.
#ifndef ALMARA_VIEWER_OUTPUT_H_
#define ALMARA_VIEWER_OUTPUT_H_

#include <string>
#include <vector>

#include "looks.h"
#include "styled_text.h"

namespace almara::viewer {

bool OutputIsTerminal();

// Columns of the terminal, or 80 where there is none.
int OutputColumns();

void Write(const std::string& text);
void Write(const std::vector<Line>& lines, Palette palette);

// False if something could not be written, for example to a full disk.
bool FinishOutput();

// The option decides, then NO_COLOR, then whether a terminal that can show colours reads it.
Palette PaletteFor(ColorMode mode);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_OUTPUT_H_
