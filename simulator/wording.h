// SPDX-License-Identifier: Apache-2.0
//
// Headers, numbers and errors of the system in words, as the event lines show them.
#ifndef TQR7_SIMULATOR_WORDING_H
#define TQR7_SIMULATOR_WORDING_H

#include <cstdint>
#include <string>

#include "decoder/command_blocks.h"
#include "decoder/command_listener.h"

namespace simulator {

/// "1852 x 1232, gloss"
std::string sheet_words(const decoder::JobHeader& header);

/// Every field of the job header, by name.
std::string job_header_words(const decoder::JobHeader& header);

/// Every field of the image header, by name; the time as 2026-01-31 12:00:00.
std::string image_header_words(const decoder::ImageHeader& header);

/// One line for a printed sheet: size, finish, the image's size and place, mode, two-up, time.
std::string printed_sheet_words(const decoder::Sheet& sheet);

/// "1 sheet", "2 sheets"
std::string counted(std::uint64_t count, const char* noun);

/// What the system says of an errno value.
std::string error_words(int errorNumber);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_WORDING_H
