// SPDX-License-Identifier: Apache-2.0
//
// What the system says of an error number, for the event lines.
#ifndef TQR7_SIMULATOR_ERROR_WORDS_H
#define TQR7_SIMULATOR_ERROR_WORDS_H

#include <string>
#include <system_error>

namespace simulator {

/// The words for an errno value.
inline std::string error_words(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

}  // namespace simulator

#endif  // TQR7_SIMULATOR_ERROR_WORDS_H
