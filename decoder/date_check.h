// SPDX-License-Identifier: Apache-2.0
//
// The date of an image header held against the calendar.
#ifndef TQR7_DECODER_DATE_CHECK_H
#define TQR7_DECODER_DATE_CHECK_H

#include <cstdint>

#include "decoder/command_blocks.h"
#include "decoder/stream_error.h"

namespace decoder {

/// Reports a day that its month does not have. A month or a year that is wrong by itself is not
/// this function's to report, and neither is a day that no month has.
void check_date(const ImageHeader& image, std::uint64_t blockOffset, const ErrorSink& report);

}  // namespace decoder

#endif  // TQR7_DECODER_DATE_CHECK_H
