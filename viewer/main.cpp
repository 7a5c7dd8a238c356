// SPDX-License-Identifier: MIT
// almara-board: the terminal calendar.
#include <algorithm>
#include <exception>
#include <stdexcept>

#include "annotations.h"
#include "board_host.h"
#include "board_painter.h"
#include "command_line.h"
#include "error_report.h"
#include "json_output.h"
#include "listing.h"
#include "locale_settings.h"
#include "output.h"
#include "tui.h"

namespace almara::viewer {
namespace {

constexpr int kWidestOutput = 80;

// Shows what the options ask for.
class Program {
 public:
  Program(const Options& options, bool utf8, Output& output)
      : m_options(options),
        m_utf8(utf8),
        m_output(output),
        m_texts(TextsFor(options.board.language, utf8)),
        m_annotator(options.board.language) {}

  int Run() {
    if (m_options.task == Task::kPrintText) {
      m_output.Write(m_options.text);
      return 0;
    }
    StartEngine(m_options.board);
    CheckClock();
    CheckOffsets();
    switch (m_options.task) {
      case Task::kShowBoard:
        ShowBoard();
        break;
      case Task::kShowDay:
        ShowDay();
        break;
      case Task::kListYear:
        ListYear();
        break;
      case Task::kFullScreen:
        Navigate();
        return RunTui(m_options, m_utf8, m_output);
      case Task::kPrintText:
        break;
    }
    return 0;
  }

 private:
  // What is asked for without a date is about today.
  void CheckClock() const {
    const CivilDate today = ReadToday();
    const bool dated = m_options.task == Task::kShowDay || m_options.date || m_options.year;
    if (!dated && !IsInCalendar(today)) {
      throw std::runtime_error("the clock says " + IsoText(today) +
                               ", outside the years 1900 to 2099; give a date or a year");
    }
  }

  void CheckOffsets() const {
    for (const Step& step : m_options.steps) {
      if (step.kind == Step::Kind::kOffset &&
          !OffsetStaysInRange(m_options.board, ReadToday(), step.offset)) {
        throw UsageError("--offset: " + std::to_string(step.offset) +
                         " leads outside the years 1900 to 2099");
      }
    }
  }

  void Navigate() const {
    if (m_options.date) {
      ShowDate(m_options.board, *m_options.date);
    }
    for (const Step& step : m_options.steps) {
      TakeStep(step);
    }
  }

  void ShowBoard() {
    Navigate();
    const BoardSnapshot board = ReadBoard(m_options.board);
    if (m_options.json) {
      m_output.Write(BoardJson(board, m_annotator, !m_utf8));
      return;
    }
    const PaintedBoard painted = PaintBoard(board, SettingsToPaint());
    std::vector<Line> lines = {painted.title, painted.headings};
    for (const auto& row : painted.rows) {
      lines.insert(lines.end(), row.begin(), row.end());
    }
    const std::vector<Line> legend = LegendOf(board);
    if (!legend.empty()) {
      lines.emplace_back();
      lines.insert(lines.end(), legend.begin(), legend.end());
    }
    Print(lines);
  }

  PaintSettings SettingsToPaint() {
    PaintSettings settings;
    settings.width = Width();
    settings.weekNumbers = m_options.weekNumbers;
    settings.texts = &m_texts;
    settings.glyphs = &GlyphsFor(m_utf8);
    settings.annotator = m_options.annotations ? &m_annotator : nullptr;
    return settings;
  }

  std::vector<Line> LegendOf(const BoardSnapshot& board) {
    if (!m_options.annotations) {
      return {};
    }
    return LegendLines(NamedDays(ShownDays(board), m_annotator), m_texts, Width());
  }

  void ShowDay() {
    BoardOptions month = m_options.board;
    month.mode = eDispMonthWholeMonth;
    month.hideBreakDays = false;
    ApplyOptions(month);
    ShowDate(month, m_options.day);
    const BoardSnapshot board = ReadBoard(month);
    const tagCalendarCell* cell = FindDay(board, m_options.day);
    const DayReport report = {m_options.day, board.today, cell != nullptr ? cell->weekNumber : -1,
                              m_annotator.Annotate(m_options.day)};
    if (m_options.json) {
      m_output.Write(DayJson(report, m_options.board.language, !m_utf8));
    } else {
      Print(DayLines(report, m_texts));
    }
  }

  void ListYear() {
    const int year = m_options.year.value_or(ReadToday().year);
    const std::vector<NamedDay> days = NamedDaysOfYear(year, m_annotator);
    if (m_options.json) {
      m_output.Write(YearJson(year, days, m_options.board.language, !m_utf8));
    } else {
      Print(YearLines(year, days, m_texts));
    }
  }

  int Width() const { return std::min(m_output.Columns(), kWidestOutput); }

  void Print(const std::vector<Line>& lines) {
    m_output.Write(lines, UseColor(m_options.color, m_output));
  }

  const Options& m_options;
  bool m_utf8;
  Output& m_output;
  const Texts m_texts;
  Annotator m_annotator;
};

int Run(int argc, char** argv) {
  const LocaleSettings locale = UseLocale();
  Options defaults;
  defaults.board.language = locale.language;
  const Options options = ParseCommandLine(argc, argv, defaults);
  Output output(options.dump);
  const int exitCode = Program(options, locale.utf8, output).Run();
  if (!output.Finish()) {
    throw std::runtime_error("could not write to the standard output");
  }
  return exitCode;
}

}  // namespace
}  // namespace almara::viewer

int main(int argc, char** argv) {
  using namespace almara::viewer;
  try {
    return Run(argc, argv);
  } catch (const UsageError& error) {
    ReportError(error.what());
    return kExitUsage;
  } catch (const std::exception& error) {
    ReportError(error.what());
    return kExitFailure;
  }
}
