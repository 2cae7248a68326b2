// SPDX-License-Identifier: Apache-2.0
#include "image/page_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace {

// In a smaller buffer the page faults cost no more than the hint.
constexpr std::size_t kWorthTheHint = std::size_t{1} << 20U;

// Whether the allocator has reused memory of the last page: then there is nothing to do. The middle
// and the end of the buffer show it. `first` is the buffer's first whole page of the system.
bool written_before([[maybe_unused]] void* first, [[maybe_unused]] std::size_t size,
                    [[maybe_unused]] std::size_t page) {
#ifdef __linux__
  auto* bytes = static_cast<unsigned char*>(first);
  unsigned char middle = 0;
  unsigned char last = 0;
  return mincore(bytes + size / 2 / page * page, page, &middle) == 0 &&
         mincore(bytes + size - page, page, &last) == 0 && (middle & last & 1U) != 0;
#else
  return false;
#endif
}

}  // namespace

void expect_writes(void* bytes, std::size_t size) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  void* first = bytes;
  std::size_t left = size;
  if (bytes == nullptr || size < kWorthTheHint || std::align(page, page, first, left) == nullptr) {
    return;
  }
  const int before = errno;
  // The last page may be shared with other data.
  const std::size_t whole = left / page * page;
  if (!written_before(first, whole, page)) {
#ifdef MADV_HUGEPAGE
    madvise(first, whole, MADV_HUGEPAGE);
#endif
#ifdef MADV_POPULATE_WRITE
    madvise(first, whole, MADV_POPULATE_WRITE);
#endif
  }
  errno = before;
}
