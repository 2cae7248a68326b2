// SPDX-License-Identifier: Apache-2.0
//
// Makes the ICC profile of the printer model.
#ifndef TQR7_MODEL_MODEL_PROFILE_H
#define TQR7_MODEL_MODEL_PROFILE_H

#include <string>
#include <vector>

#include "model/model_numbers.h"

/// Returns the profile's bytes: RGB, output class, version 4, connection space XYZ, three primaries
/// and one curve. The same model always has the same bytes. Returns none when no profile can be
/// made of the numbers, and says the reason in `why`.
std::vector<unsigned char> make_model_profile(const PrinterModel& model, std::string& why);

#endif  // TQR7_MODEL_MODEL_PROFILE_H
