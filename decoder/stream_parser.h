// SPDX-License-Identifier: Apache-2.0
//
// Parses the printer's command stream. It takes bytes in pieces of any size, and reports commands,
// rows of pixels and errors.
//
// Whatever comes, it needs memory for one command and one row of the widest sheet: sizes are
// checked against the table of papers before they are used.
//
// How it goes on after an error:
// - A wrong field in a command whose code is right: the command's length is known, so it goes on
// after
//   the command.
// - An image header with wrong sizes, or without a correct job header before it: it is not known
// how many
//   bytes of pixels follow, so it looks for the next command code.
// - Bytes that begin no command: it looks for the next command code, from the second byte on.
// - A command out of order: it goes on as if the command had been in order.
// Every step takes at least one byte, so the parser ends with its input.
#ifndef TQR7_DECODER_STREAM_PARSER_H
#define TQR7_DECODER_STREAM_PARSER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "decoder/code_scanner.h"
#include "decoder/command_listener.h"
#include "decoder/exchange.h"
#include "decoder/plane_reader.h"
#include "decoder/repeated_settings.h"

namespace decoder {

/// Parses the stream of one connection or one file.
class StreamParser {
 public:
  /// The listener must outlive the parser.
  explicit StreamParser(CommandListener& listener);
  StreamParser(const StreamParser&) = delete;
  StreamParser& operator=(const StreamParser&) = delete;
  ~StreamParser() = default;

  /// Takes the next bytes of the stream; also when they came, if that is to be checked.
  void Feed(std::span<const std::uint8_t> bytes, StreamTime at = {});

  /// Takes the printer's answer to the last question that the listener got, and when it was sent.
  /// See Exchange::Answered.
  void Answered(const Answer& answer, StreamTime at = {}) { exchange_.Answered(answer, at); }

  /// The exchange so far.
  const Exchange& Course() const { return exchange_; }

  /// Ends the stream: reports what is incomplete and how many bytes are missing. A stream may end
  /// after any whole command except a job header. Feed nothing afterwards.
  void EndOfStream();

  /// Bytes taken so far.
  std::uint64_t Offset() const { return offset_; }

  /// Errors reported so far.
  std::uint64_t ErrorCount() const { return errorCount_; }

  /// What the parser is reading: a command whose code has come, a plane, or Command::None in
  /// between.
  Command Within() const;

 private:
  using Bytes = std::span<const std::uint8_t>;
  enum class Mode : std::uint8_t { Code, Block, Image, Matte, Search };

  std::size_t Step(Bytes bytes);
  std::size_t TakeCode(Bytes bytes);
  std::size_t TakeBlock(Bytes bytes);
  std::size_t TakeImage(Bytes bytes);
  std::size_t TakeMatte(Bytes bytes);
  std::size_t TakeSearch(Bytes bytes);

  void BeginBlock(const CommandCode& code);
  void RejectCode();
  void BeginSearch(std::uint64_t from);
  void FinishBlock();
  void FinishReadinessQuery(std::uint64_t errorsBefore);
  void FinishJobHeader(std::uint64_t errorsBefore);
  void FinishImageHeader();
  void FinishPrintOut();
  void FinishImageRow();
  void BeginMatte();
  void FinishSheet();

  Bytes Block() const { return Bytes(block_).first(filled_); }
  std::uint64_t BlockOffset() const { return offset_ - filled_; }
  void Report(const StreamError& error);
  void ReportCut(Command command, const char* field, std::uint64_t taken, std::uint64_t whole);

  CommandListener& listener_;
  ErrorSink report_;
  Exchange exchange_;
  CodeScanner scanner_;
  PlaneReader plane_;
  std::vector<std::uint16_t> samples_;

  Mode mode_ = Mode::Code;
  std::uint64_t offset_ = 0;
  StreamTime at_{};  ///< when the current bytes came
  std::uint64_t errorCount_ = 0;
  std::uint64_t searchFrom_ = 0;
  std::uint64_t badSamples_ = 0;

  std::array<std::uint8_t, kBlockLength> block_{};
  std::size_t filled_ = 0;
  const CommandCode* code_ = nullptr;

  RepeatedSettings settings_;
  std::optional<JobHeader> job_;  ///< the job header before, if a paper has its sheet's size
  Sheet sheet_{};
};

}  // namespace decoder

#endif  // TQR7_DECODER_STREAM_PARSER_H
