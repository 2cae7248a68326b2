// SPDX-License-Identifier: Apache-2.0
//
// The lines on one job in the scheduler's error log, without what is personal.
#ifndef TQR7_TOOLS_JOB_LOG_H
#define TQR7_TOOLS_JOB_LOG_H

#include <string>
#include <string_view>

#include "tools/personal_words.h"
#include "tools/scheduler.h"

namespace tools {

/// Collects the job's lines from a log that it gets line by line.
class JobLog {
 public:
  /// The words must outlive it.
  JobLog(int job, const PersonalWords& words);

  void Take(std::string_view line);

  /// All lines on the job.
  const std::string& Lines() const { return lines_; }
  /// The lines on the exchanges with the printer: commands and answers in hexadecimal.
  const std::string& Exchanges() const { return exchanges_; }
  /// Whether there are lines of the level debug, which those on the exchanges are.
  bool HasDebugLines() const { return debug_; }

 private:
  std::string mark_;  ///< of the job's lines: "[Job 12] "
  const PersonalWords& words_;
  std::string lines_;
  std::string exchanges_;
  bool debug_ = false;
};

/// Reads the log from the file at `path`, or asks the scheduler for it when the path is empty.
/// Returns a sentence on what is missing in it and what helps, or nothing.
std::string read_log(Scheduler& scheduler, const std::string& path, JobLog& log);

}  // namespace tools

#endif  // TQR7_TOOLS_JOB_LOG_H
