// SPDX-License-Identifier: Apache-2.0
//
// File-name templates: each placeholder, and buffers that are too small.
#include <gtest/gtest.h>

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "diag/image_files.h"
#include "tests/unit/scripted_clock.h"

namespace {

bool formatting_fails = false;

/// Buffer with bytes behind it that must stay as they are.
struct GuardedBuffer {
  static constexpr std::size_t kGuard = 2048;

  explicit GuardedBuffer(std::size_t buffer_size) : size(buffer_size) { bytes.fill('#'); }

  bool Expand(const char* name_template, const tagMVBandImageParams* image = nullptr) {
    return format_string_util(bytes.data(), size, name_template, image);
  }
  std::string Text() const { return bytes.data(); }
  bool GuardIntact() const {
    for (std::size_t i = size; i < size + kGuard; ++i) {
      if (bytes[i] != '#') {
        return false;
      }
    }
    return true;
  }

  std::size_t size;
  std::array<char, 1024 + kGuard> bytes;
};

std::string Expanded(const char* name_template, const tagMVBandImageParams* image = nullptr) {
  GuardedBuffer buffer(1024);
  return buffer.Expand(name_template, image) ? buffer.Text() : "failed";
}

/// A band of 10 × 4 pixels of 48 bits, top row first.
tagMVBandImageParams TenByFour() {
  return {nullptr, -60, {3, 5, 13, 9}};
}

void PrintTwoNumberedNames() {
  SetLocalTime(2024, 1, 31, 23, 59, 59);
  const std::string first = Expanded("img_%T_%C.raw");
  const std::string second = Expanded("img_%T_%C.raw");
  std::fprintf(stderr, "%s %s\n", first.c_str(), second.c_str());
  std::exit(0);
}

void PrintTheNameAfterTenThousandOthers() {
  for (int i = 0; i < 10000; ++i) {
    Expanded("%C");
  }
  std::fprintf(stderr, "%s\n", Expanded("%C").c_str());
  std::exit(0);
}

void PrintTwoNumbersOfOneName() {
  std::fprintf(stderr, "%s\n", Expanded("%C-%W-%C").c_str());
  std::exit(0);
}

}  // namespace

/// Takes the place of the C library's, so that a test can let formatting fail.
extern "C" int snprintf(char* text, std::size_t size, const char* format, ...) noexcept {
  if (formatting_fails) {
    return -1;
  }
  va_list arguments;
  va_start(arguments, format);
  const int result = std::vsnprintf(text, size, format, arguments);
  va_end(arguments);
  return result;
}

TEST(NameTemplate, NamesAreNumberedFromZeroInAProcess) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(PrintTwoNumberedNames(), testing::ExitedWithCode(0),
              "img_20240131_235959_0000\\.raw img_20240131_235959_0001\\.raw");
}

TEST(NameTemplate, TheNumberGrowsBeyondFourDigits) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(PrintTheNameAfterTenThousandOthers(), testing::ExitedWithCode(0), "^10000\n");
}

TEST(NameTemplate, EachNumberInANameCounts) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(PrintTwoNumbersOfOneName(), testing::ExitedWithCode(0), "^0000-0-0001\n");
}

TEST(NameTemplate, ShowsTheSizeAndDepthOfABand) {
  const tagMVBandImageParams band = TenByFour();
  EXPECT_EQ(Expanded("%W x %H, %B bpp", &band), "10 x 4, 48 bpp");
}

TEST(NameTemplate, TheDepthRoundsDownToWholeBytesAPixel) {
  const tagMVBandImageParams band = {nullptr, 35, {0, 0, 10, 4}};
  EXPECT_EQ(Expanded("%B", &band), "24");
}

TEST(NameTemplate, ABandWithoutWidthHasDepthZero) {
  const tagMVBandImageParams band = {nullptr, -60, {7, 0, 7, 4}};
  EXPECT_EQ(Expanded("%W,%H,%B", &band), "0,4,0");
}

TEST(NameTemplate, WithoutABandSizeAndDepthAreZero) {
  EXPECT_EQ(Expanded("%W,%H,%B"), "0,0,0");
}

TEST(NameTemplate, ShowsTheLocalTime) {
  SetLocalTime(2031, 2, 3, 4, 5, 6);
  EXPECT_EQ(Expanded("a%Tb"), "a20310203_040506b");
}

TEST(NameTemplate, WithoutALocalTimeItSaysSo) {
  LoseLocalTime();
  EXPECT_EQ(Expanded("a%Tb"), "a(no_time)b");
}

TEST(NameTemplate, ADoubledPercentSignGivesNothing) {
  EXPECT_EQ(Expanded("100%%"), "100");
}

