// SPDX-License-Identifier: Apache-2.0
//
// What the scheduler is told of a state: raised reasons first, then all others withdrawn.
#include "status/state_reasons.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "tests/reason_keywords.h"
#include "tests/unit/capture.h"
#include "tests/unit/status/report.h"
#include "tests/unit/stderr_calls.h"

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// What a state reports that no row knows.
std::string Unmatched(const std::string& state) {
  return "STATE: +com.corvantiel-error0004\n"
         "DEBUG: com.corvantiel-error0004 " +
         state +
         "\n"
         "DEBUG: error_number part mismatch processing \n" +
         Withdrawals("com.corvantiel-error0004");
}

}  // namespace

TEST(StateReasons, AGoodPrinterRaisesNothingAndWithdrawsEverythingByClass) {
  const std::string text = Report(PrinterState::Good());
  EXPECT_EQ(text, Withdrawals());
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 109);
  EXPECT_THAT(text, StartsWith("STATE: -com.corvantiel-error0001\n"
                               "STATE: -com.corvantiel-error0002\n"));
  EXPECT_THAT(text, HasSubstr("STATE: -com.corvantiel-error0005\n"
                              "STATE: -com.corvantiel-error0006_2190\n"
                              "STATE: -com.corvantiel-error0007_2100\n"));
  EXPECT_THAT(text, HasSubstr("STATE: -com.corvantiel-error0008_2690\n"
                              "STATE: -com.corvantiel-error0009_3190\n"));
  EXPECT_THAT(text, EndsWith("STATE: -com.corvantiel-error0033\n"
                             "STATE: -com.corvantiel-error0034_6700\n"
                             "STATE: -com.corvantiel-error0034_6710\n"
                             "STATE: -com.corvantiel-error0034_6900\n"
                             "STATE: -com.corvantiel-error0034_6901\n"
                             "STATE: -com.corvantiel-error0034_6903\n"));
}

TEST(StateReasons, AnUnavailablePrinterRaisesTheCatchAll) {
  const std::string text = Report(PrinterState::Unavailable());
  EXPECT_EQ(text, Unmatched("UNAVAILABLE"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3 + 108);
}

TEST(StateReasons, UnknownErrorsRaiseTheCatchAllWithTheirNumber) {
  EXPECT_EQ(Report(PrinterState::Error(0x266A)), Unmatched("0x266a"));
  EXPECT_EQ(Report(PrinterState::Error(0x1234)), Unmatched("0x1234"));
}

TEST(StateReasons, ErrorFourRaisesItsOwnKeywordByItsRow) {
  EXPECT_EQ(Report(PrinterState::Error(0x0004)),
            "STATE: +com.corvantiel-error0004\n"
            "DEBUG: com.corvantiel-error0004 0x0004\n" +
                Withdrawals("com.corvantiel-error0004"));
}

TEST(StateReasons, AKnownErrorRaisesItsKeywordAndWithdrawsTheCatchAll) {
  const std::string text = Report(PrinterState::Error(0x2665));
  EXPECT_EQ(text,
            "STATE: +com.corvantiel-error0008_2665\n"
            "DEBUG: com.corvantiel-error0008_2665 0x2665\n" +
                Withdrawals("com.corvantiel-error0008_2665"));
  EXPECT_THAT(text, HasSubstr("STATE: -com.corvantiel-error0004\n"));
}

TEST(StateReasons, ACallRemembersNothingOfTheOneBefore) {
  Report(PrinterState::Error(0x2665));
  EXPECT_EQ(Report(PrinterState::Good()), Withdrawals());
}

TEST(StateReasons, EachLineLeavesInOneWrite) {
  // Other filters write to the same stream: a line in two writes can be torn.
  StderrCalls calls;
  update_printer_state(PrinterState::Unavailable());
  const std::vector<std::string> writes = calls.Take();
  EXPECT_EQ(writes.size(), 3U + 108U);
  for (const std::string& write : writes) {
    EXPECT_EQ(write.find('\n'), write.size() - 1) << write;
  }
}

TEST(StateReasons, LeavesStandardOutputUnflushed) {
  Capture out(stdout);
  Capture err(stderr);
  std::fputs("image", stdout);
  update_printer_state(PrinterState::Good());
  const std::string arrived = out.Arrived();
  err.Text();
  EXPECT_EQ(out.Text(), "image");
  EXPECT_EQ(arrived, "");
}
