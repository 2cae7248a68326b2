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
using tools::Room;

namespace {

Queue queue_of_another_driver(const char* name) {
  Queue queue = idle_queue(name);
  queue.makeAndModel = "Local Raw Printer";
  return queue;
}

}  // namespace

TEST(QueueChoice, IsOfAllOfTheDriversWithoutNames) {
  const Room room{{idle_queue("left"), queue_of_another_driver("other"), idle_queue("right")}};
  const QueueChoice choice = tools::choose_queues(room, {});
  EXPECT_THAT(choice.queues, ElementsAre(&room.queues[0], &room.queues[2]));
  EXPECT_THAT(choice.complaints, IsEmpty());
}

TEST(QueueChoice, SaysThatNoneIsTheDrivers) {
  const Room room{{queue_of_another_driver("other")}};
  const QueueChoice choice = tools::choose_queues(room, {});
  EXPECT_THAT(choice.queues, IsEmpty());
  EXPECT_THAT(choice.complaints, ElementsAre("there is no queue of this driver's"));
}

TEST(QueueChoice, FollowsNoClassIntoItself) {
  Queue circle = idle_queue("circle");
  circle.isClass = true;
  circle.makeAndModel = "Local Printer Class";
  circle.members = {"circle", "lost"};
  const Room room{{circle}};
  EXPECT_THAT(tools::choose_queues(room, {}).queues, IsEmpty());
}

TEST(QueueChoice, FollowsTheNamesInTheirOrder) {
  const Room room{{idle_queue("left"), idle_queue("right")}};
  EXPECT_THAT(tools::choose_queues(room, {"right", "left"}).queues,
              ElementsAre(&room.queues[1], &room.queues[0]));
}

TEST(QueueChoice, TakesAQueueOnceThatIsNamedTwice) {
  const Room room{{idle_queue("left")}};
  EXPECT_THAT(tools::choose_queues(room, {"left", "left"}).queues, ElementsAre(&room.queues[0]));
}

TEST(QueueChoice, SaysWhichNamesAreNoneOfTheDrivers) {
  const Room room{{idle_queue("left"), queue_of_another_driver("other")}};
  const QueueChoice choice = tools::choose_queues(room, {"other", "lost\a", "left"});
  EXPECT_THAT(choice.queues, ElementsAre(&room.queues[0]));
  EXPECT_THAT(choice.complaints, ElementsAre("the queue other is not one of this driver's",
                                             "there is no queue lost?"));
}
