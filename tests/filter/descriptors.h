// SPDX-License-Identifier: Apache-2.0
//
// Descriptors of the test process, kept clear of the numbers that mean something to a filter.
#ifndef TQR7_TESTS_FILTER_DESCRIPTORS_H
#define TQR7_TESTS_FILTER_DESCRIPTORS_H

#include <fcntl.h>
#include <unistd.h>

#include <string>
#include <utility>

namespace filter_test {

/// Moves a descriptor to a number that the filter has no use for; it does not outlive an exec.
inline int MoveHigh(int descriptor) {
  const int high = fcntl(descriptor, F_DUPFD_CLOEXEC, 10);
  close(descriptor);
  return high;
}

/// A pipe's read end and write end.
inline std::pair<int, int> HighPipe() {
  int ends[2] = {-1, -1};
  if (pipe(ends) != 0) {
    return {-1, -1};
  }
  return {MoveHigh(ends[0]), MoveHigh(ends[1])};
}

inline void CloseAndForget(int* descriptor) {
  if (*descriptor >= 0) {
    close(*descriptor);
    *descriptor = -1;
  }
}

/// A descriptor that lasts as long as the object does.
class Opened {
 public:
  Opened(const std::string& path, int flags) : number_(MoveHigh(open(path.c_str(), flags))) {}
  explicit Opened(int number) : number_(number) {}
  ~Opened() { CloseAndForget(&number_); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  int number() const { return number_; }
  void Close() { CloseAndForget(&number_); }

 private:
  int number_;
};

/// Keeps descriptors 3 and 4 from being given to anything else.
inline void ReserveChannelDescriptors() {
  const int nothing = MoveHigh(open("/dev/null", O_RDWR));
  dup3(nothing, 3, O_CLOEXEC);
  dup3(nothing, 4, O_CLOEXEC);
  close(nothing);
}

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_DESCRIPTORS_H
