// SPDX-License-Identifier: Apache-2.0
//
// An error in a stream, precise enough to find it and to correct it.
#ifndef TQR7_DECODER_STREAM_ERROR_H
#define TQR7_DECODER_STREAM_ERROR_H

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "decoder/command.h"

namespace decoder {

/// One place where a stream does not follow the protocol.
struct StreamError {
  std::uint64_t offset;  ///< of the first wrong byte, or of the field, from the stream's start
  Command command;       ///< the command that has the error
  std::string field;     ///< the name of the field in the documentation
  std::string came;      ///< what the stream has there
  std::string allowed;   ///< what it may have
};

/// "offset 5: status request, fixed byte 5: came 0x02, allowed 0x00"
std::string to_string(const StreamError& error);

/// Takes errors as they are found.
using ErrorSink = std::function<void(const StreamError&)>;

/// "status request", "status request or print-out", "631, 1232 or 1833": what may come, as messages
/// list it.
std::string alternatives(const std::vector<std::string>& values);

/// "0x1B"
std::string hex_byte(unsigned value);

/// "0x1B2C"
std::string hex_word(std::uint16_t value);

}  // namespace decoder

#endif  // TQR7_DECODER_STREAM_ERROR_H
