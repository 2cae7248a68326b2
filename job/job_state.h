// SPDX-License-Identifier: Apache-2.0
//
// What the whole job shares: the printer's stream, the page being read, the sheet being assembled.
#ifndef TQR7_JOB_JOB_STATE_H
#define TQR7_JOB_JOB_STATE_H

#include <csignal>
#include <cstdint>
#include <cstdio>

#include "image/band_image.h"

extern std::FILE* fpOut;          ///< the printer's command stream: standard output
extern int page;                  ///< number of the current page, from 1; 0 before the first
extern unsigned char* Planes[2];  ///< one raster line; the page, 24-bit RGB, top row first
extern tagMVBandImageParams gImageCache;  ///< sheet being joined, 48 bits a pixel
extern tagMVBandImageParams gMatteImage;  ///< its matte plane, 8 bits a pixel
extern std::int16_t gImageCount;          ///< images waiting in gImageCache
extern std::uint8_t gRgbRate;             ///< the sheet's rates, from its conversion
extern std::uint8_t gOpRate;
extern int curLine;

/// Number of calls on the printer's stream that are under way. A signal handler that interrupts one
/// must not touch the stream: its buffer is half changed.
extern volatile std::sig_atomic_t gOutputCalls;

/// Lives for the time of one call on the printer's stream, and counts it.
class OutputCall {
 public:
  OutputCall() { gOutputCalls = gOutputCalls + 1; }
  ~OutputCall() { gOutputCalls = gOutputCalls - 1; }
  OutputCall(const OutputCall&) = delete;
  OutputCall& operator=(const OutputCall&) = delete;
};

#endif  // TQR7_JOB_JOB_STATE_H
