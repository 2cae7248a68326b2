// SPDX-License-Identifier: Apache-2.0
//
// Debug files: what lands in them, their permissions, and what cannot be written.
#include "diag/image_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "tests/unit/capture.h"
#include "tests/unit/temp_file.h"

namespace {

struct Outcome {
  bool result;
  std::string out;
  std::string err;
};

Outcome Save(const char* path, const void* data, unsigned long size) {
  Capture out(stdout);
  Capture err(stderr);
  const bool result = save_memory(path, data, size);
  const std::string errors = err.Text();
  return {result, out.Text(), errors};
}

}  // namespace

TEST(SaveMemory, WritesTheBlockAndSaysSoOnStandardOutput) {
  const TempFolder folder;
  const Outcome outcome = Save((folder / "block").c_str(), "a\0b\n", 4);
  EXPECT_TRUE(outcome.result);
  EXPECT_EQ(ReadFile(folder / "block"), std::string("a\0b\n", 4));
  EXPECT_EQ(outcome.out, "written: 4 bytes.\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(SaveMemory, TheFileIsForEveryoneToReadAndWrite) {
  const TempFolder folder;
  const mode_t before = umask(077);
  const Outcome outcome = Save((folder / "block").c_str(), "x", 1);
  umask(before);
  EXPECT_TRUE(outcome.result);
  struct stat status {};
  ASSERT_EQ(stat((folder / "block").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0666U);
}

TEST(SaveMemory, AnOldFileIsReplaced) {
  const TempFolder folder;
  Save((folder / "block").c_str(), "a long text", 11);
  EXPECT_TRUE(Save((folder / "block").c_str(), "new", 3).result);
  EXPECT_EQ(ReadFile(folder / "block"), "new");
}

TEST(SaveMemory, WithoutAPathNothingIsTried) {
  const Outcome outcome = Save(nullptr, "x", 1);
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST(SaveMemory, WithoutDataNoFileIsMade) {
  const TempFolder folder;
  const Outcome outcome = Save((folder / "block").c_str(), nullptr, 1);
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_FALSE(std::filesystem::exists(folder / "block"));
}

TEST(SaveMemory, OfSizeZeroNoFileIsMade) {
  const TempFolder folder;
  const Outcome outcome = Save((folder / "block").c_str(), "x", 0);
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_FALSE(std::filesystem::exists(folder / "block"));
}

TEST(SaveMemory, AFileThatCannotBeOpenedFailsWithoutAMessage) {
  const TempFolder folder;
  const Outcome outcome = Save((folder / "no/such/folder").c_str(), "x", 1);
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST(SaveMemory, AFullDeviceFails) {
  // More than any stream holds back, so that the device is reached while writing.
  const std::string block(1 << 20, 'x');
  struct stat before {};
  ASSERT_EQ(stat("/dev/full", &before), 0);
  const Outcome outcome = Save("/dev/full", block.data(), block.size());
  EXPECT_FALSE(outcome.result);
  EXPECT_EQ(outcome.out.substr(0, 9), "written: ");
  EXPECT_EQ(outcome.err, "");
  struct stat after {};
  ASSERT_EQ(stat("/dev/full", &after), 0);
  EXPECT_EQ(after.st_mode, before.st_mode);
}

TEST(SaveImageAsRaw, WritesTheLinesInMemoryOrder) {
  const TempFolder folder;
  std::array<unsigned char, 8> pixels = {'b', 'o', 't', '.', 't', 'o', 'p', '.'};
  const tagMVBandImageParams band = {pixels.data(), 4, {0, 10, 3, 12}};
  Capture out(stdout);
  const bool result = save_image_as_raw((folder / "band_%Wx%H_%B.raw").c_str(), &band);
  EXPECT_EQ(out.Text(), "written: 8 bytes.\n");
  EXPECT_TRUE(result);
  EXPECT_EQ(ReadFile(folder / "band_3x2_8.raw"), "bot.top.");
}

TEST(SaveImageAsRaw, WritesATopDownBandFromItsBuffersStart) {
  const TempFolder folder;
  std::array<unsigned char, 8> pixels = {'t', 'o', 'p', '.', 'b', 'o', 't', '.'};
  const tagMVBandImageParams band = {pixels.data(), -4, {0, 10, 3, 12}};
  Capture out(stdout);
  const bool result = save_image_as_raw((folder / "band.raw").c_str(), &band);
  EXPECT_EQ(out.Text(), "written: 8 bytes.\n");
  EXPECT_TRUE(result);
  EXPECT_EQ(ReadFile(folder / "band.raw"), "top.bot.");
}

TEST(SaveImageAsRaw, ANameBeyondTheNameBufferFails) {
  std::array<unsigned char, 4> pixels = {};
  const tagMVBandImageParams band = {pixels.data(), -4, {0, 0, 4, 1}};
  const std::string name(1024, 'a');
  Capture out(stdout);
  const bool result = save_image_as_raw(name.c_str(), &band);
  EXPECT_EQ(out.Text(), "");
  EXPECT_FALSE(result);
}

TEST(SaveImageAsRaw, AFileThatCannotBeWrittenFails) {
  const TempFolder folder;
  std::array<unsigned char, 4> pixels = {};
  const tagMVBandImageParams band = {pixels.data(), -4, {0, 0, 4, 1}};
  EXPECT_FALSE(save_image_as_raw((folder / "no/such.raw").c_str(), &band));
}

TEST(SaveImageAsRaw, ABandWithoutABufferFails) {
  const TempFolder folder;
  const tagMVBandImageParams band = {nullptr, -4, {0, 0, 4, 1}};
  EXPECT_FALSE(save_image_as_raw((folder / "band.raw").c_str(), &band));
  EXPECT_FALSE(std::filesystem::exists(folder / "band.raw"));
}
