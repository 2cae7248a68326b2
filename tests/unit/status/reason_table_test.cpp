// SPDX-License-Identifier: Apache-2.0
//
// The whole table: every row, and what the scheduler is told of the error that it stands for.
#include "status/reason_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

#include "tests/reason_keywords.h"
#include "tests/unit/status/report.h"

namespace {

std::vector<ReasonKeyword> InTableOrder() {
  std::vector<ReasonKeyword> reasons = ReasonKeywords();
  std::sort(reasons.begin(), reasons.end(),
            [](const ReasonKeyword& one, const ReasonKeyword& other) {
              return one.error_number < other.error_number;
            });
  return reasons;
}

std::string Raised(const std::string& keyword, const std::string& state) {
  return "STATE: +" + keyword + "\nDEBUG: " + keyword + " " + state + "\n";
}

void ExpectRow(std::size_t row, std::uint16_t high, std::uint16_t low, const char* keyword) {
  const PrinterStateReason& found = PRINTER_STATE_REASONS[row];
  EXPECT_EQ(found.error_high, high) << "row " << row;
  EXPECT_EQ(found.error_low, low) << "row " << row;
  EXPECT_STREQ(found.reasons[0], keyword) << "row " << row;
  EXPECT_EQ(found.reasons[1], nullptr) << "row " << row;
  EXPECT_EQ(found.reasons[2], nullptr) << "row " << row;
  EXPECT_EQ(found.reasons[3], nullptr) << "row " << row;
}

}  // namespace

TEST(ReasonTable, Has110RowsWithRoomForFourKeywordsEach) {
  EXPECT_EQ(std::size(PRINTER_STATE_REASONS), 110U);
  EXPECT_EQ(std::size(PRINTER_STATE_REASONS[0].reasons), 4U);
}

TEST(ReasonTable, HasTheGoodPrinterAndErrorsWithAndWithoutAClass) {
  ExpectRow(0, 0x00, 0x00, nullptr);
  ExpectRow(1, 0x00, 0x01, "com.corvantiel-error0001");
  ExpectRow(12, 0x21, 0x90, "com.corvantiel-error0006_2190");
  ExpectRow(33, 0x26, 0x65, "com.corvantiel-error0008_2665");
  ExpectRow(109, 0x75, 0x52, "com.corvantiel-error0018_7552");
}

TEST(ReasonTable, HasOneRowForEachErrorInAscendingOrder) {
  const std::vector<ReasonKeyword> reasons = InTableOrder();
  ASSERT_EQ(reasons.size(), 109U);
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    ExpectRow(i + 1, static_cast<std::uint16_t>(reasons[i].error_number >> 8),
              reasons[i].error_number & 0xFF, reasons[i].keyword.c_str());
  }
}

TEST(ReasonTable, EachErrorRaisesItsKeywordAndWithdrawsAllOthers) {
  for (const ReasonKeyword& reason : ReasonKeywords()) {
    const PrinterState state = PrinterState::Error(reason.error_number);
    EXPECT_EQ(Report(state),
              Raised(reason.keyword, state.to_string()) + Withdrawals(reason.keyword));
  }
}

TEST(ReasonTable, TheWildcardRaisesEveryKeywordInTableOrder) {
  std::string expected;
  for (const ReasonKeyword& reason : InTableOrder()) {
    expected += Raised(reason.keyword, "ANY");
  }
  EXPECT_EQ(Report(PrinterState::Any()), expected);
}
