// SPDX-License-Identifier: MIT
#include "tui.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <optional>
#include <string>

#include "annotations.h"
#include "board_painter.h"
#include "error_report.h"
#include "listing.h"
#include "navigator.h"
#include "screen.h"
#include "text_layout.h"

namespace almara::viewer {
namespace {

constexpr int kWaitMs = 1000;  // how long a new day or a signal may go unnoticed

volatile std::sig_atomic_t g_signal = 0;

extern "C" void RememberSignal(int signal) { g_signal = signal; }

// Ends the wait for a key on a signal that asks the program to stop, so that the screen is left in
// order; the signal then does its usual work.
class StopSignals {
 public:
  StopSignals() {
    for (int signal : kSignals) {
      struct sigaction action {};
      action.sa_handler = RememberSignal;
      sigaction(signal, &action, nullptr);
    }
  }

  static bool Arrived() { return g_signal != 0; }

  static void Deliver() {
    if (Arrived()) {
      std::signal(g_signal, SIG_DFL);
      std::raise(g_signal);
    }
  }

 private:
  static constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
};

constexpr const char* kHelp[] = {
    "arrows, h j k l   move over the days",
    "PageUp, PageDown  page backward, forward",
    "t                 today",
    "g                 go to a date",
    "m                 next arrangement: rolling, tail, month, strip",
    "w                 week numbers on, off",
    "b                 break days on, off",
    "i                 month intervals on, off",
    "?                 this help",
    "q                 quit",
};

class Tui {
 public:
  Tui(const Options& options, bool utf8, Screen& screen)
      : m_navigator(options.board),
        m_screen(screen),
        m_texts(TextsFor(options.board.language, utf8)),
        m_annotator(options.board.language),
        m_annotations(options.annotations) {
    m_settings.weekNumbers = options.weekNumbers;
    m_settings.texts = &m_texts;
    m_settings.glyphs = &GlyphsFor(utf8);
  }

  void Run() {
    while (!m_quit && !StopSignals::Arrived()) {
      Draw();
      Handle(m_screen.ReadKey(kWaitMs));
    }
  }

 private:
  void Draw() {
    m_settings.width = m_screen.Width();
    m_settings.selected = m_navigator.Selected();
    m_screen.Draw(m_help ? HelpLines() : ScreenLines(), StatusLine());
  }

  Line StatusLine() const {
    if (m_prompt) {
      return {{"Go to (YYYY-MM-DD): " + *m_prompt + "_"}};
    }
    if (!m_message.empty()) {
      return {{m_message}};
    }
    return {{"? help  q quit", Role::kHint}};
  }

  static std::vector<Line> HelpLines() {
    std::vector<Line> lines;
    for (const char* text : kHelp) {
      lines.push_back({{text}});
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

  static void Append(std::vector<Line>& lines, const std::vector<Line>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
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
    Line lunar = {{std::string(m_texts.lunarDateLabel) + "  ", Role::kHint},
                  {LunarDateText(m_texts, annotation.lunar)}};
    return {{},
            {{FullDateText(m_texts, m_navigator.Selected()), Role::kTitle}},
            lunar,
            NamesLine(annotation, m_texts.language)};
  }

  std::vector<Line> LegendIfFitting(int room) {
    std::vector<Line> legend = {{}};
    Append(legend, LegendLines(NamedDays(ShownDays(m_navigator.Board()), m_annotator), m_texts,
                               m_screen.Width()));
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
    if (press.key == Key::kResize) {
      return;
    }
    m_message.clear();
    if (m_prompt) {
      HandlePrompt(press);
    } else if (m_help) {
      m_help = false;
      m_quit = press.key == Key::kCharacter && press.character == 'q';
    } else {
      HandleKey(press);
    }
  }

  void HandleKey(const KeyPress& press) {
    switch (press.key) {
      case Key::kLeft:
        m_navigator.MoveDays(-1);
        break;
      case Key::kRight:
        m_navigator.MoveDays(1);
        break;
      case Key::kUp:
        m_navigator.MoveWeeks(-1);
        break;
      case Key::kDown:
        m_navigator.MoveWeeks(1);
        break;
      case Key::kPageUp:
        Page(-1);
        break;
      case Key::kPageDown:
        Page(1);
        break;
      case Key::kCharacter:
        HandleCharacter(press.character);
        break;
      default:
        break;
    }
  }

  void HandleCharacter(char character) {
    switch (character) {
      case 'h':
        m_navigator.MoveDays(-1);
        break;
      case 'l':
        m_navigator.MoveDays(1);
        break;
      case 'k':
        m_navigator.MoveWeeks(-1);
        break;
      case 'j':
        m_navigator.MoveWeeks(1);
        break;
      case 't':
        m_navigator.GoToToday();
        break;
      case 'g':
        m_prompt = "";
        break;
      case 'm':
        m_navigator.NextMode();
        m_message = std::string("Arrangement: ") + WordFor(kModeWords, m_navigator.Options().mode);
        break;
      case 'w':
        m_settings.weekNumbers = !m_settings.weekNumbers;
        break;
      case 'b':
        m_navigator.ToggleBreakDays();
        break;
      case 'i':
        m_navigator.ToggleIntervals();
        break;
      case '?':
        m_help = true;
        break;
      case 'q':
        m_quit = true;
        break;
      default:
        break;
    }
  }

  void Page(int direction) {
    if (!m_navigator.Page(direction)) {
      m_message = direction > 0 ? "The calendar ends with 2099" : "The calendar begins with 1900";
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
      case Key::kBackspace:
        if (!m_prompt->empty()) {
          m_prompt->pop_back();
        }
        break;
      case Key::kCharacter:
        if (m_prompt->size() < kLongestDate && press.character >= ' ') {
          m_prompt->push_back(press.character);
        }
        break;
      default:
        break;
    }
  }

  void LeavePrompt() {
    const ParsedDate parsed = ParseDate(*m_prompt);
    m_prompt.reset();
    if (parsed.date) {
      m_navigator.GoTo(*parsed.date);
    } else {
      m_message = "Go to: " + parsed.problem;
    }
  }

  static constexpr int kStatusLines = 1;
  static constexpr std::size_t kLongestDate = 10;

  Navigator m_navigator;
  Screen& m_screen;
  const Texts m_texts;
  PaintSettings m_settings;
  Annotator m_annotator;
  bool m_annotations;
  bool m_help = false;
  bool m_quit = false;
  std::optional<std::string> m_prompt;  // what was typed so far
  std::string m_message;
};

}  // namespace

int RunTui(const Options& options, bool utf8, Output& output) {
  if (!output.IsTerminal() || isatty(STDIN_FILENO) == 0) {
    throw UsageError("--tui needs a terminal");
  }
  {
    const StopSignals stopSignals;
    Screen screen(output, UseColor(options.color, output));
    Tui(options, utf8, screen).Run();
  }
  StopSignals::Deliver();
  return 0;
}

}  // namespace almara::viewer
