// SPDX-License-Identifier: Apache-2.0
#include "tools/stream_proofer.h"

#include "simulator/wording.h"

namespace tools {

void StreamProofer::OnSheetBegin(const decoder::Sheet& sheet) {
  sheet_ = sheet;
  printer_.Begin(sheet);
}

void StreamProofer::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  printer_.ImageRow(row, samples);
}

void StreamProofer::OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  printer_.MatteRow(row, bytes);
}

void StreamProofer::Tell(const simulator::SheetResult& result, const std::string& what) {
  for (const std::string* const error : {&result.error, &result.listError}) {
    if (!error->empty()) {
      ++totals_.failures;
      report_.failed(result.path.string() + ": " + *error);
    }
  }
  if (result.error.empty()) {
    report_.done(result.path.string() + ": " + what);
  }
}

void StreamProofer::OnSheetEnd(const decoder::SheetEnd& /*end*/) {
  ++totals_.sheets;
  Tell(printer_.End(), simulator::printed_sheet_words(sheet_));
}

void StreamProofer::OnSheetCut() {
  Tell(printer_.Cut(), "cut off, " + simulator::printed_sheet_words(sheet_));
}

void StreamProofer::OnError(const decoder::StreamError& error) {
  constexpr std::uint64_t kErrorsToldMost = 20;  // tqr7 inspect lists all
  ++totals_.errors;
  if (totals_.errors <= kErrorsToldMost) {
    report_.wrong(to_string(error));
  }
}

const ProofTotals& StreamProofer::Finish() {
  parser_.EndOfStream();
  totals_.bytes = parser_.Offset();
  return totals_;
}

}  // namespace tools
