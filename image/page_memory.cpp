// SPDX-License-Identifier: Apache-2.0
#include "image/page_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Below this a fault for each page costs no more than the hint.
constexpr std::size_t kWorthTheHint = std::size_t{1} << 20U;

#ifdef __GLIBC__
// Larger than any page or band, and the most that the C library takes.
constexpr int kLargestKept = 32 << 20;
// More than all of a job's buffers together.
constexpr int kKeptInAll = 256 << 20;
#endif

}  // namespace

void keep_memory_between_pages() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, kLargestKept);
  mallopt(M_TRIM_THRESHOLD, kKeptInAll);
#endif
}

void expect_writes(void* bytes, std::size_t size) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  void* first = bytes;
  std::size_t left = size;
  if (bytes == nullptr || size < kWorthTheHint || std::align(page, page, first, left) == nullptr) {
    return;
  }
  const int before = errno;
  // What shares the last page may be another's.
  [[maybe_unused]] const std::size_t whole = left / page * page;
#ifdef MADV_HUGEPAGE
  madvise(first, whole, MADV_HUGEPAGE);
#endif
#ifdef MADV_POPULATE_WRITE
  madvise(first, whole, MADV_POPULATE_WRITE);
#endif
  errno = before;
}
