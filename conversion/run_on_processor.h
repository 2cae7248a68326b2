// SPDX-License-Identifier: Apache-2.0
//
// How a file of inner loops calls the version for this processor. Only such files include it, at
// their end, after all versions have been compiled.
#ifndef TQR7_CONVERSION_RUN_ON_PROCESSOR_H
#define TQR7_CONVERSION_RUN_ON_PROCESSOR_H

#include "conversion/compiled_targets.h"
//
#include <hwy/highway.h>

#include "conversion/processor.h"

#if HWY_TARGETS & HWY_AVX3
#define TQR7_ON_AVX3(call) \
  case HWY_AVX3:           \
    return N_AVX3::call;
#else
#define TQR7_ON_AVX3(call)
#endif

#if HWY_TARGETS & HWY_AVX2
#define TQR7_ON_AVX2(call) \
  case HWY_AVX2:           \
    return N_AVX2::call;
#else
#define TQR7_ON_AVX2(call)
#endif

#if HWY_TARGETS & HWY_SSE4
#define TQR7_ON_SSE4(call) \
  case HWY_SSE4:           \
    return N_SSE4::call;
#else
#define TQR7_ON_SSE4(call)
#endif

#if HWY_TARGETS & HWY_SSSE3
#define TQR7_ON_SSSE3(call) \
  case HWY_SSSE3:           \
    return N_SSSE3::call;
#else
#define TQR7_ON_SSSE3(call)
#endif

/// Runs `call`, a call of a function in the targets' namespaces, in the version for this processor.
#define TQR7_RUN_ON_PROCESSOR(call)       \
  do {                                    \
    switch (processor_target()) {         \
      TQR7_ON_AVX3(call)                  \
      TQR7_ON_AVX2(call)                  \
      TQR7_ON_SSE4(call)                  \
      TQR7_ON_SSSE3(call)                 \
      default:                            \
        return HWY_STATIC_DISPATCH(call); \
    }                                     \
  } while (false)

#endif  // TQR7_CONVERSION_RUN_ON_PROCESSOR_H
