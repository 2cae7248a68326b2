// SPDX-License-Identifier: Apache-2.0
//
// The printer model: the numbers from which tqr7.icc is made.
//
// IT IS A MODEL, NOT A MEASUREMENT. No print was measured. The numbers are what a dye-sublimation
// print on glossy paper is plausibly like: a black less deep than ink's, yellows, oranges and reds
// as strong as a screen's, deep blues duller, cyans beyond it. If you have measured your printer,
// put your own profile in the place of tqr7.icc (docs/printer-profile.md).
#ifndef TQR7_MODEL_MODEL_NUMBERS_H
#define TQR7_MODEL_MODEL_NUMBERS_H

#include <array>

/// A day of the calendar.
struct ModelDate {
  int year;
  int month;
  int day;
};

/// The quantities of a model.
struct PrinterModel {
  /// What the profile calls itself, and under which terms it may be passed on: plain ASCII.
  const char* description;
  const char* copyright;

  /// The day of the numbers. The profile carries it as its date of creation, so that the same
  /// numbers always give the same bytes. Change it with the numbers.
  ModelDate date;

  /// The paper: X Y Z seen under D50, 1 = the perfect white.
  std::array<double, 3> white;

  /// The colours of full red, green and blue (the other two channels 0): CIE 1931 chromaticities
  /// x y, seen under D50 and relative to the paper. How light each is follows from the three
  /// together being the paper's white.
  std::array<double, 2> red;
  std::array<double, 2> green;
  std::array<double, 2> blue;

  /// The tone response, the same for all three channels, so that equal R, G and B are neutral. For
  /// a device value v, 0 ... 1, the light above black is
  ///   ((v + toe) / (1 + toe)) ^ exponent             from v = toe / (exponent - 1) up,
  ///   the straight line through 0 that touches it    below.
  /// Without the line, device values would change endlessly fast near black. The exponent is
  /// above 1.
  double exponent;
  double toe;

  /// The density of black (device value 0), relative to the paper: log10 of paper's light /
  /// black's.
  double blackDensity;
};

inline constexpr PrinterModel kPrinterModel = {
    .description = "TQR7 photo printer, glossy (a model, not a measurement)",
    .copyright = "The TQR7 driver's authors. Apache License 2.0.",
    .date = {2026, 11, 21},
    .white = {0.9642, 1.0000, 0.8249},  // D50's own: an unmeasured paper is taken to be white
    .red = {0.645, 0.335},
    .green = {0.300, 0.605},
    .blue = {0.168, 0.108},
    .exponent = 2.2,
    .toe = 0.055,
    .blackDensity = 2.1,
};

#endif  // TQR7_MODEL_MODEL_NUMBERS_H
