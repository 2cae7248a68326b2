// SPDX-License-Identifier: Apache-2.0
//
// Blue noise by the void-and-cluster method (R. Ulichney, "The void-and-cluster method for dither
// array generation", Proc. SPIE 1913, 1993): a square of ranks without clusters.
#ifndef TQR7_CONVERSION_BLUE_NOISE_VOID_AND_CLUSTER_H
#define TQR7_CONVERSION_BLUE_NOISE_VOID_AND_CLUSTER_H

#include <cstddef>
#include <cstdint>
#include <vector>

/// The least side: in a smaller square a dot would be its own neighbour.
inline constexpr std::size_t kLeastBlueNoiseSide = 17;

/// The ranks 0 … side² − 1 of a square's dots, row by row. The dots below any rank are spread as
/// evenly as possible, also across the edges of squares laid side by side. Uses whole numbers only,
/// so that every compiler makes the same square. `side` is at least kLeastBlueNoiseSide.
std::vector<std::uint32_t> blue_noise_ranks(std::size_t side);

#endif  // TQR7_CONVERSION_BLUE_NOISE_VOID_AND_CLUSTER_H
