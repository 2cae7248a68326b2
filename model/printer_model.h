// SPDX-License-Identifier: Apache-2.0
//
// The printer model as an ICC profile, compiled in: the printer's colours where there is no profile
// of a measured printer.
#ifndef TQR7_MODEL_PRINTER_MODEL_H
#define TQR7_MODEL_PRINTER_MODEL_H

#include <span>

/// The profile made of model/model_numbers.h: the same bytes as the file tqr7.icc that comes
/// with the filter. RGB, ICC version 4, matrix and curves.
std::span<const unsigned char> printer_model_profile();

#endif  // TQR7_MODEL_PRINTER_MODEL_H
