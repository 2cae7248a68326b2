// SPDX-License-Identifier: Apache-2.0
//
// What a job's options say of how a photo is to lie on the page, in the words that CUPS has for it.
#ifndef TQR7_PHOTO_JOB_WISHES_H
#define TQR7_PHOTO_JOB_WISHES_H

#include <cups/cups.h>

#include <cstdint>

namespace photo {

/// How large the photo is to be.
enum class Scaling : std::uint8_t {
  Fit,      ///< all of it, as large as the page allows
  Fill,     ///< the page covered, what goes beyond it cut off
  Natural,  ///< as large as its density says, cut to the page
  Spread    ///< of a size of its own; what one page does not hold goes to further ones
};

/// Where the photo lies on what it does not cover, or what of it is kept: -1 is left or top, 0 the
/// middle, 1 right or bottom.
struct Position {
  int across = 0;
  int down = 0;
};

struct JobWishes {
  Scaling scaling = Scaling::Fit;
  /// For Spread: per cent of the fitted size, or of the natural one. 100 when nothing is said.
  int percent = 100;
  /// For Spread: the size is a share of the fitted one, not of the natural one.
  bool ofFitted = false;
  /// Dots of the photo to an inch of paper; 0 where the photo's own density counts.
  int perInchAcross = 0;
  int perInchDown = 0;
  Position position;
  /// orientation-requested, 3 to 6; 0 where the photo is turned as it lies best.
  int orientation = 0;
  bool mirror = false;
  int copies = 1;
  bool collate = false;
  double gamma = 1;       ///< above 1 is lighter
  double brightness = 1;  ///< above 1 is lighter
  int saturation = 100;   ///< per cent
  int hue = 0;            ///< degrees
  bool grey = false;      ///< without colours, whatever saturation and hue say
};

/// Reads the options; `borderless` says whether the page has no margins, which print-scaling=auto
/// depends on. What is no number, or beyond what CUPS allows, is held to the nearest that is.
JobWishes read_wishes(int count, cups_option_t* options, const char* copies, bool borderless);

}  // namespace photo

#endif  // TQR7_PHOTO_JOB_WISHES_H
