// SPDX-License-Identifier: Apache-2.0
//
// An output stream that keeps each write apart.
#ifndef TQR7_TESTS_UNIT_SINGLE_WRITES_H
#define TQR7_TESTS_UNIT_SINGLE_WRITES_H

#include <sys/types.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

/// An unbuffered stream.
class SingleWrites {
 public:
  SingleWrites() {
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
    self->sizes_.push_back(size);
    self->bytes_.append(bytes, size);
    return static_cast<ssize_t>(size);
  }

  std::FILE* stream_;
  std::vector<std::size_t> sizes_;
  std::string bytes_;
};

#endif  // TQR7_TESTS_UNIT_SINGLE_WRITES_H
