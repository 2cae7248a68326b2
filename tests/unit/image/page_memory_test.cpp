// SPDX-License-Identifier: Apache-2.0
#include "image/page_memory.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t kBandBytes = std::size_t{1852} * 1232 * 6;  // of a 10 × 15 cm sheet
// The band has 3,342 pages of memory. A sanitizer's own notes of them have some 400.
constexpr long kFewFaults = 800;

long faults_so_far() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

}  // namespace

TEST(PageMemory, IsThereBeforeTheFirstWrite) {
  const std::unique_ptr<unsigned char[]> band(new unsigned char[kBandBytes]);
  expect_writes(band.get(), kBandBytes);
  const long before = faults_so_far();
  std::memset(band.get(), 0xFF, kBandBytes);
  EXPECT_LE(faults_so_far() - before, kFewFaults);
}

TEST(PageMemory, KeepsTheBytesThatAreThere) {
  std::vector<unsigned char> bytes(std::size_t{3} << 20U, 0xA5);
  expect_writes(bytes.data() + 1, bytes.size() - 2);
  EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](unsigned char b) { return b == 0xA5; }));
}

TEST(PageMemory, LeavesErrnoAlone) {
  errno = ENOENT;
  // Nothing is there: the system refuses the hint, and that is no error of the page.
  expect_writes(reinterpret_cast<unsigned char*>(4096), kBandBytes);
  EXPECT_EQ(errno, ENOENT);
}

TEST(PageMemory, TakesWhatIsNoBuffer) {
  expect_writes(nullptr, kBandBytes);
  unsigned char none = 0x5A;
  expect_writes(&none, 0);
  EXPECT_EQ(none, 0x5A);
}
