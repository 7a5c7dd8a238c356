// SPDX-License-Identifier: MIT
#include "options.h"

#include <almara/almara.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iostream>
#include <limits>
#include <sstream>

namespace viewer {
namespace {

[[noreturn]] void reject(const std::string& option, const std::string& problem) {
  throw CLI::ValidationError(option, problem);
}

template <typename Words>
std::string listOf(const Words& words) {
  std::string list;
  for (const auto& word : words) {
    list += (list.empty() ? "" : ", ") + std::string(word.text);
  }
  return list;
}

template <typename Words>
auto readWord(const std::string& option, const std::string& text, const Words& words) {
  for (const auto& word : words) {
    if (text == word.text) {
      return word.value;
    }
  }
  reject(option, "expected one of " + listOf(words) + ", not '" + text + "'");
}

int readNumber(const std::string& option, const std::string& text, int lowest, int highest) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || rest != end || number < lowest || number > highest) {
    reject(option, "expected a number from " + std::to_string(lowest) + " to " +
                       std::to_string(highest) + ", not '" + text + "'");
  }
  return number;
}

CivilDate readDate(const std::string& option, const std::string& text) {
  const ParsedDate parsed = parseDate(text);
  if (!parsed.date) {
    reject(option, parsed.problem);
  }
  return *parsed.date;
}

// "sat,sun", or "none"
std::array<bool, 7> readBreakDays(const std::string& option, const std::string& text) {
  std::array<bool, 7> days{};
  if (text == "none") {
    return days;
  }
  std::stringstream words(text);
  for (std::string word; std::getline(words, word, ',');) {
    days[static_cast<std::size_t>(readWord(option, word, kDayWords))] = true;
  }
  if (std::none_of(days.begin(), days.end(), [](bool day) { return day; })) {
    reject(option, "expected days such as sat,sun, or none");
  }
  return days;
}

// CLI11 says "--rows: 1 required N missing" of an option without its value, and "next was given a
// disallowed flag override" of a flag with one.
std::string mismatchText(const std::string& text) {
  const std::size_t colon = text.find(": ");
  return colon != std::string::npos ? text.substr(0, colon) + ": a value is missing"
                                    : "--" + text.substr(0, text.find(' ')) + ": takes no value";
}

// Declares the options of the program, each writing to one member of Options. An option given more
// than once counts as given last; steps of navigation add up.
class CommandLine {
 public:
  explicit CommandLine(Options& options) : options_(options) {
    app_.name("almara-board");
    app_.set_help_flag("-h,--help", "Print this help");
    app_.set_version_flag("--version", "almara-board " ALMARA_VERSION_STRING, "Print the version");
    app_.footer(kFooter);
    app_.get_formatter()->column_width(kHelpColumn);
    declareBoard();
    declareWeeks();
    declareNavigation();
    declareDays();
    declareOutput();
  }

  void parse(int argc, char** argv) {
    app_.parse(argc, argv);
    checkCombinations();
    checkPassedWeeks();
    checkOffsets();
  }

  std::string help() const { return app_.help(); }

 private:
  using Text = const std::string&;

  template <typename Read>
  CLI::Option* value(const char* name, const char* placeholder, const char* help, Read read) {
    const std::string option = std::string(name).substr(std::string(name).find("--"));
    return app_
        .add_option_function<std::string>(
            name, [read, option](Text text) { read(option, text); }, help)
        ->type_name(placeholder)
        ->trigger_on_parse()
        ->group(group_);
  }

  template <typename Act>
  CLI::Option* flag(const char* name, const char* help, Act act) {
    return app_.add_flag_callback(name, act, help)
        ->disable_flag_override()
        ->trigger_on_parse()
        ->group(group_);
  }

  template <typename Words, typename Value>
  CLI::Option* word(const char* name, const char* placeholder, const char* help, const Words& words,
                    Value& target) {
    return value(name, placeholder, help, [&words, &target](Text option, Text text) {
      target = readWord(option, text, words);
    });
  }

  CLI::Option* number(const char* name, const char* help, int lowest, int highest, int& target) {
    return value(name, "N", help, [lowest, highest, &target](Text option, Text text) {
      target = readNumber(option, text, lowest, highest);
    });
  }

  void declareBoard() {
    group_ = "Board";
    BoardOptions& board = options_.board;
    word("--mode", "MODE", "rolling (weeks around the day), tail, month or strip", kModeWords,
         board.mode);
    value("--date", "YYYY-MM-DD", "The day to show instead of today",
          [this](Text name, Text text) { options_.date = readDate(name, text); });
    number("--rows", "Week rows of rolling and tail, 1 to 50 (5)", 1, 50, board.rows);
    passedWeeks_ = number("--passed-weeks", "Weeks before the day's own in rolling (1)", 0, 49,
                          board.passedWeeks);
    flag("--no-month-interval", "No band in front of a month, no days kept back",
         [&board] { board.monthIntervals = false; });
    value("--break-days", "DAYS", "Days of rest, such as fri,sat, or none (sat,sun)",
          [&board](Text name, Text text) { board.breakDays = readBreakDays(name, text); });
    flag("--hide-break-days", "Leave the columns of break days out",
         [&board] { board.hideBreakDays = true; });
    flag("--no-annotations", "No line under the days and no legend",
         [this] { options_.annotations = false; });
    word("--language", "REGION", "chs, cht, deu, eng, jpn, kor, rus, tha, usa or vit",
         kLanguageWords, board.language);
  }

