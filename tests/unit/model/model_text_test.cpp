// SPDX-License-Identifier: Apache-2.0
//
// The text of the printer model's numbers: what is read from it, and how a mistake is told.
#include "model/model_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr const char* kText =
    "# A comment, then an empty line.\n"
    "\n"
    "description  A printer   (a model)\n"
    "copyright    Nobody's.\n"
    "date         2025-01-31\n"
    "white        0.9642 1.0000 0.8249\n"
    "red          0.61 0.33   # behind a line as well\n"
    "green        0.27 0.57\n"
    "blue         0.17 0.11\n"
    "exponent     2.2\n"
    "toe          0.05\n"
    "black        2.1\n";

/// The text with its first `from` replaced by `to`.
std::string text_with(const std::string& from, const std::string& to) {
  std::string text = kText;
  text.replace(text.find(from), from.size(), to);
  return text;
}

/// What is said of a text that must not be read.
std::string fault_of(const std::string& text) {
  PrinterModel model;
  std::string why;
  return parse_printer_model(text, model, why) ? "read" : why;
}

TEST(ModelText, GivesEachNumberItsPlace) {
  PrinterModel model;
  std::string why;
  ASSERT_TRUE(parse_printer_model(kText, model, why)) << why;
  EXPECT_EQ(model.description, "A printer (a model)");
  EXPECT_EQ(model.copyright, "Nobody's.");
  EXPECT_EQ(model.date.year, 2025);
  EXPECT_EQ(model.date.month, 1);
  EXPECT_EQ(model.date.day, 31);
  EXPECT_EQ(model.white, (std::array<double, 3>{0.9642, 1.0, 0.8249}));
  EXPECT_EQ(model.red, (std::array<double, 2>{0.61, 0.33}));
  EXPECT_EQ(model.green, (std::array<double, 2>{0.27, 0.57}));
  EXPECT_EQ(model.blue, (std::array<double, 2>{0.17, 0.11}));
  EXPECT_EQ(model.exponent, 2.2);
  EXPECT_EQ(model.toe, 0.05);
  EXPECT_EQ(model.blackDensity, 2.1);
}

TEST(ModelText, TheOrderOfTheLinesDoesNotMatter) {
  PrinterModel model;
  std::string why;
  EXPECT_TRUE(parse_printer_model("black 1.9\n" + text_with("black        2.1\n", ""), model, why));
  EXPECT_EQ(model.blackDensity, 1.9);
}

TEST(ModelText, LinesMayEndAsOnOtherSystems) {
  PrinterModel model;
  std::string why;
  EXPECT_TRUE(parse_printer_model(text_with("toe          0.05\n", "toe 0.05\r\n"), model, why))
      << why;
}

TEST(ModelText, ANameThatIsNoneIsToldWithItsLineAndTheNamesThereAre) {
  EXPECT_EQ(fault_of(text_with("exponent", "gamma")),
            "line 10: 'gamma' is none of the model's quantities; expected one of: description "
            "copyright date white red green blue exponent toe black");
}

TEST(ModelText, AWordThatIsNoNumberIsToldWithItsLine) {
  EXPECT_EQ(fault_of(text_with("2.2", "2,2")),
            "line 10: exponent: expected a number from 1.2 to 4");
}

TEST(ModelText, NumbersAreDecimalsAndNothingElse) {
  EXPECT_EQ(fault_of(text_with("0.05", "0x1p-4")),
            "line 11: toe: expected a number from 0.01 to 0.15");
  EXPECT_EQ(fault_of(text_with("0.05", "nan")),
            "line 11: toe: expected a number from 0.01 to 0.15");
  EXPECT_EQ(fault_of(text_with("0.05", "0.0.5")),
            "line 11: toe: expected a number from 0.01 to 0.15");
}

TEST(ModelText, ANumberBeyondItsRangeIsToldWithTheRange) {
  EXPECT_EQ(fault_of(text_with("2.1", "4.1")), "line 12: black: expected a density from 0.5 to 4");
  EXPECT_EQ(fault_of(text_with("0.61 0.33", "0.61 1.33")),
            "line 7: red: expected x y, each from 0.001 to 0.999");
}

TEST(ModelText, TooFewOrTooManyNumbersAreTold) {
  EXPECT_EQ(fault_of(text_with("0.27 0.57", "0.27")),
            "line 8: green: expected x y, each from 0.001 to 0.999");
  EXPECT_EQ(fault_of(text_with("0.17 0.11", "0.17 0.11 0.72")),
            "line 9: blue: expected x y, each from 0.001 to 0.999");
  EXPECT_EQ(fault_of(text_with("1.0000 ", "")),
            "line 6: white: expected X Y Z, each from 0.1 to 1.5");
}

TEST(ModelText, ADateIsYearMonthAndDay) {
  const std::string expected = "line 5: date: expected year-month-day, such as 2025-01-31";
  EXPECT_EQ(fault_of(text_with("2025-01-31", "31.01.2025")), expected);
  EXPECT_EQ(fault_of(text_with("2025-01-31", "2025-13-31")), expected);
  EXPECT_EQ(fault_of(text_with("2025-01-31", "2025-01-32")), expected);
  EXPECT_EQ(fault_of(text_with("2025-01-31", "2025-1.-31")), expected);
}

TEST(ModelText, TextsAreAscii) {
  EXPECT_EQ(fault_of(text_with("Nobody's.", "\xC2\xA9 Nobody")),
            "line 4: copyright: expected a text in ASCII");
  EXPECT_EQ(fault_of(text_with("A printer   (a model)", "")),
            "line 3: description: expected a text in ASCII");
}

TEST(ModelText, AQuantityGivenTwiceIsToldWithBothLines) {
  EXPECT_EQ(fault_of(std::string(kText) + "toe 0.05\n"),
            "line 13: toe: stands on line 11 already; expected it once");
}

TEST(ModelText, AQuantityThatIsNotThereIsToldAtTheEnd) {
  EXPECT_EQ(fault_of(text_with("black        2.1\n", "")),
            "line 11: the text ends without 'black'; expected a density from 0.5 to 4");
  EXPECT_EQ(fault_of(""), "line 0: the text ends without 'description'; expected a text in ASCII");
}

}  // namespace
