// SPDX-License-Identifier: MIT
#include "command_line.h"

#include <almara/almara.h>  // ALMARA_VERSION_STRING

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <functional>
#include <utility>

#include "completion.h"
#include "configuration.h"
#include "error_report.h"
#include "option_values.h"

namespace almara::viewer {
namespace {

// What an option has an effect on; a sum of these.
enum Use : unsigned {
  kBoard = 1U,
  kMonths = 2U,  // and the year
  kDay = 4U,
  kList = 8U,
  kScreen = 16U,
  kBirthday = 32U,
  kCalendar = 64U,  // a file of events
  kBoards = kBoard | kScreen,
  kPages = kBoards | kMonths,
  kDays = kPages | kDay | kList,
  kShown = kDays | kBirthday,
  kAll = kShown | kCalendar,
};

constexpr Use operator|(Use a, Use b) { return static_cast<Use>(static_cast<unsigned>(a) | b); }

Use UseOf(Task task) {
  switch (task) {
    case Task::kShowMonths:
    case Task::kShowYear:
      return kMonths;
    case Task::kShowDay:
      return kDay;
    case Task::kListYear:
      return kList;
    case Task::kShowBirthday:
      return kBirthday;
    case Task::kWriteCalendar:
      return kCalendar;
    case Task::kFullScreen:
      return kScreen;
    case Task::kShowBoard:
    case Task::kPrintText:
      break;
  }
  return kBoard;
}

// CLI11 says "--rows: 1 required N missing" of an option without its value, and "next was given a
// disallowed flag override" of a flag with one.
std::string MismatchText(const std::string& text) {
  const std::size_t colon = text.find(": ");
  return colon != std::string::npos ? text.substr(0, colon) + ": a value is missing"
                                    : "--" + text.substr(0, text.find(' ')) + ": takes no value";
}

// CLI11 says "INI was not able to parse nope" of what is no option, and "x.++" of the section [x].
std::string UnknownInFileText(const std::string& text) {
  const std::string unknown = "INI was not able to parse ";
  if (text.rfind(unknown, 0) != 0) {
    return text;
  }
  const std::string name = text.substr(unknown.size());
  const std::size_t section = name.find(".++");
  return section == std::string::npos ? "unknown option '" + name + "'"
                                      : "unknown section '" + name.substr(0, section) + "'";
}

std::vector<std::string> SplitNames(const std::string& names) {
  std::vector<std::string> split;
  std::stringstream stream(names);
  for (std::string name; std::getline(stream, name, ',');) {
    split.push_back(name);
  }
  return split;
}

// Declares the options of the program, each writing to one member of Options. An option given more
// than once counts as given last; steps of navigation add up.
class CommandLine {
 public:
  enum class Source { kArguments, kFile };

  CommandLine(Options& options, Source source) : m_options(options), m_source(source) {
    m_app.name("almara-board");
    m_app.set_help_flag("-h,--help", "Print this help");
    m_app.set_version_flag("--version", "almara-board " ALMARA_VERSION_STRING, "Print the version");
    m_app.footer(kFooter);
    m_app.get_formatter()->column_width(kHelpColumn);
    DeclareArguments();
    DeclareBoard();
    DeclareWeeks();
    DeclareNavigation();
    DeclareMonths();
    DeclareDays();
    DeclareOutput();
    DeclareHidden();
  }

  void Parse(int argc, const char* const* argv) {
    m_app.parse(argc, argv);
    TakeArguments();
    GiveWay();
    CheckCombinations();
    CheckRows();
  }

  // Each option by its long name. Whether the options go together is left to Parse().
  void ParseFile(std::istream& file) {
    m_app.allow_config_extras(CLI::config_extras_mode::error);
    try {
      m_app.parse_from_stream(file);
    } catch (const CLI::ConfigError& error) {
      throw UsageError(UnknownInFileText(error.what()));
    }
    FitPassedWeeks();
  }

