// SPDX-License-Identifier: Apache-2.0
//
// Where a target's code writes to: a printer's stream that hands each byte to the target and may
// fail after a number of them.
#ifndef TQR7_TESTS_FUZZ_STREAMS_H
#define TQR7_TESTS_FUZZ_STREAMS_H

#include <cstdint>
#include <cstdio>
#include <functional>
#include <limits>
#include <span>

namespace fuzz {

/// Takes the place of standard output and of fpOut for as long as it lives.
class PrinterStream {
 public:
  using Sink = std::function<void(std::span<const std::uint8_t>)>;

  /// The sink gets the first `limit` bytes; every write beyond them fails, as on a closed pipe.
  explicit PrinterStream(Sink sink,
                         std::uint64_t limit = std::numeric_limits<std::uint64_t>::max());
  PrinterStream(const PrinterStream&) = delete;
  PrinterStream& operator=(const PrinterStream&) = delete;
  ~PrinterStream();

  /// Hands on what the stream still holds. False when that fails, or some write has failed.
  bool Flush();

 private:
  static ssize_t Write(void* self, const char* bytes, std::size_t size);

  Sink sink_;
  std::uint64_t left_;
  bool failed_ = false;
  std::FILE* file_;
  std::FILE* stdout_before_;
  std::FILE* fp_out_before_;
};

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_STREAMS_H
