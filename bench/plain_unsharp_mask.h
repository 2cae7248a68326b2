// SPDX-License-Identifier: Apache-2.0
//
// An unsharp mask as one would write it without thinking of speed twice: what the conversion's
// speed is compared with.
#ifndef TQR7_BENCH_PLAIN_UNSHARP_MASK_H
#define TQR7_BENCH_PLAIN_UNSHARP_MASK_H

#include "bench/picture.h"

namespace bench {

/// Adds 5/8 of each byte's difference to its 5 × 5 surroundings (weights 1 4 6 4 1 both ways), in
/// integers, each channel by itself, clipped to 0 … 255. Beyond an edge the edge counts on.
/// `sharpened` gets the picture's size.
void plain_unsharp_mask(const Picture& picture, Picture& sharpened);

}  // namespace bench

#endif  // TQR7_BENCH_PLAIN_UNSHARP_MASK_H
