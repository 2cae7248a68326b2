// SPDX-License-Identifier: Apache-2.0
//
// An output stream that keeps each write apart and can fail from a chosen write on.
#ifndef TQR7_TESTS_UNIT_SINGLE_WRITES_H
#define TQR7_TESTS_UNIT_SINGLE_WRITES_H

#include <sys/types.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

/// An unbuffered stream; `failing_write` counts from 1, 0 for none. The failing write and those
/// after it take nothing.
class SingleWrites {
 public:
  explicit SingleWrites(std::size_t failing_write = 0) : failing_write_(failing_write) {
    stream_ = fopencookie(this, "w", {nullptr, &Write, nullptr, nullptr});
    std::setvbuf(stream_, nullptr, _IONBF, 0);
  }
  ~SingleWrites() { std::fclose(stream_); }
  SingleWrites(const SingleWrites&) = delete;
  SingleWrites& operator=(const SingleWrites&) = delete;

  std::FILE* stream() { return stream_; }
  const std::vector<std::size_t>& sizes() const { return sizes_; }
  const std::string& bytes() const { return bytes_; }

 private:
  static ssize_t Write(void* cookie, const char* bytes, std::size_t size) {
    auto* self = static_cast<SingleWrites*>(cookie);
    ++self->attempts_;
    if (self->failing_write_ != 0 && self->attempts_ >= self->failing_write_) {
      return 0;
    }
    self->sizes_.push_back(size);
    self->bytes_.append(bytes, size);
    return static_cast<ssize_t>(size);
  }

  std::FILE* stream_;
  std::size_t failing_write_;
  std::size_t attempts_ = 0;
  std::vector<std::size_t> sizes_;
  std::string bytes_;
};

#endif  // TQR7_TESTS_UNIT_SINGLE_WRITES_H
