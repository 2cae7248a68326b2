// SPDX-License-Identifier: Apache-2.0
//
// Whether memory was refused to a call of libcups, which then often goes on in silence without what
// it wanted: an option, a marked choice, a page of the raster.
#ifndef TQR7_FILTER_MEMORY_WATCH_H
#define TQR7_FILTER_MEMORY_WATCH_H

#include <cerrno>

/// Stands around one call. Where the call leaves errno alone, errno keeps what it said before.
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

  /// The allocator's own word. A reason only where the call failed: one that succeeded may leave
  /// it.
  bool refused() const { return errno == ENOMEM; }

 private:
  int before_;
};

/// The log line that a job ends with for want of memory.
void report_no_memory();

#endif  // TQR7_FILTER_MEMORY_WATCH_H
