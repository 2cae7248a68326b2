// SPDX-License-Identifier: Apache-2.0
//
// What is started again and in which order, and what is left alone.
#include "tools/resume_plan.h"

#include <gmock/gmock.h>

#include "tests/unit/tools/queue_samples.h"

using testing::ElementsAre;
using testing::IsEmpty;
using tools::Queue;
using tools::QueueList;
using tools::QueueState;
using tools::ResumePlan;
using tools::ResumeRules;

namespace {

ResumePlan plan_all(const QueueList& list, const ResumeRules& rules = {}) {
  std::vector<const Queue*> queues;
  for (const Queue& queue : list.queues) {
    queues.push_back(&queue);
  }
  return tools::plan_resume(list, queues, rules);
}

std::vector<int> jobs_of(const ResumePlan& plan) {
  std::vector<int> ids;
  for (const tools::JobToRestart& job : plan.jobs) {
    ids.push_back(job.id);
  }
  return ids;
}

}  // namespace

TEST(ResumePlan, HasNoWorkForAQueueThatRuns) {
  const ResumePlan plan = plan_all({{idle_queue("photo")}});
  EXPECT_FALSE(plan.HasWork());
  EXPECT_THAT(plan.left, IsEmpty());
}

TEST(ResumePlan, StartsARefusedQueueAndItsJob) {
  const ResumePlan plan = plan_all({{refused_queue("photo")}});
  EXPECT_THAT(jobs_of(plan), ElementsAre(7));
  ASSERT_EQ(plan.queues.size(), 1U);
  EXPECT_EQ(plan.queues[0].name, "photo");
  EXPECT_EQ(plan.queues[0].why, "the driver had stopped it: driver-setting-unmuch");
}

TEST(ResumePlan, StartsAQueueThatItsPolicyStoppedAndNoPendingJob) {
  const ResumePlan plan = plan_all({{unreachable_queue("photo")}});
  EXPECT_THAT(jobs_of(plan), IsEmpty());
  ASSERT_EQ(plan.queues.size(), 1U);
  EXPECT_EQ(plan.queues[0].why,
            "its error policy had stopped it: the printer could not be reached");
}

TEST(ResumePlan, StartsStoppedJobsOfAQueueAtRestInTheirOrder) {
  Queue photo = idle_queue("photo");
  photo.jobs = {failed_job(3), failed_job(9)};
  Queue album = idle_queue("album");
  album.jobs = {failed_job(5)};
  EXPECT_THAT(jobs_of(plan_all({{photo, album}})), ElementsAre(3, 5, 9));
}

TEST(ResumePlan, LeavesAPersonsQueueAndItsJobsAlone) {
  Queue queue = refused_queue("photo");
  queue.message = "Paused";
  const ResumePlan plan = plan_all({{queue}});
  EXPECT_FALSE(plan.HasWork());
  ASSERT_EQ(plan.left.size(), 1U);
  EXPECT_EQ(plan.left[0].queue, "photo");
  EXPECT_EQ(plan.left[0].why,
            "a person stopped it, or a program that is not this driver; `cupsenable photo` starts "
            "it");
}

TEST(ResumePlan, TouchesNoHeldCancelledAbortedOrPrintedJob) {
  Queue queue = idle_queue("photo");
  for (const tools::JobState state :
       {tools::JobState::Held, tools::JobState::Canceled, tools::JobState::Aborted,
        tools::JobState::Completed, tools::JobState::Pending, tools::JobState::Processing}) {
    queue.jobs.push_back(failed_job(static_cast<int>(queue.jobs.size()) + 1));
    queue.jobs.back().state = state;
  }
  EXPECT_FALSE(plan_all({{queue}}).HasWork());
}

TEST(ResumePlan, StartsAStoppedTestPageToo) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3)};
  queue.jobs.front().format = "application/vnd.cups-command";
  EXPECT_THAT(jobs_of(plan_all({{queue}})), ElementsAre(3));
}

