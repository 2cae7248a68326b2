// SPDX-License-Identifier: Apache-2.0
//
// The print settings of a job: filled once from the PPD's marked choices, then only read.
#ifndef TQR7_JOB_PRINT_SETTING_H
#define TQR7_JOB_PRINT_SETTING_H

#include <cstdint>

/// The job's settings. Distances are in printer dots (300 to the inch); a line is one row of dots.
struct tagPRINTSETTING {
  std::int32_t nReserved;  ///< unused
  std::int32_t nPaperWidth;
  std::int32_t nPaperHeight;
  std::int32_t nImageWidth;
  std::int32_t nImageHeight;
  std::int32_t nImageLeft;  ///< image area's left edge in the sheet
  std::int32_t nImageTop;   ///< image area's top edge in the sheet
  std::uint8_t byTwoUpMode;
  std::uint32_t nTwoUpSplit;  ///< line at which the two prints of a sheet meet
  std::uint8_t byTwoUpOption;
  std::int32_t nJoinPages;   ///< 1: two raster pages make one sheet
  std::int32_t nJoinGap;     ///< lines between the two images of a joined sheet
  bool bHalfSheetLast;       ///< a lone last image prints as a sheet of image size
  std::uint8_t bySharpness;  ///< 0 none, 1 … 7 weakest to strongest, 4 normal
  std::uint8_t byReserved[3];
  std::uint8_t byPrintMode;        ///< the printer's code: 0 auto, 5 fast
  std::uint8_t byPrintFinish;      ///< the printer's code: 0 gloss, 3 matte
  std::uint8_t byColorConversion;  ///< on if its lowest bit is set
  std::uint8_t byMarginCutOff;     ///< on if its lowest bit is set
  std::uint8_t byWaitNextImage;    ///< on if its lowest bit is set
  std::uint8_t byWaitTime;         ///< the printer's own unit
  std::int16_t nGamma[3];          ///< R, G, B, −5 … 5
  std::int16_t nContrast[3];       ///< R, G, B, −128 … 128
  std::int16_t nBrightness[3];     ///< R, G, B, −128 … 128
};

using PRINTSETTING = tagPRINTSETTING;

/// The finish that switches the matte plane on; every other value prints as gloss.
inline constexpr std::uint8_t kFinishMatte = 3;

#endif  // TQR7_JOB_PRINT_SETTING_H
