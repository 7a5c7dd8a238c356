// SPDX-License-Identifier: MIT
#include "text_layout.h"

#include <gtest/gtest.h>

#include <clocale>

namespace viewer {
namespace {

class TextLayout : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

TEST_F(TextLayout, WidthCountsTerminalCells) {
  EXPECT_EQ(displayWidth(""), 0);
  EXPECT_EQ(displayWidth("March"), 5);
  EXPECT_EQ(displayWidth("春分"), 4);
  EXPECT_EQ(displayWidth("설날"), 4);
  EXPECT_EQ(displayWidth("Đông chí"), 8);
  EXPECT_EQ(displayWidth("e\xCC\x81"), 1);  // a combining accent
  EXPECT_EQ(displayWidth("\xFF"), 1);       // not UTF-8
}

TEST_F(TextLayout, ShortensAtWholeCharacters) {
  EXPECT_EQ(shorten("Mother's Day", 12, "…"), "Mother's Day");
  EXPECT_EQ(shorten("Mother's Day", 9, "…"), "Mother's…");
  EXPECT_EQ(shorten("端午节", 5, "…"), "端午…");
  EXPECT_EQ(shorten("端午节", 4, "…"), "端…");  // one cell stays free
  EXPECT_EQ(shorten("端午节", 1, "…"), "");
  EXPECT_EQ(shorten("端午节", 3, ""), "端");
  EXPECT_EQ(shorten("March", 0, "…"), "");
}

TEST_F(TextLayout, FitsExactly) {
  EXPECT_EQ(fit("春分", 6, "…"), "春分  ");
  EXPECT_EQ(fit("9", 3, "…", Align::Right), "  9");
  EXPECT_EQ(fit("9", 4, "…", Align::Center), " 9  ");
  EXPECT_EQ(fit("端午节", 4, "…"), "端… ");
}

TEST_F(TextLayout, FillsPatterns) {
  EXPECT_EQ(fillPattern("{y}年{m}月", {{'y', "2024"}, {'m', "3"}}), "2024年3月");
  EXPECT_EQ(fillPattern("{d} {M}", {{'M', "March"}, {'d', "1"}}), "1 March");
  EXPECT_EQ(fillPattern("plain", {}), "plain");
}

}  // namespace
}  // namespace viewer
