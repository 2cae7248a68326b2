// SPDX-License-Identifier: Apache-2.0
//
// An allocator that refuses arrays when a test says so: takes the place of array-new.
#ifndef TQR7_TESTS_UNIT_FAILING_ALLOCATOR_H
#define TQR7_TESTS_UNIT_FAILING_ALLOCATOR_H

#include <cstddef>

/// While it lives, every array of at least `smallest_refused` bytes is refused.
class ArraysRefused {
 public:
  explicit ArraysRefused(std::size_t smallest_refused);
  ~ArraysRefused();
  ArraysRefused(const ArraysRefused&) = delete;
  ArraysRefused& operator=(const ArraysRefused&) = delete;
};

/// Arrays taken and not yet given back.
long LiveArrays();

/// The size of the last array that was asked for.
std::size_t LastArraySize();

#endif  // TQR7_TESTS_UNIT_FAILING_ALLOCATOR_H
