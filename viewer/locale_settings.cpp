// SPDX-License-Identifier: MIT
#include "locale_settings.h"

#include <langinfo.h>

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <initializer_list>

namespace almara::viewer {
namespace {

// The first variable of the list that is set and not empty, as POSIX has it.
std::string FirstSet(std::initializer_list<const char*> variables) {
  for (const char* variable : variables) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') {
      return value;
    }
  }
  return {};
}

bool NamesUtf8(std::string localeName) {
  std::transform(localeName.begin(), localeName.end(), localeName.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return localeName.find("utf-8") != std::string::npos ||
         localeName.find("utf8") != std::string::npos;
}

bool LocaleIsUtf8() { return std::string(nl_langinfo(CODESET)) == "UTF-8"; }

// glibc knows the day that its lists of weekdays begin with, as a date, and the first day of the
// week as a place in that list. "C" begins its weeks on Sunday only for want of a wish.
ECalendarWeek FirstDayOfLocale() {
  const std::string name = std::setlocale(LC_TIME, nullptr);
  if (name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0) {
    return eCalendarWeekMonday;
  }
  // This one item is a number of 32 bits at the beginning of the pointer; the rest may be anything.
  const char* item = nl_langinfo(_NL_TIME_WEEK_1STDAY);
  std::uint32_t listBegin = 0;
  std::memcpy(&listBegin, &item, sizeof listBegin);
  constexpr std::uint32_t kSunday = 19971130;
  const int place = *nl_langinfo(_NL_TIME_FIRST_WEEKDAY) - 1;
  return (place + (listBegin == kSunday ? 0 : 1)) % 7;
}

bool LinesAreNarrow() { return wcwidth(L'\u2500') == 1 && wcwidth(L'\u00b7') == 1; }

}  // namespace

LocaleSettings UseLocale() {
  if (std::setlocale(LC_ALL, "") == nullptr) {
    // The user's locale is not installed here; a terminal that is said to be UTF-8 still is.
    std::setlocale(LC_ALL, "C");
    if (NamesUtf8(FirstSet({"LC_ALL", "LC_CTYPE", "LANG"}))) {
      std::setlocale(LC_CTYPE, "C.UTF-8");
    }
  }
  return {LanguageOfLocale(FirstSet({"LC_ALL", "LC_TIME", "LANG"})), LocaleIsUtf8(),
          LinesAreNarrow(), FirstDayOfLocale()};
}

ELanguage LanguageOfLocale(const std::string& name) {
  struct Rule {
    const char* prefix;
    ELanguage language;
  };
  // The first match counts, so a script or a territory stands before its language.
  constexpr Rule kRules[] = {
      {"zh_Hant", eLanguageCht}, {"zh_TW", eLanguageCht}, {"zh_HK", eLanguageCht},
      {"zh_MO", eLanguageCht},   {"zh", eLanguageChs},    {"ko", eLanguageKor},
      {"ja", eLanguageJpn},      {"vi", eLanguageVit},    {"th", eLanguageTha},
      {"ru", eLanguageRus},      {"de", eLanguageDeu},    {"en_US", eLanguageUsa},
  };
  const std::string locale = name.substr(0, name.find_first_of(".@"));
  for (const Rule& rule : kRules) {
    const std::string prefix = rule.prefix;
    if (locale == prefix || locale.rfind(prefix + "_", 0) == 0) {
      return rule.language;
    }
  }
  return eLanguageEng;
}

}  // namespace almara::viewer
