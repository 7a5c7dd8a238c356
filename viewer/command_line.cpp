// SPDX-License-Identifier: MIT
#include "command_line.h"

#include <almara/almara.h>  // ALMARA_VERSION_STRING

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <sstream>
#include <system_error>

#include "board_options.h"
#include "error_report.h"

namespace almara::viewer {
namespace {

[[noreturn]] void Reject(const std::string& option, const std::string& problem) {
  throw CLI::ValidationError(option, problem);
}

template <typename Words>
std::string ListOf(const Words& words) {
  std::string list;
  for (const auto& word : words) {
    list += (list.empty() ? "" : ", ") + std::string(word.text);
  }
  return list;
}

template <typename Words>
auto ReadWord(const std::string& option, const std::string& text, const Words& words) {
  for (const auto& word : words) {
    if (text == word.text) {
      return word.value;
    }
  }
  Reject(option, "expected one of " + ListOf(words) + ", not '" + text + "'");
}

int ReadNumber(const std::string& option, const std::string& text, int lowest, int highest) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || rest != end || number < lowest || number > highest) {
    Reject(option, "expected a number from " + std::to_string(lowest) + " to " +
                       std::to_string(highest) + ", not '" + text + "'");
  }
  return number;
}

CivilDate ReadDate(const std::string& option, const std::string& text) {
  const ParsedDate parsed = ParseDate(text);
  if (!parsed.date) {
    Reject(option, parsed.problem);
  }
  return *parsed.date;
}

// "sat,sun", or "none"
std::array<bool, 7> ReadBreakDays(const std::string& option, const std::string& text) {
  std::array<bool, 7> days{};
  if (text == "none") {
    return days;
  }
  std::stringstream words(text);
  for (std::string word; std::getline(words, word, ',');) {
    days[static_cast<std::size_t>(ReadWord(option, word, kDayWords))] = true;
  }
  if (std::none_of(days.begin(), days.end(), [](bool day) { return day; })) {
    Reject(option, "expected days such as sat,sun, or none");
  }
  return days;
}

// CLI11 says "--rows: 1 required N missing" of an option without its value, and "next was given a
// disallowed flag override" of a flag with one.
std::string MismatchText(const std::string& text) {
  const std::size_t colon = text.find(": ");
  return colon != std::string::npos ? text.substr(0, colon) + ": a value is missing"
                                    : "--" + text.substr(0, text.find(' ')) + ": takes no value";
}

// Declares the options of the program, each writing to one member of Options. An option given more
// than once counts as given last; steps of navigation add up.
class CommandLine {
 public:
  explicit CommandLine(Options& options) : m_options(options) {
    m_app.name("almara-board");
    m_app.set_help_flag("-h,--help", "Print this help");
    m_app.set_version_flag("--version", "almara-board " ALMARA_VERSION_STRING, "Print the version");
    m_app.footer(kFooter);
    m_app.get_formatter()->column_width(kHelpColumn);
    DeclareBoard();
    DeclareWeeks();
    DeclareNavigation();
    DeclareDays();
    DeclareOutput();
  }

  void Parse(int argc, const char* const* argv) {
    m_app.parse(argc, argv);
    CheckCombinations();
    CheckPassedWeeks();
  }

  std::string Help() const { return m_app.help(); }

 private:
  using Text = const std::string&;

  template <typename Read>
  CLI::Option* AddValue(const char* name, const char* placeholder, const char* help, Read read) {
    const std::string option = std::string(name).substr(std::string(name).find("--"));
    return m_app
        .add_option_function<std::string>(
            name, [read, option](Text text) { read(option, text); }, help)
        ->type_name(placeholder)
        ->trigger_on_parse()
        ->group(m_group);
  }

  template <typename Act>
  CLI::Option* AddFlag(const char* name, const char* help, Act act) {
    return m_app.add_flag_callback(name, act, help)
        ->disable_flag_override()
        ->trigger_on_parse()
        ->group(m_group);
  }

  template <typename Words, typename Value>
  CLI::Option* AddWord(const char* name, const char* placeholder, const char* help,
                       const Words& words, Value& target) {
    return AddValue(name, placeholder, help, [&words, &target](Text option, Text text) {
      target = ReadWord(option, text, words);
    });
  }

  CLI::Option* AddNumber(const char* name, const char* help, int lowest, int highest, int& target) {
    return AddValue(name, "N", help, [lowest, highest, &target](Text option, Text text) {
      target = ReadNumber(option, text, lowest, highest);
    });
  }

  void DeclareBoard() {
    m_group = "Board";
    BoardOptions& board = m_options.board;
    AddWord("--mode", "MODE", "rolling (weeks around the day), tail, month or strip", kModeWords,
            board.mode);
    AddValue("--date", "YYYY-MM-DD", "The day to show instead of today",
             [this](Text name, Text text) { m_options.date = ReadDate(name, text); });
    AddNumber("--rows", "Week rows of rolling and tail, 1 to 50 (5)", 1, 50, board.rows);
    m_passedWeeks = AddNumber("--passed-weeks", "Weeks before the day's own in rolling (1)", 0, 49,
                              board.passedWeeks);
    AddFlag("--no-month-interval", "No band in front of a month, no days kept back",
            [&board] { board.monthIntervals = false; });
    AddValue("--break-days", "DAYS", "Days of rest, such as fri,sat, or none (sat,sun)",
             [&board](Text name, Text text) { board.breakDays = ReadBreakDays(name, text); });
    AddFlag("--hide-break-days", "Leave the columns of break days out",
            [&board] { board.hideBreakDays = true; });
    AddFlag("--no-annotations", "No line under the days and no legend",
            [this] { m_options.annotations = false; });
    AddWord("--language", "REGION", "chs, cht, deu, eng, jpn, kor, rus, tha, usa or vit",
            kLanguageWords, board.language);
  }

