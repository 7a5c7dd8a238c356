// SPDX-License-Identifier: MIT
#include "option_values.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <regex>
#include <sstream>
#include <system_error>

namespace almara::viewer {
namespace {

std::optional<int> Number(const std::string& text, int lowest, int highest) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  const bool whole = error == std::errc{} && rest == end;
  return whole && number >= lowest && number <= highest ? std::optional<int>(number) : std::nullopt;
}

std::string InLowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// Whether the text is the name or the beginning of it that tells it apart.
bool Names(const std::string& text, const std::string& name) {
  constexpr std::size_t kFewestLetters = 3;
  return text == name || (text.size() >= kFewestLetters &&
                          InLowerCase(name.substr(0, text.size())) == InLowerCase(text));
}

[[noreturn]] void RejectArgument(const std::string& text, const std::string& problem) {
  throw UsageError("'" + text + "' " + problem + "; see almara-board --help");
}

// Whether these are characters of UTF-8, none of them a control character.
bool IsUtf8Line(const std::string& text) {
  int following = 0;  // bytes that the character still lacks
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool continues = byte >= 0x80 && byte < 0xC0;
    const bool control = byte < 0x20 || byte == 0x7F;
    if (continues != (following > 0) || control || byte == 0xC0 || byte == 0xC1 || byte > 0xF4) {
      return false;
    }
    following = continues ? following - 1 : byte < 0xC0 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  }
  return following == 0;
}

int MonthOrReject(const std::string& text, const Texts& texts) {
  const std::optional<int> month = MonthNumber(text, texts);
  if (!month) {
    RejectArgument(text, "is not a month");
  }
  return *month;
}

int YearOrReject(const std::string& text) {
  const std::optional<int> year = YearNumber(text);
  if (!year) {
    RejectArgument(text, "is not a year from 1900 to 2099");
  }
  return *year;
}

// Of "2024-02", and nothing of any other text.
std::optional<When> MonthAndYear(const std::string& text, const Texts& texts) {
  static const std::regex kMonth(R"((\d{4})-(\d{1,2}))");
  std::smatch match;
  if (!std::regex_match(text, match, kMonth)) {
    return std::nullopt;
  }
  const std::optional<int> year = YearNumber(match[1]);
  const std::optional<int> month = MonthNumber(match[2], texts);
  return year && month ? std::optional<When>({std::nullopt, month, year}) : std::nullopt;
}

When ReadOne(const std::string& text, const Texts& texts) {
  if (const std::optional<When> month = MonthAndYear(text, texts)) {
    return *month;
  }
  if (const std::optional<CivilDate> date = ParseDate(text).date) {
    return {date->day, date->month, date->year};
  }
  if (const std::optional<int> year = YearNumber(text)) {
    return {std::nullopt, std::nullopt, year};
  }
  if (const std::optional<int> month = MonthNumber(text, texts)) {
    return {std::nullopt, month, std::nullopt};
  }
  RejectArgument(text, "is neither a month nor a year from 1900 to 2099");
}

}  // namespace

std::string Joined(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) {
    list += (list.empty() ? "" : ", ") + text;
  }
  return list;
}

int ReadNumber(const std::string& option, const std::string& text, int lowest, int highest) {
  const std::optional<int> number = Number(text, lowest, highest);
  if (!number) {
    Reject(option, "expected a number from " + std::to_string(lowest) + " to " +
                       std::to_string(highest) + ", not '" + text + "'");
  }
  return *number;
}

CivilDate ReadDate(const std::string& option, const std::string& text) {
  const ParsedDate parsed = ParseDate(text);
  if (!parsed.date) {
    Reject(option, parsed.problem);
  }
  return *parsed.date;
}

CCalendarLunarDate ReadLunarDate(const std::string& option, const std::string& text) {
  static const std::regex kPattern(R"((?:(\d{4})-)?(leap)?(\d{1,2})-(\d{1,2}))");
  std::smatch match;
  const bool matches = std::regex_match(text, match, kPattern);
  const std::optional<int> year = matches ? YearNumber(match[1]) : std::nullopt;
  const std::optional<int> month = matches ? Number(match[3], 1, 12) : std::nullopt;
  const std::optional<int> day = matches ? Number(match[4], 1, 30) : std::nullopt;
  if (!month || !day || (match[1].matched && !year)) {
    Reject(option,
           "expected a lunar date such as 8-15, leap4-1 or 1984-leap10-15, not '" + text + "'");
  }
  return {year.value_or(0), *month, *day, 0, match[2].matched ? 1 : 0};
}

LunarBirthday ReadBirthday(const std::string& option, const std::string& text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string::npos || sign + 1 == text.size()) {
    Reject(option, "expected a lunar date and a name, such as 8-15=Name, not '" + text + "'");
  }
  const std::string name = text.substr(sign + 1);
  if (!IsUtf8Line(name)) {
    Reject(option, "the name is not a line of UTF-8");
  }
  return {ReadLunarDate(option, text.substr(0, sign)), name};
}

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

std::optional<int> MonthNumber(const std::string& text, const Texts& texts) {
  const Texts english = TextsEnglish();
  for (int month = 1; month <= 12; ++month) {
    if (Names(text, Month(english, month)) || text == Month(texts, month) ||
        text == MonthInDate(texts, month) || text == ShortMonth(texts, month)) {
      return month;
    }
  }
  return Number(text, 1, 12);
}

std::optional<int> YearNumber(const std::string& text) {
  return Number(text, kFirstYear, kLastYear);
}

When ReadWhen(const std::vector<std::string>& arguments, const Texts& texts) {
  if (arguments.empty()) {
    return {};
  }
  if (arguments.size() == 1) {
    return ReadOne(arguments[0], texts);
  }
  constexpr std::size_t kMost = 3;
  const std::size_t count = arguments.size();
  if (count > kMost) {
    throw UsageError("unknown argument '" + arguments[kMost] + "'; see almara-board --help");
  }
  When when = {std::nullopt, MonthOrReject(arguments[count - 2], texts),
               YearOrReject(arguments[count - 1])};
  if (count > 2) {
    when.day = ReadNumber("day", arguments[0], 1, DaysInMonth(*when.year, *when.month));
  }
  return when;
}

}  // namespace almara::viewer
