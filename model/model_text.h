// SPDX-License-Identifier: Apache-2.0
//
// The printer model's numbers, and their reading from the text in which people keep them.
#ifndef TQR7_MODEL_MODEL_TEXT_H
#define TQR7_MODEL_MODEL_TEXT_H

#include <array>
#include <string>
#include <string_view>

/// A day of the calendar.
struct ModelDate {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// What model/printer_model.txt says; units are told there.
struct PrinterModel {
  std::string description;
  std::string copyright;
  ModelDate date;
  std::array<double, 3> white{};  ///< X Y Z, Y of the perfect white 1
  std::array<double, 2> red{};    ///< x y, relative to the paper under D50
  std::array<double, 2> green{};
  std::array<double, 2> blue{};
  double exponent = 0;
  double toe = 0;
  double blackDensity = 0;
};

/// Reads the text. On false, `why` is one line that names the line of the text and what was
/// expected there, such as "line 12: red: expected x y, each from 0.001 to 0.999".
bool parse_printer_model(std::string_view text, PrinterModel& model, std::string& why);

#endif  // TQR7_MODEL_MODEL_TEXT_H
