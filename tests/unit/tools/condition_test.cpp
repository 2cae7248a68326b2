// SPDX-License-Identifier: Apache-2.0
//
// A queue's condition: what makes it not good, and the words for it.
#include "tools/condition.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/unit/tools/queue_samples.h"

using testing::HasSubstr;
using testing::Not;
using tools::Condition;
using tools::JobState;
using tools::Queue;
using tools::QueueList;

namespace {

Condition condition_of(const Queue& queue) {
  const QueueList list{{queue}};
  return tools::condition_of(list, list.queues.front());
}

Queue with_reason(const char* reason) {
  Queue queue = idle_queue("photo");
  queue.reasons = {reason};
  return queue;
}

}  // namespace

TEST(Condition, AdvisesCommandsThatWorkAsTheyStand) {
  const Condition condition = condition_of(with_reason("com.corvantiel-error0008_2665"));
  EXPECT_THAT(condition.reasons.front().explanation.remedy, HasSubstr("`tqr7 resume photo`"));
  EXPECT_THAT(condition.reasons.front().explanation.remedy, Not(HasSubstr("QUEUE")));

  Queue odd = with_reason("com.corvantiel-error0008_2665");
  odd.name = "QUEUE-QUEUE";
  EXPECT_THAT(condition_of(odd).reasons.front().explanation.remedy,
              HasSubstr("`tqr7 resume QUEUE-QUEUE` prints"));
}

TEST(Condition, AdvisesThisQueuesNameForARefusalToo) {
  const Condition condition = condition_of(refused_queue("photo"));
  EXPECT_THAT(tools::explain_standstill(condition).remedy, HasSubstr("`tqr7 resume photo`"));
}

TEST(Condition, IsGoodAtRest) {
  EXPECT_TRUE(condition_of(idle_queue("photo")).IsGood());
}

TEST(Condition, IsNotGoodWithAReasonOfThePrinters) {
  EXPECT_FALSE(condition_of(with_reason("com.corvantiel-error0008_2665")).IsGood());
  EXPECT_FALSE(condition_of(with_reason("com.corvantiel-error0004-warning")).IsGood());
}

TEST(Condition, IsGoodWithWarningsAndReportsAndWhatAJobInPrintShows) {
  EXPECT_TRUE(condition_of(with_reason("media-low-warning")).IsGood());
  EXPECT_TRUE(condition_of(with_reason("toner-low-report")).IsGood());
  EXPECT_TRUE(condition_of(with_reason("connecting-to-device")).IsGood());
  EXPECT_TRUE(condition_of(with_reason("cups-waiting-for-job-completed")).IsGood());
}

TEST(Condition, IsNotGoodWhereTheSchedulerWillNotStartTheFilter) {
  EXPECT_FALSE(condition_of(with_reason("cups-insecure-filter-warning")).IsGood());
  EXPECT_FALSE(condition_of(with_reason("cups-missing-filter-warning")).IsGood());
}

TEST(Condition, IsNotGoodWithAStoppedJobThoughTheQueueIsAtRest) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(12)};
  EXPECT_FALSE(condition_of(queue).IsGood());
}

TEST(Condition, IsGoodWithWaitingAndHeldJobs) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(12), failed_job(13)};
  queue.jobs[0].state = JobState::Pending;
  queue.jobs[1].state = JobState::Held;
  EXPECT_TRUE(condition_of(queue).IsGood());
}

TEST(Condition, IsNotGoodWithoutAWayBack) {
  Queue queue = idle_queue("photo");
  queue.deviceUri = "lpd://server/queue";
  EXPECT_FALSE(condition_of(queue).IsGood());
}

TEST(Condition, IsNotGoodWhereJobsAreTurnedAway) {
  Queue queue = idle_queue("photo");
  queue.accepting = false;
  EXPECT_FALSE(condition_of(queue).IsGood());
}

TEST(Condition, IsNotGoodInAStateThatIsNotKnown) {
  Queue queue = idle_queue("photo");
  queue.state = tools::QueueState::Unknown;
  EXPECT_FALSE(condition_of(queue).IsGood());
}

TEST(ConditionInWords, TellsTheStoppedJobsThatLpstatDoesNotShow) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(12), failed_job(13)};
  EXPECT_EQ(tools::in_words(condition_of(queue)),
            "photo: not good, idle, accepts jobs\n"
            "  2 jobs are stopped (12, 13)\n"
            "    The driver gave up, and the scheduler does not begin again by itself.\n"
            "    To do: See to the printer, then `tqr7 resume photo`; or give a job up with "
            "`cancel NUMBER`.\n"
            "  bidirectional connection: yes (socket)\n");
}

TEST(ConditionInWords, TellsWhoStoppedTheQueue) {
  EXPECT_THAT(tools::in_words(condition_of(refused_queue("photo"))),
              HasSubstr("The driver stopped the queue at job 7: driver-setting-unmuch. "));
  EXPECT_THAT(tools::in_words(condition_of(unreachable_queue("photo"))),
              HasSubstr("The queue's error policy, stop-printer, stopped it at job 7"));
  Queue queue = refused_queue("photo");
  queue.message = "Out of ribbon";
  const std::string words = tools::in_words(condition_of(queue));
  EXPECT_THAT(words, HasSubstr("A person stopped the queue"));
  EXPECT_THAT(words, HasSubstr("The person said: Out of ribbon\n"));
  EXPECT_THAT(words, HasSubstr("When the queue is started again: `tqr7 resume photo`"));
}

