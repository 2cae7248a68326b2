// SPDX-License-Identifier: Apache-2.0
//
// When a page asks for the printer's profile. What is said of one is said once a process: each of
// these calls has a process of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/unit/conversion/test_page.h"

namespace {

/// Converts a page in a module directory that is not there.
[[noreturn]] void convert_without_module_directory(std::uint64_t flags) {
  tagMVChangeParams params = plain_params();
  params.dwFlags |= flags;
  params.pszModulePath = "/nowhere/at/all";
  std::exit(convert(3, 3, params, busy_picture).code == 0 ? 0 : 1);
}

class PageProfile : public testing::Test {
 protected:
  void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(PageProfile, IsLookedForInTheModuleDirectoryWhenColoursAreConverted) {
  EXPECT_EXIT(convert_without_module_directory(kChangeFlagColorConversion),
              testing::ExitedWithCode(0),
              testing::StartsWith("DEBUG: Printer profile /nowhere/at/all/tqr7.icc is not used"));
}

TEST_F(PageProfile, IsNotLookedForWhenDeviceValuesPassAsTheyAre) {
  EXPECT_EXIT(convert_without_module_directory(0), testing::ExitedWithCode(0), testing::IsEmpty());
}

}  // namespace
