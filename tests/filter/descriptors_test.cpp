// SPDX-License-Identifier: Apache-2.0
//
// The filter started with some of the scheduler's five descriptors missing.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

std::string PrintedStream() {
  return SmallStream();
}

std::string PrintedLog() {
  return SmallLog();
}

void ExpectNoTwoWays(const Outcome& outcome) {
  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_TRUE(SameLog(outcome.log, kBanner + "DEBUG: CUPS_SC_CMD_GET_BIDI=CUPS_SC_STATUS_" +
                                       kAnyText + "\n" + kNoTwoWays));
  EXPECT_EQ(outcome.log.find("CUPS_SC_STATUS_OK"), std::string::npos);
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingDescriptor, OfTheSideChannelMeansNoTwoWays) {
  ExpectNoTwoWays(Print({.input = SmallRaster(), .closed_descriptors = {4}}));
}

TEST(MissingDescriptor, OfBothChannelsMeansNoTwoWays) {
  ExpectNoTwoWays(Print({.input = SmallRaster(), .closed_descriptors = {3, 4}}));
}

TEST(MissingDescriptor, OfTheSideChannelIsNotTakenByTheRasterFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.ras", SmallRaster());

  ExpectNoTwoWays(
      Print({.arguments = {{"7", "anna", "Beach", "1", "", path}}, .closed_descriptors = {3, 4}}));
}

TEST(MissingDescriptor, OfTheBackChannelMeansAnUnavailablePrinter) {
  const Outcome outcome = Print({.input = SmallRaster(), .closed_descriptors = {3}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + FailedStatusExchange() +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingDescriptor, OfTheBackChannelIsNotTakenByTheRasterFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.ras", SmallRaster());

  const Outcome outcome =
      Print({.arguments = {{"7", "anna", "Beach", "1", "", path}}, .closed_descriptors = {3}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + FailedStatusExchange() +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingDescriptor, OfStandardInputMeansNoPages) {
  const Outcome outcome = Print({.closed_descriptors = {0}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + PrintOut()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNoPages));
  EXPECT_EQ(outcome.status, 1);
}

TEST(MissingDescriptor, OfStandardInputDoesNotMatterToAJobFromAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.ras", SmallRaster());

  const Outcome outcome =
      Print({.arguments = {{"7", "anna", "Beach", "1", "", path}}, .closed_descriptors = {0}});

  EXPECT_TRUE(SameStream(outcome.stream, PrintedStream()));
  EXPECT_TRUE(SameLog(outcome.log, PrintedLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(MissingDescriptor, OfStandardOutputMeansThatNothingCanBeSent) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("page.ras", SmallRaster());

  const Outcome outcome =
      Print({.arguments = {{"7", "anna", "Beach", "1", "", path}}, .closed_descriptors = {1}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays +
                                       "DEBUG: [CMD] size=8\n"
                                       "DEBUG: [CMD] 0000: 1b 47 44 30 00 00 01 16\n"
                                       "DEBUG: fflush() failed.\n" +
                                       UnknownError("UNAVAILABLE") + kStop));
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(folder.Read("page.ras"), SmallRaster());
}

TEST(MissingDescriptor, OfStandardErrorDoesNotMatterToTheSheet) {
  const Outcome outcome = Print({.input = SmallRaster(), .closed_descriptors = {2}});

  EXPECT_TRUE(SameStream(outcome.stream, PrintedStream()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(MissingDescriptor, OfEveryKindEndsTheJob) {
  const Outcome outcome = Print({.closed_descriptors = {0, 1, 2, 3, 4}});

  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace filter_test
