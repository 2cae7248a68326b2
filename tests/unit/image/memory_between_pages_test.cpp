// SPDX-License-Identifier: Apache-2.0
//
// Of the C library's allocator: a sanitizer's keeps what was released for another purpose.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "image/page_memory.h"
#include "tests/unit/image/faults.h"

TEST(MemoryBetweenPages, ServesTheNextPageWithoutAFault) {
  keep_memory_between_pages();
  constexpr std::size_t kPageBytes = kBandBytes / 2;
  std::unique_ptr<unsigned char[]> page(new unsigned char[kPageBytes]);
  std::unique_ptr<unsigned char[]> band(new unsigned char[kBandBytes]);
  std::memset(page.get(), 0xFF, kPageBytes);
  std::memset(band.get(), 0xFF, kBandBytes);
  page.reset();
  band.reset();

  page.reset(new unsigned char[kPageBytes]);
  band.reset(new unsigned char[kBandBytes]);
  EXPECT_LE(faults_of_writing(page.get(), kPageBytes), kFewFaults);
  EXPECT_LE(faults_of_writing(band.get(), kBandBytes), kFewFaults);
}
