// SPDX-License-Identifier: Apache-2.0
//
// A profile's bytes from a file that a person has named.
#ifndef TQR7_DECODER_PROFILE_FILE_H
#define TQR7_DECODER_PROFILE_FILE_H

#include <cstdint>
#include <string>
#include <vector>

namespace decoder {

/// The file's bytes, or none and in `why` the reason. Of a file that is larger than any profile no
/// more is read than shows that. A pipe that nobody writes to is an empty file.
std::vector<std::uint8_t> read_profile_file(const std::string& path, std::string& why);

}  // namespace decoder

#endif  // TQR7_DECODER_PROFILE_FILE_H