TEST(ConditionInWords, QuotesNoProgramAsAPersonsWords) {
  EXPECT_THAT(tools::in_words(condition_of(refused_queue("photo"))),
              Not(HasSubstr("The person said")));
}

TEST(ConditionInWords, ListsTenJobsAtMost) {
  Queue queue = idle_queue("photo");
  for (int id = 1; id <= 11; ++id) {
    queue.jobs.push_back(failed_job(id));
    queue.jobs.back().state = JobState::Pending;
  }
  EXPECT_THAT(tools::in_words(condition_of(queue)),
              HasSubstr("  11 jobs wait (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, …)\n"));
}

TEST(ConditionInWords, TellsThatAFileCannotBePrintedAndWhatClearsIt) {
  Queue queue = idle_queue("photo");
  queue.jobs = {broken_photo_job(12)};
  const std::string words = tools::in_words(condition_of(queue));
  EXPECT_THAT(words,
              HasSubstr("  1 job is stopped (12)\n"
                        "    The file of job 12 itself cannot be printed, and starting the "
                        "job again does not help: The photo cannot be printed: Premature end "
                        "of JPEG file.\n"
                        "    To do: `cancel 12` clears it. Then send the file again, repaired "
                        "or from a good copy.\n"));
  EXPECT_THAT(words, Not(HasSubstr("tqr7 resume")));
}

TEST(ConditionInWords, TellsOfABrokenFileBesideAJobThatThePrinterStopped) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3), broken_photo_job(12)};
  const std::string words = tools::in_words(condition_of(queue));
  EXPECT_THAT(words, HasSubstr("2 jobs are stopped (3, 12)"));
  EXPECT_THAT(words, HasSubstr("`tqr7 resume photo`; or give a job up"));
  EXPECT_THAT(words, HasSubstr("The file of job 12 itself"));
  EXPECT_THAT(words, Not(HasSubstr("The file of job 3 ")));
}

TEST(ConditionInWords, ExplainsTenBrokenFilesAtMost) {
  Queue queue = idle_queue("photo");
  for (int id = 101; id <= 111; ++id) {
    queue.jobs.push_back(broken_photo_job(id));
  }
  const std::string words = tools::in_words(condition_of(queue));
  EXPECT_THAT(words, HasSubstr("The file of job 110 itself"));
  EXPECT_THAT(words, Not(HasSubstr("The file of job 111 itself")));
}

TEST(ConditionInWords, LetsNoControlCharacterThrough) {
  Queue queue = refused_queue("pho\033to");
  queue.reasons = {"pau\033sed"};
  queue.message = "\033[2J";
  queue.deviceUri = "so\033cket:";
  EXPECT_THAT(tools::in_words(condition_of(queue)), Not(HasSubstr("\033")));
}

TEST(ConditionAsJson, TellsAllOfAQueue) {
  Queue queue = refused_queue("photo");
  const nlohmann::json json = nlohmann::json::parse(tools::as_json({condition_of(queue)}, false));
  EXPECT_EQ(json["good"], false);
  const nlohmann::json& photo = json["queues"][0];
  EXPECT_EQ(photo["name"], "photo");
  EXPECT_EQ(photo["state"], "stopped");
  EXPECT_EQ(photo["standstill"]["by"], "driver");
  EXPECT_EQ(photo["standstill"]["job"], 7);
  EXPECT_EQ(photo["standstill"]["word"], "driver-setting-unmuch");
  EXPECT_EQ(photo["jobs"]["stopped"], nlohmann::json::array({7}));
  EXPECT_EQ(photo["bidirectional"], true);
  EXPECT_EQ(photo["backend"], "socket");
}

TEST(ConditionAsJson, TellsOfFilesThatCannotBePrinted) {
  Queue queue = idle_queue("photo");
  queue.jobs = {failed_job(3), broken_photo_job(12)};
  const auto json = nlohmann::json::parse(tools::as_json({condition_of(queue)}, true));
  const auto& refused = json["queues"][0]["refused_files"];
  ASSERT_EQ(refused.size(), 1U);
  EXPECT_EQ(refused[0]["job"], 12);
  EXPECT_EQ(refused[0]["words"], "The photo cannot be printed: Premature end of JPEG file.");
  EXPECT_EQ(refused[0]["remedy"],
            "`cancel 12` clears it. Then send the file again, repaired or from a good copy.");
  EXPECT_EQ(json["queues"][0]["jobs"]["stopped"], nlohmann::json({3, 12}));
}

TEST(ConditionAsJson, SaysNullWhereNothingIsKnown) {
  Queue queue = refused_queue("photo");
  queue.message = "Paused";
  queue.deviceUri = "beh:/1/3/5/socket://printer";
  const nlohmann::json json = nlohmann::json::parse(tools::as_json({condition_of(queue)}, false));
  const nlohmann::json& photo = json["queues"][0];
  EXPECT_EQ(photo["standstill"]["by"], "person");
  EXPECT_TRUE(photo["standstill"]["job"].is_null());
  EXPECT_TRUE(photo["standstill"]["word"].is_null());
  EXPECT_TRUE(photo["bidirectional"].is_null());
}

TEST(ConditionAsJson, IsOneLineWhenCompact) {
  const std::string text = tools::as_json({condition_of(idle_queue("photo"))}, true);
  EXPECT_EQ(text.find('\n'), text.size() - 1);
}

TEST(ConditionAsJson, IsNotGoodWithoutAnyQueue) {
  EXPECT_EQ(nlohmann::json::parse(tools::as_json({}, false))["good"], false);
}
