// SPDX-License-Identifier: Apache-2.0
//
// The operator's tool as a second judge of every stream that the filter makes: what is right for
// the tests' own tables must be right for `tqr7 inspect`, too.
#ifndef TQR7_TESTS_FILTER_STREAM_INSPECTION_H
#define TQR7_TESTS_FILTER_STREAM_INSPECTION_H

#include <gtest/gtest.h>

#include <string>

#include "tests/filter/temporary_folder.h"

namespace filter_test {

/// Where a job leaves its stream.
enum class StreamEnd {
  Whole,     ///< behind a whole command or plane
  Cut,       ///< inside one
  Anywhere,  ///< behind one or inside one, as it happens
  Undated,   ///< behind a whole one, with an image header whose date is none
  Unlooked,  ///< the stream is not inspected: the test itself holds every byte of it
};

/// `tqr7 inspect` finds no error in the stream, or, where it is cut or has no date, that error and
/// no other. A job that sends nothing has no stream to inspect.
testing::AssertionResult PassesInspection(const std::string& stream, StreamEnd end,
                                          const TemporaryFolder& folder);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_STREAM_INSPECTION_H
