// SPDX-License-Identifier: MIT
#include "tui.h"

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

#include "annotations.h"
#include "board_painter.h"
#include "error_report.h"
#include "listing.h"
#include "navigator.h"
#include "output.h"
#include "screen.h"
#include "stop_signals.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kWaitMs = 1000;  // how long a new day or a signal may go unnoticed

// The keys in the order in which Texts::help tells what they do; {a} is the language's word for the
// arrow keys, {m} for the mouse.
constexpr const char* kHelpKeys[kHelpLines] = {"{a}, h j k l",
                                               "PageUp p, PageDown n",
                                               "Home, End",
                                               "<  >",
                                               "t",
                                               "g",
                                               "m",
                                               "+  -",
                                               "f",
                                               "w",
                                               "b",
                                               "i",
                                               "{m}",
                                               "?",
                                               "q"};

class Tui {
 public:
  Tui(const Options& options, const PaintSettings& settings, Screen& screen)
      : m_navigator(options.board),
        m_screen(screen),
        m_texts(*settings.texts),
        m_settings(settings),
        m_annotator(options.board.language, options.lunar),
        m_annotations(options.annotations) {}

  // Until the user leaves or a signal asks to stop. Throws if the terminal went away.
  void Run() {
    while (!m_quit && !StopSignals::Arrived()) {
      Draw();
      const KeyPress press = m_screen.ReadKey(kWaitMs);
      if (press.key == Key::kGone && !StopSignals::Arrived()) {
        throw std::runtime_error("the terminal went away");
      }
      Handle(press);
    }
  }

 private:
  void Draw() {
    m_settings.width = m_screen.Width();
    m_settings.selected = m_navigator.Selected();
    m_drawn = m_help ? HelpLines() : ScreenLines();
    m_screen.Draw(m_drawn, StatusLine());
  }

  Line StatusLine() const {
    if (m_prompt) {
      return {{m_texts.goTo + *m_prompt + "_  "}, {m_message}};
    }
    if (!m_message.empty()) {
      return {{m_message}};
    }
    return {{m_texts.hint, Role::kHint}};
  }

  std::vector<Line> HelpLines() const {
    std::vector<std::string> keys;
    int width = 0;
    for (const char* pattern : kHelpKeys) {
      keys.push_back(FillPattern(pattern, {{'a', m_texts.arrowKeys}, {'m', m_texts.mouse}}));
      width = std::max(width, DisplayWidth(keys.back()));
    }
    std::vector<Line> lines;
    for (std::size_t index = 0; index < kHelpLines; ++index) {
      const Line line = {{Fit(keys[index], width, "") + "  "}, {m_texts.help[index]}};
      Append(lines, Wrapped(line, m_screen.Width(), kIndent));
    }
    return lines;
  }

  // Title, headings, the board, the selected day, and the legend where there is room for it.
  std::vector<Line> ScreenLines() {
    const std::vector<Line> details = DetailLines();
    const int room = m_screen.Height() - kStatusLines;
    PaintedBoard painted = Paint(m_annotations);
    if (m_annotations && HeightOf(painted) + static_cast<int>(details.size()) > room) {
      painted = Paint(false);
    }
    std::vector<Line> lines = {painted.title, painted.headings};
    Append(lines, RowsAroundSelection(painted, room - 2 - static_cast<int>(details.size())));
    Append(lines, details);
    if (m_annotations) {
      Append(lines, LegendIfFitting(room - static_cast<int>(lines.size())));
    }
    return lines;
  }

  PaintedBoard Paint(bool annotated) {
    m_settings.annotator = annotated ? &m_annotator : nullptr;
    return PaintBoard(m_navigator.Board(), m_settings);
  }

  static int HeightOf(const PaintedBoard& painted) {
    int height = 2;
    for (const auto& row : painted.rows) {
      height += static_cast<int>(row.size());
    }
    return height;
  }

  // All rows, or as many as fit with the selected one among them.
  std::vector<Line> RowsAroundSelection(const PaintedBoard& painted, int room) const {
    if (painted.rows.empty()) {
      return {};
    }
    const std::size_t linesPerRow = painted.rows.front().size();
    const std::size_t fitting =
        std::max(static_cast<std::size_t>(std::max(room, 0)) / linesPerRow, std::size_t{1});
    const std::size_t selected = SelectedRow();
    const std::size_t first = selected < fitting ? 0 : selected - fitting + 1;
    const std::size_t end = std::min(first + fitting, painted.rows.size());
    std::vector<Line> lines;
    for (std::size_t row = first; row < end; ++row) {
      Append(lines, painted.rows[row]);
    }
    return lines;
  }

