// SPDX-License-Identifier: Apache-2.0
//
// Jobs of the command filter, and what its log says of every one.
#ifndef TQR7_TESTS_FILTER_COMMAND_JOB_H
#define TQR7_TESTS_FILTER_COMMAND_JOB_H

#include <string>

#include "tests/filter/expected_log.h"
#include "tests/filter/filter_process.h"

namespace filter_test {

/// The first line of every command file.
inline const std::string kMark = "#CUPS-COMMAND\n";

/// The log of a good printer's check.
inline const std::string kGoodCheck = StatusExchange() + GoodState() + kCleaned;

/// The log of a status report on a good printer, behind its check.
inline const std::string kGoodWords = "INFO: The printer is good.\n";

/// A job of these command lines.
Job CommandJob(const std::string& commands);

/// The log of a command that the printer does not have.
std::string Skipped(const std::string& name);

/// Holds a job's end, its whole log and its whole stream against these.
void ExpectOutcome(const Outcome& outcome, int status, const std::string& log,
                   const std::string& stream);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_COMMAND_JOB_H
