// SPDX-License-Identifier: MIT
#include "program.h"

#include <ctime>
#include <stdexcept>
#include <string>

#include "annotations.h"
#include "birthdays.h"
#include "board_host.h"
#include "board_painter.h"
#include "calendar_events.h"
#include "error_report.h"
#include "icalendar.h"
#include "json_output.h"
#include "listing.h"
#include "month_grid.h"
#include "output.h"
#include "tui.h"

namespace almara::viewer {
namespace {

constexpr int kIndent = 4;  // of the second line of a text that one line has no room for

class Program {
 public:
  Program(const Options& options, const LocaleSettings& locale)
      : m_options(options),
        m_utf8(locale.utf8),
        m_texts(TextsFor(options.board.language, locale.utf8)),
        m_annotator(options.board.language, options.lunar) {
    m_settings.width = options.columns.value_or(OutputColumns());
    m_settings.weekNumbers = options.weekNumbers;
    m_settings.texts = &m_texts;
    m_settings.glyphs = &GlyphsFor(locale.utf8 && locale.narrowLines && !options.ascii);
    m_settings.annotator = options.annotations ? &m_annotator : nullptr;
  }

  void Run() {
    StartEngine(m_options.board, m_options.dump);
    CheckClock();
    CheckOffsets();
    switch (m_options.task) {
      case Task::kShowBoard:
        ShowBoard();
        break;
      case Task::kShowMonths:
        ShowMonths();
        break;
      case Task::kShowYear:
        ShowYear();
        break;
      case Task::kShowDay:
        ShowDay();
        break;
      case Task::kListYear:
        ListYear();
        break;
      case Task::kShowBirthday:
        ShowBirthday();
        break;
      case Task::kWriteCalendar:
        WriteCalendar();
        break;
      case Task::kFullScreen:
        Navigate();
        RunTui(m_options, m_settings);
        break;
      case Task::kPrintText:
        break;
    }
  }

 private:
  bool IsDated() const {
    return m_options.date || m_options.year || m_options.when.year ||
           m_options.task == Task::kShowDay;
  }

