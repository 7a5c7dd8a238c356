// SPDX-License-Identifier: MIT
#include "text_layout.h"

#include <gtest/gtest.h>

#include <clocale>

namespace almara::viewer {
namespace {

class TextLayout : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

TEST_F(TextLayout, WidthCountsTerminalCells) {
  EXPECT_EQ(DisplayWidth(""), 0);
  EXPECT_EQ(DisplayWidth("March"), 5);
  EXPECT_EQ(DisplayWidth("春分"), 4);
  EXPECT_EQ(DisplayWidth("설날"), 4);
  EXPECT_EQ(DisplayWidth("Đông chí"), 8);
  EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1);  // a combining accent
  EXPECT_EQ(DisplayWidth("\xFF"), 1);       // not UTF-8
}

TEST_F(TextLayout, ShortensAtWholeCharacters) {
  EXPECT_EQ(Shorten("Mother's Day", 12, "…"), "Mother's Day");
  EXPECT_EQ(Shorten("Mother's Day", 9, "…"), "Mother's…");
  EXPECT_EQ(Shorten("端午节", 5, "…"), "端午…");
  EXPECT_EQ(Shorten("端午节", 4, "…"), "端…");  // one cell stays free
  EXPECT_EQ(Shorten("端午节", 1, "…"), "");
  EXPECT_EQ(Shorten("端午节", 3, ""), "端");
  EXPECT_EQ(Shorten("March", 0, "…"), "");
}

TEST_F(TextLayout, FitsExactly) {
  EXPECT_EQ(Fit("春分", 6, "…"), "春分  ");
  EXPECT_EQ(Fit("9", 3, "…", Align::kRight), "  9");
  EXPECT_EQ(Fit("9", 4, "…", Align::kCenter), " 9  ");
  EXPECT_EQ(Fit("端午节", 4, "…"), "端… ");
}

TEST_F(TextLayout, FillsPatterns) {
  EXPECT_EQ(FillPattern("{y}年{m}月", {{'y', "2024"}, {'m', "3"}}), "2024年3月");
  EXPECT_EQ(FillPattern("{d} {M}", {{'M', "March"}, {'d', "1"}}), "1 March");
  EXPECT_EQ(FillPattern("plain", {}), "plain");
}

}  // namespace
}  // namespace almara::viewer
