// SPDX-License-Identifier: Apache-2.0
//
// What a piece of code writes to standard output or standard error, caught at the descriptor.
#ifndef TQR7_TESTS_UNIT_CAPTURE_H
#define TQR7_TESTS_UNIT_CAPTURE_H

#include <fcntl.h>
#include <stdio_ext.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>

/// Sends one standard stream elsewhere for a while. Expectations come after the end of the while:
/// the test program's own reports go to standard output as well.
class Redirection {
 public:
  Redirection(std::FILE* stream, int target) : stream_(stream) {
    std::fflush(stream_);
    saved_ = dup(fileno(stream_));
    if (saved_ < 0 || target < 0 || dup2(target, fileno(stream_)) < 0) {
      throw std::runtime_error("a standard stream cannot be redirected");
    }
  }
  ~Redirection() { Restore(); }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

  /// Puts the stream back as it was; bytes that could not be written are dropped.
  void Restore() {
    if (saved_ >= 0) {
      std::fflush(stream_);
      __fpurge(stream_);
      std::clearerr(stream_);
      dup2(saved_, fileno(stream_));
      close(saved_);
      saved_ = -1;
    }
  }

 private:
  std::FILE* stream_;
  int saved_ = -1;
};

/// Catches one standard stream in a file.
class Capture {
 public:
  explicit Capture(std::FILE* stream) : file_(std::tmpfile()), redirection_(stream, Target(file_)) {
    if (stream == stdout) {
      // The same buffer wherever the test runs, so that what is flushed and what is not can be
      // seen.
      static std::array<char, 65536> buffer;
      std::setvbuf(stdout, buffer.data(), _IOFBF, buffer.size());
    }
  }
  ~Capture() {
    redirection_.Restore();
    if (file_ != nullptr) {
      std::fclose(file_);
    }
  }
  Capture(const Capture&) = delete;
  Capture& operator=(const Capture&) = delete;

  /// What has left the process until now, without what the stream still holds back.
  std::string Arrived() const {
    struct stat status {};
    fstat(fileno(file_), &status);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t got = pread(fileno(file_), text.data(), text.size(), 0);
    text.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return text;
  }

  /// Ends the capture and gives all that was written.
  std::string Text() {
    redirection_.Restore();
    return Arrived();
  }

 private:
  static int Target(std::FILE* file) { return file == nullptr ? -1 : fileno(file); }

  std::FILE* file_;
  Redirection redirection_;
};

#endif  // TQR7_TESTS_UNIT_CAPTURE_H
