// SPDX-License-Identifier: Apache-2.0
//
// Who stopped a queue: the driver only where a trace says so that no person leaves.
#include "tools/standstill.h"

#include <gtest/gtest.h>

#include "tests/unit/tools/queue_samples.h"

using tools::Cause;
using tools::Job;
using tools::JobState;
using tools::Queue;
using tools::QueueList;
using tools::Standstill;

namespace {

Cause cause_of(const Queue& queue) {
  const QueueList list{{queue}};
  return tools::cause_of_standstill(list, list.queues.front());
}

/// A queue that stopped, and who stopped it: for job 7 where it was not a person.
struct Stop {
  const char* name;
  Queue queue;
  Standstill kind;
  std::string word;
};

/// The queue after a refused sheet, with its own message and with its job changed.
template <typename Change>
Queue refused(Change change) {
  Queue queue = refused_queue("photo");
  change(queue, queue.jobs.front());
  return queue;
}

/// The same for the queue of a printer that could not be reached.
template <typename Change>
Queue unreachable(Change change) {
  Queue queue = unreachable_queue("photo");
  change(queue, queue.jobs.front());
  return queue;
}

Queue refused_with_message(const char* message) {
  return refused([message](Queue& queue, Job&) { queue.message = message; });
}

/// As after the scheduler put the refused job back into the queue.
Queue put_back_with_message(const char* message) {
  return refused([message](Queue& queue, Job& job) {
    queue.message = message;
    job.state = JobState::Pending;
    job.reasons = {"job-printing"};
  });
}

class StandstillOf : public testing::TestWithParam<Stop> {};

TEST_P(StandstillOf, ThisQueue) {
  const Cause cause = cause_of(GetParam().queue);
  EXPECT_EQ(cause.kind, GetParam().kind);
  EXPECT_EQ(cause.word, GetParam().word);
  const bool has_job = cause.kind == Standstill::Refused || cause.kind == Standstill::Policy;
  EXPECT_EQ(cause.job, has_job ? 7 : 0);
}

constexpr const char* kWord = "driver-setting-unmuch";
constexpr const char* kOtherProgram = "Unable to send raster data to the driver.";

const Stop kRefusals[] = {
    {"Running", idle_queue("photo"), Standstill::None, ""},
    {"RefusedSheet", refused_queue("photo"), Standstill::Refused, kWord},
    {"WithTheRefusalAsItsMessage", refused_with_message("driver-setting-unmuch 0x0200"),
     Standstill::Refused, kWord},
    {"AnotherProgramComplainedLater", refused([](Queue& queue, Job& job) {
       queue.message = "Rendering completed";
       job.printerMessage = kOtherProgram;
     }),
     Standstill::Refused, ""},
    {"JobsWaitAfterTheRefusedOne", refused([](Queue& queue, Job&) {
       Job waiting;
       waiting.id = 8;
       waiting.state = JobState::Pending;
       waiting.reasons = {"printer-stopped"};
       queue.jobs.push_back(waiting);
     }),
     Standstill::Refused, kWord},
    {"RefusedJobWasCancelled", refused([](Queue&, Job& job) { job.state = JobState::Canceled; }),
     Standstill::Refused, kWord},
    {"AChangeOfTheQueuePutTheJobBack", put_back_with_message("driver-setting-unmuch 0x0200"),
     Standstill::Refused, kWord},
    // The first page was refused by the printer while the second could not be read.
    {"JobKeptTheWordsOnItsFile", refused([](Queue&, Job& job) {
       job.printerMessage = "The photo cannot be printed: Premature end of JPEG file.";
     }),
     Standstill::Refused, ""},
};

const Stop kPersons[] = {
    {"Cupsdisable", refused_with_message("Paused"), Standstill::ByPerson, ""},
    {"WordsOfTheirOwn", refused_with_message("out of use"), Standstill::ByPerson, ""},
    {"MessageBeginsLikeARefusal", refused_with_message("out-of-range 0x02 is what Bea saw"),
     Standstill::ByPerson, ""},
    {"StopInMidJob", refused_with_message(""), Standstill::ByPerson, ""},
    {"StopInTheDriversLastSecond", refused([](Queue&, Job& job) {
       job.state = JobState::Pending;
       job.reasons = {"job-printing"};
     }),
     Standstill::ByPerson, ""},
    {"JobPutBackWithoutAMessage", put_back_with_message(""), Standstill::ByPerson, ""},
    {"JobPutBackPaused", put_back_with_message("Paused"), Standstill::ByPerson, ""},
    {"JobPutBackWaiting", put_back_with_message("Waiting for printer to finish."),
     Standstill::ByPerson, ""},
    {"CancelledJobHasLostTheDriversWord", refused([](Queue&, Job& job) {
       job.state = JobState::Canceled;
       job.printerMessage = kOtherProgram;
     }),
     Standstill::ByPerson, ""},
    {"LastJobPrinted", refused([](Queue&, Job& job) { job.state = JobState::Completed; }),
     Standstill::ByPerson, ""},
    {"AnotherJobRanLater", refused([](Queue& queue, Job&) {
       Job later = failed_job(8);
       later.processingSince = 995;
       queue.jobs.push_back(later);
     }),
     Standstill::ByPerson, ""},
    {"JobFailedForAnotherReason", refused([](Queue& queue, Job&) { queue.jobs = {failed_job(7)}; }),
     Standstill::ByPerson, ""},
    {"RefusalIsYoungerThanTheStop", refused([](Queue&, Job& job) { job.processingSince = 1001; }),
     Standstill::ByPerson, ""},
    {"NewJobsAreHeld", refused([](Queue& queue, Job&) {
       queue.reasons = {"paused", "hold-new-jobs"};
     }),
     Standstill::ByPerson, ""},
    {"NoJob", refused([](Queue& queue, Job&) { queue.jobs.clear(); }), Standstill::ByPerson, ""},
    {"Class", refused([](Queue& queue, Job&) { queue.isClass = true; }), Standstill::ByPerson, ""},
    {"JobsMessageIsNoPrograms",
     refused([](Queue&, Job& job) { job.printerMessage = "Bea was here"; }), Standstill::ByPerson,
     ""},
};

const Stop kPolicies[] = {
    {"Unreachable", unreachable_queue("photo"), Standstill::Policy, ""},
    {"AnotherProgramComplainedLastAndTheDriverLeftItsReason",
     unreachable([](Queue& queue, Job& job) {
       queue.message = "Printing page 2, 50% complete...";
       job.printerMessage = "Filter failed";
       job.printerReasons = {"com.corvantiel-error0004", "paused"};
     }),
     Standstill::Policy, ""},
    {"OtherPolicy", unreachable([](Queue& queue, Job&) { queue.errorPolicy = "abort-job"; }),
     Standstill::ByPerson, ""},
    {"JobWasPrinting", unreachable([](Queue&, Job& job) { job.reasons = {"job-printing"}; }),
     Standstill::ByPerson, ""},
    {"BackendDidNotFail", unreachable([](Queue&, Job& job) {
       job.printerMessage = "Filter failed";
       job.printerReasons = {"paused"};
     }),
     Standstill::ByPerson, ""},
    {"NobodyKnowsTheJobsLastWords", unreachable([](Queue&, Job& job) {
       job.printerMessage = "";
       job.printerReasons = {"com.corvantiel-error0004", "paused"};
     }),
     Standstill::ByPerson, ""},
    {"StoppedAfterThePolicy", unreachable([](Queue& queue, Job&) { queue.message = "Paused"; }),
     Standstill::ByPerson, ""},
};

std::string name_of(const testing::TestParamInfo<Stop>& stop) {
  return stop.param.name;
}

INSTANTIATE_TEST_SUITE_P(Refused, StandstillOf, testing::ValuesIn(kRefusals), name_of);
INSTANTIATE_TEST_SUITE_P(ByPerson, StandstillOf, testing::ValuesIn(kPersons), name_of);
INSTANTIATE_TEST_SUITE_P(Policy, StandstillOf, testing::ValuesIn(kPolicies), name_of);

}  // namespace

