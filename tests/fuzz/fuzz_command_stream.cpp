// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the command stream reader with what a broken filter or anyone at the simulated printer's
// port may send. Fed at once and byte by byte, a stream gives the same, with and without answers of
// the printer; and a stream without errors is written again by the filter's own writers, from the
// fields and rows that were read, byte for byte.
#include <cstdint>
#include <string>
#include <vector>

#include "decoder/stream_parser.h"
#include "tests/fuzz/fake_printer.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/rewriter.h"
#include "tests/fuzz/streams.h"

namespace {

// All that the parser said, as one text.
class Record : public decoder::CommandListener {
 public:
  void OnStatusRequest(std::uint64_t offset) override { Add("status", offset); }
  void OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader&) override {
    Add("readiness", offset);
  }
  void OnJobHeader(std::uint64_t offset, const decoder::JobHeader&) override { Add("job", offset); }
  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader&) override {
    Add("image", offset);
  }
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override {
    Add("row", row);
    for (const std::uint16_t sample : samples) {
      text_ += std::to_string(sample) + " ";
    }
  }
  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override {
    Add("matte", row);
    text_.append(bytes.begin(), bytes.end());
  }
  void OnSheetEnd(const decoder::SheetEnd& end) override {
    Add("end", end.offset);
    Add("bad samples", end.badSamples);
  }
  void OnSheetCut() override { Add("cut", 0); }
  void OnPrintOut(std::uint64_t offset, std::uint8_t) override { Add("print-out", offset); }
  void OnError(const decoder::StreamError& error) override { text_ += to_string(error) + "\n"; }
  void OnSkipped(std::uint64_t offset, std::uint64_t count) override {
    Add("skipped", offset);
    Add("skipped bytes", count);
  }

  const std::string& Text() const { return text_; }

 private:
  void Add(const char* what, std::uint64_t offset) {
    text_ += what + (" " + std::to_string(offset)) + "\n";
  }

  std::string text_;
};

using Bytes = std::span<const std::uint8_t>;

// With a printer that answers each question, by the question's place in the stream.
class AnsweredRecord : public Record {
 public:
  void OnStatusRequest(std::uint64_t offset) override {
    Record::OnStatusRequest(offset);
    Answer(offset);
  }
  void OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) override {
    Record::OnReadinessQuery(offset, header);
    Answer(offset);
  }

  decoder::StreamParser parser{*this};

 private:
  void Answer(std::uint64_t offset) {
    const std::uint64_t kind = offset / 8;
    parser.Answered({decoder::Answer::Meaning(kind % 3), "an answer", kind % 5 != 0, kind % 7 == 0},
                    std::chrono::seconds(kind % 4));
  }
};

// The number of errors.
std::uint64_t read(decoder::StreamParser& parser, Bytes bytes, std::size_t piece) {
  while (!bytes.empty()) {
    const std::size_t count = std::min(piece, bytes.size());
    parser.Feed(bytes.first(count), std::chrono::seconds(3));
    bytes = bytes.subspan(count);
  }
  parser.EndOfStream();
  return parser.ErrorCount();
}

std::uint64_t read(decoder::CommandListener& listener, Bytes bytes, std::size_t piece) {
  decoder::StreamParser parser(listener);
  return read(parser, bytes, piece);
}

void write_again(Bytes bytes) {
  std::vector<std::uint8_t> again;
  fuzz::PrinterStream stream(
      [&](Bytes piece) { again.insert(again.end(), piece.begin(), piece.end()); });
  fuzz::Rewriter rewriter(bytes.size());
  read(rewriter, bytes, bytes.size());
  fuzz::require(stream.Flush() &&
                std::equal(again.begin(), again.end(), bytes.begin(), bytes.end()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Bytes bytes(data, size);
  Record at_once;
  Record by_bytes;
  const std::uint64_t errors = read(at_once, bytes, size);
  read(by_bytes, bytes, 1);
  fuzz::require(at_once.Text() == by_bytes.Text());
  AnsweredRecord answered_at_once;
  AnsweredRecord answered_by_bytes;
  read(answered_at_once.parser, bytes, size);
  read(answered_by_bytes.parser, bytes, 1);
  fuzz::require(answered_at_once.Text() == answered_by_bytes.Text());
  if (errors == 0) {
    write_again(bytes);
  }
  return 0;
}
