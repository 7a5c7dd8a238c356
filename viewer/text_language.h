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
};

// English for a region without texts of its own.
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
    default:
      return TextLanguage::kEnglish;
  }
}

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_TEXT_LANGUAGE_H_
