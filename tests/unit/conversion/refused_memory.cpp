// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/conversion/refused_memory.h"

#include <new>

#include "tests/unit/stand_in.h"

namespace {

constinit MemoryScript script;

const bool memory_restored = AfterEachTest([] {
  script.grantsLeft = -1;
  script.tablesRefused = false;
});

bool refuse_next() {
  return script.grantsLeft >= 0 && script.grantsLeft-- == 0;
}

}  // namespace

MemoryScript& memory_script() {
  return script;
}

// What is granted comes from the forms that delete and array-delete belong to.
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  try {
    return script.tablesRefused ? nullptr : ::operator new(size, alignment);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  script.bytesAsked += size;
  try {
    return refuse_next() ? nullptr : ::operator new[](size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