  std::vector<Line> DetailLines() {
    const Annotation annotation = m_annotator.Annotate(m_navigator.Selected());
    const Line lunar = {{std::string(m_texts.lunarDateLabel) + "  ", Role::kHint},
                        {LunarDateText(m_texts, annotation.lunar)}};
    std::vector<Line> lines = {{}};
    for (const Line& line : {Line{{FullDateText(m_texts, m_navigator.Selected()), Role::kTitle}},
                             lunar, NamesLine(annotation, m_texts.language)}) {
      Append(lines, Wrapped(line, m_screen.Width(), kIndent));
    }
    return lines;
  }

  std::vector<Line> LegendIfFitting(int room) {
    std::vector<Line> legend = {{}};
    for (const Line& line : LegendLines(NamedDays(ShownDays(m_navigator.Board()), m_annotator),
                                        m_texts, m_screen.Width())) {
      Append(legend, Wrapped(line, m_screen.Width(), kIndent));
    }
    return static_cast<int>(legend.size()) <= room ? legend : std::vector<Line>{};
  }

  std::size_t SelectedRow() const {
    const auto& rows = m_navigator.Board().rows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      for (const tagCalendarCell& cell : rows[row]) {
        if (ShowsDay(cell) && DateOf(cell) == m_navigator.Selected()) {
          return row;
        }
      }
    }
    return 0;
  }

  void Handle(const KeyPress& press) {
    if (press.key == Key::kNone) {
      m_navigator.RefreshToday();
      return;
    }
    if (press.key == Key::kResize || press.key == Key::kGone) {
      return;
    }
    m_message.clear();
    if (m_prompt) {
      HandlePrompt(press);
    } else if (m_help) {
      m_help = false;
    } else {
      HandleKey(press);
    }
  }

  void HandleKey(const KeyPress& press) {
    if (press.key == Key::kClick) {
      Click(press);
      return;
    }
    for (const Command& command : kCommands) {
      const bool meant = command.key == Key::kCharacter ? command.character == press.character
                                                        : command.key == press.key;
      if (meant) {
        (this->*command.action)();
        return;
      }
    }
  }

  // Selects the day in that place of what was drawn last.
  void Click(const KeyPress& press) {
    if (press.row >= static_cast<int>(m_drawn.size())) {
      return;
    }
    int column = 0;
    for (const Piece& piece : m_drawn[static_cast<std::size_t>(press.row)]) {
      column += DisplayWidth(piece.text);
      if (press.column < column) {
        if (piece.day) {
          m_navigator.Select(*piece.day);
        }
        return;
      }
    }
  }

  void PreviousDay() { m_navigator.MoveDays(-1); }
  void NextDay() { m_navigator.MoveDays(1); }
  void PreviousWeek() { m_navigator.MoveWeeks(-1); }
  void NextWeek() { m_navigator.MoveWeeks(1); }
  void PreviousPage() { Page(-1); }
  void NextPage() { Page(1); }
  void FirstOfMonth() { m_navigator.GoToFirstOfMonth(); }
  void LastOfMonth() { m_navigator.GoToLastOfMonth(); }
  void PreviousYear() { m_navigator.MoveYears(-1); }
  void NextYear() { m_navigator.MoveYears(1); }
  void MoreRows() { ChangeRows(1); }
  void FewerRows() { ChangeRows(-1); }
  void AskForDate() { m_prompt = ""; }
  void ShowHelp() { m_help = true; }
  void Quit() { m_quit = true; }
  void ToggleWeekNumbers() {
    const bool shown = m_settings.weekNumbers != WeekNumbers::kNever;
    m_settings.weekNumbers = shown ? WeekNumbers::kNever : WeekNumbers::kAlways;
  }

  void ToggleBreakDays() { m_navigator.ToggleBreakDays(); }
  void ToggleIntervals() { m_navigator.ToggleIntervals(); }

  void Today() {
    if (!m_navigator.GoToToday()) {
      m_message = m_texts.clockOutside;
    }
  }

  void NextMode() {
    m_navigator.NextMode();
    const char* mode = WordFor(kModeWords, m_navigator.Options().mode);
    m_message = FillPattern(m_texts.arrangement, {{'a', mode}});
  }

  void NextFirstDay() {
    m_navigator.NextFirstDay();
    const char* day = Weekday(m_texts, m_navigator.Options().firstDay);
    m_message = FillPattern(m_texts.firstDay, {{'w', day}});
  }

  void ChangeRows(int difference) {
    if (m_navigator.ChangeRows(difference)) {
      const std::string rows = std::to_string(m_navigator.Options().rows);
      m_message = FillPattern(m_texts.rows, {{'c', rows}});
    } else if (!HasRows(m_navigator.Options().mode)) {
      m_message = m_texts.rowsNotHere;
    }
  }

  void Page(int direction) {
    if (!m_navigator.Page(direction)) {
      m_message = direction > 0 ? m_texts.calendarEnds : m_texts.calendarBegins;
    }
  }

  void HandlePrompt(const KeyPress& press) {
    switch (press.key) {
      case Key::kEnter:
        LeavePrompt();
        break;
      case Key::kEscape:
        m_prompt.reset();
        break;
      case Key::kClear:
        m_prompt = "";
        break;
      case Key::kBackspace:
        if (!m_prompt->empty()) {
          m_prompt->pop_back();
        }
        break;
      case Key::kCharacter:
        if (m_prompt->size() < kLongestDate) {
          m_prompt->push_back(press.character);
        }
        break;
      default:
        break;
    }
  }

  // A text that is no date stays, to be corrected; none at all leaves the prompt.
  void LeavePrompt() {
    const ParsedDate parsed = ParseDate(*m_prompt);
    if (parsed.date) {
      m_navigator.GoTo(*parsed.date);
    }
    if (parsed.date || m_prompt->empty()) {
      m_prompt.reset();
    } else {
      m_message = m_texts.notADate;
    }
  }

  struct Command {
    Key key;
    char character;  // for Key::kCharacter
    void (Tui::*action)();
  };
  static constexpr Command kCommands[] = {
      {Key::kLeft, 0, &Tui::PreviousDay},
      {Key::kRight, 0, &Tui::NextDay},
      {Key::kUp, 0, &Tui::PreviousWeek},
      {Key::kDown, 0, &Tui::NextWeek},
      {Key::kPageUp, 0, &Tui::PreviousPage},
      {Key::kPageDown, 0, &Tui::NextPage},
      {Key::kWheelUp, 0, &Tui::PreviousPage},
      {Key::kWheelDown, 0, &Tui::NextPage},
      {Key::kHome, 0, &Tui::FirstOfMonth},
      {Key::kEnd, 0, &Tui::LastOfMonth},
      {Key::kCharacter, 'h', &Tui::PreviousDay},
      {Key::kCharacter, 'l', &Tui::NextDay},
      {Key::kCharacter, 'k', &Tui::PreviousWeek},
      {Key::kCharacter, 'j', &Tui::NextWeek},
      {Key::kCharacter, 'p', &Tui::PreviousPage},
      {Key::kCharacter, 'n', &Tui::NextPage},
      {Key::kCharacter, ' ', &Tui::NextPage},
      {Key::kCharacter, '<', &Tui::PreviousYear},
      {Key::kCharacter, '>', &Tui::NextYear},
      {Key::kCharacter, 't', &Tui::Today},
      {Key::kCharacter, 'g', &Tui::AskForDate},
      {Key::kCharacter, 'm', &Tui::NextMode},
      {Key::kCharacter, '+', &Tui::MoreRows},
      {Key::kCharacter, '-', &Tui::FewerRows},
      {Key::kCharacter, 'f', &Tui::NextFirstDay},
      {Key::kCharacter, 'w', &Tui::ToggleWeekNumbers},
      {Key::kCharacter, 'b', &Tui::ToggleBreakDays},
      {Key::kCharacter, 'i', &Tui::ToggleIntervals},
      {Key::kCharacter, '?', &Tui::ShowHelp},
      {Key::kCharacter, 'q', &Tui::Quit},
  };

  static constexpr int kStatusLines = 1;
  static constexpr int kIndent = 4;  // of the second line of a text
  static constexpr std::size_t kLongestDate = 10;

  Navigator m_navigator;
  Screen& m_screen;
  const Texts& m_texts;
  PaintSettings m_settings;
  std::vector<Line> m_drawn;
  Annotator m_annotator;
  bool m_annotations;
  bool m_help = false;
  bool m_quit = false;
  std::optional<std::string> m_prompt;  // what was typed so far
  std::string m_message;
};

}  // namespace

void RunTui(const Options& options, const PaintSettings& settings) {
  if (!OutputIsTerminal() || isatty(STDIN_FILENO) == 0) {
    throw UsageError("--tui needs a terminal");
  }
  {
    const StopSignals stopSignals;
    Screen screen(PaletteFor(options.color));
    Tui(options, settings, screen).Run();
  }
  StopSignals::Deliver();
}

}  // namespace almara::viewer
