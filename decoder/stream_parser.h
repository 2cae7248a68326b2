// SPDX-License-Identifier: Apache-2.0
//
// The printer's command stream taken apart: bytes in, in pieces of any size; commands, rows of
// pixels and errors out.
//
// Memory is one command and one row of the widest sheet, whatever comes: sizes are held against the
// table of papers before anything is made of them.
//
// After an error the stream is taken up again like this:
// - a wrong field in a command whose code is right: the command's length is known, reading goes on
//   behind it;
// - an image header with wrong sizes, or without a usable job header before it: how many bytes of
//   pixels follow cannot be known, so the next command code is looked for;
// - bytes that begin no command: the next command code is looked for, from the second byte on;
// - a command out of order counts as come, and order goes on from there.
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

/// Reads one connection's or one file's stream.
class StreamParser {
 public:
  /// The listener must outlive the parser.
  explicit StreamParser(CommandListener& listener);
  StreamParser(const StreamParser&) = delete;
  StreamParser& operator=(const StreamParser&) = delete;
  ~StreamParser() = default;

  /// Takes the next bytes of the stream, and when they came, where that is to be checked.
  void Feed(std::span<const std::uint8_t> bytes, StreamTime at = {});

  /// What the printer answers to the question that the listener was told last, and since when; as
  /// Exchange has it.
  void Answered(const Answer& answer, StreamTime at = {}) { exchange_.Answered(answer, at); }

  /// What the questions and their answers so far make of the next sheet.
  const Exchange& Course() const { return exchange_; }

  /// No more bytes come: reports what is incomplete and how many bytes are missing. A stream may
  /// end after any whole command but a job header. Feed nothing afterwards.
  void EndOfStream();

  /// Bytes taken so far.
  std::uint64_t Offset() const { return offset_; }

  /// Errors reported so far.
  std::uint64_t ErrorCount() const { return errorCount_; }

  /// What the parser is in: a whole command's beginning, a plane, or Command::None in between.
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
  StreamTime at_{};  ///< when the bytes being taken came
  std::uint64_t errorCount_ = 0;
  std::uint64_t searchFrom_ = 0;
  std::uint64_t badSamples_ = 0;

  std::array<std::uint8_t, kBlockLength> block_{};
  std::size_t filled_ = 0;
  const CommandCode* code_ = nullptr;

  RepeatedSettings settings_;
  std::optional<JobHeader> job_;  ///< a job header whose sheet is a paper's
  Sheet sheet_{};
};

}  // namespace decoder

#endif  // TQR7_DECODER_STREAM_PARSER_H
