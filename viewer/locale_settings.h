// SPDX-License-Identifier: MIT
// What the user's locale says about region and terminal.
#ifndef ALMARA_VIEWER_LOCALE_SETTINGS_H_
#define ALMARA_VIEWER_LOCALE_SETTINGS_H_

#include <almara/almara_types.h>

#include <string>

namespace almara::viewer {

struct LocaleSettings {
  ELanguage language = eLanguageEng;
  bool utf8 = false;         // false: write ASCII only
  bool narrowLines = false;  // whether the signs of lines and marks take one cell
  ECalendarWeek firstDay = eCalendarWeekMonday;  // Monday also where the locale has no wish
};

// Activates the environment's locale for character widths and the screen, and reads it.
LocaleSettings UseLocale();

// The region that a locale name such as "zh_TW.UTF-8" stands for; eLanguageEng for any other.
ELanguage LanguageOfLocale(const std::string& name);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_LOCALE_SETTINGS_H_
