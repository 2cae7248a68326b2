// SPDX-License-Identifier: Apache-2.0
//
// Reading the scheduler's error log for the lines of one job: out of a file, or from the scheduler.
#ifndef TQR7_TOOLS_LOG_READING_H
#define TQR7_TOOLS_LOG_READING_H

#include <string>

#include "tools/job_log.h"
#include "tools/scheduler.h"

namespace tools {

/// Reads the log at `path`, or without one what the scheduler hands out. Returns a line that says
/// what of the job it does not hold and what helps; empty when it holds all.
std::string read_log(Scheduler& scheduler, const std::string& path, JobLog& log);

}  // namespace tools

#endif  // TQR7_TOOLS_LOG_READING_H
