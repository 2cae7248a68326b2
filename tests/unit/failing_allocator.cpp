// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/failing_allocator.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

// No test of ours needs more, and a sanitizer's malloc ends the process at absurd sizes.
constexpr std::size_t kLargest = std::size_t{1} << 36;

std::size_t smallest_refused_now = std::numeric_limits<std::size_t>::max();
std::size_t last_size = 0;
long live = 0;

void* Take(std::size_t size) {
  last_size = size;
  if (size >= smallest_refused_now || size > kLargest) {
    return nullptr;
  }
  void* block = std::malloc(size == 0 ? 1 : size);
  live += block == nullptr ? 0 : 1;
  return block;
}

void Give(void* block) {
  live -= block == nullptr ? 0 : 1;
  std::free(block);
}

}  // namespace

ArraysRefused::ArraysRefused(std::size_t smallest_refused) {
  smallest_refused_now = smallest_refused;
}

ArraysRefused::~ArraysRefused() {
  smallest_refused_now = std::numeric_limits<std::size_t>::max();
}

long LiveArrays() {
  return live;
}

std::size_t LastArraySize() {
  return last_size;
}

void* operator new[](std::size_t size) {
  void* block = Take(size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

void* operator new[](std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
  return Take(size);
}

void operator delete[](void* block) noexcept {
  Give(block);
}
void operator delete[](void* block, std::size_t /*size*/) noexcept {
  Give(block);
}
void operator delete[](void* block, const std::nothrow_t& /*unused*/) noexcept {
  Give(block);
}
