// SPDX-License-Identifier: Apache-2.0
//
// Which queues a person means.
#include "tools/queue_choice.h"

#include <gmock/gmock.h>

#include "tests/unit/tools/queue_samples.h"

using testing::ElementsAre;
using testing::IsEmpty;
using tools::Queue;
using tools::QueueChoice;
using tools::QueueList;

namespace {

Queue queue_of_another_driver(const char* name) {
  Queue queue = idle_queue(name);
  queue.makeAndModel = "Local Raw Printer";
  return queue;
}

}  // namespace

TEST(QueueChoice, IsOfAllOfTheDriversWithoutNames) {
  const QueueList list{{idle_queue("left"), queue_of_another_driver("other"), idle_queue("right")}};
  const QueueChoice choice = tools::choose_queues(list, {});
  EXPECT_THAT(choice.queues, ElementsAre(&list.queues[0], &list.queues[2]));
  EXPECT_THAT(choice.complaints, IsEmpty());
}

TEST(QueueChoice, SaysThatNoneIsTheDrivers) {
  const QueueList list{{queue_of_another_driver("other")}};
  const QueueChoice choice = tools::choose_queues(list, {});
  EXPECT_THAT(choice.queues, IsEmpty());
  EXPECT_THAT(choice.complaints, ElementsAre("there is no queue of this driver's"));
}

TEST(QueueChoice, FollowsNoClassIntoItself) {
  Queue circle = idle_queue("circle");
  circle.isClass = true;
  circle.makeAndModel = "Local Printer Class";
  circle.members = {"circle", "lost"};
  const QueueList list{{circle}};
  EXPECT_THAT(tools::choose_queues(list, {}).queues, IsEmpty());
}

TEST(QueueChoice, FollowsTheNamesInTheirOrder) {
  const QueueList list{{idle_queue("left"), idle_queue("right")}};
  EXPECT_THAT(tools::choose_queues(list, {"right", "left"}).queues,
              ElementsAre(&list.queues[1], &list.queues[0]));
}

TEST(QueueChoice, TakesAQueueOnceThatIsNamedTwice) {
  const QueueList list{{idle_queue("left")}};
  EXPECT_THAT(tools::choose_queues(list, {"left", "left"}).queues, ElementsAre(&list.queues[0]));
}

TEST(QueueChoice, SaysWhichNamesAreNoneOfTheDrivers) {
  const QueueList list{{idle_queue("left"), queue_of_another_driver("other")}};
  const QueueChoice choice = tools::choose_queues(list, {"other", "lost\a", "left"});
  EXPECT_THAT(choice.queues, ElementsAre(&list.queues[0]));
  EXPECT_THAT(choice.complaints, ElementsAre("the queue other is not one of this driver's",
                                             "there is no queue lost?"));
}
