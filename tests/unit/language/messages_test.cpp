// SPDX-License-Identifier: Apache-2.0
//
// Messages in the language of the environment, and English where that is asked for.
#include "language/messages.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include "language/command_line_words.h"

namespace language {
namespace {

// Begins as a program does whose environment says this.
void begin_with(const char* locale, const char* languages) {
  setenv("LC_ALL", locale, 1);
  setenv("LANGUAGE", languages, 1);
  setenv("LOCPATH", TQR7_TEST_LOCALES, 1);
  begin();
}

}  // namespace

TEST(Message, IsEnglishInTheCLocale) {
  begin_with("C", "de");
  EXPECT_STREQ(_("Nothing to do."), "Nothing to do.");
}

TEST(Message, IsInTheLanguageOfTheEnvironment) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_STREQ(_("Nothing to do."), "Nichts zu tun.");
}

TEST(Message, IsInTheLanguageOfTheCountryWithoutAList) {
  begin_with("de_DE.UTF-8", "");
  EXPECT_STREQ(_("Nothing to do."), "Nichts zu tun.");
}

TEST(Message, IsEnglishWhereThereIsNoCatalogue) {
  begin_with("de_DE.UTF-8", "tlh");
  EXPECT_STREQ(_("Nothing to do."), "Nothing to do.");
}

TEST(Message, ThatNoCatalogueHasIsItself) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_STREQ(_("a sentence of this test"), "a sentence of this test");
}

TEST(Message, ThatIsEmptyIsNoCataloguesHead) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_STREQ(_(""), "");
}

TEST(Message, IsUtf8InALocaleOfOtherLetters) {
  begin_with("de_DE.ISO-8859-1", "de");
  EXPECT_STREQ(_("Media Size"), "Papierformat");
  EXPECT_STREQ(_("Resolution"), "Aufl\xC3\xB6sung");
}

TEST(Message, GoesWithTheCount) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_EQ(filled(_n("%zu dot", "%zu dots", 1), std::size_t{1}), "1 Punkt");
  EXPECT_EQ(filled(_n("%zu dot", "%zu dots", 2), std::size_t{2}), "2 Punkte");
  EXPECT_EQ(filled(_n("%zu dot", "%zu dots", 0), std::size_t{0}), "0 Punkte");
}

TEST(Message, GoesWithTheCountInEnglish) {
  begin_with("C", "");
  EXPECT_EQ(filled(_n("%zu dot", "%zu dots", 1), std::size_t{1}), "1 dot");
  EXPECT_EQ(filled(_n("%zu dot", "%zu dots", 2), std::size_t{2}), "2 dots");
}

TEST(Message, StaysEnglishForProgramsAndIsTranslatedAfterwards) {
  begin_with("de_DE.UTF-8", "de");
  {
    const English outer;
    const English inner;
    EXPECT_STREQ(_("Nothing to do."), "Nothing to do.");
    EXPECT_STREQ(_n("%zu dot", "%zu dots", 2), "%zu dots");
    EXPECT_EQ(decimal(2.5, 1), "2.5");
  }
  EXPECT_STREQ(_("Nothing to do."), "Nichts zu tun.");
}

TEST(Message, IsTranslatedWhereEnglishIsNotWanted) {
  begin_with("de_DE.UTF-8", "de");
  const English unwanted(false);
  EXPECT_STREQ(_("Nothing to do."), "Nichts zu tun.");
}

TEST(Message, TakesItsValuesInAnyOrderAndLength) {
  const std::string name(5000, 'x');
  // NOLINTNEXTLINE(clang-diagnostic-format)
  EXPECT_EQ(filled("%2$d of %1$s", name.c_str(), 7), "7 of " + name);
  EXPECT_EQ(filled("%s", ""), "");
}

TEST(Number, HasThePointOfTheCountryForPeople) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_EQ(decimal(1234.56, 1), "1234,6");
  EXPECT_EQ(decimal(3, 0), "3");
}

TEST(Number, IsReadAndWrittenAsInCAllTheSame) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_EQ(std::strtod("2.5", nullptr), 2.5);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST(Number, HasAPointInTheCLocale) {
  begin_with("C", "");
  EXPECT_EQ(decimal(2.54, 1), "2.5");
}

struct Complaint {
  const char* english;
  const char* german;
};

class ComplaintOnACommandLine : public testing::TestWithParam<Complaint> {};

TEST_P(ComplaintOnACommandLine, IsTranslatedWithTheWordsOfTheLine) {
  begin_with("de_DE.UTF-8", "de");
  EXPECT_EQ(translate_complaint(GetParam().english), GetParam().german);
}

TEST_P(ComplaintOnACommandLine, StaysAsItIsInTheCLocale) {
  begin_with("C", "");
  EXPECT_EQ(translate_complaint(GetParam().english), GetParam().english);
}

INSTANTIATE_TEST_SUITE_P(
    Complaints, ComplaintOnACommandLine,
    testing::Values(Complaint{"A subcommand is required", "Ein Unterbefehl fehlt"},
                    Complaint{"--size is required", "--size fehlt"},
                    Complaint{"--once excludes --jobs", "--once und --jobs schließen einander aus"},
                    Complaint{"The following argument was not expected: --nonsense",
                              "Dieses Argument war nicht erwartet: --nonsense"},
                    Complaint{"--interval: Value 0 not in range 0.1 to 86400",
                              "--interval: Der Wert 0 liegt nicht zwischen 0.1 und 86400"},
                    Complaint{"--scaling: zoom not in {fit,fill}",
                              "--scaling: zoom ist keines von {fit,fill}"},
                    Complaint{"something that the library does not say",
                              "something that the library does not say"},
                    Complaint{"", ""}));

}  // namespace language
