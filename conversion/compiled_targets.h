// SPDX-License-Identifier: Apache-2.0
//
// For which processors the inner loops are compiled. Include it before Highway's headers.
#ifndef TQR7_CONVERSION_COMPILED_TARGETS_H
#define TQR7_CONVERSION_COMPILED_TARGETS_H

// A vector whose length only the running processor knows cannot be a member of a record. Every
// 64-bit ARM processor also has NEON.
#define HWY_DISABLED_TARGETS (HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)

#endif  // TQR7_CONVERSION_COMPILED_TARGETS_H
