// SPDX-License-Identifier: Apache-2.0
//
// Columns that stand below each other in scripts of any width.
#include "language/display_width.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

using language::display_width;
using language::Labels;
using language::padded;

namespace {

class DisplayWidth : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
};

}  // namespace

TEST_F(DisplayWidth, IsOneForALetterOfAnyNumberOfBytes) {
  EXPECT_EQ(display_width("Paper"), 5U);
  EXPECT_EQ(display_width("Größe"), 5U);
  EXPECT_EQ(display_width("łódź"), 4U);
}

TEST_F(DisplayWidth, IsTwoForChineseJapaneseAndKoreanLetters) {
  EXPECT_EQ(display_width("用紙"), 4U);
  EXPECT_EQ(display_width("纸张:"), 5U);
  EXPECT_EQ(display_width("용지"), 4U);
}

TEST_F(DisplayWidth, OfNothingIsNone) {
  EXPECT_EQ(display_width(""), 0U);
}

TEST_F(DisplayWidth, IsOneForEachByteThatIsNotUtf8) {
  const std::string cut = "a\xE7\x94";
  EXPECT_EQ(display_width(std::string_view(cut)), 3U);
  EXPECT_EQ(display_width("\xFF\xFF"), 2U);
}

TEST_F(DisplayWidth, IsWhatTextIsPaddedTo) {
  EXPECT_EQ(padded("Paper:", 8), "Paper:  ");
  EXPECT_EQ(padded("用紙:", 8), "用紙:   ");
  EXPECT_EQ(padded("Größe", 8), "Größe   ");
  EXPECT_EQ(padded("longer than that", 8), "longer than that");
}

TEST_F(DisplayWidth, OfTheWidestLabelGivesTheColumnOfTheValues) {
  const Labels labels{"番号:", "Klasse:", "!"};
  EXPECT_EQ(labels("番号:"), "番号:   ");
  EXPECT_EQ(labels("Klasse:"), "Klasse: ");
  EXPECT_EQ(labels("!"), "!       ");
}
