// SPDX-License-Identifier: Apache-2.0
//
// Debug files of bands that are none, and of sizes beyond every number.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>

#include "diag/dump.h"
#include "diag/image_files.h"
#include "tests/unit/capture.h"

namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

/// What saving the band gives: whether it was saved, and what was said.
std::string Saved(const tagMVBandImageParams* band) {
  Capture out(stdout);
  Capture err(stderr);
  const bool result = save_image_as_raw("/dev/null", band);
  const std::string errors = err.Text();
  return (result ? "saved " : "refused ") + out.Text() + errors;
}

}  // namespace

TEST(SaveImageAsRaw, OfNoBandIsRefusedBeforeAFileIsOpened) {
  EXPECT_EQ(Saved(nullptr), "refused ");
}

TEST(SaveImageAsRaw, OfABandThatEndsAboveItsStartIsRefused) {
  std::array<unsigned char, 4> pixels = {};
  const tagMVBandImageParams band = {pixels.data(), -4, {0, 9, 4, 8}};
  EXPECT_EQ(Saved(&band), "refused ");
}

TEST(SaveImageAsRaw, OfMoreBytesThanCanBeCountedIsRefused) {
  std::array<unsigned char, 4> pixels = {};
  const tagMVBandImageParams band = {pixels.data(), kLeast, {0, 0, 4, 2}};
  EXPECT_EQ(Saved(&band), "refused ");
}

TEST(SaveMemory, OfAFewBytesOnAFullDeviceFailsWhenTheFileIsClosed) {
  Capture out(stdout);
  EXPECT_FALSE(save_memory("/dev/full", "x", 1));
  EXPECT_EQ(out.Text(), "written: 1 bytes.\n");
}

TEST(NameTemplate, WithoutABufferFails) {
  EXPECT_FALSE(format_string_util(nullptr, 16, "name", nullptr));
}

TEST(NameTemplate, WithABufferWithoutRoomFailsAndLeavesItAlone) {
  char buffer[] = "###";
  EXPECT_FALSE(format_string_util(buffer, 0, "name", nullptr));
  EXPECT_STREQ(buffer, "###");
}

TEST(DumpMem, OfNoBlockShowsOnlyTheSizeThatWasNamed) {
  Capture err(stderr);
  dump_mem("[CMD]", nullptr, 4);
  EXPECT_EQ(err.Text(), "DEBUG: [CMD] size=4\n");
}

TEST(DumpMem, OfNoBlockWithoutBytesIsAnEmptyLine) {
  Capture err(stderr);
  dump_mem("[CMD]", nullptr, 0);
  EXPECT_EQ(err.Text(),
            "DEBUG: [CMD] size=0\n"
            "DEBUG: [CMD] 0000:\n");
}
