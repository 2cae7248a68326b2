// SPDX-License-Identifier: Apache-2.0
//
// The 13 paper sizes that the printer knows: sheet and image geometry, in dots at 300 dpi.
#ifndef TQR7_JOB_PAPER_TABLE_H
#define TQR7_JOB_PAPER_TABLE_H

#include <cstdint>

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

extern const tagPAPERINFO PAPER_9x13;
extern const tagPAPERINFO PAPER_10x15;
extern const tagPAPERINFO PAPER_13x18;
extern const tagPAPERINFO PAPER_15x20;
extern const tagPAPERINFO PAPER_5x15x2_1;  ///< two prints, composed by the application
extern const tagPAPERINFO PAPER_5x15x2_2;  ///< two prints, one a raster page
extern const tagPAPERINFO PAPER_5x15;
extern const tagPAPERINFO PAPER_15x15;
extern const tagPAPERINFO PAPER_13x13;
extern const tagPAPERINFO PAPER_9x13_WB;  ///< _WB: with a white border
extern const tagPAPERINFO PAPER_10x15_WB;
extern const tagPAPERINFO PAPER_13x18_WB;
extern const tagPAPERINFO PAPER_15x20_WB;

#endif  // TQR7_JOB_PAPER_TABLE_H
