// SPDX-License-Identifier: Apache-2.0
//
// Whole streams and logs compared: the first place where they differ is told, not all of both.
#ifndef TQR7_TESTS_FILTER_COMPARISON_H
#define TQR7_TESTS_FILTER_COMPARISON_H

#include <gtest/gtest.h>

#include <string>

namespace filter_test {

/// Byte for byte.
testing::AssertionResult SameStream(const std::string& actual, const std::string& expected);

/// Line for line. An expected line that ends in kAnyText may end in any text that is not empty.
testing::AssertionResult SameLog(const std::string& actual, const std::string& expected);

/// Stands at the end of an expected line for text that is the system's or the filter's own choice.
inline const std::string kAnyText = "\x01";

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_COMPARISON_H
