// SPDX-License-Identifier: MIT
#include "styled_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

namespace almara::viewer {
namespace {

std::vector<std::string> WrappedTexts(const Line& line, int width) {
  std::vector<std::string> texts;
  for (const Line& wrapped : Wrapped(line, width, 2)) {
    EXPECT_LE(WidthOf(wrapped), width);
    texts.emplace_back();
    for (const Piece& piece : wrapped) {
      texts.back() += piece.text;
    }
  }
  return texts;
}

class StyledText : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

TEST_F(StyledText, ALineThatFitsStaysAsItIs) {
  EXPECT_EQ(WrappedTexts({{"two"}, {" words"}}, 9), std::vector<std::string>{"two words"});
}

TEST_F(StyledText, WrapsAtBlanks) {
  const std::vector<std::string> expected = {"one two ", "  three ", "  four"};
  EXPECT_EQ(WrappedTexts({{"one two "}, {"three four"}}, 8), expected);
}

TEST_F(StyledText, PaddingThatDoesNotFitPartsTheWordsAroundIt) {
  const std::vector<std::string> expected = {"q", "  leave"};
  EXPECT_EQ(WrappedTexts({{"q          "}, {"leave"}}, 8), expected);
}

TEST_F(StyledText, BreaksAWordThatAloneIsTooWide) {
  const std::vector<std::string> expected = {"a ", "  国际劳", "  动节"};
  EXPECT_EQ(WrappedTexts({{"a 国际劳动节"}}, 8), expected);
}

TEST_F(StyledText, PiecesKeepTheirRole) {
  const std::vector<Line> lines = Wrapped({{"day "}, {"Equinox", Role::kSolarTerm}}, 9, 2);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[1].back().role, Role::kSolarTerm);
}

}  // namespace
}  // namespace almara::viewer
