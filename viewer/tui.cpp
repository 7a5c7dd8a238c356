// SPDX-License-Identifier: MIT
#include "tui.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <optional>
#include <string>

#include "annotations.h"
#include "board_painter.h"
#include "listing.h"
#include "navigator.h"
#include "screen.h"
#include "text_layout.h"

namespace viewer {
namespace {

constexpr int kWaitMs = 1000;  // how long a new day or a signal may go unnoticed

volatile std::sig_atomic_t g_signal = 0;

extern "C" void rememberSignal(int signal) { g_signal = signal; }

// Ends the wait for a key on a signal that asks the program to stop, so that the screen is left in
// order; the signal then does its usual work.
class StopSignals {
 public:
  StopSignals() {
    for (int signal : kSignals) {
      struct sigaction action {};
      action.sa_handler = rememberSignal;
      sigaction(signal, &action, nullptr);
    }
  }

  static bool arrived() { return g_signal != 0; }

  static void deliver() {
    if (arrived()) {
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
      : navigator_(options.board),
        screen_(screen),
        annotator_(options.board.language),
        annotations_(options.annotations) {
    settings_.weekNumbers = options.weekNumbers;
    settings_.texts = &textsFor(options.board.language, utf8);
    settings_.glyphs = &glyphsFor(utf8);
  }

  void run() {
    while (!quit_ && !StopSignals::arrived()) {
      draw();
      handle(screen_.readKey(kWaitMs));
    }
  }

 private:
  void draw() {
    settings_.width = screen_.width();
    settings_.selected = navigator_.selected();
    screen_.draw(help_ ? helpLines() : screenLines(), statusLine());
  }

  Line statusLine() const {
    if (prompt_) {
      return {{"Go to (YYYY-MM-DD): " + *prompt_ + "_"}};
    }
    if (!message_.empty()) {
      return {{message_}};
    }
    return {{"? help  q quit", Role::Hint}};
  }

  static std::vector<Line> helpLines() {
    std::vector<Line> lines;
    for (const char* text : kHelp) {
      lines.push_back({{text}});
    }
    return lines;
  }

  // Title, headings, the board, the selected day, and the legend where there is room for it.
  std::vector<Line> screenLines() {
    const std::vector<Line> details = detailLines();
    const int room = screen_.height() - kStatusLines;
    PaintedBoard painted = paint(annotations_);
    if (annotations_ && heightOf(painted) + static_cast<int>(details.size()) > room) {
      painted = paint(false);
    }
    std::vector<Line> lines = {painted.title, painted.headings};
    append(lines, rowsAroundSelection(painted, room - 2 - static_cast<int>(details.size())));
    append(lines, details);
    if (annotations_) {
      append(lines, legendIfFitting(room - static_cast<int>(lines.size())));
    }
    return lines;
  }

  PaintedBoard paint(bool annotated) {
    settings_.annotator = annotated ? &annotator_ : nullptr;
    return paintBoard(navigator_.board(), settings_);
  }

  static int heightOf(const PaintedBoard& painted) {
    int height = 2;
    for (const auto& row : painted.rows) {
      height += static_cast<int>(row.size());
    }
    return height;
  }

  static void append(std::vector<Line>& lines, const std::vector<Line>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
  }

  // All rows, or as many as fit with the selected one among them.
  std::vector<Line> rowsAroundSelection(const PaintedBoard& painted, int room) const {
    if (painted.rows.empty()) {
      return {};
    }
    const std::size_t linesPerRow = painted.rows.front().size();
    const std::size_t fitting =
        std::max(static_cast<std::size_t>(std::max(room, 0)) / linesPerRow, std::size_t{1});
    const std::size_t selected = selectedRow();
    const std::size_t first = selected < fitting ? 0 : selected - fitting + 1;
    const std::size_t end = std::min(first + fitting, painted.rows.size());
    std::vector<Line> lines;
    for (std::size_t row = first; row < end; ++row) {
      append(lines, painted.rows[row]);
    }
    return lines;
  }

  std::vector<Line> detailLines() {
    const Texts& texts = *settings_.texts;
    const Annotation annotation = annotator_.annotate(navigator_.selected());
    Line lunar = {{std::string(texts.lunarDateLabel) + "  ", Role::Hint},
                  {lunarDateText(texts, annotation.lunar)}};
    return {{},
            {{fullDateText(texts, navigator_.selected()), Role::Title}},
            lunar,
            namesLine(annotation, texts.language)};
  }

  std::vector<Line> legendIfFitting(int room) {
    std::vector<Line> legend = {{}};
    append(legend, legendLines(namedDays(shownDays(navigator_.board()), annotator_),
                               *settings_.texts, screen_.width()));
    return static_cast<int>(legend.size()) <= room ? legend : std::vector<Line>{};
  }

  std::size_t selectedRow() const {
    const auto& rows = navigator_.board().rows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      for (const tagCalendarCell& cell : rows[row]) {
        if (showsDay(cell) && dateOf(cell) == navigator_.selected()) {
          return row;
        }
      }
    }
    return 0;
  }

  void handle(const KeyPress& press) {
    if (press.key == Key::None) {
      navigator_.refreshToday();
      return;
    }
    if (press.key == Key::Resize) {
      return;
    }
    message_.clear();
    if (prompt_) {
      handlePrompt(press);
    } else if (help_) {
      help_ = false;
      quit_ = press.key == Key::Character && press.character == 'q';
    } else {
      handleKey(press);
    }
  }

  void handleKey(const KeyPress& press) {
    switch (press.key) {
      case Key::Left:
        navigator_.moveDays(-1);
        break;
      case Key::Right:
        navigator_.moveDays(1);
        break;
      case Key::Up:
        navigator_.moveWeeks(-1);
        break;
      case Key::Down:
        navigator_.moveWeeks(1);
        break;
      case Key::PageUp:
        page(-1);
        break;
      case Key::PageDown:
        page(1);
        break;
      case Key::Character:
        handleCharacter(press.character);
        break;
      default:
        break;
    }
  }

  void handleCharacter(char character) {
    switch (character) {
      case 'h':
        navigator_.moveDays(-1);
        break;
      case 'l':
        navigator_.moveDays(1);
        break;
      case 'k':
        navigator_.moveWeeks(-1);
        break;
      case 'j':
        navigator_.moveWeeks(1);
        break;
      case 't':
        navigator_.goToToday();
        break;
      case 'g':
        prompt_ = "";
        break;
      case 'm':
        navigator_.nextMode();
        message_ = std::string("Arrangement: ") + wordFor(kModeWords, navigator_.options().mode);
        break;
      case 'w':
        settings_.weekNumbers = !settings_.weekNumbers;
        break;
      case 'b':
        navigator_.toggleBreakDays();
        break;
      case 'i':
        navigator_.toggleIntervals();
        break;
      case '?':
        help_ = true;
        break;
      case 'q':
        quit_ = true;
        break;
      default:
        break;
    }
  }

  void page(int direction) {
    if (!navigator_.page(direction)) {
      message_ = direction > 0 ? "The calendar ends with 2099" : "The calendar begins with 1900";
    }
  }

  void handlePrompt(const KeyPress& press) {
    switch (press.key) {
      case Key::Enter:
        leavePrompt();
        break;
      case Key::Escape:
        prompt_.reset();
        break;
      case Key::Backspace:
        if (!prompt_->empty()) {
          prompt_->pop_back();
        }
        break;
      case Key::Character:
        if (prompt_->size() < kLongestDate && press.character >= ' ') {
          prompt_->push_back(press.character);
        }
        break;
      default:
        break;
    }
  }

  void leavePrompt() {
    const ParsedDate parsed = parseDate(*prompt_);
    prompt_.reset();
    if (parsed.date) {
      navigator_.goTo(*parsed.date);
    } else {
      message_ = "Go to: " + parsed.problem;
    }
  }

  static constexpr int kStatusLines = 1;
  static constexpr std::size_t kLongestDate = 10;

  Navigator navigator_;
  Screen& screen_;
  PaintSettings settings_;
  Annotator annotator_;
  bool annotations_;
  bool help_ = false;
  bool quit_ = false;
  std::optional<std::string> prompt_;  // what was typed so far
  std::string message_;
};

}  // namespace

int runTui(const Options& options, bool utf8, Output& output) {
  if (!output.isTerminal() || isatty(STDIN_FILENO) == 0) {
    reportError("--tui needs a terminal");
    return kExitUsage;
  }
  {
    const StopSignals stopSignals;
    Screen screen(output, useColor(options.color, output));
    Tui(options, utf8, screen).run();
  }
  StopSignals::deliver();
  return 0;
}

}  // namespace viewer
