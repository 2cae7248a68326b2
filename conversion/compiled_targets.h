// SPDX-License-Identifier: Apache-2.0
//
// For which processors the inner loops are compiled. To be included ahead of Highway's headers.
#ifndef TQR7_CONVERSION_COMPILED_TARGETS_H
#define TQR7_CONVERSION_COMPILED_TARGETS_H

// Vectors whose length only the running processor knows cannot be members of a record. Every ARM
// processor of 64 bits has NEON beside them.
#define HWY_DISABLED_TARGETS (HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)

#endif  // TQR7_CONVERSION_COMPILED_TARGETS_H
