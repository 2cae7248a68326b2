// SPDX-License-Identifier: Apache-2.0
//
// A job's lines out of the scheduler's error log, without what is personal.
#ifndef TQR7_TOOLS_JOB_LOG_H
#define TQR7_TOOLS_JOB_LOG_H

#include <string>
#include <string_view>

#include "tools/personal_words.h"
#include "tools/scheduler.h"

namespace tools {

/// Takes an error log line by line.
class JobLog {
 public:
  /// The words must outlive it.
  JobLog(int job, const PersonalWords& words);

  void Take(std::string_view line);

  /// All lines of the job.
  const std::string& Lines() const { return lines_; }
  /// Those of the exchanges with the printer, commands and answers in hexadecimal.
  const std::string& Exchanges() const { return exchanges_; }
  /// Whether there are lines of the level debug, which the exchanges are.
  bool HasDebugLines() const { return debug_; }

 private:
  std::string mark_;  ///< that the job's lines carry: "[Job 12] "
  const PersonalWords& words_;
  std::string lines_;
  std::string exchanges_;
  bool debug_ = false;
};

/// Reads the log at `path`, or without one what the scheduler hands out. Returns a line that says
/// what of the job it does not hold and what helps; empty when it holds all.
std::string read_log(Scheduler& scheduler, const std::string& path, JobLog& log);

}  // namespace tools

#endif  // TQR7_TOOLS_JOB_LOG_H
