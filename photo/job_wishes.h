// SPDX-License-Identifier: Apache-2.0
//
// How the job wants a photo printed: its size and place on the page, and its tones. The options are
// those of CUPS.
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
  /// Whether the option has this value; capitals do not matter.
  bool Is(const char* name, const char* value) const;
  bool IsTrue(const char* name) const;
  /// The option's value, or the nearest that is allowed; `otherwise` where the job has none.
  int Number(const char* name, int otherwise, int least, int most) const;

 private:
  cups_option_t* all_ = nullptr;
  int count_;
};

/// How large the photo is printed.
enum class Scaling : std::uint8_t {
  Fit,      ///< all of it, as large as the page allows
  Fill,     ///< large enough to cover the page; the rest is cut off
  Natural,  ///< as large as its density says; what the page does not hold is cut off
  Spread    ///< in a size that the job says, on as many pages as that takes
};

/// Where on the page a smaller photo is, or which part of a larger one is printed: -1 is left or
/// top, 0 the middle, 1 right or bottom.
struct Position {
  int across = 0;
  int down = 0;
};

struct JobWishes {
  Scaling scaling = Scaling::Fit;
  /// For Spread: per cent of the fitted or of the natural size.
  int percent = 100;
  /// For Spread: the per cent are of the fitted size.
  bool ofFitted = false;
  /// Pixels of the photo to an inch of paper; 0 where the photo's own density counts.
  int perInchAcross = 0;
  int perInchDown = 0;
  Position position;
  /// orientation-requested, 3 to 6; 0 where the photo is turned to be as large as possible.
  int orientation = 0;
  bool mirror = false;
  int copies = 1;
  bool collate = false;
  double gamma = 1;       ///< above 1 is lighter
  double brightness = 1;  ///< above 1 is lighter
  int saturation = 100;   ///< per cent
  int hue = 0;            ///< degrees
  bool grey = false;      ///< black and white; saturation and hue do not count then
};

/// Reads the options. print-scaling=auto depends on whether the page is `borderless`. A number
/// beyond what CUPS allows becomes the nearest that it allows.
JobWishes read_wishes(const JobOptions& options, const char* copies, bool borderless);

/// Whether print-color-mode is one of IPP's modes without colours. They all mean the same here: the
/// printer makes its greys of all its dyes, and has no mode of black dots only.
bool asks_for_grey(const JobOptions& options);

}  // namespace photo

#endif  // TQR7_PHOTO_JOB_WISHES_H
