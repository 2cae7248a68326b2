// SPDX-License-Identifier: Apache-2.0
//
// Whether a call of libcups was refused memory. It then often goes on silently without what it
// needed the memory for: an option, a marked choice, a page of the raster.
#ifndef TQR7_FILTER_MEMORY_WATCH_H
#define TQR7_FILTER_MEMORY_WATCH_H

#include <cerrno>

/// Watches one call. If the call does not set errno, errno keeps its value from before.
class MemoryWatch {
 public:
  MemoryWatch() : before_(errno) { errno = 0; }
  ~MemoryWatch() {
    if (errno == 0) {
      errno = before_;
    }
  }
  MemoryWatch(const MemoryWatch&) = delete;
  MemoryWatch& operator=(const MemoryWatch&) = delete;

  /// Whether errno is ENOMEM. This is a reason only if the call failed: one that succeeded may
  /// leave it, too.
  bool refused() const { return errno == ENOMEM; }

 private:
  int before_;
};

/// Writes the log line of a job that ends for lack of memory.
void report_no_memory();

#endif  // TQR7_FILTER_MEMORY_WATCH_H
