// SPDX-License-Identifier: Apache-2.0
//
// The 13 paper sizes that the printer knows: sheet and image geometry, in dots at 300 dpi.
#ifndef TQR7_JOB_PAPER_TABLE_H
#define TQR7_JOB_PAPER_TABLE_H

#include <cstdint>
#include <span>

/// One paper size; fields as in tagPRINTSETTING.
struct tagPAPERINFO {
  std::int64_t nPaperWidth;
  std::int64_t nPaperHeight;
  std::int64_t nImageWidth;
  std::int64_t nImageHeight;
  std::int64_t nImageLeft;
  std::int64_t nImageTop;
  std::uint8_t byTwoUpMode;
  std::uint32_t nTwoUpSplit;
  std::uint8_t byTwoUpOption;
  std::int32_t nJoinPages;
  std::int32_t nJoinGap;
  std::uint8_t bHalfSheetLast;  ///< true if its lowest bit is set
};

// PAPER_9x13, PAPER_10x15, …: a constant for each row of the list. _WB is a white border. Two
// prints lie on the sheets PAPER_5x15x2_1, composed by the application, and PAPER_5x15x2_2, where
// each is a raster page.
#define PAPER(name, ...) extern const tagPAPERINFO PAPER_##name;
#include "job/paper_list.def"

/// A paper under the names that it has elsewhere. Arrays, so that the loader has no addresses to
/// fill in when the filter starts.
struct NamedPaper {
  const tagPAPERINFO* paper;
  char choice[16];   ///< the PPD's PageSize: "RQ_10x15"
  int photo_width;   ///< millimetres of the photo that people ask for, 102 x 152
  int photo_height;  ///< millimetres
  char inches[8];    ///< "4x6"; empty where people have no such name
  char words[81];    ///< "10 x 15 cm"
};

/// All papers, in the order of the PPD.
std::span<const NamedPaper> named_papers();

#endif  // TQR7_JOB_PAPER_TABLE_H
