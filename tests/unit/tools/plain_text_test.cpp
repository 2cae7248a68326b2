// SPDX-License-Identifier: Apache-2.0
//
// No text from elsewhere acts on the terminal.
#include "tools/plain_text.h"

#include <gtest/gtest.h>

using tools::plain_text;

TEST(PlainText, LeavesLettersOfAllLanguagesAlone) {
  EXPECT_EQ(plain_text("Größe 9×13 写真 🖨"), "Größe 9×13 写真 🖨");
}

TEST(PlainText, ReplacesControlCharacters) {
  EXPECT_EQ(plain_text("a\033[31mb\a\r\nc\x7F"), "a?[31mb???c?");
  EXPECT_EQ(plain_text("a\xC2\x9B"
                       "31m"),
            "a?31m");
}

TEST(PlainText, ReplacesCharactersThatTurnTheDirectionOfWriting) {
  EXPECT_EQ(plain_text("a\u202Eb\u2066c\u200F"), "a?b?c?");
}

TEST(PlainText, ReplacesEachByteThatIsNotUtf8) {
  EXPECT_EQ(plain_text("a\xFF\xC3"), "a??");
  EXPECT_EQ(plain_text("\xC0\xAF"), "??");
  EXPECT_EQ(plain_text("\xE2\x82"), "??");
  EXPECT_EQ(plain_text("\xED\xA0\x80"), "???");
  EXPECT_EQ(plain_text("\xF4\x90\x80\x80"), "????");
}

TEST(PlainText, ReplacesLongWritingsOfShortCharacters) {
  EXPECT_EQ(plain_text("\xE0\x80\x80"), "???");
  EXPECT_EQ(plain_text("\xF0\x80\x80\x80"), "????");
}

TEST(PlainText, ReplacesTheEndOfADirection) {
  EXPECT_EQ(plain_text("a\u2069b"), "a?b");
}

TEST(PlainText, ReadsNothingBehindItsEnd) {
  EXPECT_EQ(plain_text(std::string_view("\u20AC").substr(0, 2)), "??");
}

TEST(PlainText, IsCutBetweenCharacters) {
  EXPECT_EQ(plain_text("abcdef", 3), "abc…");
  EXPECT_EQ(plain_text("abc", 3), "abc");
  EXPECT_EQ(plain_text("abö", 3), "ab…");
}
