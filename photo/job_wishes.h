// SPDX-License-Identifier: Apache-2.0
//
// What a job's options say of how a photo is to lie on the page, in the words that CUPS has for it.
#ifndef TQR7_PHOTO_JOB_WISHES_H
#define TQR7_PHOTO_JOB_WISHES_H

#include <cups/cups.h>

#include <cstdint>

namespace photo {

/// The job's options.
class JobOptions {
 public:
  /// Parses "name=value name ...", as CUPS does.
  explicit JobOptions(const char* text) : count_(cupsParseOptions(text, 0, &all_)) {}
  ~JobOptions() { cupsFreeOptions(count_, all_); }
  JobOptions(const JobOptions&) = delete;
  JobOptions& operator=(const JobOptions&) = delete;

  int Count() const { return count_; }
  cups_option_t* All() const { return all_; }

  /// The option's value; null where the job does not have it.
  const char* Find(const char* name) const { return cupsGetOption(name, count_, all_); }
  /// Whether the option has this value, in capitals or not.
  bool Is(const char* name, const char* value) const;
  bool IsTrue(const char* name) const;
  /// The option's value, or the nearest that is allowed; `otherwise` where the job does not have
  /// it.
  int Number(const char* name, int otherwise, int least, int most) const;

 private:
  cups_option_t* all_ = nullptr;
  int count_;
};

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
JobWishes read_wishes(const JobOptions& options, const char* copies, bool borderless);

/// Whether print-color-mode is one of IPP's modes without colours. The printer makes its greys of
/// all its dyes and has no mode of black dots only, so these all ask for the same.
bool asks_for_grey(const JobOptions& options);

}  // namespace photo

#endif  // TQR7_PHOTO_JOB_WISHES_H
