// SPDX-License-Identifier: Apache-2.0
//
// Lists of numbers: what separates them, what counts as a number, what is left untouched.
#include "diag/csv_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

using testing::ElementsAre;

namespace {

/// A list, how many integers are read of it into four places that hold −7, and what is there then.
struct List {
  const char* text;
  int count;
  int found;
  std::array<int, 4> values;
};

class CsvIntegers : public testing::TestWithParam<List> {};

TEST_P(CsvIntegers, AreRead) {
  std::string text = GetParam().text;
  std::array<int, 4> values = {-7, -7, -7, -7};
  EXPECT_EQ(AnalyzeCSV(text.data(), GetParam().count, values.data()), GetParam().found);
  EXPECT_EQ(values, GetParam().values);
}

const List kLists[] = {
    {"1,2,3", 3, 1, {1, 2, 3, -7}},
    {"1,2,3", 4, 0, {1, 2, 3, -7}},  // too short: what is there is stored
    {"4,5,6", 2, 1, {4, 5, -7, -7}},
    {"10 20", 2, 1, {10, 20, -7, -7}},
    {"1\t2", 2, 0, {1, -7, -7, -7}},
    {"1\n2", 2, 0, {1, -7, -7, -7}},
    {"7t8n9", 3, 1, {7, 8, 9, -7}},
    {"1\xC2"
     "2\xA5"
     "3\xC2\xA5"
     "4",
     4,
     1,
     {1, 2, 3, 4}},
    {"1\\2", 2, 0, {1, -7, -7, -7}},
    {"1T2", 2, 0, {1, -7, -7, -7}},
    {"1N2", 2, 0, {1, -7, -7, -7}},
    {"1;2", 2, 0, {1, -7, -7, -7}},
    {" ,,5 ,tn 6,", 2, 1, {5, 6, -7, -7}},
    {" ,tn", 1, 0, {-7, -7, -7, -7}},
    {"", 1, 0, {-7, -7, -7, -7}},
    {"-3,+4,12x,x12", 4, 1, {-3, 4, 12, 0}},
    {"4294967297,2147483648", 2, 1, {1, -2147483647 - 1, -7, -7}},  // the low 32 bits
    {"0.5,1.25", 2, 1, {0, 1, -7, -7}},
};

INSTANTIATE_TEST_SUITE_P(Lists, CsvIntegers, testing::ValuesIn(kLists));

}  // namespace

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
