// SPDX-License-Identifier: Apache-2.0
//
// Little CMS's own transforms from pictures to 16-bit device values, as the conversion's speed is
// compared with them.
#ifndef TQR7_BENCH_LITTLE_CMS_PEERS_H
#define TQR7_BENCH_LITTLE_CMS_PEERS_H

#include <cstdint>
#include <span>
#include <vector>

#include "bench/little_cms.h"
#include "bench/picture.h"

namespace bench {

/// sRGB bytes to the profile's 16-bit values, relative colorimetric.
class LittleCmsPeer {
 public:
  /// Through a table of 33 points a channel, which Little CMS makes of the profile, with
  /// black-point compensation.
  static LittleCmsPeer table(std::span<const unsigned char> profile);
  /// Through one matrix between two sets of curves, Little CMS's fastest way for a matrix profile.
  /// Without black-point compensation, which would make it take a table.
  static LittleCmsPeer matrix_and_curves(std::span<const unsigned char> profile);

  void run(const Picture& picture, std::span<std::uint16_t> samples) const;

  /// The largest distance, in 1/65535, between this transform at random colours and a tetrahedral
  /// interpolation in the 33-point table of the same transform: a few for a transform that
  /// evaluates such a table, many for one that does not.
  int distance_from_table() const;

 private:
  LittleCmsPeer(std::span<const unsigned char> profile, cmsUInt32Number flags);

  Transform transform_;
  Transform nodes_;  ///< the same with 16-bit input, which reaches each point of the table
};

}  // namespace bench

#endif  // TQR7_BENCH_LITTLE_CMS_PEERS_H
