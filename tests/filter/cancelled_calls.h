// SPDX-License-Identifier: Apache-2.0
//
// Jobs into whose calls a preloaded library brings SIGTERM.
#ifndef TQR7_TESTS_FILTER_CANCELLED_CALLS_H
#define TQR7_TESTS_FILTER_CANCELLED_CALLS_H

#include <string>

#include "tests/filter/filter_process.h"

namespace filter_test {

inline constexpr std::size_t kHeaders = 1024;  ///< bytes of job header and image header

/// A job, its whole stream, and where in it the first sheet's headers begin.
struct Example {
  Job job;
  std::string whole;
  std::size_t headers;
};

Example SmallPhoto();
/// Two pages on a sheet with a matte plane: every kind of memory that a job takes.
Example JoinedMatte();
/// The command filter's test page.
Example SelfTest();

/// Names a moment as interposed_signals.cpp takes it.
std::string CallAt(const std::string& call, long number, const std::string& moment);

/// The job with SIGTERM at that moment.
Job Watched(Job job, const std::string& at);

/// Whether SIGTERM came.
bool Arrived(const Outcome& outcome);

/// SIGTERM in every `stride`-th call of this name that the pages make: each job has to end with
/// status 0 and a beginning of its stream. The number of calls that it came into; the first that
/// there is not leaves the job undisturbed.
int CancelInEach(const Example& example, const std::string& call, const std::string& moment,
                 int stride = 1);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_CANCELLED_CALLS_H
