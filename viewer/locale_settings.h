// SPDX-License-Identifier: MIT
// What the user's locale says about region and terminal.
#pragma once

#include <almara/almara_types.h>

#include <string>

namespace viewer {

struct LocaleSettings {
  ELanguage language = eLanguageEng;
  bool utf8 = false;  // false: write ASCII only
};

// Activates the environment's locale for character widths and the screen, and reads it.
LocaleSettings useLocale();

// The region that a locale name such as "zh_TW.UTF-8" stands for; eLanguageEng for any other.
ELanguage languageOfLocale(const std::string& name);

}  // namespace viewer
