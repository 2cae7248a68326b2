// SPDX-License-Identifier: Apache-2.0
//
// The page on which instructions of the conversion are counted: small, since valgrind takes some
// fifty times as long, and no multiple of a vector.
#ifndef TQR7_BENCH_SPEED_COUNTED_PAGE_H
#define TQR7_BENCH_SPEED_COUNTED_PAGE_H

#include <cstddef>

namespace bench {

inline constexpr std::size_t kCountedWidth = 463;
inline constexpr std::size_t kCountedHeight = 308;

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_COUNTED_PAGE_H
