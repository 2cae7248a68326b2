// SPDX-License-Identifier: Apache-2.0
// Prints the state of a job as one word: job-state QUEUE-ID
//
// lpstat tells whether a job has ended, not how; the scheduler does.
#include <cups/cups.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char* word_of(ipp_jstate_t state) {
  switch (state) {
    case IPP_JSTATE_PENDING:
      return "pending";
    case IPP_JSTATE_HELD:
      return "held";
    case IPP_JSTATE_PROCESSING:
      return "processing";
    case IPP_JSTATE_STOPPED:
      return "stopped";
    case IPP_JSTATE_CANCELED:
      return "canceled";
    case IPP_JSTATE_ABORTED:
      return "aborted";
    case IPP_JSTATE_COMPLETED:
      return "completed";
  }
  return "unknown";
}

}  // namespace

int main(int argc, char** argv) {
  const char* number = argc == 2 ? std::strrchr(argv[1], '-') : nullptr;
  if (number == nullptr) {
    std::fprintf(stderr, "usage: job-state QUEUE-ID\n");
    return 2;
  }
  const long id = std::strtol(number + 1, nullptr, 10);
  cups_job_t* jobs = nullptr;
  const int count = cupsGetJobs(&jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
  const char* state = nullptr;
  for (int i = 0; i < count; ++i) {
    if (jobs[i].id == id) {
      state = word_of(jobs[i].state);
    }
  }
  if (state == nullptr) {
    std::fprintf(stderr, "job-state: no job %s\n", argv[1]);
  } else {
    std::puts(state);
  }
  cupsFreeJobs(count, jobs);
  return state != nullptr ? 0 : 1;
}
