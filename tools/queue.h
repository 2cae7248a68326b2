// SPDX-License-Identifier: Apache-2.0
//
// A queue and its jobs as the scheduler tells them, and what the driver's own ones are told by.
#ifndef TQR7_TOOLS_QUEUE_H
#define TQR7_TOOLS_QUEUE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tools {

/// The NickName of the driver's PPD, which the scheduler tells as the queue's make and model.
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

/// Times are seconds since 1970, 0 where there is none.
struct Job {
  int id = 0;
  std::string queue;  ///< or class that it was sent to
  JobState state = JobState::Unknown;
  std::vector<std::string> reasons;
  std::string printerMessage;  ///< the last line of its programs that the scheduler kept with it
  std::vector<std::string> printerReasons;  ///< the queue's reasons when it last ran
  std::int64_t processingSince = 0;
  int impressions = 0;  ///< raster pages begun
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
  std::vector<std::string> commands;  ///< what its command filter knows
  std::vector<Job> jobs;              ///< sent to it, by number
};

/// All queues and classes of a scheduler, by name.
struct QueueList {
  std::vector<Queue> queues;

  const Queue* Find(std::string_view name) const;
  /// Printers with the driver's PPD, and classes that have such a member.
  bool IsOurs(const Queue& queue) const;
};

/// "idle", "processing", "stopped" or "unknown".
const char* to_string(QueueState state);
/// IPP's word without "processing-" and "pending-": "stopped", "held", …
const char* to_string(JobState state);

bool contains(const std::vector<std::string>& words, std::string_view word);

/// Whether the reason is one of the printer's own.
bool is_printer_reason(std::string_view reason);
bool has_printer_reason(const std::vector<std::string>& reasons);

/// Whether printing goes on in spite of the reason: reports, warnings, and what a job in print
/// shows.
bool is_harmless(std::string_view reason);

/// A job of printer commands, such as a test page, and not of pictures.
bool is_command(const Job& job);

/// Whether the words are those of phototopage or rastertopage for a file, or for what a job wants
/// of it, that cannot be printed.
bool refuses_file(std::string_view words);

/// Those words of a job that is stopped because of its file; empty for any other job. The scheduler
/// keeps the first complaint of a job's programs with it until the job runs again, so it has these
/// words only when nothing else failed before. No person can put words there.
std::string words_on_file(const Job& job);

/// The queue's jobs in that state.
std::vector<const Job*> jobs_in(const Queue& queue, JobState state);

}  // namespace tools

#endif  // TQR7_TOOLS_QUEUE_H
