// SPDX-License-Identifier: Apache-2.0
//
// From the printer model's numbers to its ICC profile.
#ifndef TQR7_MODEL_MODEL_PROFILE_H
#define TQR7_MODEL_MODEL_PROFILE_H

#include <string>
#include <vector>

#include "model/model_numbers.h"

/// The profile's bytes: RGB, output class, version 4, connection space XYZ, three primaries and one
/// curve. The same model always gives the same bytes. Empty when no profile can be made of the
/// numbers, and `why` then says so in a line.
std::vector<unsigned char> make_model_profile(const PrinterModel& model, std::string& why);

#endif  // TQR7_MODEL_MODEL_PROFILE_H
