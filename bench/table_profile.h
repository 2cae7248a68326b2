// SPDX-License-Identifier: Apache-2.0
//
// A printer profile of the table kind, as profiling programs make it from measured patches: a
// stand-in for the profile of somebody who has measured the printer.
#ifndef TQR7_BENCH_TABLE_PROFILE_H
#define TQR7_BENCH_TABLE_PROFILE_H

#include "bench/little_cms.h"

namespace bench {

/// The profile of an imagined printer with three dyes that also absorb beside their own band, so
/// that no matrix can describe it. RGB, ICC version 4, connection space Lab; tables of 33 points
/// both ways.
ProfileBytes table_profile();

}  // namespace bench

#endif  // TQR7_BENCH_TABLE_PROFILE_H
