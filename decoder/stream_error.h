// SPDX-License-Identifier: Apache-2.0
//
// A place where a stream departs from the protocol, said precisely enough to find and mend it.
#ifndef TQR7_DECODER_STREAM_ERROR_H
#define TQR7_DECODER_STREAM_ERROR_H

#include <cstdint>
#include <functional>
#include <string>

#include "decoder/command.h"

namespace decoder {

/// One departure.
struct StreamError {
  std::uint64_t offset;  ///< of the first wrong byte, or of the field, from the stream's start
  Command command;       ///< that it is in
  std::string field;     ///< which field of the command, by its name in the documentation
  std::string came;      ///< what the stream has there
  std::string allowed;   ///< what it may have
};

/// "offset 5: status request, fixed byte 5: came 0x02, allowed 0x00"
std::string to_string(const StreamError& error);

/// Takes errors as they are found.
using ErrorSink = std::function<void(const StreamError&)>;

/// "0x1B"
std::string hex_byte(unsigned value);

/// "0x1B2C"
std::string hex_word(std::uint16_t value);

}  // namespace decoder

#endif  // TQR7_DECODER_STREAM_ERROR_H