  // The first argument that is no option and cannot be a month or a year either.
  std::string FirstUnknown() const { return m_app.remaining().front(); }

  std::string Help() const { return m_app.help(); }

  bool ReadsConfiguration() const { return m_readsConfiguration; }

 private:
  using Text = const std::string&;
  using Names = const char*;

  // Notes that the option was given. Its name in messages is the long one.
  template <typename Act>
  auto Noting(const std::string& names, Use use, Act act) {
    const std::vector<std::string> split = SplitNames(names);
    return [this, name = split.back(), use, act](auto&&... values) {
      m_given.emplace_back(name, use);
      act(name, values...);
    };
  }

  void Offer(Names names, const char* placeholder, const char* help,
             std::vector<std::string> words = {}) {
    m_offered.push_back({SplitNames(names), help, placeholder, std::move(words)});
  }

  template <typename Read>
  void AddValue(Names names, const char* placeholder, const char* help, Use use, Read read,
                std::vector<std::string> words = {}) {
    const std::function<void(Text)> take = Noting(names, use, read);
    m_app.add_option_function<std::string>(names, take, help)
        ->type_name(placeholder)
        ->trigger_on_parse()
        ->group(m_group);
    Offer(names, placeholder, help, std::move(words));
  }

  template <typename Act>
  void AddFlag(Names names, const char* help, Use use, Act act) {
    const std::function<void()> take = Noting(names, use, [act](Text) { act(); });
    m_app.add_flag_callback(names, take, help)
        ->disable_flag_override(m_source == Source::kArguments)  // a file may say "json = false"
        ->trigger_on_parse()
        ->group(m_group);
    Offer(names, "", help);
  }

  template <typename Words, typename Value>
  void AddWord(Names names, const char* placeholder, const char* help, Use use, const Words& words,
               Value& target) {
    const auto read = [&words, &target](Text name, Text text) {
      target = ReadWord(name, text, words);
    };
    AddValue(names, placeholder, help, use, read, TextsOf(words));
  }

  void AddNumber(Names names, const char* help, Use use, int lowest, int highest, int& target) {
    AddValue(names, "N", help, use, [lowest, highest, &target](Text name, Text text) {
      target = ReadNumber(name, text, lowest, highest);
    });
  }

  void DeclareArguments() {
    m_app.add_option("when", m_arguments, "[[day] month] year, or a month of this year")
        ->type_name("")
        ->expected(0, CLI::detail::expected_max_vector_size)
        ->configurable(false);
  }

  void DeclareBoard() {
    m_group = "Board";
    BoardOptions& board = m_options.board;
    AddWord("--mode", "MODE", "rolling (weeks around the day), tail, month or strip", kBoards,
            kModeWords, board.mode);
    AddValue("--date", "YYYY-MM-DD", "The day to show instead of today", kPages,
             [this](Text name, Text text) { m_options.date = ReadDate(name, text); });
    AddNumber("--rows", "Week rows of rolling and tail, 1 to 50 (5)", kBoards, 1, kMostRows,
              board.rows);
    AddNumber("--passed-weeks", "Weeks before the day's own in rolling (1)", kBoards, 0,
              kMostRows - 1, board.passedWeeks);
    AddFlag("--no-month-interval", "No band in front of a month, no days kept back", kBoards,
            [&board] { board.monthIntervals = false; });
    AddValue("--break-days", "DAYS", "Days of rest, such as fri,sat, or none (sat,sun)", kPages,
             [&board](Text name, Text text) { board.breakDays = ReadBreakDays(name, text); },
             {"sat,sun", "fri,sat", "sun", "none"});
    AddFlag("--hide-break-days", "Leave the columns of break days out", kPages | kDay,
            [&board] { board.hideBreakDays = true; });
    AddFlag("--no-annotations", "No line under the days and no legend", kPages,
            [this] { m_options.annotations = false; });
    AddWord("--lunar", "WHOSE", "Lunar dates and terms: almanac (published) or engine",
            kDays | kCalendar, kLunarSourceWords, m_options.lunar);
    AddWord("--language", "REGION", "chs, cht, deu, eng, jpn, kor, rus, tha, usa or vit", kAll,
            kLanguageWords, board.language);
  }

