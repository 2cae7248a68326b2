// SPDX-License-Identifier: Apache-2.0
//
// The forms that a row of the reason table can take beyond those of the printer's own table: runs
// of error numbers, and several keywords a row. This program brings a table of its own.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "status/reason_table.h"
#include "tests/unit/status/report.h"

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
  const std::string text = Report(state);
  return text.substr(0, text.find("STATE: -"));
}

std::string Withdrawn(const PrinterState& state) {
  const std::string text = Report(state);
  return text.substr(text.find("STATE: -"));
}

struct Match {
  std::uint16_t error_number;
  const char* keyword;  ///< null where no row matches
};

void ExpectMatches(std::initializer_list<Match> matches) {
  for (const Match& match : matches) {
    const PrinterState state = PrinterState::Error(match.error_number);
    const std::string keyword =
        match.keyword != nullptr ? match.keyword : "com.corvantiel-error0004";
    std::string expected = "STATE: +" + keyword + "\nDEBUG: " + keyword;
    expected += " " + state.to_string() + "\n";
    if (match.keyword == nullptr) {
      expected += "DEBUG: error_number part mismatch processing \n";
    }
    EXPECT_EQ(Raised(state), expected);
  }
}

}  // namespace

TEST(ReasonRanges, ARunMatchesItsErrorNumbersAndNoOther) {
  ExpectMatches({{0x4002, nullptr},
                 {0x4003, "run"},
                 {0x4004, "run"},
                 {0x4005, "run"},
                 {0x4006, nullptr},
                 {0x0503, nullptr}});
}

TEST(ReasonRanges, AnInvertedRunMatchesNothing) {
  ExpectMatches({{0x4103, nullptr}, {0x4104, nullptr}, {0x4105, nullptr}});
}

TEST(ReasonRanges, ARunCanHoldOneErrorNumber) {
  ExpectMatches({{0x4206, nullptr}, {0x4207, "run-of-one"}, {0x4208, nullptr}});
}

TEST(ReasonRanges, ARunCanReachTheLastDetail) {
  ExpectMatches({{0x44FD, nullptr}, {0x44FE, "run-to-the-end"}, {0x44FF, "run-to-the-end"}});
}

TEST(ReasonRanges, ARunCanStartAtDetailZero) {
  ExpectMatches({{0x4900, "run-from-zero"}, {0x4901, "run-from-zero"}, {0x4902, nullptr}});
}

TEST(ReasonRanges, TheLargestSingleDetailIsNoRun) {
  ExpectMatches({{0x48FF, "largest-single"}, {0x4800, nullptr}});
}

TEST(ReasonRanges, OnlyTheLowByteOfTheGroupCounts) {
  ExpectMatches({{0x4701, "high-byte-cut"}});
}

TEST(ReasonRanges, FourKeywordsAreRaisedInTheirOrder) {
  EXPECT_EQ(Raised(PrinterState::Error(0x4301)),
            "STATE: +delta\nDEBUG: delta 0x4301\n"
            "STATE: +alpha\nDEBUG: alpha 0x4301\n"
            "STATE: +charlie\nDEBUG: charlie 0x4301\n"
            "STATE: +bravo\nDEBUG: bravo 0x4301\n");
}

TEST(ReasonRanges, KeywordsEndAtTheFirstGap) {
  ExpectMatches({{0x4501, "first"}});
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
