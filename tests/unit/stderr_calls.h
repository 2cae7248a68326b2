// SPDX-License-Identifier: Apache-2.0
//
// Standard error as the single writes that leave the process.
#ifndef TQR7_TESTS_UNIT_STDERR_CALLS_H
#define TQR7_TESTS_UNIT_STDERR_CALLS_H

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

/// While it lives, standard error is an unbuffered stream that keeps each write apart.
class StderrCalls {
 public:
  StderrCalls() : saved_(stderr) {
    stderr = fopencookie(&writes_, "w", {nullptr, &Write, nullptr, nullptr});
    std::setvbuf(stderr, nullptr, _IONBF, 0);
  }
  ~StderrCalls() { Restore(); }
  StderrCalls(const StderrCalls&) = delete;
  StderrCalls& operator=(const StderrCalls&) = delete;

  /// Ends it and gives the writes in their order.
  std::vector<std::string> Take() {
    Restore();
    return std::move(writes_);
  }

 private:
  static ssize_t Write(void* cookie, const char* bytes, std::size_t size) {
    static_cast<std::vector<std::string>*>(cookie)->emplace_back(bytes, size);
    return static_cast<ssize_t>(size);
  }
  void Restore() {
    if (saved_ != nullptr) {
      std::fclose(stderr);
      stderr = saved_;
      saved_ = nullptr;
    }
  }

  std::FILE* saved_;
  std::vector<std::string> writes_;
};

#endif  // TQR7_TESTS_UNIT_STDERR_CALLS_H
