// SPDX-License-Identifier: Apache-2.0
//
// The last words of a program: what is the file's fault, and what is not.
#include "photo/filter_program.h"

#include <gtest/gtest.h>

#include "photo/photo_rows.h"

namespace photo {
namespace {

TEST(Refusal, SaysThatTheFileCannotBePrinted) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(say_cannot_be_printed("photo", "Not enough image data"), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ERROR: The photo cannot be printed: Not enough image data.\n");
}

TEST(Refusal, DoesNotBlameTheFileWhereMemoryIsShort) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(say_cannot_be_printed("photo", kNoMemory), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ERROR: The photo was not printed: there is too little memory.\n");
}

TEST(Refusal, SaysThatSomethingElseFailed) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(say_not_printed("pages", "a page ends too early"), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ERROR: The pages were not printed: a page ends too early.\n");
}

}  // namespace
}  // namespace photo