  void DeclareWeeks() {
    m_group = "Weeks";
    BoardOptions& board = m_options.board;
    constexpr Use kUse = kPages | kDay;
    AddWord("--first-day", "DAY", "First day of the week, sun to sat (the locale's)", kUse,
            kDayWords, board.firstDay);
    AddFlag("-M", "Weeks begin on Monday", kUse,
            [&board] { board.firstDay = eCalendarWeekMonday; });
    AddFlag("-S", "Weeks begin on Sunday", kUse,
            [&board] { board.firstDay = eCalendarWeekSunday; });
    AddFlag("-w,--week-numbers", "Show the numbers of the weeks, also where it is narrow", kPages,
            [this] { m_options.weekNumbers = WeekNumbers::kAlways; });
    AddFlag("--no-week-numbers", "Leave the numbers of the weeks out", kPages,
            [this] { m_options.weekNumbers = WeekNumbers::kNever; });
    AddWord("--week-rule", "RULE", "iso, jan1, start (from --start-week) or first-day (iso)", kUse,
            kWeekRuleWords, board.weekRule);
    AddNumber("--start-week", "The week that is shown as week 1, 1 to 53 (1)", kUse, 1, 53,
              board.startWeek);
  }

  void DeclareNavigation() {
    m_group = "Navigation, repeated and applied in the order given";
    AddFlag("--next", "Page forward", kBoards, [this] {
      m_options.steps.push_back({Step::Kind::kNext, 0});
    });
    AddFlag("--previous", "Page backward", kBoards, [this] {
      m_options.steps.push_back({Step::Kind::kPrevious, 0});
    });
    AddValue("--offset", "N", "Jump N pages from today (months in --mode month)", kBoards,
             [this](Text name, Text text) {
               const int offset = ReadNumber(name, text, -kLargestOffset, kLargestOffset);
               m_options.steps.push_back({Step::Kind::kOffset, offset});
             });
  }

  void DeclareMonths() {
    m_group = "Months";
    m_app
        .add_option_function<std::string>(
            "-m", [this](Text text) { TakeMonth(text); }, "That month, this year if none is given")
        ->type_name("MONTH")
        ->expected(0, 1)
        ->trigger_on_parse()
        ->configurable(false)
        ->group(m_group);
    Offer("-m", "MONTH", "That month, this year if none is given", MonthWords());
    AddFlag("-3", "The month before and the month after as well", kMonths, [this] {
      SetTask(Task::kShowMonths, "-3");
      m_options.monthsBefore = 1;
      m_options.monthsAfter = 1;
    });
    AddValue("-A", "N", "N months after it as well, 0 to 99", kMonths,
             [this](Text name, Text text) {
               SetTask(Task::kShowMonths, name);
               m_options.monthsAfter = ReadNumber(name, text, 0, kMostMonths);
             });
    AddValue("-B", "N", "N months before it as well, 0 to 99", kMonths,
             [this](Text name, Text text) {
               SetTask(Task::kShowMonths, name);
               m_options.monthsBefore = ReadNumber(name, text, 0, kMostMonths);
             });
    AddFlag("-y", "The twelve months of the year", kMonths,
            [this] { SetTask(Task::kShowYear, "-y"); });
  }

