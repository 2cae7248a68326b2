// SPDX-License-Identifier: Apache-2.0
#include "tools/scheduler.h"

#include <cups/ppd.h>
#include <sys/socket.h>

#include <array>

#include "language/messages.h"
#include "tools/plain_text.h"
#include "tools/queue_reading.h"

namespace tools {
namespace {

constexpr int kConnectTimeout = 5000;    // milliseconds
constexpr double kAnswerTimeout = 15.0;  // seconds

// Each attribute is asked for by name. "all" is not enough: for a job that the scheduler has not in
// its memory, it returns only a few attributes.
constexpr std::array<const char*, 12> kQueueAttributes = {"printer-name",
                                                          "printer-type",
                                                          "member-names",
                                                          "printer-make-and-model",
                                                          "printer-state",
                                                          "printer-state-message",
                                                          "printer-state-reasons",
                                                          "printer-state-change-time",
                                                          "printer-is-accepting-jobs",
                                                          "device-uri",
                                                          "printer-error-policy",
                                                          "printer-commands"};
constexpr std::array<const char*, 10> kJobAttributes = {"job-id",
                                                        "job-printer-uri",
                                                        "job-state",
                                                        "job-state-reasons",
                                                        "job-printer-state-message",
                                                        "job-printer-state-reasons",
                                                        "time-at-processing",
                                                        "job-impressions-completed",
                                                        "document-format",
                                                        "document-format-detected"};

int give_up(http_t* /*http*/, void* /*data*/) {
  return 0;
}

std::string queue_uri(const std::string& queue) {
  std::array<char, 1024> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                   "localhost", 0, "/printers/%s", queue.c_str());
  return uri.data();
}

void add_string(ipp_t* request, ipp_tag_t tag, const char* name, const char* value) {
  ippAddString(request, IPP_TAG_OPERATION, tag, name, nullptr, value);
}

template <std::size_t N>
void ask_for(ipp_t* request, const std::array<const char*, N>& names) {
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(N), nullptr, names.data());
}

ipp_t* new_request(ipp_op_t operation) {
  ipp_t* const request = ippNewRequest(operation);
  add_string(request, IPP_TAG_NAME, "requesting-user-name", cupsUser());
  return request;
}

ipp_t* request_for(ipp_op_t operation, const std::string& uri) {
  ipp_t* const request = ippNewRequest(operation);
  add_string(request, IPP_TAG_URI, "printer-uri", uri.c_str());
  add_string(request, IPP_TAG_NAME, "requesting-user-name", cupsUser());
  return request;
}

ipp_t* request_for_job(ipp_op_t operation, int job) {
  ipp_t* const request = ippNewRequest(operation);
  add_string(request, IPP_TAG_URI, "job-uri",
             ("ipp://localhost/jobs/" + std::to_string(job)).c_str());
  add_string(request, IPP_TAG_NAME, "requesting-user-name", cupsUser());
  return request;
}

Outcome outcome_of(ipp_status_t status) {
  switch (status) {
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
      return Outcome::Forbidden;
    default:
      return status <= IPP_STATUS_OK_EVENTS_COMPLETE ? Outcome::Done : Outcome::Failed;
  }
}

}  // namespace

Scheduler::Scheduler() = default;

Scheduler::~Scheduler() {
  httpClose(http_);
}

http_t* Scheduler::Connection() {
  if (http_ == nullptr) {
    http_ = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                         kConnectTimeout, nullptr);
    if (http_ == nullptr) {
      Remember(cupsLastError(), cupsLastErrorString());
      return nullptr;
    }
    httpSetTimeout(http_, kAnswerTimeout, give_up, nullptr);
  }
  return http_;
}

Outcome Scheduler::Remember(ipp_status_t status, const char* words) {
  const Outcome outcome = outcome_of(status);
  if (outcome != Outcome::Done) {
    error_ = plain_text(words != nullptr ? words : language::_("no answer"));
  }
  return outcome;
}

Response Scheduler::Send(ipp_t* request, const char* resource) {
  http_t* const http = Connection();
  if (http == nullptr) {
    ippDelete(request);
    return nullptr;
  }
  Response response(cupsDoRequest(http, request, resource));
  if (Remember(cupsLastError(), cupsLastErrorString()) != Outcome::Done) {
    response.reset();
    // Nobody knows the state of this connection, so the next request opens a new one.
    httpClose(http_);
    http_ = nullptr;
  }
  return response;
}