TEST(ResumePlan, StartsTheClassJobThatStoppedAMemberOnce) {
  Queue member = refused_queue("left");
  member.jobs.clear();
  Queue group = idle_queue("room");
  group.isClass = true;
  group.members = {"left"};
  group.jobs = {refused_job(7)};
  const QueueList list{{member, group}};
  const ResumePlan both = plan_all(list);
  EXPECT_THAT(jobs_of(both), ElementsAre(7));
  const ResumePlan alone = tools::plan_resume(list, {&list.queues[0]}, {});
  EXPECT_THAT(jobs_of(alone), ElementsAre(7));
  EXPECT_EQ(alone.queues.size(), 1U);
}

TEST(ResumePlan, LeavesTheClassJobAloneWhereAPersonStoppedTheClass) {
  Queue member = refused_queue("left");
  member.jobs.clear();
  Queue group = idle_queue("room");
  group.isClass = true;
  group.state = QueueState::Stopped;
  group.members = {"left"};
  group.jobs = {refused_job(7)};
  const ResumePlan plan = plan_all({{member, group}});
  EXPECT_THAT(jobs_of(plan), IsEmpty());
  EXPECT_EQ(plan.left.size(), 1U);
}

TEST(ResumePlan, LeavesAJobWhoseFileCannotBePrinted) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3), broken_photo_job(12)};
  for (const bool unattended : {false, true}) {
    const ResumePlan plan = plan_all({{queue}}, {unattended, {}});
    EXPECT_THAT(jobs_of(plan), ElementsAre(3));
    ASSERT_EQ(plan.left.size(), 1U);
    EXPECT_EQ(plan.left[0].job, 12);
    EXPECT_EQ(plan.left[0].why,
              "its file cannot be printed (The photo cannot be printed: Premature end of JPEG "
              "file.); `cancel 12` clears it");
  }
}

// A reason may stand from before; an unattended run would start such a job for ever.
TEST(UnattendedPlan, LeavesAJobWithABrokenFileThoughThePrinterShowsAReason) {
  Queue queue = idle_queue("photo");
  queue.jobs = {broken_photo_job(12)};
  queue.jobs[0].printerReasons = {"com.corvantiel-error0008_2665"};
  EXPECT_FALSE(plan_all({{queue}}, {true, {}}).HasWork());
}

TEST(UnattendedPlan, StartsWhatThePrinterStopped) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3), refused_job(4)};
  EXPECT_THAT(jobs_of(plan_all({{queue}}, {true, {}})), ElementsAre(3, 4));
}

TEST(UnattendedPlan, LeavesAJobThatAnotherProgramFailedAt) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3)};
  queue.jobs[0].printerReasons = {"none"};
  const ResumePlan plan = plan_all({{queue}}, {true, {}});
  EXPECT_FALSE(plan.HasWork());
  ASSERT_EQ(plan.left.size(), 1U);
  EXPECT_EQ(plan.left[0].job, 3);
  EXPECT_THAT(jobs_of(plan_all({{queue}})), ElementsAre(3));
}

TEST(UnattendedPlan, StartsAJobAgainThatPutOutNoSheetSinceItWasStarted) {
  Queue queue = idle_queue("photo");
  queue.jobs = {refused_job(3)};
  queue.jobs[0].impressions = 5;
  EXPECT_THAT(jobs_of(plan_all({{queue}}, {true, {{3, 4}}})), ElementsAre(3));
}

TEST(UnattendedPlan, LeavesAJobThatPutOutSheetsSinceItWasStartedAndFailedAgain) {
  Queue queue = idle_queue("photo");
  queue.jobs = {refused_job(3)};
  queue.jobs[0].impressions = 6;
  const ResumePlan plan = plan_all({{queue}}, {true, {{3, 4}}});
  EXPECT_FALSE(plan.HasWork());
  ASSERT_EQ(plan.left.size(), 1U);
  EXPECT_EQ(plan.left[0].job, 3);
  EXPECT_EQ(plan.left[0].why,
            "sheets of it came out again, and it failed again; `tqr7 resume photo` prints all of "
            "it again");
}

TEST(NextPause, DoublesUpToAMinute) {
  EXPECT_EQ(tools::next_pause(0, 10), 10);
  EXPECT_EQ(tools::next_pause(10, 10), 20);
  EXPECT_EQ(tools::next_pause(40, 10), 60);
  EXPECT_EQ(tools::next_pause(60, 10), 60);
}

TEST(NextPause, IsNeverShorterThanTheInterval) {
  EXPECT_EQ(tools::next_pause(300, 300), 300);
}
