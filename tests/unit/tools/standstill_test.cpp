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

}  // namespace

TEST(Standstill, IsNoneWhereTheQueueRuns) {
  EXPECT_EQ(cause_of(idle_queue("photo")).kind, Standstill::None);
}

TEST(Standstill, IsTheDriversAfterARefusedSheet) {
  const Cause cause = cause_of(refused_queue("photo"));
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.job, 7);
  EXPECT_EQ(cause.word, "driver-setting-unmuch");
}

TEST(Standstill, IsTheDriversWithTheRefusalAsTheQueuesOwnMessage) {
  Queue queue = refused_queue("photo");
  queue.message = "driver-setting-unmuch 0x0200";
  EXPECT_EQ(cause_of(queue).kind, Standstill::Refused);
}

TEST(Standstill, IsTheDriversWhereAnotherProgramComplainedLater) {
  Queue queue = refused_queue("photo");
  queue.message = "Rendering completed";
  queue.jobs.front().printerMessage = "Unable to send raster data to the driver.";
  const Cause cause = cause_of(queue);
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.word, "");
}

TEST(Standstill, IsTheDriversWithJobsWaitingBehindTheRefusedOne) {
  Queue queue = refused_queue("photo");
  Job waiting;
  waiting.id = 8;
  waiting.state = JobState::Pending;
  waiting.reasons = {"printer-stopped"};
  queue.jobs.push_back(waiting);
  EXPECT_EQ(cause_of(queue).kind, Standstill::Refused);
}

TEST(Standstill, IsAPersonsAfterCupsdisable) {
  Queue queue = refused_queue("photo");
  queue.message = "Paused";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWithWordsOfTheirOwn) {
  Queue queue = refused_queue("photo");
  queue.message = "out of use";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheMessageOnlyBeginsLikeARefusal) {
  Queue queue = refused_queue("photo");
  queue.message = "out-of-range 0x02 is what Bea saw";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheMessageIsEmptyAsAfterAStopInMidJob) {
  Queue queue = refused_queue("photo");
  queue.message = "";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheRefusedJobIsPendingAsAfterAStopWithinTheDriversLastSecond) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().state = JobState::Pending;
  queue.jobs.front().reasons = {"job-printing"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsTheDriversAlsoWhenTheRefusedJobWasCancelled) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().state = JobState::Canceled;
  const Cause cause = cause_of(queue);
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.job, 7);
  EXPECT_EQ(cause.word, "driver-setting-unmuch");
}

TEST(Standstill, IsAPersonsWhenTheCancelledJobHasLostTheDriversWord) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().state = JobState::Canceled;
  queue.jobs.front().printerMessage = "Unable to send raster data to the driver.";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheLastJobCameThrough) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().state = JobState::Completed;
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenAnotherJobRanAfterTheRefusedOne) {
  Queue queue = refused_queue("photo");
  Job later = failed_job(8);
  later.processingSince = 995;
  queue.jobs.push_back(later);
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheStoppedJobFailedForAnotherReason) {
  Queue queue = refused_queue("photo");
  queue.jobs = {failed_job(7)};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheRefusalIsYoungerThanTheStop) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().processingSince = 1001;
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenNewJobsAreHeld) {
  Queue queue = refused_queue("photo");
  queue.reasons = {"paused", "hold-new-jobs"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWithoutAnyJob) {
  Queue queue = refused_queue("photo");
  queue.jobs.clear();
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, OfAClassIsAlwaysAPersons) {
  Queue queue = refused_queue("room");
  queue.isClass = true;
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

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

TEST(Standstill, IsThePolicysWhenThePrinterCouldNotBeReached) {
  const Cause cause = cause_of(unreachable_queue("photo"));
  EXPECT_EQ(cause.kind, Standstill::Policy);
  EXPECT_EQ(cause.job, 7);
}

TEST(Standstill, IsAPersonsWhereThePolicyDoesNotStopQueues) {
  Queue queue = unreachable_queue("photo");
  queue.errorPolicy = "abort-job";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheJobWasPrintingAtTheStop) {
  Queue queue = unreachable_queue("photo");
  queue.jobs.front().reasons = {"job-printing"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenTheBackendDidNotFail) {
  Queue queue = unreachable_queue("photo");
  queue.jobs.front().printerMessage = "Filter failed";
  queue.jobs.front().printerReasons = {"paused"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsThePolicysWhenAnotherProgramComplainedLastAndTheDriverLeftItsReason) {
  Queue queue = unreachable_queue("photo");
  queue.message = "Printing page 2, 50% complete...";
  queue.jobs.front().printerMessage = "Filter failed";
  queue.jobs.front().printerReasons = {"com.corvantiel-error0004", "paused"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::Policy);
}

TEST(Standstill, IsAPersonsWhenNobodyKnowsTheJobsLastWords) {
  Queue queue = unreachable_queue("photo");
  queue.jobs.front().printerMessage = "";
  queue.jobs.front().printerReasons = {"com.corvantiel-error0004", "paused"};
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsAPersonsWhenAPersonStoppedBehindThePolicy) {
  Queue queue = unreachable_queue("photo");
  queue.message = "Paused";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
}

TEST(Standstill, IsTheDriversWhereAChangeOfTheQueuePutTheRefusedJobBack) {
  Queue queue = refused_queue("photo");
  queue.message = "driver-setting-unmuch 0x0200";
  queue.jobs.front().state = JobState::Pending;
  queue.jobs.front().reasons = {"job-printing"};
  const Cause cause = cause_of(queue);
  EXPECT_EQ(cause.kind, Standstill::Refused);
  EXPECT_EQ(cause.word, "driver-setting-unmuch");
}

TEST(Standstill, IsAPersonsWhereAPersonPutTheRefusedJobBack) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().state = JobState::Pending;
  for (const char* const message : {"", "Paused", "Waiting for printer to finish."}) {
    queue.message = message;
    EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson) << message;
  }
}

TEST(Standstill, IsAPersonsWhenTheStoppedJobsMessageIsNoPrograms) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().printerMessage = "Bea was here";
  EXPECT_EQ(cause_of(queue).kind, Standstill::ByPerson);
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

// The first page was refused by the printer while the second could not be read.
TEST(Standstill, IsTheDriversThoughTheJobKeptTheWordsOnItsFile) {
  Queue queue = refused_queue("photo");
  queue.jobs.front().printerMessage = "The photo cannot be printed: Premature end of JPEG file.";
  EXPECT_EQ(cause_of(queue).kind, Standstill::Refused);
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
