// SPDX-License-Identifier: Apache-2.0
//
// Hints to the system about the memory of pages and bands. Most photo jobs have one page. Without
// the hints, its 20 MB of new buffers would cost more processor time (a page fault for each 4 KiB)
// than all the work on its pixels.
#ifndef TQR7_IMAGE_PAGE_MEMORY_H
#define TQR7_IMAGE_PAGE_MEMORY_H

#include <cstddef>

/// Tells the system that all `size` bytes of a buffer are about to be written, so that it provides
/// the memory at once, in large pages if it has them. Changes neither the bytes nor errno. A system
/// without such a hint provides each page at its first write.
void expect_writes(void* bytes, std::size_t size);

#endif  // TQR7_IMAGE_PAGE_MEMORY_H