  // What is asked for without a date is about today.
  void CheckClock() const {
    const CivilDate today = ReadToday();
    if (!IsDated() && !IsInCalendar(today)) {
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

  // The day to show: the one that was asked for, or today.
  CivilDate Focus() const {
    if (m_options.date) {
      return *m_options.date;
    }
    const CivilDate today = ReadToday();
    const When& when = m_options.when;
    if (!when.year && !when.month) {
      return today;
    }
    return {when.year.value_or(today.year), when.month.value_or(1), when.day.value_or(1)};
  }

  void Navigate() const {
    if (m_options.date || m_options.when.year || m_options.when.month) {
      ShowDate(m_options.board, Focus());
    }
    for (const Step& step : m_options.steps) {
      TakeStepOrReject(step);
    }
  }

  // At the ends of the calendar the engine leaves the board as it is.
  void TakeStepOrReject(const Step& step) const {
    const std::vector<CivilDate> before = ShownDays(ReadBoard(m_options.board));
    TakeStep(step);
    if (step.kind != Step::Kind::kOffset && ShownDays(ReadBoard(m_options.board)) == before) {
      throw UsageError(step.kind == Step::Kind::kNext
                           ? "--next: the calendar ends with 2099"
                           : "--previous: the calendar begins with 1900");
    }
  }

  void ShowBoard() {
    Navigate();
    const BoardSnapshot board = ReadBoard(m_options.board);
    if (m_options.json) {
      Write(BoardJson(board, m_annotator, !m_utf8));
      return;
    }
    const PaintedBoard painted = PaintBoard(board, m_settings);
    std::vector<Line> lines = {painted.title, painted.headings};
    for (const auto& row : painted.rows) {
      Append(lines, row);
    }
    AppendLegend(lines, ShownDays(board));
    Print(lines);
  }

  void AppendLegend(std::vector<Line>& lines, const std::vector<CivilDate>& days) {
    if (!m_options.annotations) {
      return;
    }
    const std::vector<Line> legend =
        LegendLines(NamedDays(days, m_annotator), m_texts, m_settings.width);
    if (!legend.empty()) {
      lines.emplace_back();
      Append(lines, legend);
    }
  }

  // The boards of some months that follow each other, as far as the calendar goes.
  std::vector<BoardSnapshot> MonthBoards(CivilDate first, int count) const {
    BoardOptions options = m_options.board;
    options.mode = eDispMonthWholeMonth;
    options.monthIntervals = true;
    ApplyOptions(options);
    std::vector<BoardSnapshot> boards;
    const int begin = MonthNumberOf(first);
    for (int month = begin; month < begin + count; ++month) {
      const CivilDate date = FirstOfMonth(month);
      if (IsInCalendar(date)) {
        ShowDate(options, date);
        boards.push_back(MonthAlone(ReadBoard(options)));
      }
    }
    return boards;
  }

  void ShowMonths() {
    const CivilDate first = FirstOfMonth(MonthNumberOf(Focus()) - m_options.monthsBefore);
    const std::vector<BoardSnapshot> boards =
        MonthBoards(first, m_options.monthsBefore + 1 + m_options.monthsAfter);
    std::vector<Line> lines = MonthGridLines(boards, false, m_settings);
    std::vector<CivilDate> days;
    for (const BoardSnapshot& board : boards) {
      const std::vector<CivilDate> shown = ShownDays(board);
      days.insert(days.end(), shown.begin(), shown.end());
    }
    AppendLegend(lines, days);
    Print(lines);
  }

  void ShowYear() {
    const int year = Focus().year;
    Print(MonthGridLines(MonthBoards({year, 1, 1}, 12), true, m_settings));
  }

  void ShowDay() {
    BoardOptions month = m_options.board;
    month.mode = eDispMonthWholeMonth;
    month.hideBreakDays = false;
    ApplyOptions(month);
    ShowDate(month, m_options.day);
    const BoardSnapshot board = ReadBoard(month);
    const tagCalendarCell* cell = FindDay(board, m_options.day);
    const bool almanac = m_annotator.Source() == LunarSource::kAlmanac;
    const DayReport report = {
        m_options.day,
        board.today,
        cell != nullptr ? cell->weekNumber : -1,
        m_annotator.Source(),
        m_annotator.Annotate(m_options.day),
        m_annotator.AnnotateByOther(m_options.day),
        almanac ? InstantsOf(m_annotator.Calendar(), m_options.day) : DayInstants{}};
    if (m_options.json) {
      Write(DayJson(report, m_options.board.language, !m_utf8));
    } else {
      Print(DayLines(report, m_texts));
    }
  }

  void ListYear() {
    const CivilDate today = ReadToday();
    const int year = m_options.year.value_or(today.year);
    const std::vector<NamedDay> days = NamedDaysOfYear(year, m_annotator);
    if (m_options.json) {
      Write(YearJson(year, today, days, m_options.board.language, !m_utf8));
    } else {
      std::vector<Line> lines = YearLines(year, today, days, m_texts);
      AppendPublished(lines, year);
      Print(lines);
    }
  }

  // Under the engine's list what the published calendar has otherwise.
  void AppendPublished(std::vector<Line>& lines, int year) {
    if (m_annotator.Source() == LunarSource::kAlmanac) {
      return;
    }
    const std::vector<NamedDay> days = DaysNamedByOther(year, m_annotator);
    if (!days.empty()) {
      lines.emplace_back();
      lines.push_back({{m_texts.byAlmanac, Role::kTitle}});
      Append(lines, LegendLines(days, m_texts, m_settings.width));
    }
  }

  void CheckBirth(const std::string& option, const LunarBirthday& birthday) const {
    if (birthday.date.year != 0 && !BirthOf(m_annotator.Calendar(), birthday)) {
      throw UsageError(option + ": the year " + std::to_string(birthday.date.year) +
                       " has no such lunar day");
    }
  }

  // The day of birth, where its year is known, and the anniversaries from today or from a year on.
  void ShowBirthday() {
    constexpr int kAnniversaries = 10;
    const EAlmanacCalendar calendar = m_annotator.Calendar();
    const LunarBirthday& birthday = m_options.birthday;
    const CivilDate today = ReadToday();
    CheckBirth("--lunar-date", birthday);
    const std::optional<Anniversary> birth = BirthOf(calendar, birthday);
    const CivilDate first = m_options.year ? CivilDate{*m_options.year, 1, 1} : today;
    BirthdayReport report = {birthday, today,
                             AnniversariesOf(calendar, birthday, first, kLastDate,
                                             m_options.years.value_or(kAnniversaries))};
    if (birth && (report.days.empty() || report.days.front().date != birth->date)) {
      report.days.insert(report.days.begin(), *birth);
    }
    if (m_options.json) {
      Write(BirthdayJson(report, m_options.board.language, !m_utf8));
    } else {
      Print(BirthdayLines(report, m_texts));
    }
  }

  void WriteCalendar() {
    const int first = m_options.year.value_or(ReadToday().year);
    const int last = first + m_options.years.value_or(1) - 1;
    if (last > kLastYear) {
      throw UsageError("--years: " + std::to_string(*m_options.years) + " from " +
                       std::to_string(first) + " on lead outside the years 1900 to 2099");
    }
    for (const LunarBirthday& birthday : m_options.birthdays) {
      CheckBirth("--birthday", birthday);
    }
    const std::vector<CalendarEvent> events =
        EventsOfYears(first, last, m_options.board.language, m_annotator, m_options.birthdays);
    Write(ICalendarText(events, std::time(nullptr)));
  }

  void Print(const std::vector<Line>& lines) const {
    std::vector<Line> fitting;
    for (const Line& line : lines) {
      Append(fitting, Wrapped(line, m_settings.width, kIndent));
    }
    Write(fitting, PaletteFor(m_options.color));
  }

  const Options& m_options;
  bool m_utf8;
  const Texts m_texts;
  Annotator m_annotator;
  PaintSettings m_settings;
};

}  // namespace

void RunProgram(const Options& options, const LocaleSettings& locale) {
  if (options.task == Task::kPrintText) {
    Write(options.text);
  } else {
    Program(options, locale).Run();
  }
}

}  // namespace almara::viewer