  void DeclareDays() {
    m_group = "Instead of a board";
    AddValue("--day", "YYYY-MM-DD", "Everything about one day", kDay, [this](Text name, Text text) {
      SetTask(Task::kShowDay, name);
      m_options.day = ReadDate(name, text);
    });
    AddFlag("--list", "The solar terms and festivals of a year", kList,
            [this] { SetTask(Task::kListYear, "--list"); });
    AddValue("--lunar-date", "[Y-][leap]M-D",
             "The dates of a lunar birthday, such as 8-15 or leap4-1", kBirthday,
             [this](Text name, Text text) {
               SetTask(Task::kShowBirthday, name);
               m_options.birthday.date = ReadLunarDate(name, text);
             });
    AddFlag("--ics", "The terms and festivals of a year for other calendars", kCalendar,
            [this] { SetTask(Task::kWriteCalendar, "--ics"); });
    DeclareBirthday();
    AddValue("--year", "YYYY", "The year to list or to begin with, instead of now", kTakesYear,
             [this](Text name, Text text) {
               m_options.year = ReadNumber(name, text, kFirstYear, kLastYear);
             });
    AddValue("--years", "N", "How many years of --lunar-date (10) or --ics (1)",
             kBirthday | kCalendar,
             [this](Text name, Text text) { m_options.years = ReadNumber(name, text, 1, kYears); });
  }

  // Repeated among the arguments, a list in the file.
  void DeclareBirthday() {
    const auto take = [this](Text name, Text text) {
      m_options.birthdays.push_back(ReadBirthday(name, text));
    };
    if (m_source == Source::kArguments) {
      AddValue("--birthday", "DATE=NAME", "A lunar birthday for --ics; may be repeated", kCalendar,
               take);
      return;
    }
    const std::function<void(const std::vector<std::string>&)> takeAll =
        [take](const std::vector<std::string>& texts) {
          for (const std::string& text : texts) {
            take("--birthday", text);
          }
        };
    m_app.add_option_function("--birthday", takeAll)
        ->expected(1, CLI::detail::expected_max_vector_size);
  }

  void DeclareOutput() {
    m_group = "Output";
    constexpr Use kText = kBoard | kMonths | kDay | kList | kBirthday;
    constexpr Use kJson = kBoard | kDay | kList | kBirthday;
    AddFlag("--tui", "Full screen; ? shows the keys", kScreen,
            [this] { SetTask(Task::kFullScreen, "--tui"); });
    AddFlag("--json", "Everything the engine reports, for scripts", kJson,
            [this] { m_options.json = true; });
    AddWord("--color", "WHEN", "auto, always or never (auto)", kShown, kColorWords,
            m_options.color);
    AddFlag("--ascii", "Lines and marks in ASCII; texts stay", kShown,
            [this] { m_options.ascii = true; });
    AddValue("--width", "N", "Columns to use instead of the terminal's, 20 to 1000", kText,
             [this](Text name, Text text) {
               m_options.columns = ReadNumber(name, text, kFewestColumns, kMostColumns);
             });
    AddFlag("--dump", "Show the engine's own dump of each build", kBoard | kMonths | kDay | kList,
            [this] { m_options.dump = true; });
    AddFlag("--no-config", "Do not read the configuration file", kAll,
            [this] { m_readsConfiguration = false; });
  }

  void DeclareHidden() {
    m_app
        .add_option_function<std::string>(
            "--print-completion",
            [this](Text text) {
              const Shell shell = ReadWord("--print-completion", text, kShellWords);
              m_options.task = Task::kPrintText;
              m_options.text = CompletionScript(shell, m_offered, MonthWords());
            })
        ->configurable(false)
        ->group("");
    m_offered.push_back({{"-h", "--help"}, "Print this help", "", {}});
    m_offered.push_back({{"--version"}, "Print the version", "", {}});
  }

  static std::vector<std::string> MonthWords() {
    std::vector<std::string> words;
    const Texts english = TextsEnglish();
    for (std::string month : english.months) {
      month[0] = static_cast<char>(month[0] - 'A' + 'a');
      words.push_back(month);
    }
    return words;
  }