Outcome Scheduler::Do(ipp_t* request, const char* resource) {
  const Response response = Send(request, resource);
  if (response != nullptr) {
    return Outcome::Done;
  }
  return outcome_of(cupsLastError()) == Outcome::Forbidden ? Outcome::Forbidden : Outcome::Failed;
}

std::optional<QueueList> Scheduler::Look() {
  ipp_t* const queues = new_request(IPP_OP_CUPS_GET_PRINTERS);
  ask_for(queues, kQueueAttributes);
  const Response queueAnswer = Send(queues, "/");
  if (queueAnswer == nullptr) {
    // A scheduler without any queue answers that it found nothing.
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {
      return QueueList{};
    }
    return std::nullopt;
  }
  QueueList list = read_queues(queueAnswer.get());

  ipp_t* const jobs = request_for(IPP_OP_GET_JOBS, "ipp://localhost/");
  add_string(jobs, IPP_TAG_KEYWORD, "which-jobs", "all");
  ask_for(jobs, kJobAttributes);
  const Response jobAnswer = Send(jobs, "/");
  if (jobAnswer == nullptr) {
    return std::nullopt;
  }
  read_jobs(jobAnswer.get(), list);
  return list;
}

Response Scheduler::QueueAttributes(const std::string& queue) {
  return Send(request_for(IPP_OP_GET_PRINTER_ATTRIBUTES, queue_uri(queue)), "/");
}

Response Scheduler::JobAttributes(int job) {
  return Send(request_for_job(IPP_OP_GET_JOB_ATTRIBUTES, job), "/");
}

Outcome Scheduler::StartQueue(const std::string& queue) {
  return Do(request_for(IPP_OP_RESUME_PRINTER, queue_uri(queue)), "/admin/");
}

Outcome Scheduler::RestartJob(int job) {
  return Do(request_for_job(IPP_OP_RESTART_JOB, job), "/jobs");
}

Outcome Scheduler::CancelJob(int job) {
  return Do(request_for_job(IPP_OP_CANCEL_JOB, job), "/jobs");
}

int Scheduler::AskForStatus(const std::string& queue) {
  constexpr char kCommands[] = "#CUPS-COMMAND\nReportStatus\n";
  http_t* const http = Connection();
  if (http == nullptr) {
    return 0;
  }
  const int job = cupsCreateJob(http, queue.c_str(), "ReportStatus", 0, nullptr);
  if (job == 0) {
    Remember(cupsLastError(), cupsLastErrorString());
    return 0;
  }
  cupsStartDocument(http, queue.c_str(), job, "ReportStatus", kCommandFormat, 1);
  cupsWriteRequestData(http, kCommands, sizeof kCommands - 1);
  if (outcome_of(cupsFinishDocument(http, queue.c_str())) != Outcome::Done) {
    Remember(cupsLastError(), cupsLastErrorString());
    CancelJob(job);
    return 0;
  }
  return job;
}

JobState Scheduler::StateOf(int job) {
  const Response answer = JobAttributes(job);
  if (answer == nullptr) {
    return JobState::Unknown;
  }
  ipp_attribute_t* const state = ippFindAttribute(answer.get(), "job-state", IPP_TAG_ENUM);
  const int number = state != nullptr ? ippGetInteger(state, 0) : 0;
  return number >= 3 && number <= 9 ? static_cast<JobState>(number) : JobState::Unknown;
}

Outcome Scheduler::GetFile(const std::string& resource, int descriptor) {
  http_t* const http = Connection();
  if (http == nullptr) {
    return Outcome::Failed;
  }
  const http_status_t status = cupsGetFd(http, resource.c_str(), descriptor);
  if (status == HTTP_STATUS_OK) {
    return Outcome::Done;
  }
  error_ = plain_text(httpStatus(status));
  const bool denied = status == HTTP_STATUS_FORBIDDEN || status == HTTP_STATUS_UNAUTHORIZED ||
                      status == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
  return denied ? Outcome::Forbidden : Outcome::Failed;
}

std::string Scheduler::CopyPpd(const std::string& queue) {
  http_t* const http = Connection();
  std::array<char, 1024> path{};
  time_t modified = 0;
  const bool there = http != nullptr && cupsGetPPD3(http, queue.c_str(), &modified, path.data(),
                                                    path.size()) == HTTP_STATUS_OK;
  return there ? path.data() : "";
}

}  // namespace tools
