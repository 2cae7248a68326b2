// SPDX-License-Identifier: Apache-2.0
//
// How many faults it costs to write memory. The system counts them for each process: no other
// program's load changes them.
#ifndef TQR7_TESTS_UNIT_IMAGE_FAULTS_H
#define TQR7_TESTS_UNIT_IMAGE_FAULTS_H

#include <sys/resource.h>

#include <cstddef>
#include <cstring>

inline constexpr std::size_t kBandBytes = std::size_t{1852} * 1232 * 6;  ///< of a 10 × 15 cm sheet
inline constexpr long kFewFaults = 40;  ///< the band has 3,342 pages of memory

inline long faults_so_far() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

/// Writes all of a buffer of `size` bytes.
inline long faults_of_writing(unsigned char* bytes, std::size_t size) {
  const long before = faults_so_far();
  std::memset(bytes, 0xFF, size);
  return faults_so_far() - before;
}

#endif  // TQR7_TESTS_UNIT_IMAGE_FAULTS_H
