// SPDX-License-Identifier: MIT
// Reads the values of options. What cannot be read throws a UsageError that names the option.
#ifndef ALMARA_VIEWER_OPTION_VALUES_H_
#define ALMARA_VIEWER_OPTION_VALUES_H_

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "board_options.h"
#include "civil_date.h"
#include "error_report.h"
#include "options.h"
#include "texts.h"

namespace almara::viewer {

[[noreturn]] inline void Reject(const std::string& option, const std::string& problem) {
  throw UsageError(option + ": " + problem);
}

template <typename Words>
std::vector<std::string> TextsOf(const Words& words) {
  std::vector<std::string> texts;
  for (const auto& word : words) {
    texts.emplace_back(word.text);
  }
  return texts;
}

// "a, b, c"
std::string Joined(const std::vector<std::string>& texts);

template <typename Words>
auto ReadWord(const std::string& option, const std::string& text, const Words& words) {
  for (const auto& word : words) {
    if (text == word.text) {
      return word.value;
    }
  }
  Reject(option, "expected one of " + Joined(TextsOf(words)) + ", not '" + text + "'");
}

int ReadNumber(const std::string& option, const std::string& text, int lowest, int highest);

CivilDate ReadDate(const std::string& option, const std::string& text);

// "8-15", "leap4-1", "1984-10-15" or "1984-leap10-15".
CCalendarLunarDate ReadLunarDate(const std::string& option, const std::string& text);

// "8-15=Name", the name in UTF-8 and without control characters.
LunarBirthday ReadBirthday(const std::string& option, const std::string& text);

// "sat,sun", or "none".
std::array<bool, 7> ReadBreakDays(const std::string& option, const std::string& text);

// A number from 1 to 12, or a name of at least three letters, in English or as in the texts.
std::optional<int> MonthNumber(const std::string& text, const Texts& texts);

// A year of the calendar.
std::optional<int> YearNumber(const std::string& text);

// Up to three arguments: [[day] month] year, a month alone, YYYY-MM or YYYY-MM-DD.
When ReadWhen(const std::vector<std::string>& arguments, const Texts& texts);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_OPTION_VALUES_H_
