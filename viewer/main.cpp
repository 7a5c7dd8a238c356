// SPDX-License-Identifier: MIT
// almara-board: the terminal calendar.
#include <algorithm>
#include <exception>

#include "annotations.h"
#include "board_painter.h"
#include "engine.h"
#include "json_output.h"
#include "listing.h"
#include "locale_settings.h"
#include "options.h"
#include "output.h"
#include "tui.h"

namespace {

using namespace viewer;

constexpr int kWidestOutput = 80;

// Shows what the options ask for.
class Program {
 public:
  Program(const Options& options, bool utf8, Output& output)
      : options_(options),
        utf8_(utf8),
        output_(output),
        texts_(textsFor(options.board.language, utf8)),
        annotator_(options.board.language) {}

  int run() {
    startEngine(options_.board);
    switch (options_.task) {
      case Task::ShowBoard:
        showBoard();
        break;
      case Task::ShowDay:
        showDay();
        break;
      case Task::ListYear:
        listYear();
        break;
      case Task::FullScreen:
        navigate();
        return runTui(options_, utf8_, output_);
    }
    if (!output_.finish()) {
      reportError("could not write to the standard output");
      return kExitFailure;
    }
    return 0;
  }

 private:
  void navigate() const {
    if (options_.date) {
      showDate(options_.board, *options_.date);
    }
    for (const Step& step : options_.steps) {
      takeStep(step);
    }
  }

  void showBoard() {
    navigate();
    const Board board = readBoard();
    if (options_.json) {
      output_.write(boardJson(board, options_.board, annotator_, !utf8_));
      return;
    }
    const PaintedBoard painted = paintBoard(board, paintSettings());
    std::vector<Line> lines = {painted.title, painted.headings};
    for (const auto& row : painted.rows) {
      lines.insert(lines.end(), row.begin(), row.end());
    }
    const std::vector<Line> legend = legendOf(board);
    if (!legend.empty()) {
      lines.emplace_back();
      lines.insert(lines.end(), legend.begin(), legend.end());
    }
    print(lines);
  }

  PaintSettings paintSettings() {
    PaintSettings settings;
    settings.width = width();
    settings.weekNumbers = options_.weekNumbers;
    settings.texts = &texts_;
    settings.glyphs = &glyphsFor(utf8_);
    settings.annotator = options_.annotations ? &annotator_ : nullptr;
    return settings;
  }

  std::vector<Line> legendOf(const Board& board) {
    if (!options_.annotations) {
      return {};
    }
    return legendLines(namedDays(shownDays(board), annotator_), texts_, width());
  }

  void showDay() {
    BoardOptions month = options_.board;
    month.mode = eDispMonthWholeMonth;
    month.hideBreakDays = false;
    applyOptions(month);
    showDate(month, options_.day);
    const Board board = readBoard();
    const tagCalendarCell* cell = findDay(board, options_.day);
    const DayReport report = {options_.day, board.today, cell != nullptr ? cell->weekNumber : -1,
                              annotator_.annotate(options_.day)};
    if (options_.json) {
      output_.write(dayJson(report, options_.board.language, !utf8_));
    } else {
      print(dayLines(report, texts_));
    }
  }

  void listYear() {
    const int year = options_.year.value_or(readToday().year);
    const std::vector<NamedDay> days = namedDaysOfYear(year, annotator_);
    if (options_.json) {
      output_.write(yearJson(year, days, options_.board.language, !utf8_));
    } else {
      print(yearLines(year, days, texts_));
    }
  }

  int width() const { return std::min(output_.columns(), kWidestOutput); }

  void print(const std::vector<Line>& lines) {
    output_.write(lines, useColor(options_.color, output_));
  }

  const Options& options_;
  bool utf8_;
  Output& output_;
  const Texts& texts_;
  Annotator annotator_;
};

int run(int argc, char** argv) {
  const LocaleSettings locale = useLocale();
  Options options;
  options.board.language = locale.language;
  if (const std::optional<int> exitCode = parseOptions(argc, argv, options)) {
    return *exitCode;
  }
  Output output(options.dump);
  return Program(options, locale.utf8, output).run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    reportError(error.what());
    return kExitFailure;
  }
}
