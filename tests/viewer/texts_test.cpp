// SPDX-License-Identifier: MIT
#include "texts.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

namespace almara::viewer {
namespace {

// Every text of a language in the order of the fields; all but the first field are pointers.
std::vector<const char*> AllTexts(const Texts& texts) {
  constexpr std::size_t kBegin = offsetof(Texts, weekdays);
  std::vector<const char*> all((sizeof(Texts) - kBegin) / sizeof(const char*));
  std::memcpy(all.data(), reinterpret_cast<const char*>(&texts) + kBegin, sizeof(Texts) - kBegin);
  return all;
}

TEST(Texts, NoLanguageLacksAnEntry) {
  constexpr std::size_t kLunarNames = offsetof(Texts, lunarMonths) / sizeof(const char*) - 1;
  constexpr std::size_t kEndOfLunarNames = kLunarNames + 12 + 30;
  for (const Texts& texts :
       {TextsEnglish(), TextsChineseSimplified(), TextsChineseTraditional(), TextsKorean(),
        TextsJapanese(), TextsVietnamese(), TextsGerman(), TextsRussian(), TextsThai()}) {
    const std::vector<const char*> all = AllTexts(texts);
    const bool namesLunarDays = texts.lunarMonths[0] != nullptr;
    for (std::size_t index = 0; index < all.size(); ++index) {
      const bool lunarName = index >= kLunarNames && index < kEndOfLunarNames;
      EXPECT_EQ(all[index] != nullptr, !lunarName || namesLunarDays)
          << "of language " << texts.language << " after "
          << (index == 0 || all[index - 1] == nullptr ? "nothing" : all[index - 1]);
    }
  }
}

}  // namespace
}  // namespace almara::viewer
