// SPDX-License-Identifier: Apache-2.0
//
// Sizes and places held against the table of papers and against each other. Nothing is made of a
// size before it has passed here.
#ifndef TQR7_DECODER_GEOMETRY_CHECK_H
#define TQR7_DECODER_GEOMETRY_CHECK_H

#include <cstdint>

#include "decoder/command_blocks.h"
#include "decoder/stream_error.h"

namespace decoder {

/// The sheet's size is a paper's, and the two-up fields agree with it and with each other. True
/// when the size is a paper's, so that the header can be built on.
bool check_sheet(const JobHeader& header, Command command, std::uint64_t blockOffset,
                 const ErrorSink& report);

/// The sheet carries two prints, by what most of its two-up fields say; also true when its size is
/// no paper's, and nobody can tell.
bool may_carry_two_prints(const JobHeader& header);

/// The image covers the sheet of `job`, or leaves the white border where the sheet allows one; the
/// matte plane is absent for gloss, and the sheet's size and 12 rows for matte. `job` must have
/// passed check_sheet. True when all sizes are right.
bool check_image(const ImageHeader& image, const JobHeader& job, std::uint64_t blockOffset,
                 const ErrorSink& report);

}  // namespace decoder

#endif  // TQR7_DECODER_GEOMETRY_CHECK_H
