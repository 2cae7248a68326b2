// SPDX-License-Identifier: Apache-2.0
//
// The one place that checks a caller's arguments. All later code relies on them.
#ifndef TQR7_CONVERSION_REQUEST_CHECK_H
#define TQR7_CONVERSION_REQUEST_CHECK_H

#include <cstdint>

#include "conversion/change_codes.h"
#include "image/mv_change_image.h"

/// Most bytes that a band may span, lines with their padding: 16 GiB. The largest sheet (1852 ×
/// 2434 dots, 6 bytes each) takes 27 MB, so a larger number is a damaged record, not a page.
inline constexpr std::uint64_t kLargestBand = std::uint64_t{1} << 34;

inline constexpr std::uint64_t kSourceBytesPerPixel = 3;
inline constexpr std::uint64_t kDestinationBytesPerPixel = 6;
inline constexpr std::uint64_t kMatteBytesPerPixel = 1;

/// Checks MVChangeImage's arguments. Returns kChangeDone when such a page can be converted, else
/// the code of the first fault. Reads no pixel and writes nothing. It cannot see whether the
/// buffers are as long as their records say.
ChangeCode check_request(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                         const tagMVBandImageParams* destination, const tagMVBandImageParams* matte,
                         const unsigned char* rgbRate, const unsigned char* opRate);

#endif  // TQR7_CONVERSION_REQUEST_CHECK_H