  void declareWeeks() {
    group_ = "Weeks";
    BoardOptions& board = options_.board;
    word("--first-day", "DAY", "First day of the week, sun to sat (mon)", kDayWords,
         board.firstDay);
    flag("-M", "Weeks begin on Monday", [&board] { board.firstDay = eCalendarWeekMonday; });
    flag("-S", "Weeks begin on Sunday", [&board] { board.firstDay = eCalendarWeekSunday; });
    flag("-w,--week-numbers", "Show the numbers of the weeks (the default)",
         [this] { options_.weekNumbers = true; });
    flag("--no-week-numbers", "Leave the numbers of the weeks out",
         [this] { options_.weekNumbers = false; });
    word("--week-rule", "RULE", "iso, jan1 or start: counted from --start-week (iso)",
         kWeekRuleWords, board.weekRule);
    number("--start-week", "The week that is shown as week 1, 1 to 53 (1)", 1, 53, board.startWeek);
  }

  void declareNavigation() {
    group_ = "Navigation, repeated and applied in the order given";
    flag("--next", "Page forward", [this] { options_.steps.push_back({Step::Kind::Next, 0}); });
    flag("--previous", "Page backward", [this] {
      options_.steps.push_back({Step::Kind::Previous, 0});
    });
    value("--offset", "N", "Jump N pages from today (months in --mode month)",
          [this](Text name, Text text) {
            const int offset = readNumber(name, text, -kLargestOffset, kLargestOffset);
            options_.steps.push_back({Step::Kind::Offset, offset});
          });
  }

  void declareDays() {
    group_ = "Instead of a board";
    value("--day", "YYYY-MM-DD", "Everything about one day", [this](Text name, Text text) {
      setTask(Task::ShowDay, name);
      options_.day = readDate(name, text);
    });
    flag("--list", "The solar terms and festivals of a year",
         [this] { setTask(Task::ListYear, "--list"); });
    value("--year", "YYYY", "The year of --list instead of this one", [this](Text name, Text text) {
      options_.year = readNumber(name, text, kFirstYear, kLastYear);
    });
  }

  void declareOutput() {
    group_ = "Output";
    flag("--tui", "Full screen; ? shows the keys", [this] { setTask(Task::FullScreen, "--tui"); });
    flag("--json", "Everything the engine reports, for scripts", [this] { options_.json = true; });
    word("--color", "WHEN", "auto, always or never (auto)", kColorWords, options_.color);
    flag("--dump", "Show the engine's own dump of each build", [this] { options_.dump = true; });
  }

  void setTask(Task task, const std::string& option) {
    if (!taskOption_.empty() && taskOption_ != option) {
      reject(option, "cannot be combined with " + taskOption_);
    }
    options_.task = task;
    taskOption_ = option;
  }

  void checkCombinations() const {
    const bool tui = options_.task == Task::FullScreen;
    if (options_.json && tui) {
      reject("--tui", "cannot be combined with --json");
    }
    // The dump would stand inside the screen or the JSON.
    if (options_.dump && (options_.json || tui)) {
      reject("--dump", tui ? "cannot be combined with --tui" : "cannot be combined with --json");
    }
    if (options_.year && options_.task != Task::ListYear) {
      reject("--year", "is for --list");
    }
  }

  // The rows must reach the week of the date itself.
  void checkPassedWeeks() {
    BoardOptions& board = options_.board;
    if (passedWeeks_->empty()) {
      board.passedWeeks = std::min(board.passedWeeks, board.rows - 1);
    } else if (board.passedWeeks >= board.rows) {
      reject("--passed-weeks", "must be less than the " + std::to_string(board.rows) + " rows");
    }
  }

  void checkOffsets() const {
    for (const Step& step : options_.steps) {
      if (step.kind == Step::Kind::Offset &&
          !offsetStaysInRange(options_.board, readToday(), step.offset)) {
        reject("--offset", std::to_string(step.offset) + " leads outside the years 1900 to 2099");
      }
    }
  }

  static constexpr const char* kFooter =
      "[12] is today, 16 with a dot a break day. Under a day stands its festival,\n"
      "its solar term or its lunar day: L25 is the 25th of a lunar month, Moon 2\n"
      "the first of the second. The locale decides where --language does not.";
  static constexpr int kHelpColumn = 24;
  static constexpr int kLargestOffset = 99999;
  static constexpr Word<ColorMode> kColorWords[] = {
      {"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}};

  Options& options_;
  CLI::App app_{"A calendar for the terminal with lunar dates, solar terms and festivals."};
  CLI::Option* passedWeeks_ = nullptr;
  std::string group_;
  std::string taskOption_;  // what chose the task
};

}  // namespace

std::optional<int> parseOptions(int argc, char** argv, Options& options) {
  CommandLine commandLine(options);
  try {
    commandLine.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    std::cout << commandLine.help();
    return 0;
  } catch (const CLI::CallForVersion& version) {
    std::cout << version.what() << '\n';
    return 0;
  } catch (const CLI::ArgumentMismatch& mismatch) {
    reportError(mismatchText(mismatch.what()));
    return kExitUsage;
  } catch (const CLI::ParseError& error) {
    reportError(error.what());
    return kExitUsage;
  }
  return std::nullopt;
}

void reportError(const std::string& message) {
  std::string line = message;
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, '?');
  std::cerr << "almara-board: " << line << '\n';
}

}  // namespace viewer
