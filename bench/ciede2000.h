// SPDX-License-Identifier: Apache-2.0
//
// CIEDE2000, the colour difference in which the accuracy figures are told.
#ifndef TQR7_BENCH_CIEDE2000_H
#define TQR7_BENCH_CIEDE2000_H

#include "bench/colour_space.h"

namespace bench {

/// The difference of two colours as CIE 142-2001 defines it, with all three weights 1; about 1 is
/// just visible side by side. Steps and names as in Sharma, Wu and Dalal, "The CIEDE2000
/// color-difference formula: implementation notes, supplementary test data, and mathematical
/// observations", Color Research and Application 30 (2005), equations 2 to 22.
double ciede2000(const Lab& first, const Lab& second);

}  // namespace bench

#endif  // TQR7_BENCH_CIEDE2000_H