  // "-m" without a value, or with a year, is another program's way to begin weeks on Monday.
  void TakeMonth(Text text) {
    m_given.emplace_back("-m", kPages);
    if (text.empty() || text == "true" || YearNumber(text)) {
      m_options.board.firstDay = eCalendarWeekMonday;
    }
    if (!text.empty() && text != "true") {
      m_month = text;
    }
  }

  void TakeArguments() {
    std::vector<std::string> arguments = m_arguments;
    if (!m_month.empty()) {
      arguments.insert(arguments.begin(), m_month);
    }
    if (arguments.empty()) {
      return;
    }
    m_options.when = ReadWhen(arguments, TextsFor(m_options.board.language, true));
    const bool yearOnly = !m_options.when.month;
    m_given.emplace_back(arguments.back(), yearOnly ? kPages | kTakesYear : kPages);
    if ((UseOf(m_options.task) & kTakesYear) != 0 && yearOnly) {
      m_options.year = m_options.when.year;
    } else if (yearOnly) {
      SetTask(Task::kShowYear, arguments.back());
    } else if (!Given("--mode")) {
      m_options.board.mode = eDispMonthWholeMonth;
    }
  }

  void SetTask(Task task, const std::string& option) {
    const bool same = task == m_options.task;
    if (!m_taskOption.empty() && !same) {
      Reject(option, "cannot be combined with " + m_taskOption);
    }
    m_options.task = task;
    m_taskOption = option;
  }

  bool Given(const std::string& name) const {
    return std::any_of(m_given.begin(), m_given.end(),
                       [&name](const auto& given) { return given.first == name; });
  }

  // What the configuration file chose gives way to what the arguments need.
  void GiveWay() {
    const auto has = [this](Use use) {
      return std::all_of(m_given.begin(), m_given.end(),
                         [use](const auto& given) { return (given.second & use) != 0; });
    };
    if (m_taskOption.empty() && m_options.task != Task::kPrintText && !has(UseOf(m_options.task))) {
      m_options.task = Task::kShowBoard;
    }
    const Use use = UseOf(m_options.task);
    if (!Given("--json") && (use & (kMonths | kScreen | kCalendar)) != 0) {
      m_options.json = false;
    }
    if (!Given("--dump") && (m_options.json || use == kScreen)) {
      m_options.dump = false;
    }
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
    if (Given("--year") && (UseOf(m_options.task) & kTakesYear) == 0) {
      Reject("--year", "is for --list, --lunar-date and --ics");
    }
    for (const auto& [name, use] : m_given) {
      if ((use & UseOf(m_options.task)) == 0) {
        Reject(name, m_taskOption.empty() ? "is not for a board"
                                          : "cannot be combined with " + m_taskOption);
      }
    }
    if (Given("--birthday") && m_options.lunar == LunarSource::kEngine) {
      Reject("--birthday", "cannot be combined with --lunar engine, which has no lunar birthdays");
    }
    CheckDates();
  }

  void CheckDates() const {
    const bool dated = m_options.when.month || m_options.when.year;
    if (m_options.task == Task::kShowYear && m_options.when.month) {
      Reject("-y", "shows a year, not a month");
    }
    if (dated && Given("--date")) {
      Reject("--date", "cannot be combined with a month or a year");
    }
    if (Given("--offset") && (dated || Given("--date"))) {
      Reject("--offset", "jumps from today, so it cannot be combined with a date");
    }
    const std::array<bool, 7>& breaks = m_options.board.breakDays;
    if (m_options.board.hideBreakDays &&
        std::all_of(breaks.begin(), breaks.end(), [](bool day) { return day; })) {
      Reject("--hide-break-days", "would hide every day");
    }
  }

  // In the full screen the arrangement may change later.
  void CheckRows() {
    const EDispMonth mode = m_options.board.mode;
    const bool board = m_options.task == Task::kShowBoard;
    if (Given("--rows") && board && !HasRows(mode)) {
      Reject("--rows", "is for --mode rolling and tail");
    }
    if (Given("--passed-weeks") && board && !HasRows(mode)) {
      Reject("--passed-weeks", "is for --mode rolling");
    }
    if (Given("--passed-weeks") && m_options.board.passedWeeks >= m_options.board.rows) {
      Reject("--passed-weeks",
             "must be less than the " + std::to_string(m_options.board.rows) + " rows");
    }
    FitPassedWeeks();
  }

