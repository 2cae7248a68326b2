// SPDX-License-Identifier: Apache-2.0
//
// Levels a sixteenth of an 8-bit value apart: the sharpened picture's values lie in between.
#ifndef TQR7_TESTS_UNIT_CONVERSION_FINE_LEVELS_H
#define TQR7_TESTS_UNIT_CONVERSION_FINE_LEVELS_H

constexpr int kFineLevels = 4080;

constexpr double fine_level(int i) {
  return static_cast<double>(i) / kFineLevels;
}

#endif  // TQR7_TESTS_UNIT_CONVERSION_FINE_LEVELS_H
