// SPDX-License-Identifier: MIT
#include "locale_settings.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace almara::viewer {
namespace {

TEST(LocaleSettings, LanguageFollowsTheLocaleName) {
  const struct {
    const char* name;
    ELanguage language;
  } kCases[] = {
      {"zh_CN.UTF-8", eLanguageChs},
      {"zh_SG", eLanguageChs},
      {"zh", eLanguageChs},
      {"zh_TW.UTF-8", eLanguageCht},
      {"zh_HK.big5", eLanguageCht},
      {"zh_MO@x", eLanguageCht},
      {"zh_Hant_TW.UTF-8", eLanguageCht},
      {"zh_Hans_CN", eLanguageChs},
      {"ko_KR.UTF-8", eLanguageKor},
      {"ja_JP.eucJP", eLanguageJpn},
      {"vi_VN", eLanguageVit},
      {"th_TH.UTF-8", eLanguageTha},
      {"ru_RU.UTF-8", eLanguageRus},
      {"ru_UA", eLanguageRus},
      {"de_AT.UTF-8", eLanguageDeu},
      {"en_US.UTF-8", eLanguageUsa},
      {"en_GB.UTF-8", eLanguageEng},
      {"fr_FR.UTF-8", eLanguageEng},
      {"C", eLanguageEng},
      {"POSIX", eLanguageEng},
      {"", eLanguageEng},
      {"kok_IN", eLanguageEng},
      {"deutsch", eLanguageEng},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(LanguageOfLocale(c.name), c.language) << c.name;
  }
}

TEST(LocaleSettings, VariablesCountInTheirOrder) {
  unsetenv("LC_ALL");
  setenv("LC_TIME", "ja_JP.UTF-8", 1);
  setenv("LANG", "de_DE.UTF-8", 1);
  EXPECT_EQ(UseLocale().language, eLanguageJpn);
  setenv("LC_TIME", "", 1);
  EXPECT_EQ(UseLocale().language, eLanguageDeu);
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(UseLocale().language, eLanguageEng);
  EXPECT_FALSE(UseLocale().utf8);
}

TEST(LocaleSettings, Utf8OfALocaleThatIsNotInstalled) {
  setenv("LC_ALL", "xx_XX.UTF-8", 1);
  EXPECT_TRUE(UseLocale().utf8);
  setenv("LC_ALL", "xx_XX", 1);
  EXPECT_FALSE(UseLocale().utf8);
}

}  // namespace
}  // namespace almara::viewer
