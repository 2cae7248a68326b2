// SPDX-License-Identifier: Apache-2.0
//
// The numbers that MVChangeImage returns. The filter's log shows them.
#ifndef TQR7_CONVERSION_CHANGE_CODES_H
#define TQR7_CONVERSION_CHANGE_CODES_H

/// 0 for a converted page. The tens of every other code say what is wrong: 1 a pointer, 2 the
/// source, 3 the destination, 4 the matte band, 5 this computer. Then nothing was written. When
/// several things are wrong, the lowest code is returned.
enum ChangeCode : long {
  kChangeDone = 0,

  kChangeNullSource = 11,
  kChangeNullParams = 12,
  kChangeNullDestination = 13,
  kChangeNullRgbRate = 14,
  kChangeNullOpRate = 15,

  kChangeSourceNoPixels = 21,     ///< pBits is null
  kChangeSourceEmpty = 22,        ///< zero or negative width or height
  kChangeSourceTooLarge = 23,     ///< more bytes than kLargestBand
  kChangeSourceShortStride = 24,  ///< a line does not fit into its stride

  kChangeDestinationNoPixels = 31,
  kChangeDestinationEmpty = 32,
  kChangeDestinationTooLarge = 33,
  kChangeDestinationShortStride = 34,
  kChangeDestinationOtherSize = 35,  ///< not as wide and high as the source

  kChangeMatteNoPixels = 41,
  kChangeMatteEmpty = 42,
  kChangeMatteTooLarge = 43,
  kChangeMatteShortStride = 44,

  kChangeNoMemory = 51,  ///< no memory for a few lines to work on
};

#endif  // TQR7_CONVERSION_CHANGE_CODES_H
