// SPDX-License-Identifier: Apache-2.0
//
// What the fields of a header must say together: sizes and places that go with a paper and with
// each other, and a day that the calendar has. No memory is taken for a size that was not checked
// here.
#ifndef TQR7_DECODER_HEADER_CHECK_H
#define TQR7_DECODER_HEADER_CHECK_H

#include <cstdint>

#include "decoder/command_blocks.h"
#include "decoder/stream_error.h"

namespace decoder {

/// Checks that the sheet's size is a paper's, and that the two-up fields agree with it and with
/// each other. True when the size is a paper's: only then can an image be checked against the
/// header.
bool check_sheet(const JobHeader& header, Command command, std::uint64_t blockOffset,
                 const ErrorSink& report);

/// Whether the sheet carries two prints, by what most of its two-up fields say. True as well when
/// no paper has its size, because then it cannot be known.
bool may_carry_two_prints(const JobHeader& header);

/// Checks that the image covers the sheet of `job`, or leaves a white border where the sheet allows
/// one, and that there is no matte plane for gloss, and for matte one of the sheet's size and 12
/// rows more. `job` must have passed check_sheet. True when all sizes are right.
bool check_image(const ImageHeader& image, const JobHeader& job, std::uint64_t blockOffset,
                 const ErrorSink& report);

/// Reports a day that its month does not have. A month, a year or a day that is wrong by itself is
/// reported with the other fields, and not here.
void check_date(const ImageHeader& image, std::uint64_t blockOffset, const ErrorSink& report);

}  // namespace decoder

#endif  // TQR7_DECODER_HEADER_CHECK_H
