// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the command stream reader with what a broken filter or anyone at the simulated printer's
// port may send. Fed at once and byte by byte, a stream gives the same.
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "decoder/command_listener.h"
#include "decoder/stream_parser.h"

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
  void OnPrintOut(std::uint64_t offset, std::uint8_t) override { Add("print-out", offset); }
  void OnError(const decoder::StreamError& error) override { text_ += to_string(error) + "\n"; }

  const std::string& Text() const { return text_; }

 private:
  void Add(const char* what, std::uint64_t offset) {
    text_ += what + (" " + std::to_string(offset)) + "\n";
  }

  std::string text_;
};

std::string read(std::span<const std::uint8_t> bytes, std::size_t piece) {
  Record record;
  decoder::StreamParser parser(record);
  while (!bytes.empty()) {
    const std::size_t count = piece < bytes.size() ? piece : bytes.size();
    parser.Feed(bytes.first(count));
    bytes = bytes.subspan(count);
  }
  parser.EndOfStream();
  return record.Text();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  if (read(bytes, size) != read(bytes, 1)) {
    std::abort();
  }
  return 0;
}