  void DeclareWeeks() {
    m_group = "Weeks";
    BoardOptions& board = m_options.board;
    AddWord("--first-day", "DAY", "First day of the week, sun to sat (mon)", kDayWords,
            board.firstDay);
    AddFlag("-M", "Weeks begin on Monday", [&board] { board.firstDay = eCalendarWeekMonday; });
    AddFlag("-S", "Weeks begin on Sunday", [&board] { board.firstDay = eCalendarWeekSunday; });
    AddFlag("-w,--week-numbers", "Show the numbers of the weeks (the default)",
            [this] { m_options.weekNumbers = true; });
    AddFlag("--no-week-numbers", "Leave the numbers of the weeks out",
            [this] { m_options.weekNumbers = false; });
    AddWord("--week-rule", "RULE", "iso, jan1 or start: counted from --start-week (iso)",
            kWeekRuleWords, board.weekRule);
    AddNumber("--start-week", "The week that is shown as week 1, 1 to 53 (1)", 1, 53,
              board.startWeek);
  }

  void DeclareNavigation() {
    m_group = "Navigation, repeated and applied in the order given";
    AddFlag("--next", "Page forward", [this] {
      m_options.steps.push_back({Step::Kind::kNext, 0});
    });
    AddFlag("--previous", "Page backward", [this] {
      m_options.steps.push_back({Step::Kind::kPrevious, 0});
    });
    AddValue("--offset", "N", "Jump N pages from today (months in --mode month)",
             [this](Text name, Text text) {
               const int offset = ReadNumber(name, text, -kLargestOffset, kLargestOffset);
               m_options.steps.push_back({Step::Kind::kOffset, offset});
             });
  }

  void DeclareDays() {
    m_group = "Instead of a board";
    AddValue("--day", "YYYY-MM-DD", "Everything about one day", [this](Text name, Text text) {
      SetTask(Task::kShowDay, name);
      m_options.day = ReadDate(name, text);
    });
    AddFlag("--list", "The solar terms and festivals of a year",
            [this] { SetTask(Task::kListYear, "--list"); });
    AddValue("--year", "YYYY", "The year of --list instead of this one",
             [this](Text name, Text text) {
               m_options.year = ReadNumber(name, text, kFirstYear, kLastYear);
             });
  }

  void DeclareOutput() {
    m_group = "Output";
    AddFlag("--tui", "Full screen; ? shows the keys",
            [this] { SetTask(Task::kFullScreen, "--tui"); });
    AddFlag("--json", "Everything the engine reports, for scripts",
            [this] { m_options.json = true; });
    AddWord("--color", "WHEN", "auto, always or never (auto)", kColorWords, m_options.color);
    AddFlag("--dump", "Show the engine's own dump of each build",
            [this] { m_options.dump = true; });
  }

  void SetTask(Task task, const std::string& option) {
    if (!m_taskOption.empty() && m_taskOption != option) {
      Reject(option, "cannot be combined with " + m_taskOption);
    }
    m_options.task = task;
    m_taskOption = option;
  }

  void CheckCombinations() const {
    const bool tui = m_options.task == Task::kFullScreen;
    if (m_options.json && tui) {
      Reject("--tui", "cannot be combined with --json");
    }
    // The dump would stand inside the screen or the JSON.
    if (m_options.dump && (m_options.json || tui)) {
      Reject("--dump", tui ? "cannot be combined with --tui" : "cannot be combined with --json");
    }
    if (m_options.year && m_options.task != Task::kListYear) {
      Reject("--year", "is for --list");
    }
  }

  // The rows must reach the week of the date itself.
  void CheckPassedWeeks() {
    BoardOptions& board = m_options.board;
    if (m_passedWeeks->empty()) {
      board.passedWeeks = std::min(board.passedWeeks, board.rows - 1);
    } else if (board.passedWeeks >= board.rows) {
      Reject("--passed-weeks", "must be less than the " + std::to_string(board.rows) + " rows");
    }
  }

  static constexpr const char* kFooter =
      "[12] is today, 16 with a dot a break day. Under a day stands its festival,\n"
      "its solar term or its lunar day: L25 is the 25th of a lunar month, Moon 2\n"
      "the first of the second. The locale decides where --language does not.";
  static constexpr int kHelpColumn = 24;
  static constexpr int kLargestOffset = 99999;
  static constexpr Word<ColorMode> kColorWords[] = {
      {"auto", ColorMode::kAuto}, {"always", ColorMode::kAlways}, {"never", ColorMode::kNever}};

  Options& m_options;
  CLI::App m_app{"A calendar for the terminal with lunar dates, solar terms and festivals."};
  CLI::Option* m_passedWeeks = nullptr;
  std::string m_group;
  std::string m_taskOption;  // what chose the task
};

}  // namespace

Options ParseCommandLine(int argc, const char* const* argv, const Options& defaults) {
  Options options = defaults;
  CommandLine commandLine(options);
  try {
    commandLine.Parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    options.task = Task::kPrintText;
    options.text = commandLine.Help();
  } catch (const CLI::CallForVersion& version) {
    options.task = Task::kPrintText;
    options.text = std::string(version.what()) + "\n";
  } catch (const CLI::ArgumentMismatch& mismatch) {
    throw UsageError(MismatchText(mismatch.what()));
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  return options;
}

}  // namespace almara::viewer
