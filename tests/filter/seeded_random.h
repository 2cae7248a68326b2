// SPDX-License-Identifier: Apache-2.0
//
// Random numbers that are the same in every run, so that a failure can be repeated.
#ifndef TQR7_TESTS_FILTER_SEEDED_RANDOM_H
#define TQR7_TESTS_FILTER_SEEDED_RANDOM_H

#include <random>

namespace filter_test {

inline std::mt19937 SeededRandom(unsigned seed) {
  return std::mt19937(seed);
}

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_SEEDED_RANDOM_H
