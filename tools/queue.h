// SPDX-License-Identifier: Apache-2.0
//
// A queue and its jobs as the scheduler describes them, and how to recognise those of this driver.
#ifndef TQR7_TOOLS_QUEUE_H
#define TQR7_TOOLS_QUEUE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tools {

/// The NickName of the driver's PPD, which is the queue's make and model for the scheduler.
inline constexpr char kMakeAndModel[] = "CORVANTIEL TQR7";
inline constexpr char kReasonPrefix[] = "com.corvantiel-";
inline constexpr char kCommandFormat[] = "application/vnd.cups-command";

/// IPP's numbers.
enum class JobState : std::uint8_t {
  Unknown = 0,
  Pending = 3,
  Held = 4,
  Processing = 5,
  Stopped = 6,
  Canceled = 7,
  Aborted = 8,
  Completed = 9,
};

/// IPP's numbers.
enum class QueueState : std::uint8_t { Unknown = 0, Idle = 3, Processing = 4, Stopped = 5 };

/// A job. Times are seconds since 1970, or 0.
struct Job {
  int id = 0;
  std::string queue;  ///< the queue or class that it was sent to
  JobState state = JobState::Unknown;
  std::vector<std::string> reasons;
  std::string printerMessage;  ///< what its programs said, as far as the scheduler keeps it
  std::vector<std::string> printerReasons;  ///< the queue's reasons when it last ran
  std::int64_t processingSince = 0;
  int impressions = 0;  ///< raster pages that have begun
  std::string format;
};

struct Queue {
  std::string name;
  bool isClass = false;
  std::vector<std::string> members;  ///< of a class
  std::string makeAndModel;
  QueueState state = QueueState::Unknown;
  std::string message;
  std::vector<std::string> reasons;
  std::int64_t changedAt = 0;  ///< when the state last changed
  bool accepting = false;
  std::string deviceUri;
  std::string errorPolicy;
  std::vector<std::string> commands;  ///< that its command filter knows
  std::vector<Job> jobs;              ///< sent to it, in the order of their numbers
};

/// All queues and classes of a scheduler, in the order of their names.
struct QueueList {
  std::vector<Queue> queues;

  /// The queue or class of that name, or null.
  const Queue* Find(std::string_view name) const;
  /// Whether it is a printer with the driver's PPD, or a class that has such a member.
  bool IsOurs(const Queue& queue) const;
};

/// "idle", "processing", "stopped" or "unknown".
const char* to_string(QueueState state);
/// IPP's word for it without "processing-" or "pending-": "stopped", "held", …
const char* to_string(JobState state);

bool contains(const std::vector<std::string>& words, std::string_view word);

/// Whether the reason is an error of the printer, which the driver has raised.
bool is_printer_reason(std::string_view reason);
bool has_printer_reason(const std::vector<std::string>& reasons);

/// Whether the reason does not stop printing: a report, a warning, or what is normal while a job
/// prints.
bool is_harmless(std::string_view reason);

/// Whether it is a job of printer commands, such as a test page.
bool is_command(const Job& job);

/// Whether phototopage or rastertopage says with these words that a file, or what the job wants of
/// it, cannot be printed.
bool refuses_file(std::string_view words);

/// These words, for a job that is stopped because of its file; empty for any other job. The
/// scheduler keeps the first complaint of a job's programs until the job runs again, so a job has
/// these words only if nothing else failed before. No person can set them.
std::string words_on_file(const Job& job);

/// The queue's jobs in that state.
std::vector<const Job*> jobs_in(const Queue& queue, JobState state);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_H