TEST(NameTemplate, ADoubledPercentSignConsumesBoth) {
  const tagMVBandImageParams band = TenByFour();
  EXPECT_EQ(Expanded("%%W", &band), "W");
  EXPECT_EQ(Expanded("%%%W", &band), "10");
}

TEST(NameTemplate, APercentSignAtTheEndIsDropped) {
  EXPECT_EQ(Expanded("abc%"), "abc");
}

TEST(NameTemplate, OtherLettersGiveNothing) {
  EXPECT_EQ(Expanded("%x"), "");
  EXPECT_EQ(Expanded("%Q"), "");
  EXPECT_EQ(Expanded("a%xb%Qc%wd%n"), "abcd");
}

TEST(NameTemplate, AnEmptyTemplateGivesAnEmptyText) {
  EXPECT_EQ(Expanded(""), "");
}

TEST(NameTemplate, ALiteralThatDoesNotFitFailsAfterWhatFits) {
  GuardedBuffer buffer(4);
  EXPECT_FALSE(buffer.Expand("abcd"));
  EXPECT_EQ(buffer.Text(), "abc");
  EXPECT_TRUE(buffer.GuardIntact());
}

TEST(NameTemplate, ALiteralThatJustFitsSucceeds) {
  GuardedBuffer buffer(4);
  EXPECT_TRUE(buffer.Expand("abc"));
  EXPECT_EQ(buffer.Text(), "abc");
  EXPECT_TRUE(buffer.GuardIntact());
}

TEST(NameTemplate, ABufferOfOneByteTakesOnlyTheEmptyText) {
  GuardedBuffer empty(1);
  EXPECT_TRUE(empty.Expand(""));
  EXPECT_EQ(empty.Text(), "");
  GuardedBuffer cut(1);
  EXPECT_FALSE(cut.Expand("a"));
  EXPECT_EQ(cut.Text(), "");
  EXPECT_TRUE(cut.GuardIntact());
}

TEST(NameTemplate, WithoutABufferNothingIsWritten) {
  GuardedBuffer buffer(0);
  EXPECT_FALSE(buffer.Expand("abc"));
  EXPECT_TRUE(buffer.GuardIntact());
}

TEST(NameTemplate, AnExpansionThatIsCutFailsInsideTheBuffer) {
  SetLocalTime(2024, 1, 31, 23, 59, 59);
  for (std::size_t size = 1; size <= 16; ++size) {
    GuardedBuffer buffer(size);
    EXPECT_FALSE(buffer.Expand("a%T")) << size;
    EXPECT_TRUE(buffer.GuardIntact()) << size;
    EXPECT_NE(std::memchr(buffer.bytes.data(), 0, size), nullptr) << size;
  }
}

TEST(NameTemplate, AnExpansionNeedsAByteBesidesItsTerminatingZero) {
  SetLocalTime(2024, 1, 31, 23, 59, 59);
  GuardedBuffer cut(17);
  EXPECT_FALSE(cut.Expand("a%T"));
  EXPECT_TRUE(cut.GuardIntact());
  GuardedBuffer whole(18);
  EXPECT_TRUE(whole.Expand("a%T"));
  EXPECT_EQ(whole.Text(), "a20240131_235959");
  EXPECT_TRUE(whole.GuardIntact());
}

TEST(NameTemplate, ManyExpansionsThatAreCutStayInsideTheBuffer) {
  SetLocalTime(2024, 1, 31, 23, 59, 59);
  GuardedBuffer buffer(20);
  EXPECT_FALSE(buffer.Expand("%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T%T"));
  EXPECT_TRUE(buffer.GuardIntact());
  EXPECT_NE(std::memchr(buffer.bytes.data(), 0, 20), nullptr);
}

TEST(NameTemplate, ALiteralAfterACutExpansionStaysInsideTheBuffer) {
  const tagMVBandImageParams band = {nullptr, -60, {0, 0, 1234567890, 4}};
  GuardedBuffer buffer(5);
  EXPECT_FALSE(buffer.Expand("%Wabc", &band));
  EXPECT_TRUE(buffer.GuardIntact());
  EXPECT_NE(std::memchr(buffer.bytes.data(), 0, 5), nullptr);
}

TEST(NameTemplate, FormattingThatFailsEndsTheTextThere) {
  GuardedBuffer buffer(64);
  formatting_fails = true;
  const bool expanded = buffer.Expand("ab%Wcd");
  formatting_fails = false;
  EXPECT_FALSE(expanded);
  EXPECT_EQ(buffer.Text(), "ab");
}
