// SPDX-License-Identifier: Apache-2.0
//
// Which buffers the system is told of: those of a page's size. The system's call is this program's.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "filter/filter_hooks.h"
#include "image/band_image.h"
#include "image/page_memory.h"
#include "job/job_state.h"
#include "job/paper_table.h"
#include "tests/unit/stand_in.h"

namespace {

struct Hint {
  const unsigned char* bytes;
  std::size_t size;
  int advice;
};

std::vector<Hint>& hints() {
  static std::vector<Hint> all;
  return all;
}

// Whether all of a buffer but what shares its first and last 4 KiB with others was told of so.
bool told(int advice, const unsigned char* buffer, std::size_t size) {
  constexpr std::ptrdiff_t kPage = 4096;
  for (const Hint& hint : hints()) {
    const std::ptrdiff_t before = hint.bytes - buffer;
    const std::ptrdiff_t behind = buffer + size - (hint.bytes + hint.size);
    if (hint.advice == advice && before >= 0 && before < kPage && behind >= 0 && behind < kPage) {
      return true;
    }
  }
  return false;
}

}  // namespace

extern "C" int madvise(void* bytes, std::size_t size, int advice) noexcept {
  hints().push_back({static_cast<const unsigned char*>(bytes), size, advice});
  return RealFunction<decltype(madvise)>("madvise")(bytes, size, advice);
}

TEST(PageHints, AreGivenForABand) {
  hints().clear();
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 1852, 1232}, kImageDepth, -1));
  EXPECT_TRUE(told(MADV_HUGEPAGE, band.pBits, std::size_t{1852} * 1232 * 6));
  EXPECT_TRUE(told(MADV_POPULATE_WRITE, band.pBits, std::size_t{1852} * 1232 * 6));
  CImageUtility::DeleteBandImage(&band);
}

TEST(PageHints, AreGivenForThePageBuffer) {
  hints().clear();
  tagPRINTSETTING settings{};
  settings.nImageWidth = 1852;
  settings.nImageHeight = 1232;
  cups_page_header_s header{};
  header.cupsBytesPerLine = 1852 * 3;
  StartPage(nullptr, &header, &settings);
  ASSERT_NE(Planes[1], nullptr);
  EXPECT_TRUE(told(MADV_HUGEPAGE, Planes[1], std::size_t{1852} * 1232 * 3));
  EXPECT_TRUE(told(MADV_POPULATE_WRITE, Planes[1], std::size_t{1852} * 1232 * 3));
  EndPage(nullptr, nullptr, nullptr);
}

TEST(PageHints, AreNotGivenAgainForMemoryThatWasWritten) {
  std::vector<unsigned char> written(std::size_t{3} << 20U, 0xA5);
  hints().clear();
  expect_writes(written.data(), written.size());
  EXPECT_TRUE(hints().empty());
}

TEST(PageHints, AreGivenWhereOnlyTheBeginningWasWritten) {
  constexpr std::size_t kSize = std::size_t{8} << 20U;
  void* fresh = mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(fresh, MAP_FAILED);
  std::memset(fresh, 0xFF, kSize / 2 + 4096);
  hints().clear();
  expect_writes(fresh, kSize);
  EXPECT_FALSE(hints().empty());
  munmap(fresh, kSize);
}

TEST(PageHints, AreNotWorthASmallBand) {
  hints().clear();
  tagMVBandImageParams band{};
  ASSERT_TRUE(CImageUtility::CreateBandImage(&band, {0, 0, 100, 100}, kImageDepth, -1));
  EXPECT_TRUE(hints().empty());
  CImageUtility::DeleteBandImage(&band);
}
