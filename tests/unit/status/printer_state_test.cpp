// SPDX-License-Identifier: Apache-2.0
//
// The printer's condition as a value: which states are equal, and how they read in the log.
#include "status/printer_state.h"

#include <gtest/gtest.h>

#include <type_traits>

static_assert(std::is_trivially_copyable_v<PrinterState>);
static_assert(sizeof(PrinterState::Type) == 4);
static_assert(std::is_same_v<decltype(PrinterState::error_number), std::uint16_t>);

namespace {

PrinterState OutsideTheEnumeration() {
  return PrinterState(static_cast<PrinterState::Type>(3), 0);
}

}  // namespace

TEST(PrinterStateValue, TypesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(PrinterState::Type::Unavailable), 0);
  EXPECT_EQ(static_cast<int>(PrinterState::Type::Available), 1);
  EXPECT_EQ(static_cast<int>(PrinterState::Type::Any), 2);
}

TEST(PrinterStateValue, FactoriesMakeTheirKind) {
  EXPECT_EQ(PrinterState::Unavailable().type, PrinterState::Type::Unavailable);
  EXPECT_EQ(PrinterState::Good().type, PrinterState::Type::Available);
  EXPECT_EQ(PrinterState::Good().error_number, 0);
  EXPECT_EQ(PrinterState::Error(0x2110).type, PrinterState::Type::Available);
  EXPECT_EQ(PrinterState::Error(0x2110).error_number, 0x2110);
  EXPECT_EQ(PrinterState::Any().type, PrinterState::Type::Any);
}

TEST(PrinterStateValue, ConstructorsSetTheirFields) {
  EXPECT_EQ(PrinterState(PrinterState::Type::Any).type, PrinterState::Type::Any);
  const PrinterState state(PrinterState::Type::Available, 0xFFFF);
  EXPECT_EQ(state.type, PrinterState::Type::Available);
  EXPECT_EQ(state.error_number, 0xFFFF);
}

TEST(PrinterStateEquality, GoodIsErrorZero) {
  EXPECT_TRUE(PrinterState::Good() == PrinterState::Error(0));
  EXPECT_FALSE(PrinterState::Good() != PrinterState::Error(0));
}

TEST(PrinterStateEquality, GoodIsNoOtherError) {
  EXPECT_FALSE(PrinterState::Good() == PrinterState::Error(0x2110));
  EXPECT_TRUE(PrinterState::Good() != PrinterState::Error(0x2110));
}

TEST(PrinterStateEquality, ErrorsAreEqualByNumber) {
  EXPECT_TRUE(PrinterState::Error(0x2110) == PrinterState::Error(0x2110));
  EXPECT_FALSE(PrinterState::Error(0x2110) == PrinterState::Error(0x2111));
  EXPECT_FALSE(PrinterState::Error(0x2110) == PrinterState::Error(0x2010));
}

TEST(PrinterStateEquality, UnavailableIsNotGood) {
  EXPECT_FALSE(PrinterState::Unavailable() == PrinterState::Good());
  EXPECT_FALSE(PrinterState::Good() == PrinterState::Unavailable());
  EXPECT_TRUE(PrinterState::Unavailable() != PrinterState::Good());
}

TEST(PrinterStateEquality, UnavailableStatesAreEqualWhateverTheirNumber) {
  EXPECT_TRUE(PrinterState::Unavailable() == PrinterState::Unavailable());
  EXPECT_TRUE(PrinterState(PrinterState::Type::Unavailable, 1) ==
              PrinterState(PrinterState::Type::Unavailable, 2));
}

TEST(PrinterStateEquality, TheWildcardEqualsEveryState) {
  for (const PrinterState& state :
       {PrinterState::Unavailable(), PrinterState::Good(), PrinterState::Error(0x0001),
        PrinterState::Error(0xFFFF), PrinterState::Any(), OutsideTheEnumeration()}) {
    EXPECT_TRUE(PrinterState::Any() == state) << state.to_string();
    EXPECT_TRUE(state == PrinterState::Any()) << state.to_string();
    EXPECT_FALSE(PrinterState::Any() != state) << state.to_string();
    EXPECT_FALSE(state != PrinterState::Any()) << state.to_string();
  }
}

TEST(PrinterStateEquality, AStateOutsideTheEnumerationEqualsNothingNotEvenItself) {
  const PrinterState odd = OutsideTheEnumeration();
  const PrinterState same = odd;
  EXPECT_FALSE(odd == same);
  EXPECT_TRUE(odd != same);
  EXPECT_FALSE(odd == PrinterState::Good());
  EXPECT_FALSE(odd == PrinterState::Unavailable());
}

TEST(PrinterStateText, NamesTheKindsOfStates) {
  EXPECT_EQ(PrinterState::Unavailable().to_string(), "UNAVAILABLE");
  EXPECT_EQ(PrinterState::Good().to_string(), "GOOD");
  EXPECT_EQ(PrinterState::Error(0).to_string(), "GOOD");
  EXPECT_EQ(PrinterState::Any().to_string(), "ANY");
  EXPECT_EQ(OutsideTheEnumeration().to_string(), "UNKNOWN");
}

TEST(PrinterStateText, ErrorsReadAsFourLowerCaseDigits) {
  EXPECT_EQ(PrinterState::Error(4).to_string(), "0x0004");
  EXPECT_EQ(PrinterState::Error(0x0100).to_string(), "0x0100");
  EXPECT_EQ(PrinterState::Error(0x2110).to_string(), "0x2110");
  EXPECT_EQ(PrinterState::Error(0xFFFF).to_string(), "0xffff");
}
