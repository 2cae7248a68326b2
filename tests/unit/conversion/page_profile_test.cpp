// SPDX-License-Identifier: Apache-2.0
//
// When a page asks for the printer's profile. What is said of one is said once a process: each of
// these calls has a process of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/unit/conversion/test_page.h"

namespace {

/// Converts a page whose module directory is a file, which is worth a line when it is looked at.
[[noreturn]] void convert_with_a_file_for_a_folder(std::uint64_t flags) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= flags;
  params.pszModulePath = "/etc/passwd";
  std::exit(convert(3, 3, params, busy_picture).code == 0 ? 0 : 1);
}

class PageProfile : public testing::Test {
 protected:
  void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(PageProfile, IsLookedForInTheModuleDirectoryWhenColoursAreConverted) {
  EXPECT_EXIT(convert_with_a_file_for_a_folder(kChangeFlagColorConversion),
              testing::ExitedWithCode(0),
              testing::StartsWith("DEBUG: Printer profile /etc/passwd/tqr7.icc is not used"));
}

TEST_F(PageProfile, IsNotLookedForWhenDeviceValuesPassAsTheyAre) {
  EXPECT_EXIT(convert_with_a_file_for_a_folder(0), testing::ExitedWithCode(0), testing::IsEmpty());
}

}  // namespace
