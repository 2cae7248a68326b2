// SPDX-License-Identifier: Apache-2.0
//
// Papers of a few dots, which the decoder of a target takes beside the printer's own: a whole sheet
// then fits into an input, and thousands are gone through in a second. This file's source takes the
// place of the decoder's paper_sizes.cpp.
#ifndef TQR7_TESTS_FUZZ_SMALL_PAPERS_H
#define TQR7_TESTS_FUZZ_SMALL_PAPERS_H

#include <array>

#include "decoder/paper_sizes.h"
#include "job/print_setting.h"

namespace fuzz {

/// A sheet and how a job prints on it.
struct SmallPaper {
  decoder::SheetSize sheet;
  bool border;  ///< the image leaves a white border
  bool joined;  ///< two raster pages make the sheet
};

inline constexpr std::array<SmallPaper, 5> kSmallPapers{{
    {{6, 4, 0, 0, false}, false, false},
    {{12, 10, 3, 3, false}, true, false},
    {{8, 6, 0, 0, true}, false, true},
    {{33, 9, 0, 0, true}, false, false},
    {{201, 180, 3, 3, false}, false, false},  // more than one full buffer of pixels
}};

/// The job's settings for a paper, every option at its default.
tagPRINTSETTING settings_of(const SmallPaper& paper);

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_SMALL_PAPERS_H
