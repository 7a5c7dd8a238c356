// SPDX-License-Identifier: MIT
// Draws a board as lines of text; one-shot output and full screen share it.
#ifndef ALMARA_VIEWER_BOARD_PAINTER_H_
#define ALMARA_VIEWER_BOARD_PAINTER_H_

#include <optional>
#include <vector>

#include "annotations.h"
#include "board_snapshot.h"
#include "glyphs.h"
#include "styled_text.h"
#include "texts.h"

namespace almara::viewer {

struct PaintSettings {
  int width = 80;  // terminal cells that may be used
  WeekNumbers weekNumbers = WeekNumbers::kIfRoom;
  const Texts* texts = nullptr;
  const Glyphs* glyphs = nullptr;
  Annotator* annotator = nullptr;  // null: no line under the days
  std::optional<CivilDate> selected;
};

struct PaintedBoard {
  Line title;
  Line headings;
  std::vector<std::vector<Line>> rows;  // the lines of each visible row, the same number for all
};

// A whole month is drawn without what follows it.
PaintedBoard PaintBoard(const BoardSnapshot& built, const PaintSettings& settings);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_BOARD_PAINTER_H_
