// SPDX-License-Identifier: Apache-2.0
//
// A computer without memory: takes the place of the forms of new that the conversion library asks
// by, and refuses what a test says.
#ifndef TQR7_TESTS_UNIT_CONVERSION_REFUSED_MEMORY_H
#define TQR7_TESTS_UNIT_CONVERSION_REFUSED_MEMORY_H

#include <atomic>
#include <cstddef>

struct MemoryScript {
  std::atomic<int> grantsLeft{-1};         ///< arrays granted before one is refused; −1: all are
  std::atomic<bool> tablesRefused{false};  ///< whatever has an alignment of its own
  std::atomic<std::size_t> bytesAsked{0};  ///< by arrays so far
};

/// That of the running test; after it, nothing is refused.
MemoryScript& memory_script();

#endif  // TQR7_TESTS_UNIT_CONVERSION_REFUSED_MEMORY_H
