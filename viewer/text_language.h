// SPDX-License-Identifier: MIT
// The languages that the viewer has texts in.
#ifndef ALMARA_VIEWER_TEXT_LANGUAGE_H_
#define ALMARA_VIEWER_TEXT_LANGUAGE_H_

#include <almara/almara_types.h>

namespace almara::viewer {

enum class TextLanguage {
  kEnglish,
  kChineseSimplified,
  kChineseTraditional,
  kKorean,
  kJapanese,
  kVietnamese,
  kGerman,
  kRussian,
  kThai,  // the last one
};

// English for the regions where it is spoken.
constexpr TextLanguage TextLanguageOf(ELanguage region) {
  switch (region) {
    case eLanguageChs:
      return TextLanguage::kChineseSimplified;
    case eLanguageCht:
      return TextLanguage::kChineseTraditional;
    case eLanguageKor:
      return TextLanguage::kKorean;
    case eLanguageJpn:
      return TextLanguage::kJapanese;
    case eLanguageVit:
      return TextLanguage::kVietnamese;
    case eLanguageDeu:
      return TextLanguage::kGerman;
    case eLanguageRus:
      return TextLanguage::kRussian;
    case eLanguageTha:
      return TextLanguage::kThai;
    default:
      return TextLanguage::kEnglish;
  }
}

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TEXT_LANGUAGE_H_
