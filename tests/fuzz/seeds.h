// SPDX-License-Identifier: Apache-2.0
//
// What each target begins with: sound inputs, and some that are wrong in one place.
#ifndef TQR7_TESTS_FUZZ_SEEDS_H
#define TQR7_TESTS_FUZZ_SEEDS_H

#include <string>
#include <vector>

namespace fuzz {

struct Seed {
  std::string name;  ///< of its file
  std::string bytes;
};

using Seeds = std::vector<Seed>;

Seeds page_loop_seeds();
Seeds command_stream_seeds();
Seeds replies_seeds();

Seeds ppd_options_seeds();
Seeds text_fields_seeds();
Seeds command_file_seeds();
Seeds fault_script_seeds();

Seeds bands_seeds();
Seeds conversion_seeds();

Seeds profile_seeds();

Seeds photo_seeds();

/// The bytes of a number or of a record as they lie in memory.
template <typename Record>
std::string bytes_of(const Record& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_SEEDS_H
