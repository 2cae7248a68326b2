// SPDX-License-Identifier: Apache-2.0
//
// Inner loops timed by Google Benchmark in one run, in a mixed order, and what each takes a pixel.
#ifndef TQR7_BENCH_SPEED_KERNEL_RACE_H
#define TQR7_BENCH_SPEED_KERNEL_RACE_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Bytes that a loop has to read and to write for a pixel, tables not counted.
struct Moved {
  double read;
  double written;

  double both() const { return read + written; }
};

/// A loop that is timed.
struct Kernel {
  std::string name;            ///< as a table shows it
  std::size_t pixels;          ///< that one run goes over
  std::function<void()> work;  ///< one run
  double nanoseconds = 0;      ///< a pixel, once it has run: the median of the repetitions
};

/// Times all of them, so many repetitions each, in a mixed order so that a busy machine slows all
/// alike. Processor time of this thread, user and system. Once in a process. Throws
/// std::runtime_error when one of them could not be timed.
void race_kernels(const std::vector<Kernel*>& kernels, int repetitions);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_KERNEL_RACE_H