  // The rows must reach the week of the date itself.
  void FitPassedWeeks() {
    BoardOptions& board = m_options.board;
    board.passedWeeks = std::min(board.passedWeeks, board.rows - 1);
  }

  static constexpr const char* kFooter =
      "[12] is today, 16 with a dot a break day, 8* a festival among several months.\n"
      "Under a day stands its festival, its solar term or its lunar day: L25 is the\n"
      "25th of a lunar month, Moon 2 the first of the second. The locale decides\n"
      "where --language and --first-day do not. Regions: Chinese (simplified and\n"
      "traditional), German, English, Japanese, Korean, Russian, Thai, United States,\n"
      "Vietnamese. Defaults of your own:\n"
      "~/.config/almara/almara-board.toml, a line such as rows = 6 for each option.";
  static constexpr Use kTakesYear = kList | kBirthday | kCalendar;
  static constexpr int kYears = kLastYear - kFirstYear + 1;
  static constexpr int kHelpColumn = 24;
  static constexpr int kLargestOffset = 99999;
  static constexpr int kMostMonths = 99;
  static constexpr int kFewestColumns = 20;
  static constexpr int kMostColumns = 1000;
  static constexpr Word<ColorMode> kColorWords[] = {
      {"auto", ColorMode::kAuto}, {"always", ColorMode::kAlways}, {"never", ColorMode::kNever}};
  static constexpr Word<Shell> kShellWords[] = {
      {"bash", Shell::kBash}, {"zsh", Shell::kZsh}, {"fish", Shell::kFish}};

  Options& m_options;
  Source m_source;
  CLI::App m_app{"A calendar for the terminal with lunar dates, solar terms and festivals."};
  std::string m_group;
  std::vector<std::string> m_arguments;
  std::string m_month;       // the value of -m
  std::string m_taskOption;  // what chose the task
  std::vector<std::pair<std::string, Use>> m_given;
  std::vector<OptionEntry> m_offered;
  bool m_readsConfiguration = true;
};

// The arguments on top of the defaults. `readsConfiguration` is false if they ask for none.
Options ParseArguments(int argc, const char* const* argv, const Options& defaults,
                       bool& readsConfiguration) {
  Options options = defaults;
  CommandLine commandLine(options, CommandLine::Source::kArguments);
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
  } catch (const CLI::ExtrasError&) {
    throw UsageError("unknown argument '" + commandLine.FirstUnknown() +
                     "'; see almara-board --help");
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  readsConfiguration = commandLine.ReadsConfiguration();
  return options;
}

// The defaults with what the configuration file, if there is one, says instead.
Options Configured(const Options& defaults) {
  const std::string path = ConfigurationPath();
  std::ifstream file(path);
  if (path.empty() || !file) {
    return defaults;
  }
  Options options = defaults;
  try {
    CommandLine(options, CommandLine::Source::kFile).ParseFile(file);
  } catch (const CLI::ArgumentMismatch& mismatch) {
    throw UsageError(path + ": " + MismatchText(mismatch.what()));
  } catch (const std::exception& error) {
    throw UsageError(path + ": " + error.what());
  }
  return options;
}

}  // namespace

Options ParseCommandLine(int argc, const char* const* argv, const Options& defaults) {
  bool readsConfiguration = true;
  Options options = ParseArguments(argc, argv, defaults, readsConfiguration);
  if (options.task == Task::kPrintText || !readsConfiguration) {
    return options;
  }
  return ParseArguments(argc, argv, Configured(defaults), readsConfiguration);
}

}  // namespace almara::viewer
