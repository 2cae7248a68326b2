// SPDX-License-Identifier: Apache-2.0
//
// What a queue's device address says about the connection to the printer.
#ifndef TQR7_TOOLS_DEVICE_CONNECTION_H
#define TQR7_TOOLS_DEVICE_CONNECTION_H

#include <cstdint>
#include <string>
#include <string_view>

namespace tools {

/// Whether answers of the printer reach the driver, which does not print without them.
enum class Bidirectional : std::uint8_t { Yes, No, CannotTell };

/// Judges by the backend that the address names.
Bidirectional bidirectional(std::string_view deviceUri);

/// "yes", "no", "cannot be told".
const char* to_string(Bidirectional answer);

/// The address without user, password, host and the printer's serial number, which a bug report
/// does not need: "socket://HOST:9100/?contimeout=8"
std::string without_private_parts(std::string_view deviceUri);

}  // namespace tools

#endif  // TQR7_TOOLS_DEVICE_CONNECTION_H
