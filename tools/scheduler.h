// SPDX-License-Identifier: Apache-2.0
//
// The connection to the scheduler, by IPP: what the tool asks, and what it tells the scheduler to
// do.
#ifndef TQR7_TOOLS_SCHEDULER_H
#define TQR7_TOOLS_SCHEDULER_H

#include <cups/cups.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tools/queue.h"

namespace tools {

struct FreeResponse {
  void operator()(ipp_t* message) const { ippDelete(message); }
};
using Response = std::unique_ptr<ipp_t, FreeResponse>;

/// How a request ended.
enum class Outcome : std::uint8_t {
  Done,
  Forbidden,  ///< the person may not do this
  Failed,     ///< anything else; Scheduler::Error() says what
};

/// The scheduler that this program's environment names. It connects with the first request, and
/// again after the connection was lost.
class Scheduler {
 public:
  Scheduler();
  Scheduler(const Scheduler&) = delete;
  Scheduler& operator=(const Scheduler&) = delete;
  ~Scheduler();

  /// All queues and classes with their jobs; nothing when the scheduler does not answer.
  std::optional<QueueList> Look();

  /// All attributes of a queue or of a job; null when there is none.
  Response QueueAttributes(const std::string& queue);
  Response JobAttributes(int job);

  /// Starts a stopped queue.
  Outcome StartQueue(const std::string& queue);
  /// Prints a job from its beginning that has ended or is stopped.
  Outcome RestartJob(int job);
  Outcome CancelJob(int job);

  /// Sends a job by which the queue's command filter asks the printer for its state. Returns the
  /// job's number, or 0 on failure.
  int AskForStatus(const std::string& queue);
  /// The state of a job; Unknown when the scheduler does not say it.
  JobState StateOf(int job);

  /// Writes one of the scheduler's files, such as "/admin/log/error_log", to an open descriptor.
  Outcome GetFile(const std::string& resource, int descriptor);

  /// Makes a copy of the queue's PPD, which the caller must remove. Returns its path; empty when
  /// there is no PPD.
  std::string CopyPpd(const std::string& queue);

  /// What failed last, as plain text.
  std::string Error() const { return error_; }

 private:
  http_t* Connection();
  Response Send(ipp_t* request, const char* resource);
  Outcome Do(ipp_t* request, const char* resource);
  Outcome Remember(ipp_status_t status, const char* words);

  http_t* http_ = nullptr;
  std::string error_;
};

}  // namespace tools

#endif  // TQR7_TOOLS_SCHEDULER_H
