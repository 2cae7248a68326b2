// SPDX-License-Identifier: Apache-2.0
#include "tests/fuzz/streams.h"

#include <algorithm>

#include "job/job_state.h"

namespace fuzz {

PrinterStream::PrinterStream(Sink sink, std::uint64_t limit)
    : sink_(std::move(sink)), left_(limit), stdout_before_(stdout), fp_out_before_(fpOut) {
  cookie_io_functions_t functions{};
  functions.write = Write;
  file_ = fopencookie(this, "w", functions);
  stdout = file_;
  fpOut = file_;
}

PrinterStream::~PrinterStream() {
  stdout = stdout_before_;
  fpOut = fp_out_before_;
  static_cast<void>(std::fclose(file_));
}

bool PrinterStream::Flush() {
  return std::fflush(file_) == 0 && !failed_;
}

ssize_t PrinterStream::Write(void* self, const char* bytes, std::size_t size) {
  auto& stream = *static_cast<PrinterStream*>(self);
  const std::size_t taken = std::min<std::uint64_t>(size, stream.left_);
  stream.left_ -= taken;
  stream.failed_ = stream.failed_ || taken < size;
  if (taken > 0) {
    stream.sink_({reinterpret_cast<const std::uint8_t*>(bytes), taken});
  }
  return static_cast<ssize_t>(taken);
}

}  // namespace fuzz
