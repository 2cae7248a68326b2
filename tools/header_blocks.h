// SPDX-License-Identifier: Apache-2.0
//
// Lists the commands of a captured stream in hexadecimal, without its pixels.
#ifndef TQR7_TOOLS_HEADER_BLOCKS_H
#define TQR7_TOOLS_HEADER_BLOCKS_H

#include <cstdint>
#include <span>
#include <string>

#include "decoder/command_listener.h"
#include "decoder/stream_parser.h"

namespace tools {

/// Lists the commands up to the first error: after it, pixels may look like a command.
class HeaderBlocks : private decoder::CommandListener {
 public:
  HeaderBlocks() : parser_(*this) {}

  void Feed(std::span<const std::uint8_t> bytes);
  /// Ends the stream. Feed nothing afterwards.
  void Finish();

  const std::string& Text() const { return text_; }

 private:
  void OnCommandBytes(std::uint64_t offset, decoder::Command command,
                      std::span<const std::uint8_t> bytes) override;
  void OnError(const decoder::StreamError& error) override;

  decoder::StreamParser parser_;
  std::string text_;
  bool wrong_ = false;
};

}  // namespace tools

#endif  // TQR7_TOOLS_HEADER_BLOCKS_H
