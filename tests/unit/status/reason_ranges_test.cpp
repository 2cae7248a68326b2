// SPDX-License-Identifier: Apache-2.0
//
// The forms that a row of the reason table can take beyond those of the printer's own table: runs
// of error numbers, and several keywords a row. This program brings a table of its own.
#include <gtest/gtest.h>

#include <string>

#include "status/reason_table.h"
#include "status/state_reasons.h"
#include "tests/unit/capture.h"

// Rows beyond those written out are error number 0 without keywords.
const PrinterStateReason PRINTER_STATE_REASONS[110] = {
    {0x00, 0x00, {nullptr, nullptr, nullptr, nullptr}},
    {0x40, 0x0503, {"run", nullptr, nullptr, nullptr}},
    {0x41, 0x0305, {"inverted", nullptr, nullptr, nullptr}},
    {0x42, 0x0707, {"run-of-one", nullptr, nullptr, nullptr}},
    {0x43, 0x01, {"delta", "alpha", "charlie", "bravo"}},
    {0x44, 0xFFFE, {"run-to-the-end", nullptr, nullptr, nullptr}},
    {0x45, 0x01, {"first", nullptr, "never", nullptr}},
    {0x46, 0x02, {"shared", "one", nullptr, nullptr}},
    {0x46, 0x0301, {"shared", "two", nullptr, nullptr}},
    {0x0147, 0x01, {"high-byte-cut", nullptr, nullptr, nullptr}},
    {0x48, 0xFF, {"largest-single", nullptr, nullptr, nullptr}},
    {0x49, 0x0100, {"run-from-zero", nullptr, nullptr, nullptr}},
};

namespace {

/// The raised keywords and the debug lines; withdrawals left out.
std::string Raised(const PrinterState& state) {
  Capture err(stderr);
  update_printer_state(state);
  const std::string text = err.Text();
  return text.substr(0, text.find("STATE: -"));
}

std::string Withdrawn(const PrinterState& state) {
  Capture err(stderr);
  update_printer_state(state);
  const std::string text = err.Text();
  return text.substr(text.find("STATE: -"));
}

std::string Unmatched(const std::string& state) {
  return "STATE: +com.corvantiel-error0004\n"
         "DEBUG: com.corvantiel-error0004 " +
         state +
         "\n"
         "DEBUG: error_number part mismatch processing \n";
}

}  // namespace

TEST(ReasonRanges, ARunMatchesItsErrorNumbersAndNoOther) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4002)), Unmatched("0x4002"));
  EXPECT_EQ(Raised(PrinterState::Error(0x4003)), "STATE: +run\nDEBUG: run 0x4003\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4004)), "STATE: +run\nDEBUG: run 0x4004\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4005)), "STATE: +run\nDEBUG: run 0x4005\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4006)), Unmatched("0x4006"));
  EXPECT_EQ(Raised(PrinterState::Error(0x0503)), Unmatched("0x0503"));
}

TEST(ReasonRanges, AnInvertedRunMatchesNothing) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4103)), Unmatched("0x4103"));
  EXPECT_EQ(Raised(PrinterState::Error(0x4104)), Unmatched("0x4104"));
  EXPECT_EQ(Raised(PrinterState::Error(0x4105)), Unmatched("0x4105"));
}

TEST(ReasonRanges, ARunCanHoldOneErrorNumber) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4206)), Unmatched("0x4206"));
  EXPECT_EQ(Raised(PrinterState::Error(0x4207)), "STATE: +run-of-one\nDEBUG: run-of-one 0x4207\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4208)), Unmatched("0x4208"));
}

TEST(ReasonRanges, ARunCanReachTheLastDetail) {
  EXPECT_EQ(Raised(PrinterState::Error(0x44FD)), Unmatched("0x44fd"));
  EXPECT_EQ(Raised(PrinterState::Error(0x44FE)),
            "STATE: +run-to-the-end\nDEBUG: run-to-the-end 0x44fe\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x44FF)),
            "STATE: +run-to-the-end\nDEBUG: run-to-the-end 0x44ff\n");
}

TEST(ReasonRanges, ARunCanStartAtDetailZero) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4900)),
            "STATE: +run-from-zero\nDEBUG: run-from-zero 0x4900\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4901)),
            "STATE: +run-from-zero\nDEBUG: run-from-zero 0x4901\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4902)), Unmatched("0x4902"));
}

TEST(ReasonRanges, TheLargestSingleDetailIsNoRun) {
  EXPECT_EQ(Raised(PrinterState::Error(0x48FF)),
            "STATE: +largest-single\nDEBUG: largest-single 0x48ff\n");
  EXPECT_EQ(Raised(PrinterState::Error(0x4800)), Unmatched("0x4800"));
}

TEST(ReasonRanges, OnlyTheLowByteOfTheGroupCounts) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4701)),
            "STATE: +high-byte-cut\nDEBUG: high-byte-cut 0x4701\n");
}

TEST(ReasonRanges, FourKeywordsAreRaisedInTheirOrder) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4301)),
            "STATE: +delta\nDEBUG: delta 0x4301\n"
            "STATE: +alpha\nDEBUG: alpha 0x4301\n"
            "STATE: +charlie\nDEBUG: charlie 0x4301\n"
            "STATE: +bravo\nDEBUG: bravo 0x4301\n");
}

TEST(ReasonRanges, KeywordsEndAtTheFirstGap) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4501)), "STATE: +first\nDEBUG: first 0x4501\n");
}

TEST(ReasonRanges, EveryRowThatMatchesRaisesItsKeywords) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4602)),
            "STATE: +shared\nDEBUG: shared 0x4602\n"
            "STATE: +one\nDEBUG: one 0x4602\n"
            "STATE: +shared\nDEBUG: shared 0x4602\n"
            "STATE: +two\nDEBUG: two 0x4602\n");
}

TEST(ReasonRanges, WithdrawalsAreSortedAndEachIsWrittenOnce) {
  EXPECT_EQ(Withdrawn(PrinterState::Error(0x4602)),
            "STATE: -alpha\n"
            "STATE: -bravo\n"
            "STATE: -charlie\n"
            "STATE: -delta\n"
            "STATE: -first\n"
            "STATE: -high-byte-cut\n"
            "STATE: -inverted\n"
            "STATE: -largest-single\n"
            "STATE: -run\n"
            "STATE: -run-from-zero\n"
            "STATE: -run-of-one\n"
            "STATE: -run-to-the-end\n");
}

TEST(ReasonRanges, ARunIsRaisedOnceForTheWildcard) {
  const std::string text = Raised(PrinterState::Any());
  EXPECT_NE(text.find("STATE: +run\nDEBUG: run ANY\n"), std::string::npos);
  EXPECT_EQ(text.find("STATE: +run\n", text.find("STATE: +run\n") + 1), std::string::npos);
  EXPECT_EQ(text.find("inverted"), std::string::npos);
}
