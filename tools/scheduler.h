// SPDX-License-Identifier: Apache-2.0
//
// The connection to the scheduler: what the tool asks it and has it do, by IPP.
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

/// The scheduler that this program's environment names. Connects with the first request, and again
/// when the connection was lost.
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
  /// Prints a job that came to an end, or stands stopped, from its beginning.
  Outcome RestartJob(int job);
  Outcome CancelJob(int job);

  /// Has the queue's command filter ask the printer for its state; the job's number, or 0.
  int AskForStatus(const std::string& queue);
  /// The state of a job; Unknown when it cannot be told.
  JobState StateOf(int job);

  /// Gets a file of the scheduler's, such as "/admin/log/error_log", into an open descriptor.
  Outcome GetFile(const std::string& resource, int descriptor);

  /// A copy of the queue's PPD, for the caller to remove; empty when there is none.
  std::string CopyPpd(const std::string& queue);

  /// The words for what failed last, fit for a terminal.
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
