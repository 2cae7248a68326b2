// SPDX-License-Identifier: Apache-2.0
//
// Checks a command stream against the protocol and lists it. It counts what the decoder reports,
// and hands as much of it to a listing as a person can read.
#ifndef TQR7_TOOLS_STREAM_INSPECTOR_H
#define TQR7_TOOLS_STREAM_INSPECTOR_H

#include <cstdint>
#include <span>

#include "decoder/command_listener.h"
#include "decoder/stream_parser.h"
#include "tools/stream_listing.h"

namespace tools {

inline constexpr std::uint64_t kErrorsListedMost = 200;
inline constexpr std::uint64_t kCommandsListedMost = 100'000;  ///< about 15,000 sheets

/// Inspects one stream, which may consist of several connections, one after the other.
class StreamInspector : private decoder::CommandListener {
 public:
  /// The listing must outlive the inspector.
  explicit StreamInspector(StreamListing& listing) : listing_(listing), parser_(*this) {}

  /// Takes the next bytes of the stream.
  void Feed(std::span<const std::uint8_t> bytes) { parser_.Feed(bytes); }

  /// Ends the stream and finishes the listing. Feed nothing afterwards.
  const StreamTotals& Finish();

 private:
  void OnCommandBytes(std::uint64_t offset, decoder::Command command,
                      std::span<const std::uint8_t> bytes) override;
  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& header) override;
  void OnSheetBegin(const decoder::Sheet& sheet) override;
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override;
  void OnSheetEnd(const decoder::SheetEnd& end) override;
  void OnPrintOut(std::uint64_t offset, std::uint8_t waitByte) override;
  void OnError(const decoder::StreamError& error) override;
  void OnSkipped(std::uint64_t offset, std::uint64_t count) override;

  bool ListsStill() const;

  StreamListing& listing_;
  decoder::StreamParser parser_;
  StreamTotals totals_;
  std::uint64_t planeOffset_ = 0;
  decoder::ImageHeader image_{};
};

}  // namespace tools

#endif  // TQR7_TOOLS_STREAM_INSPECTOR_H
