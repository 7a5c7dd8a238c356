// SPDX-License-Identifier: MIT
//
// Shows the month of a date (today, if none is given) with week numbers, and what that date is in
// the lunisolar calendar: a complete host of the calendar engine in C++.
#include <almara/almara_names.h>

#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>

namespace {

const std::string kMonths[] = {"January",   "February", "March",    "April",
                               "May",       "June",     "July",     "August",
                               "September", "October",  "November", "December"};
const std::string kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

bool BuildBoard(const char* date) {
  SetPrintBoard(false);  // the engine would write every board to the standard output, too
  SetCivilDays(true);
  SetDispMonth(eDispMonthWholeMonth);
  SetShowMonthInterval(false);
  InitCalendarLogicDt(eLanguageChs);
  if (date == nullptr) {
    return true;
  }
  int year = 0, month = 0, day = 0;
  if (std::sscanf(date, "%d-%d-%d", &year, &month, &day) != 3) {
    return false;
  }
  GotoSpecifiedDate(year, month, day);
  return true;
}

// " 9", "10." for a break day, "[11]" for today.
std::string CellText(const tagCalendarCell& cell) {
  const std::string number = (cell.day < 10 ? " " : "") + std::to_string(cell.day);
  switch (cell.type) {
    case eCalendarItemDay:
      return " " + number;
    case eCalendarItemToday:
      return "[" + number + "]";
    case eCalendarItemBreakDay:
      return " " + number + ".";
    case eCalendarItemTodayBreakDay:
      return "[" + number + "].";
    default:
      return "";
  }
}

void PrintBoard(std::ostream& out) {
  const int columns = GetContentColumns();
  const CCalendarSolarDate date = GetContentDate();
  const std::string title = kMonths[date.month - 1] + " " + std::to_string(date.year);
  const std::size_t width = 7 + 10 * static_cast<std::size_t>(columns);
  out << std::string((width - title.size()) / 2, ' ') << title << "\n   Wk  ";
  for (int column = 0; column < columns; ++column) {
    out << " " << std::left << std::setw(9) << kDays[GetCalendarWeekByColumns(column)];
  }
  out << '\n';
  int row = 0;
  for (int index = 0; index < GetWeekNumberCount(); ++index) {
    const tagWeekNumberSpan span = GetWeekNumberItemWithIndex(index);
    for (const int end = row + span.rows; row < end; ++row) {
      out << std::right << std::setw(5) << span.weekNumber << "  ";
      for (int column = 0; column < columns; ++column) {
        out << std::left << std::setw(10) << CellText(GetContentItem(row, column));
      }
      out << '\n';
    }
  }
}

void PrintAnnotations(std::ostream& out, const CCalendarSolarDate& date) {
  const CCalendarLunarDate lunar = ConverterLunarWithDate(date);
  out << date.year << std::setfill('0') << std::right << '-' << std::setw(2) << date.month << '-'
      << std::setw(2) << date.day << ": lunar " << lunar.year << '-' << lunar.month << '-'
      << lunar.day << (lunar.leap != 0 ? " in a leap month" : "");
  for (const char* name :
       {AlmaraSolarTermName(Check24SekkiWithDate(date), eLanguageEng),
        AlmaraFestivalName(CheckFestivalSolarWithLang(eLanguageChs, date), eLanguageEng),
        AlmaraFestivalName(CheckFestivalLunarWithLang(eLanguageChs, date), eLanguageEng)}) {
    if (name != nullptr) {  // a date without a term or a festival has a code that has no name
      out << ", " << name;
    }
  }
  out << '\n';
}

void PrintOptions(std::ostream& out) {
  const std::unique_ptr<char, decltype(&std::free)> key(GetConfigKey(), &std::free);
  out << "options " << (key != nullptr ? key.get() : "unknown") << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  if (!BuildBoard(argc > 1 ? argv[1] : nullptr)) {
    std::cerr << "usage: board [YYYY-MM-DD]\n";
    return 2;
  }
  PrintBoard(std::cout);
  PrintAnnotations(std::cout, GetContentDate());
  PrintOptions(std::cout);
  return std::cout.flush() ? 0 : 1;
}
