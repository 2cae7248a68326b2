// SPDX-License-Identifier: Apache-2.0
//
// Lists of numbers: what separates them, what counts as a number, what is left untouched.
#include "diag/csv_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

using testing::ElementsAre;

TEST(CsvValues, ReadsAsManyIntegersAsAreThere) {
  std::string text = "1,2,3";
  std::array<int, 3> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 3, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(1, 2, 3));
}

TEST(CsvValues, AListThatIsTooShortFailsButKeepsWhatItHad) {
  std::string text = "1,2,3";
  std::array<int, 4> values = {-7, -7, -7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 4, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(1, 2, 3, -7));
}

TEST(CsvValues, TokensBeyondTheCountAreLeftUnread) {
  std::string text = "4,5,6";
  std::array<int, 3> values = {-7, -7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(4, 5, -7));
}

TEST(CsvValues, ABlankSeparates) {
  std::string text = "10 20";
  std::array<int, 2> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(10, 20));
}

TEST(CsvValues, ATabDoesNotSeparate) {
  std::string text = "1\t2";
  std::array<int, 2> values = {-7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(1, -7));
}

TEST(CsvValues, ANewlineDoesNotSeparate) {
  std::string text = "1\n2";
  std::array<int, 2> values = {-7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(1, -7));
}

TEST(CsvValues, TheLettersTAndNSeparate) {
  std::string text = "7t8n9";
  std::array<int, 3> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 3, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(7, 8, 9));
}

TEST(CsvValues, EachByteOfTheYenSignSeparates) {
  std::string text =
      "1\xC2"
      "2\xA5"
      "3\xC2\xA5"
      "4";
  std::array<int, 4> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 4, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(1, 2, 3, 4));
}

TEST(CsvValues, ABackslashAndCapitalLettersDoNotSeparate) {
  for (const char separator : {'\\', 'T', 'N', ';'}) {
    std::string text = {'1', separator, '2'};
    std::array<int, 2> values = {-7, -7};
    EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 0) << separator;
    EXPECT_THAT(values, ElementsAre(1, -7)) << separator;
  }
}

TEST(CsvValues, RunsOfDelimitersCountAsOneAndLeadingOnesAreSkipped) {
  std::string text = " ,,5 ,tn 6,";
  std::array<int, 2> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(5, 6));
}

TEST(CsvValues, ATextOfDelimitersOnlyHasNoToken) {
  std::string text = " ,tn";
  std::array<int, 1> values = {-7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 1, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(-7));
}

TEST(CsvValues, AnEmptyTextHasNoToken) {
  std::string text;
  std::array<int, 1> values = {-7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 1, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(-7));
}

TEST(CsvValues, SignsAreReadAndWhatFollowsTheDigitsIsIgnored) {
  std::string text = "-3,+4,12x,x12";
  std::array<int, 4> values = {-7, -7, -7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 4, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(-3, 4, 12, 0));
}

TEST(CsvValues, ALargeIntegerKeepsItsLow32Bits) {
  std::string text = "4294967297,2147483648";
  std::array<int, 2> values = {};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(1, -2147483647 - 1));
}

TEST(CsvValues, ACountBelowOneSucceedsAndTouchesNothing) {
  for (const int count : {0, -1}) {
    std::string text = "1,2";
    std::array<int, 1> values = {-7};
    EXPECT_EQ(AnalyzeCSV(text.data(), count, values.data()), 1) << count;
    EXPECT_EQ(text, "1,2") << count;
    EXPECT_THAT(values, ElementsAre(-7)) << count;
  }
}

TEST(CsvValues, ACountBelowOneOfRealNumbersTouchesNothingEither) {
  for (const int count : {0, -1}) {
    std::string text = "1,2";
    std::array<double, 1> values = {-7};
    EXPECT_EQ(AnalyzeCSV_dbl(text.data(), count, values.data()), 1) << count;
    EXPECT_EQ(text, "1,2") << count;
    EXPECT_THAT(values, ElementsAre(-7.0)) << count;
  }
}

TEST(CsvValues, ReadsRealNumbers) {
  std::string text = "0.5,1.25";
  std::array<double, 2> values = {};
  EXPECT_EQ(AnalyzeCSV_dbl(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(0.5, 1.25));
}

TEST(CsvValues, RealNumbersReadAsIntegersStopAtThePoint) {
  std::string text = "0.5,1.25";
  std::array<int, 2> values = {-7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), 2, values.data()), 1);
  EXPECT_THAT(values, ElementsAre(0, 1));
}

TEST(CsvValues, RealNumbersFollowTheSameRulesAsIntegers) {
  std::string text = "-2.5e1x n 7.5";
  std::array<double, 3> values = {-7, -7, -7};
  EXPECT_EQ(AnalyzeCSV_dbl(text.data(), 3, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(-25.0, 7.5, -7.0));
}

TEST(CsvValues, ATextWithoutRealNumbersHasNoToken) {
  std::string text = ",,";
  std::array<double, 1> values = {-7};
  EXPECT_EQ(AnalyzeCSV_dbl(text.data(), 1, values.data()), 0);
  EXPECT_THAT(values, ElementsAre(-7.0));
}

TEST(CsvValues, AWordKeepsAValueThatFits) {
  for (const int value : {0, 1, 65534, 65535}) {
    unsigned short word = 0xAAAA;
    EXPECT_EQ(int2WORD(&value, &word), 1) << value;
    EXPECT_EQ(word, value);
  }
}

TEST(CsvValues, AWordHoldsTooLargeAValueAt65535) {
  for (const int value : {65536, 2147483647}) {
    unsigned short word = 0xAAAA;
    EXPECT_EQ(int2WORD(&value, &word), 0) << value;
    EXPECT_EQ(word, 65535) << value;
  }
}

TEST(CsvValues, AWordHoldsANegativeValueAtZero) {
  for (const int value : {-1, -2147483647 - 1}) {
    unsigned short word = 0xAAAA;
    EXPECT_EQ(int2WORD(&value, &word), 0) << value;
    EXPECT_EQ(word, 0) << value;
  }
}
