// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/cancelled_calls.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/filter/command_job.h"
#include "tests/filter/comparison.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::size_t kFirstHeaders = StatusRequest().size() + StatusRequest().size() + 512;

void ExpectBeginning(const Outcome& outcome, const Example& example) {
  EXPECT_EQ(outcome.status, 0) << "signal " << outcome.signal << "\n" << outcome.log;
  EXPECT_TRUE(SameStream(outcome.stream, example.whole.substr(0, outcome.stream.size())));
}

}  // namespace

Job Watched(Job job, const std::string& at) {
  job.environment["LD_PRELOAD"] = FILTER_TEST_SIGNALS ":" FILTER_TEST_INTERPOSER;
  job.environment["FILTER_TEST_SIGNAL_AT"] = at;
  job.stream_end = StreamEnd::Anywhere;
  return job;
}

bool Arrived(const Outcome& outcome) {
  return outcome.log.find("[SIGTERM]\n") != std::string::npos;
}

Example SmallPhoto() {
  return {{.input = SmallRaster()}, SmallStream(), kFirstHeaders};
}

Example SelfTest() {
  const Job job = CommandJob("PrintSelfTestPage\n");
  return {job, Print(job).stream, kFirstHeaders};
}

Example JoinedMatte() {
  const Settings settings{.paper = &kJoined, .finish = kMatte, .rgb_rate = 66};
  return {{.input = SmallRaster(2), .options = "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte"},
          StatusRequest() + Sheet(settings, SmallImage(2, kJoined) + SmallImage(1, kJoined)) +
              PrintOut(),
          kFirstHeaders};
}

std::string CallAt(const std::string& call, long number, const std::string& moment) {
  std::ostringstream at;
  at << call << ' ' << number << ' ' << moment;
  return at.str();
}

int CancelInEach(const Example& example, const std::string& call, const std::string& moment,
                 int stride) {
  for (int number = 1;; number += stride) {
    const std::string at = CallAt(call, number, moment);
    SCOPED_TRACE(at);
    const Outcome outcome = Print(Watched(example.job, at));
    ExpectBeginning(outcome, example);
    if (!Arrived(outcome) || testing::Test::HasFailure()) {
      EXPECT_TRUE(SameStream(outcome.stream, example.whole));
      return (number - 1) / stride;
    }
  }
}

}  // namespace filter_test
