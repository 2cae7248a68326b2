// SPDX-License-Identifier: Apache-2.0
#include "image/page_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace {

// Below this a fault for each page costs no more than the hint.
constexpr std::size_t kWorthTheHint = std::size_t{1} << 20U;

}  // namespace

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
