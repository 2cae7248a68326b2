// SPDX-License-Identifier: Apache-2.0
//
// What the answers allow a client next, and which of its questions begin a file.
#include "simulator/permission.h"

#include <gtest/gtest.h>

namespace {

using simulator::AnswerPlan;
using simulator::Permission;

AnswerPlan answer(std::uint16_t number) {
  AnswerPlan plan;
  plan.number = number;
  return plan;
}

AnswerPlan no_answer() {
  AnswerPlan plan;
  plan.silent = true;
  return plan;
}

TEST(AFile, BeginsWithTheConnection) {
  EXPECT_TRUE(Permission().FileBegins());
}

TEST(AFile, HasBegunBehindAGoodStatus) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  EXPECT_FALSE(permission.FileBegins());
}

TEST(AFile, IsGivenUpBehindAnError) {
  Permission permission;
  permission.StatusAnswered(answer(0x2665));
  EXPECT_TRUE(permission.FileBegins());
}

TEST(AFile, IsGivenUpWithoutAnAnswer) {
  Permission permission;
  permission.StatusAnswered(no_answer());
  EXPECT_TRUE(permission.FileBegins());
}

TEST(AFile, IsGivenUpWhenNoSheetFollowsAQuery) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0x0200));
  EXPECT_TRUE(permission.FileBegins());
}

TEST(AFile, GoesOnBehindASheet) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0));
  permission.SheetDone();
  EXPECT_FALSE(permission.FileBegins());
}

TEST(AFile, EndsWithThePrintOut) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0));
  permission.SheetDone();
  permission.PrintOutDone();
  EXPECT_TRUE(permission.FileBegins());
}

TEST(ARefusal, EndsWithTheNextStatusRequest) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0x0200));
  EXPECT_FALSE(permission.SheetAllowed());
  permission.StatusAnswered(answer(0));
  EXPECT_TRUE(permission.SheetAllowed());
  EXPECT_EQ(permission.ReadinessSeen(), "0x0000");
}

TEST(ARefusal, OfTheStatusForbidsTheSheetWhateverReadinessSays) {
  Permission permission;
  permission.StatusAnswered(answer(1));
  permission.ReadinessAnswered(answer(0));
  EXPECT_FALSE(permission.SheetAllowed());
}

TEST(ARepeatedQuery, IsAllowedAsLongAsThePrinterIsBusy) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  EXPECT_TRUE(permission.RepeatAllowed());
  permission.ReadinessAnswered(answer(0x0100));
  EXPECT_TRUE(permission.RepeatAllowed());
  permission.ReadinessAnswered(answer(0));
  EXPECT_FALSE(permission.RepeatAllowed());
}

TEST(ARepeatedQuery, IsNotAllowedBehindARefusalOrNoAnswer) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0x0200));
  EXPECT_FALSE(permission.RepeatAllowed());
  permission.ReadinessAnswered(no_answer());
  EXPECT_FALSE(permission.RepeatAllowed());
}

TEST(ARepeatedQuery, IsNotAllowedBehindABusyAnswerThatWasCut) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  AnswerPlan cut = answer(0x0100);
  cut.cutTo = 5;
  permission.ReadinessAnswered(cut);
  EXPECT_FALSE(permission.RepeatAllowed());
}

TEST(ARepeatedQuery, IsExcusedByStrayBytes) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  AnswerPlan strayed = answer(0);
  strayed.stray = {0x01};
  permission.ReadinessAnswered(strayed);
  EXPECT_TRUE(permission.RepeatAllowed());
}

TEST(ARepeatedQuery, IsAFirstOneBehindTheNextStatusRequest) {
  Permission permission;
  permission.StatusAnswered(answer(0));
  permission.ReadinessAnswered(answer(0));
  permission.StatusAnswered(answer(0));
  EXPECT_TRUE(permission.RepeatAllowed());
}

}  // namespace
