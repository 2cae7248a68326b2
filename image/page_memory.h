// SPDX-License-Identifier: Apache-2.0
//
// What the system is told of the memory of pages and bands. A photo job is mostly one page,
// whose some 20 MB of fresh buffers would otherwise cost more processor time, a fault for each
// 4 KiB, than all work on its pixels.
#ifndef TQR7_IMAGE_PAGE_MEMORY_H
#define TQR7_IMAGE_PAGE_MEMORY_H

#include <cstddef>

/// Tells the system that all `size` bytes of a buffer are about to be written, so that it backs
/// them at once, with large pages where it has them. Changes no byte, and errno as little; a system
/// that knows no such hint backs each page at its first write.
void expect_writes(void* bytes, std::size_t size);

#endif  // TQR7_IMAGE_PAGE_MEMORY_H
