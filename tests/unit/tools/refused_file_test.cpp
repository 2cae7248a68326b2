// SPDX-License-Identifier: Apache-2.0
//
// Which stopped jobs are told as those whose file cannot be printed, and which are not.
#include <gtest/gtest.h>

#include "tests/unit/tools/queue_samples.h"
#include "tools/queue.h"

using tools::Job;
using tools::JobState;
using tools::words_on_file;

namespace {

Job with_words(const char* words) {
  Job job = broken_photo_job(12);
  job.printerMessage = words;
  return job;
}

}  // namespace

TEST(RefusedFile, IsToldByTheWordsOfTheProgramsThatPreparePages) {
  EXPECT_EQ(words_on_file(broken_photo_job(12)),
            "The photo cannot be printed: Premature end of JPEG file.");
  EXPECT_EQ(
      words_on_file(with_words("The pages cannot be printed: their raster is not 8-bit RGB.")),
      "The pages cannot be printed: their raster is not 8-bit RGB.");
}

TEST(RefusedFile, IsNotWhereSomethingAroundTheFileFailed) {
  EXPECT_EQ(words_on_file(with_words("The photo was not printed: there is too little memory.")),
            "");
  EXPECT_EQ(words_on_file(with_words("The pages were not printed: a page ends too early.")), "");
}

TEST(RefusedFile, IsNotWhereThePrinterOrAnotherProgramComplained) {
  for (const char* const words :
       {"", "Filter failed", "No pages found!", "driver-setting-unmuch 0x0200",
        "Unable to send raster data to the driver.", "The printer is not responding.",
        "A person says: The photo cannot be printed: so it is."}) {
    EXPECT_EQ(words_on_file(with_words(words)), "") << words;
  }
}

TEST(RefusedFile, IsOnlyThatOfAJobThatStandsStopped) {
  Job job = broken_photo_job(12);
  for (const JobState state : {JobState::Pending, JobState::Held, JobState::Processing,
                               JobState::Canceled, JobState::Aborted, JobState::Completed}) {
    job.state = state;
    EXPECT_EQ(words_on_file(job), "") << to_string(state);
  }
}
