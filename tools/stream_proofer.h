// SPDX-License-Identifier: Apache-2.0
//
// Prints the sheets of a command stream to PNG files, as the simulated printer does.
#ifndef TQR7_TOOLS_STREAM_PROOFER_H
#define TQR7_TOOLS_STREAM_PROOFER_H

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "decoder/command_listener.h"
#include "decoder/stream_parser.h"
#include "simulator/sheet_printer.h"

namespace tools {

/// What is called with a line for a person while the proofs are made.
struct ProofReport {
  std::function<void(const std::string&)> done;    ///< a sheet that was written, in words
  std::function<void(const std::string&)> wrong;   ///< an error in the stream
  std::function<void(const std::string&)> failed;  ///< what could not be written, and why
};

/// The whole stream in numbers.
struct ProofTotals {
  std::uint64_t bytes = 0;
  std::uint64_t sheets = 0;  ///< that are whole
  std::uint64_t errors = 0;
  std::uint64_t failures = 0;  ///< files that could not be written
};

/// Makes the proofs of one stream.
class StreamProofer : private decoder::CommandListener {
 public:
  /// The printer must outlive the proofer.
  StreamProofer(simulator::SheetPrinter& printer, ProofReport report)
      : printer_(printer), report_(std::move(report)), parser_(*this) {}

  /// Takes the next bytes of the stream.
  void Feed(std::span<const std::uint8_t> bytes) { parser_.Feed(bytes); }

  /// Ends the stream. Feed nothing afterwards.
  const ProofTotals& Finish();

 private:
  void OnSheetBegin(const decoder::Sheet& sheet) override;
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override;
  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override;
  void OnSheetEnd(const decoder::SheetEnd& end) override;
  void OnSheetCut() override;
  void OnError(const decoder::StreamError& error) override;

  void Tell(const simulator::SheetResult& result, const std::string& what);

  simulator::SheetPrinter& printer_;
  ProofReport report_;
  decoder::StreamParser parser_;
  decoder::Sheet sheet_{};
  ProofTotals totals_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_STREAM_PROOFER_H