TEST(Standstill, OfAClassMemberIsTheDriversAfterARefusedJobOfTheClass) {
  Queue member = refused_queue("left");
  member.jobs.clear();
  Queue group = idle_queue("room");
  group.isClass = true;
  group.members = {"left", "right"};
  group.jobs = {refused_job(7)};
  const QueueList list{{member, group}};
  const Cause cause = tools::cause_of_standstill(list, list.queues[0]);
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.job, 7);
}

TEST(Standstill, IsNotExplainedByAClassThatTheQueueIsNotIn) {
  Queue member = refused_queue("left");
  member.jobs.clear();
  Queue group = idle_queue("room");
  group.isClass = true;
  group.members = {"right"};
  group.jobs = {refused_job(7)};
  const QueueList list{{member, group}};
  EXPECT_EQ(tools::cause_of_standstill(list, list.queues[0]).kind, Standstill::ByPerson);
}

// Which member a class's job ran on is not told, so one that came through says nothing.
TEST(Standstill, IsTheDriversThoughAJobOfAClassCameThroughLater) {
  Queue group = idle_queue("room");
  group.isClass = true;
  group.members = {"photo"};
  group.jobs = {refused_job(8)};
  group.jobs.front().state = JobState::Completed;
  group.jobs.front().processingSince = 995;
  const QueueList list{{refused_queue("photo"), group}};
  const Cause cause = tools::cause_of_standstill(list, list.queues.front());
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.job, 7);
}

TEST(RefusalWord, IsEachOfTheDriversWordsWithItsNumber) {
  EXPECT_EQ(tools::refusal_word("pagesize-inkribbon-unmuch 0x0001"), "pagesize-inkribbon-unmuch");
  EXPECT_EQ(tools::refusal_word("driver-setting-unmuch 0x0200"), "driver-setting-unmuch");
  EXPECT_EQ(tools::refusal_word("out-of-range 0xffff"), "out-of-range");
  EXPECT_EQ(tools::refusal_word("memory-timeout 0x0100"), "memory-timeout");
  EXPECT_EQ(tools::refusal_word("protocol-error 0xffffffff"), "protocol-error");
}

TEST(RefusalWord, IsNoneInOtherMessages) {
  EXPECT_EQ(tools::refusal_word(""), "");
  EXPECT_EQ(tools::refusal_word("out-of-range"), "");
  EXPECT_EQ(tools::refusal_word("out-of-range 0x"), "");
  EXPECT_EQ(tools::refusal_word("out-of-range 0x12345678f"), "");
  EXPECT_EQ(tools::refusal_word("out-of-range 0xffff, says Bea"), "");
  EXPECT_EQ(tools::refusal_word("my out-of-range 0xffff"), "");
}
